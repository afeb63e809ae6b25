// Shows a tree of views in a window. It evaluates the tree when something observed has changed, once at the end of the
// turn, compares it with the one before, and lays out and repaints only if they differ; a window that merely moves
// costs nothing. Mouse events go to the views under them; menus open on a press, with their content as of then, and
// popovers are up while they are presented.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Lifetime.h"
#include "platform/Platform.h"
#include "views/AccessibilityElement.h"
#include "views/Context.h"
#include "views/HostWork.h"
#include "views/Layout.h"
#include "views/RenderCounts.h"
#include "views/View.h"

namespace views {

struct Popover;
struct PresentedPopover;

class HostingView : public platform::ContentView {
public:
    HostingView(platform::Platform& thePlatform, std::shared_ptr<Composite> theRoot, HostRole role = HostRole::window);
    ~HostingView() override;
    HostingView(const HostingView&) = delete;
    HostingView& operator=(const HostingView&) = delete;

    void didMoveToWindow(platform::NSWindow* theWindow) override;
    void setSize(CGSize size) override;
    void setOrderedIn(bool orderedIn) override;
    void setOnScreen(bool onScreen) override;
    bool acceptsFirstMouse(const platform::NSEvent& /*event*/) override { return false; }
    void handleEvent(const platform::NSEvent& event) override;
    std::string toolTipAt(CGPoint point) const override;
    const platform::Drawing& drawing() override;
    std::uint64_t drawingVersion() const override { return version * 2 + (showsKeyboard() ? 1 : 0); }

    // Evaluates and lays out now if that is due; it comes by itself at the end of a turn.
    void update();
    // The frames as of the last update.
    const Layout& layout() const { return frames; }
    std::vector<AccessibilityElement> elements() const { return accessibilityElements(frames, size); }
    // The NSView in the tree that was given this identifier; null when there is none now.
    const NSView* wrappedView(std::string_view identifier) const;
    // The size that the root takes when it is offered nothing, for windows that follow their content.
    CGSize idealSize();
    // From the window's AppKit coordinates to view space.
    CGPoint convertFromWindow(CGPoint point) const { return {point.x, size.height - point.y}; }

    // For nodes. An action may change what is shown, run turns, and even end its host.
    void run(const std::function<void()>& action);
    // The release on the same place is a click.
    void beginPress(const LayoutItem& item);
    void openMenu(const LayoutItem& item, const std::function<View()>& entries);

    platform::Platform& platform;

private:
    struct Press {
        std::string place;
        bool isInside = true;
        bool isShown = false;
    };

    void invalidate();
    void scheduleUpdate();
    void evaluate();
    void layOut();
    void followColorScheme();
    // A field looks otherwise while its window has the keyboard; nobody says when that changes.
    bool showsKeyboard() const { return window != nullptr && !frames.wrappedViews.empty() && window->isKeyWindow(); }
    void mouseDown(const platform::NSEvent& event);
    void mouseUp(const platform::NSEvent& event);
    void rightMouseDown(const platform::NSEvent& event);
    void mouseDragged(const platform::NSEvent& event);
    void scrollWheel(const platform::NSEvent& event);
    void keyDown(const platform::NSEvent& event);
    std::optional<std::int32_t> reactingItem(CGPoint point) const;
    std::int32_t pressedItem() const;
    bool isOverPress(const platform::NSEvent& event) const;
    // An action that runs, or may yet run from an open menu, needs what it was declared in as it was then.
    bool isTreeNeeded() const { return tree.use_count() > 1; }

    // In HostingView+Menus.cpp.
    CGRect convertToScreen(const CGRect& rect) const;
    std::vector<platform::MenuItem> evaluateMenu(const std::function<View()>& entries);
    bool openContextMenu(const platform::NSEvent& event);
    void presentPopovers();
    void present(const std::string& place, const LayoutItem& item, const Popover& declared);
    static void refresh(PresentedPopover& popover, const CGRect& anchor, const Popover& declared);
    void dismissed(std::string place);

    // In HostingView+Wrapped.cpp.
    void placeWrappedViews();
    void moveWrappedViews();
    void setNeedsDisplay();

    const std::shared_ptr<Composite> root;
    RenderCounts::Counts& counts;
    const std::shared_ptr<HostLink> link;
    std::shared_ptr<View> tree;
    HostWork work;
    std::vector<std::weak_ptr<NSView>> wrappedViews;
    Layout frames;
    platform::Drawing painted;
    std::uint64_t version = 0;
    CGSize size;
    platform::NSWindow* window = nullptr;
    std::optional<Press> press;
    std::unique_ptr<platform::MenuHandle> menu;
    std::map<std::string, std::unique_ptr<PresentedPopover>> popovers;  // by place
    platform::Token colorSchemeToken;
    bool isOrderedIn = false;
    bool needsEvaluation = true;
    bool needsLayout = true;
    bool needsDrawing = true;
    bool isDrawnWithKeyboard = false;
    bool isScheduled = false;
    platform::Lifetime lifetime;
};

// A host of one type of root view.
template <typename Root>
class NSHostingView : public HostingView {
public:
    NSHostingView(platform::Platform& thePlatform, Root rootView, HostRole theRole = HostRole::window)
        : HostingView(thePlatform, std::make_shared<CompositeOf<Root>>(std::move(rootView)), theRole) {}
};

}  // namespace views
