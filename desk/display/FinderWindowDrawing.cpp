#include "desk/display/FinderWindowDrawing.h"

#include <algorithm>
#include <array>
#include <string>

#include "desk/look/Icons.h"

namespace desk {

namespace {

using platform::CGRect;
using platform::CGRectMake;
using platform::CGSize;
using platform::Color;
using platform::ColorRole;
using platform::Font;
using platform::FontWeight;

constexpr Font listFont{13, FontWeight::regular};
constexpr Font smallFont{11, FontWeight::regular};
constexpr Font headerFont{11, FontWeight::medium};
constexpr double iconSize = 16;
constexpr double listInset = 10;
constexpr double cellPadding = 8;

struct Column {
    const char* title;
    double width;      // 0: what the others leave
    double fromWidth;  // of the list; hidden in a narrower one
    std::string FinderItem::*text;
    TextAlignment alignment;
};
constexpr std::array columns{
    Column{"Name", 0, 0, &FinderItem::name, TextAlignment::left},
    Column{"Date Modified", 160, 380, &FinderItem::modified, TextAlignment::left},
    Column{"Size", 80, 300, &FinderItem::size, TextAlignment::right},
    Column{"Kind", 120, 520, &FinderItem::kind, TextAlignment::left},
};

class FinderWindowDrawing {
public:
    FinderWindowDrawing(DrawingBuilder& theBuilder, const FinderContent& theContent)
        : draw(theBuilder),
          content(theContent),
          width(content.size.width),
          height(content.size.height),
          layout(content.size, countsOf(content), content.scrolled),
          left(layout.sidebarWidth()) {}

    void run() {
        draw.fill(CGRectMake(left, windowTitleBarHeight, width - left, height - windowTitleBarHeight),
                  Color::of(ColorRole::controlBackground));
        titleBar();
        header();
        rows();
        status();
        sidebar();
        drawTrafficLights(draw, content.size, content.look);
        drawWindowEdge(draw, content.size);
    }

private:
    static FinderCounts countsOf(const FinderContent& content) {
        const auto volumes = static_cast<std::size_t>(std::count_if(
            content.places.begin(), content.places.end(), [](const FinderPlace& place) { return place.isVolume; }));
        return {content.itemCount, content.places.size() - volumes, volumes};
    }

    bool isActive() const { return content.look == WindowLook::active; }

    void titleBar() {
        draw.fill(CGRectMake(left, 0, width - left, windowTitleBarHeight), titleBarColor(draw, content.look));
        draw.fill(CGRectMake(left, windowTitleBarHeight - 0.5, width - left, 0.5), Color::of(ColorRole::separator));
        double x = left > 0 ? left + 12 : windowButtonsWidth;
        arrow("chevron.left", layout.back(), content.canGoBack, x);
        arrow("chevron.right", layout.forward(), content.canGoForward, x);
        draw.view(folderIcon(iconSize), CGRectMake(x + 4, (windowTitleBarHeight - iconSize) / 2, iconSize, iconSize));
        x += 4 + iconSize + 6;
        if (width - x - 12 > 0)
            draw.text(content.title, {13, FontWeight::semibold}, titleColor(content.look),
                      CGRectMake(x, 0, width - x - 12, windowTitleBarHeight));
    }

    void arrow(const char* symbol, const CGRect& box, bool leadsSomewhere, double& x) {
        if (!(box.width() > 0)) return;
        const Color ink =
            Color::of(leadsSomewhere ? ColorRole::secondary : ColorRole::tertiary, leadsSomewhere ? 1 : 0.6);
        draw.symbol(symbol, {12, FontWeight::medium}, ink, CGRectMake(box.minX(), 0, 16, windowTitleBarHeight));
        x = box.maxX();
    }

    void sidebar() {
        if (left <= 0) return;
        const CGRect area = CGRectMake(0, 0, left, height);
        draw.beginClip(area);
        draw.fill(area, isActive() ? draw.shade(0xE6E5E9, 0x2B2A2E) : draw.shade(0xF0EFF1, 0x262528));
        draw.fill(CGRectMake(left - 0.5, 0, 0.5, height), Color::of(ColorRole::separator));
        sectionTitle("Favourites", FinderLayout::Section::favourites);
        sectionTitle("Locations", FinderLayout::Section::volumes);
        for (std::size_t index = 0; index < content.places.size(); ++index)
            place(content.places[index], layout.place(index));
        draw.endClip();
    }

    void sectionTitle(const char* title, FinderLayout::Section section) {
        const CGRect box = layout.sectionTitle(section);
        draw.text(title, {11, FontWeight::semibold}, Color::of(ColorRole::tertiary),
                  CGRectMake(18, box.minY(), left - 30, box.height()));
    }

    void place(const FinderPlace& place, const CGRect& row) {
        const bool isShown =
            place.path ? *place.path == content.path : content.path.empty() && place.name == content.title;
        if (isShown) draw.fill(row, draw.shade(0x000000, 0xFFFFFF, 0.09), 5);
        const Color tint = isActive() ? Color::of(ColorRole::accent) : Color::of(ColorRole::secondary);
        draw.symbol(place.symbol, listFont, tint, CGRectMake(16, row.minY(), 20, row.height()));
        draw.text(place.name, listFont, Color::of(isActive() ? ColorRole::primary : ColorRole::secondary),
                  CGRectMake(42, row.minY(), left - 56, row.height()));
    }

    // The column's cell in a row whose top is y; nothing for a hidden column.
    CGRect cell(const Column& wanted, double y, double rowHeight) const {
        const double listWidth = width - left;
        if (listWidth < wanted.fromWidth) return {};
        double others = 0;
        for (const Column& each : columns)
            if (listWidth >= each.fromWidth) others += each.width;
        const double flexible = listWidth - 2 * listInset - others;
        double x = left + listInset;
        for (const Column& each : columns) {
            const double own = each.width > 0 ? each.width : flexible;
            if (&each == &wanted) return CGRectMake(x + cellPadding, y, own - 2 * cellPadding, rowHeight);
            if (listWidth >= each.fromWidth) x += own;
        }
        return {};
    }

    void header() {
        const double y = layout.header().minY();
        const double headerHeight = layout.header().height();
        for (const Column& column : columns) {
            const CGRect box = cell(column, y, headerHeight);
            if (!(box.width() > 0)) continue;
            draw.text(column.title, headerFont, Color::of(ColorRole::secondary), box, column.alignment);
            if (&column != &columns.front())
                draw.fill(CGRectMake(box.minX() - cellPadding, y + 6, 0.5, headerHeight - 12),
                          Color::of(ColorRole::separator));
        }
        draw.fill(CGRectMake(left, y + headerHeight - 0.5, width - left, 0.5), Color::of(ColorRole::separator));
    }

    void rows() {
        const CGRect area = layout.list();
        if (!(area.height() > 0)) return;
        draw.beginClip(area);
        for (std::size_t i = 0; i < layout.rowsInSight(); ++i) {
            const std::size_t index = layout.firstRow() + i;
            const CGRect back = layout.row(index);
            if (index % 2 == 1) draw.fill(back, draw.shade(0x000000, 0xFFFFFF, 0.04), 5);
            if (i < content.items.size()) row(content.items[i], back);
        }
        if (content.items.empty()) emptyNote(area);
        if (content.band) {
            const CGRect band = CGRectOffset(*content.band, area.minX(), area.minY() - layout.scrolled());
            draw.fill(band, draw.shade(0x000000, 0xFFFFFF, 0.09));
            draw.border(band, draw.shade(0x000000, 0xFFFFFF, 0.3), 0.5);
        }
        draw.endClip();
        if (const auto knob = layout.knob()) draw.fill(*knob, draw.shade(0x000000, 0xFFFFFF, 0.32), knob->width() / 2);
    }

    void row(const FinderItem& item, const CGRect& back) {
        const bool isBright = item.isSelected && isActive();
        if (item.isSelected)
            draw.fill(back, isBright ? Color::of(ColorRole::accent) : draw.shade(0xDCDCDC, 0x464646), 5);
        for (const Column& column : columns) {
            CGRect box = cell(column, back.minY(), back.height());
            const bool isName = &column == &columns.front();
            if (isName) {
                icon(item, CGRectMake(box.minX(), box.midY() - iconSize / 2, iconSize, iconSize));
                box = CGRectMake(box.minX() + iconSize + 6, box.minY(), box.width() - iconSize - 6, box.height());
            }
            if (!(box.width() > 0)) continue;
            const Color usual = Color::of(isName ? ColorRole::primary : ColorRole::secondary);
            draw.text(item.*column.text, isName ? listFont : smallFont, isBright ? Color::of(ColorRole::white) : usual,
                      box, column.alignment);
        }
    }

    void icon(const FinderItem& item, const CGRect& square) {
        draw.view(item.icon == ItemIcon::folder ? folderIcon(iconSize)
                  : item.icon == ItemIcon::document
                      ? documentIcon(iconSize)
                      : applicationIcon(item.name.substr(0, item.name.rfind('.')), iconSize),
                  square);
    }

    void emptyNote(const CGRect& area) {
        if (content.isReadable) return;
        draw.text("The contents of this folder can’t be shown.", listFont, Color::of(ColorRole::tertiary),
                  CGRectInset(area, 20, 0), TextAlignment::center);
    }

    void status() {
        const CGRect bar = layout.status();
        draw.fill(bar, titleBarColor(draw, content.look));
        draw.fill(CGRectMake(bar.minX(), bar.minY(), bar.width(), 0.5), Color::of(ColorRole::separator));
        const std::string count = std::to_string(content.itemCount);
        const std::string items = content.itemCount == 1 ? " item" : " items";
        const std::string text = content.selectedCount == 0
                                     ? count + items
                                     : std::to_string(content.selectedCount) + " of " + count + " selected";
        draw.text(text, smallFont, Color::of(ColorRole::secondary), CGRectInset(bar, 12, 0), TextAlignment::center);
    }

    DrawingBuilder& draw;
    const FinderContent& content;
    const double width;
    const double height;
    const FinderLayout layout;
    const double left;  // where the list begins
};

}  // namespace

void drawFinderWindow(DrawingBuilder& builder, const FinderContent& content) {
    FinderWindowDrawing(builder, content).run();
}

void drawInfoPanel(DrawingBuilder& builder, CGSize size, const std::string& title, const FinderItem& item,
                   const std::string& folder, WindowLook look) {
    drawPlainWindow(builder, size, title, look);
    const CGRect icon = CGRectMake(16, windowTitleBarHeight + 14, 32, 32);
    builder.view(item.icon == ItemIcon::document ? documentIcon(icon.width()) : folderIcon(icon.width()), icon);
    builder.text(item.name, {13, FontWeight::semibold}, Color::of(ColorRole::primary),
                 CGRectMake(58, icon.minY(), size.width - 74, icon.height()));
    builder.fill(CGRectMake(0, icon.maxY() + 12, size.width, 0.5), Color::of(ColorRole::separator));
    double y = icon.maxY() + 22;
    const std::array<std::pair<const char*, const std::string*>, 4> lines{
        {{"Kind:", &item.kind}, {"Size:", &item.size}, {"Where:", &folder}, {"Modified:", &item.modified}}};
    for (const auto& [label, value] : lines) {
        builder.text(label, smallFont, Color::of(ColorRole::secondary), CGRectMake(12, y, 64, 18),
                     TextAlignment::right);
        builder.text(*value, smallFont, Color::of(ColorRole::primary), CGRectMake(82, y, size.width - 94, 18));
        y += 20;
    }
    drawWindowEdge(builder, size);
}

}  // namespace desk
