#include "desk/display/FinderWindowDrawing.h"

#include <algorithm>
#include <array>
#include <string>

#include "desk/display/FinderMetrics.h"
#include "desk/display/Icons.h"

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

struct Favourite {
    const char* name;
    const char* symbol;
    const char* path;  // "~" stands for the home folder
};
constexpr std::array favourites{
    Favourite{"Recents", "clock", ""},
    Favourite{"Applications", "square.grid.2x2", "/Applications"},
    Favourite{"Desktop", "desktopcomputer", "~/Desktop"},
    Favourite{"Documents", "doc", "~/Documents"},
    Favourite{"Downloads", "arrow.down.circle", "~/Downloads"},
    Favourite{"ana", "house", "~"},
};
constexpr std::array locations{Favourite{"Macintosh HD", "internaldrive", "/"}};

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
          left(width >= finderSidebarThreshold ? finderSidebarWidth : 0) {}

    void run() {
        draw.fill(CGRectMake(left, windowTitleBarHeight, width - left, height - windowTitleBarHeight),
                  Color::of(ColorRole::controlBackground));
        titleBar();
        header();
        rows();
        status();
        sidebar();
        drawTrafficLights(draw, content.look);
        drawWindowEdge(draw, content.size);
    }

private:
    bool isActive() const { return content.look == WindowLook::active; }

    void titleBar() {
        draw.fill(CGRectMake(left, 0, width - left, windowTitleBarHeight), titleBarColor(draw, content.look));
        draw.fill(CGRectMake(left, windowTitleBarHeight - 0.5, width - left, 0.5), Color::of(ColorRole::separator));
        double x = left > 0 ? left + 12 : trafficLightsWidth;
        for (const char* symbol : {"chevron.left", "chevron.right"}) {
            draw.symbol(symbol, {12, FontWeight::medium}, Color::of(ColorRole::tertiary),
                        CGRectMake(x, 0, 16, windowTitleBarHeight));
            x += 20;
        }
        drawFolderIcon(draw, CGRectMake(x + 4, (windowTitleBarHeight - iconSize) / 2, iconSize, iconSize));
        x += 4 + iconSize + 6;
        if (width - x - 12 > 0)
            draw.text(content.title, {13, FontWeight::semibold}, titleColor(content.look),
                      CGRectMake(x, 0, width - x - 12, windowTitleBarHeight));
    }

    void sidebar() {
        if (left <= 0) return;
        const CGRect area = CGRectMake(0, 0, left, height);
        draw.beginClip(area);
        draw.fill(area, isActive() ? draw.shade(0xE6E5E9, 0x2B2A2E) : draw.shade(0xF0EFF1, 0x262528));
        draw.fill(CGRectMake(left - 0.5, 0, 0.5, height), Color::of(ColorRole::separator));
        double y = windowTitleBarHeight + 8;
        section("Favourites", favourites.begin(), favourites.end(), y);
        y += 10;
        section("Locations", locations.begin(), locations.end(), y);
        draw.endClip();
    }

    void section(const char* title, const Favourite* first, const Favourite* last, double& y) {
        draw.text(title, {11, FontWeight::semibold}, Color::of(ColorRole::tertiary), CGRectMake(18, y, left - 30, 20));
        y += 22;
        for (const Favourite* each = first; each != last; ++each) {
            const CGRect row = CGRectMake(10, y, left - 20, 26);
            if (pathOf(*each) == content.path) draw.fill(row, draw.shade(0x000000, 0xFFFFFF, 0.09), 5);
            const Color tint = isActive() ? Color::of(ColorRole::accent) : Color::of(ColorRole::secondary);
            draw.symbol(each->symbol, listFont, tint, CGRectMake(16, y, 20, 26));
            draw.text(each->name, listFont, Color::of(isActive() ? ColorRole::primary : ColorRole::secondary),
                      CGRectMake(42, y, left - 56, 26));
            y += 26;
        }
    }

    std::string pathOf(const Favourite& favourite) const {
        const std::string path = favourite.path;
        return path.empty() || path[0] != '~' ? path : content.home + path.substr(1);
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
        const double y = windowTitleBarHeight;
        for (const Column& column : columns) {
            const CGRect box = cell(column, y, finderHeaderHeight);
            if (!(box.width() > 0)) continue;
            draw.text(column.title, headerFont, Color::of(ColorRole::secondary), box, column.alignment);
            if (&column != &columns.front())
                draw.fill(CGRectMake(box.minX() - cellPadding, y + 6, 0.5, finderHeaderHeight - 12),
                          Color::of(ColorRole::separator));
        }
        draw.fill(CGRectMake(left, y + finderHeaderHeight - 0.5, width - left, 0.5), Color::of(ColorRole::separator));
    }

    void rows() {
        const double top = windowTitleBarHeight + finderHeaderHeight;
        const double bottom = height - finderStatusHeight;
        if (bottom <= top) return;
        draw.beginClip(CGRectMake(left, top, width - left, bottom - top));
        for (std::size_t i = 0; i < std::max(content.items.size(), rowsInSight(height)); ++i) {
            const double y = top + static_cast<double>(i) * finderRowHeight;
            const CGRect back = CGRectMake(left + listInset, y, width - left - 2 * listInset, finderRowHeight);
            if (i % 2 == 1) draw.fill(back, draw.shade(0x000000, 0xFFFFFF, 0.04), 5);
            if (i < content.items.size()) row(content.items[i], back);
        }
        if (content.items.empty()) emptyNote(top, bottom);
        draw.endClip();
    }

    void row(const FinderItem& item, const CGRect& back) {
        const bool isBright = item.isSelected && isActive();
        if (item.isSelected)
            draw.fill(back, isBright ? Color::of(ColorRole::accent) : draw.shade(0xDCDCDC, 0x464646), 5);
        for (const Column& column : columns) {
            CGRect box = cell(column, back.minY(), finderRowHeight);
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
        switch (item.icon) {
        case ItemIcon::folder:
            drawFolderIcon(draw, square);
            break;
        case ItemIcon::document:
            drawDocumentIcon(draw, square);
            break;
        case ItemIcon::application:
            drawApplicationIcon(draw, square, item.name.substr(0, item.name.rfind('.')));
            break;
        }
    }

    void emptyNote(double top, double bottom) {
        if (content.isReadable) return;
        draw.text("The contents of this folder can’t be shown.", listFont, Color::of(ColorRole::tertiary),
                  CGRectMake(left + 20, top, width - left - 40, bottom - top), TextAlignment::center);
    }

    void status() {
        const CGRect bar = CGRectMake(left, height - finderStatusHeight, width - left, finderStatusHeight);
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
    if (item.icon == ItemIcon::document)
        drawDocumentIcon(builder, icon);
    else
        drawFolderIcon(builder, icon);
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
