#include "play/ContactSheet.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <optional>
#include <sstream>
#include <vector>

#include <QImage>
#include <QPainter>
#include <QString>

#include "desk/display/SystemFonts.h"
#include "play/BarParts.h"
#include "play/ContactSheetStates.h"
#include "play/ScriptPlayer.h"
#include "play/Session.h"

namespace play {

namespace {

using platform::CGRect;

constexpr double sheetScale = 2;
// In points.
constexpr double pageWidth = 2480;
constexpr double pageMargin = 20;
constexpr double pageGap = 24;
constexpr double captionHeight = 22;
constexpr double leastLetterRoom = 6.5;
constexpr double menuBarHeight = 24;
constexpr double deskAround = 10;  // of the desk, on each side of what is shown

CGRect unionOf(const CGRect& a, const CGRect& b) {
    const double x = std::min(a.minX(), b.minX());
    const double y = std::min(a.minY(), b.minY());
    return platform::CGRectMake(x, y, std::max(a.maxX(), b.maxX()) - x, std::max(a.maxY(), b.maxY()) - y);
}

std::string scriptOf(const SheetState& state) {
    std::ostringstream script;
    script << (state.target.empty() ? "screen 0 0 1440 900\n" : "screen 0 0 2560 640\n")
           << "folder /Users/ana/Documents/Projects/2024/Orvane/Designs/Bars\n"
           << state.before;
    if (!state.target.empty())
        script << (state.target.front() == '/' ? "finder open \"" : "finder open-virtual \"") << state.target
               << "\" 60 60 " << state.width << " 420\n";
    script << "launch\nwait 2\n" << state.story;
    return script.str();
}

// Null when none is on screen.
const desk::ServerWindow* frontOrdinaryWindow(const desk::Machine& machine) {
    const auto onScreen = machine.windows.onScreen();
    const auto found = std::find_if(onScreen.begin(), onScreen.end(), [](const desk::ServerWindow* each) {
        return each->window != nullptr && !each->window->settings().isPanel;
    });
    return found == onScreen.end() ? nullptr : *found;
}

// The alert that is up, or else the ordinary window in front, or else the bar, with whatever popover or tooltip is up; the open menu, with the menu bar above one that hangs on it.
CGRect shownArea(const SheetState& state, const Session& session) {
    const desk::Machine& machine = session.machine;
    std::optional<CGRect> area;
    const auto add = [&](const CGRect& rect) { area = area ? unionOf(*area, rect) : rect; };
    if (const auto alert = machine.alertSurface.shown())
        add(alert->frame());
    else if (const desk::ServerWindow* window = frontOrdinaryWindow(machine))
        add(window->frame);
    else if (const desk::ServerWindow* bar = machine.windows.find(panelNumber(session, 101)))
        add(bar->frame);
    if (const desk::OpenMenu* menu = machine.menus.menu()) {
        add(menu->frame());
        if (state.target.empty()) add(CGRectOffset(menu->frame(), 0, menuBarHeight));
    }
    for (const desk::ShownPopover& popover : machine.menus.popovers()) add(popover.place.body);
    if (const auto toolTip = machine.toolTips.shown()) add(toolTip->frame);
    return CGRectInset(area.value_or(platform::CGRectMake(60, 60, 1, 1)), -deskAround, -deskAround);
}

// Null, after a word about it, when the story fails.
QImage pictureOf(const SheetState& state) {
    Session session;
    std::ostringstream output;
    ScriptPlayer player(session, state.caption, scriptOf(state), output, std::cerr);
    if (player.play() != 0) return {};
    const CGRect area = shownArea(state, session);
    const platform::CGRect screen = session.machine.displays.screens().front().frame;
    const QRectF pixels(area.minX() * sheetScale, (screen.maxY() - area.maxY()) * sheetScale, area.width() * sheetScale,
                        area.height() * sheetScale);
    const QImage whole = session.compositor.compose(session.desktop.read(), sheetScale);
    return whole.copy(pixels.toRect().intersected(whole.rect()));
}

struct Placed {
    const SheetState* state;
    QImage picture;
    QPointF at;  // of the caption, in points
};

// In rows from left to right; answers the height of the page.
double placeInRows(std::vector<Placed>& all) {
    double x = pageMargin;
    double y = pageMargin;
    double rowHeight = 0;
    for (Placed& each : all) {
        const double caption = leastLetterRoom * static_cast<double>(each.state->caption.size());
        const double width = std::max(each.picture.width() / sheetScale, caption);
        if (x > pageMargin && x + width > pageWidth - pageMargin) {
            x = pageMargin;
            y += rowHeight + pageGap;
            rowHeight = 0;
        }
        each.at = {x, y};
        x += width + pageGap;
        rowHeight = std::max(rowHeight, captionHeight + each.picture.height() / sheetScale);
    }
    return y + rowHeight + pageMargin;
}

QImage pageOf(std::vector<Placed> all) {
    const double height = placeInRows(all);
    QImage page(static_cast<int>(pageWidth * sheetScale), static_cast<int>(std::ceil(height * sheetScale)),
                QImage::Format_RGB32);
    page.fill(QColor(0xEC, 0xEC, 0xEE));
    QPainter painter(&page);
    painter.scale(sheetScale, sheetScale);
    desk::SystemFonts fonts;
    painter.setFont(fonts.face({12, platform::FontWeight::medium}).toolkitFont);
    painter.setPen(QColor(0x33, 0x33, 0x36));
    for (const Placed& each : all) {
        painter.drawText(QRectF(each.at.x(), each.at.y(), pageWidth, captionHeight), Qt::AlignLeft | Qt::AlignVCenter,
                         QString::fromStdString(each.state->caption));
        const QSizeF size(each.picture.width() / sheetScale, each.picture.height() / sheetScale);
        painter.drawImage(QRectF(each.at + QPointF(0, captionHeight), size), each.picture);
    }
    return page;
}

}  // namespace

int drawContactSheet(const std::string& file) {
    std::vector<Placed> all;
    for (const SheetState& state : sheetStates()) {
        QImage picture = pictureOf(state);
        if (picture.isNull()) return 1;
        all.push_back({&state, std::move(picture), {}});
    }
    if (desk::savePng(pageOf(std::move(all)), file)) return 0;
    std::cerr << "desk: the picture can't be written: " << file << '\n';
    return 2;
}

}  // namespace play
