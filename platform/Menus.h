// Menus and popovers: what a view asks the platform to put up beside its window; and items of the menu bar. They stand above every window, keep to the screen, and don't hold
// up the main thread: timers and everything else go on while one is open. Rectangles are AppKit screen points. Main thread only.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/Geometry.h"
#include "platform/Images.h"
#include "platform/Windows.h"

namespace platform {

struct MenuItem {
    std::string title;
    std::string symbol;  // before the title; empty for none
    bool enabled = true;
    bool isSeparator = false;
    // Runs when the item is chosen, after the menu has closed.
    std::function<void()> action;
};

// A menu closes on a choice, on Escape, on a press outside it, and when another menu opens. Letting the handle go closes it too.
class MenuHandle {
public:
    virtual ~MenuHandle() = default;
    virtual bool isOpen() const = 0;
    // It shows these from now on, where it stands; without any it closes. What has been chosen before runs all the same.
    virtual void update(std::vector<MenuItem> items) = 0;
};

// An item in the right part of every menu bar, as long as the handle lives.
class StatusItem {
public:
    virtual ~StatusItem() = default;
    // Below the item where it was pressed; meanwhile that looks pressed. Neither brings the application forward nor gives it the keyboard.
    virtual std::unique_ptr<MenuHandle> popUpMenu(std::vector<MenuItem> items) = 0;
};

enum class RectEdge { minX, minY, maxX, maxY };

// A popover with its arrow on an edge of its anchor. It never takes the keyboard from the key window. It closes on a press outside it (but for one on its anchor, which is the
// anchor's) and on Escape when no focused field takes that first; then it tells so once. Letting the handle go closes it without a word.
class PopoverHandle {
public:
    virtual ~PopoverHandle() = default;
    // The anchor's place or the content's size have changed.
    virtual void update(const CGRect& anchor, CGSize contentSize) = 0;
};

class Menus {
public:
    virtual ~Menus() = default;

    // Below the anchor and flush with its left edge where there is room: the menu of a button.
    virtual std::unique_ptr<MenuHandle> popUpBelow(const CGRect& anchor, std::vector<MenuItem> items) = 0;
    // With its top left corner at the point: a context menu.
    virtual std::unique_ptr<MenuHandle> popUpAt(const CGPoint& point, std::vector<MenuItem> items) = 0;

    // The image stands in the middle of the bar's height. `pressed` runs at each press, to open the menu.
    virtual std::unique_ptr<StatusItem> addStatusItem(const NSImage& image, const std::string& accessibilityLabel,
                                                      std::function<void()> pressed) = 0;

    // The content is shown as large as `contentSize` says.
    virtual std::unique_ptr<PopoverHandle> showPopover(NSWindow& window, const CGRect& anchor, RectEdge arrowEdge,
                                                       std::unique_ptr<ContentView> content, CGSize contentSize,
                                                       std::function<void()> onDismiss) = 0;
};

}  // namespace platform
