#include "views/HostingView.h"

#include <utility>

#include "views/DrawingOfLayout.h"
#include "views/LayoutPass.h"
#include "views/PresentedPopover.h"
#include "views/Reconciler.h"

namespace views {

namespace {

bool reacts(const LayoutItem& item) {
    return item.viewKind == ViewKind::button || item.viewKind == ViewKind::tapGesture ||
           item.viewKind == ViewKind::menu || item.viewKind == ViewKind::representable;
}

}  // namespace

HostingView::HostingView(platform::Platform& thePlatform, std::shared_ptr<Composite> theRoot, HostRole role)
    : platform(thePlatform),
      root(std::move(theRoot)),
      counts(thePlatform.shared<RenderCounts>().of(role)),
      link(std::make_shared<HostLink>(HostLink{thePlatform, [this] { invalidate(); }})) {}

HostingView::~HostingView() {
    link->invalidate = nullptr;
}

void HostingView::didMoveToWindow(platform::NSWindow* theWindow) {
    window = theWindow;
    moveWrappedViews();
    if (window != nullptr) return;
    menu.reset();
    popovers.clear();
}

void HostingView::setSize(CGSize theSize) {
    if (theSize == size) return;
    size = theSize;
    needsLayout = true;
    scheduleUpdate();
}

void HostingView::setOnScreen(bool onScreen) {
    if (onScreen == isOnScreen) return;
    isOnScreen = onScreen;
    if (!isOnScreen) menu.reset();
    runTasks();
}

void HostingView::invalidate() {
    needsEvaluation = true;
    scheduleUpdate();
}

void HostingView::scheduleUpdate() {
    if (std::exchange(isScheduled, true)) return;
    platform.runLoop.atEndOfTurn(lifetime.guard([this] { update(); }));
}

void HostingView::update() {
    isScheduled = false;
    // Laying out for another size declares parts of the tree anew.
    if (needsEvaluation || (needsLayout && isTreeNeeded())) evaluate();
    if (needsLayout) layOut();
    runTasks();
    presentPopovers();
}

void HostingView::evaluate() {
    needsEvaluation = false;
    counts.evaluations += 1;
    link->readsColorScheme = false;
    auto fresh = std::make_shared<View>(ViewKind::composite, CompositeContent{root, nullptr});
    Reconciler reconciler(link, tasks);
    const bool looksAlike = reconciler.update(*fresh, tree.get());
    followColorScheme();
    if (looksAlike && !isTreeNeeded()) {
        Reconciler::takeBehaviour(*tree, *fresh);
        return;
    }
    tree = std::move(fresh);
    needsLayout = true;
}

void HostingView::layOut() {
    needsLayout = false;
    counts.layouts += 1;
    Reconciler reconciler(link, tasks);
    LayoutPass pass(
        platform.text, [&](View& reader, CGSize readerSize) { reconciler.expand(reader, readerSize); }, frames);
    pass.layOut(*tree, size);
    followColorScheme();
    placeWrappedViews();
    setNeedsDisplay();
}

CGSize HostingView::idealSize() {
    if (needsEvaluation) evaluate();
    Layout scratch;
    return LayoutPass(
               platform.text, [](View&, CGSize) {}, scratch)
        .idealSize(*tree);
}

void HostingView::followColorScheme() {
    if (link->readsColorScheme == static_cast<bool>(colorSchemeToken)) return;
    colorSchemeToken.clear();
    if (!link->readsColorScheme) return;
    colorSchemeToken =
        platform.appearance.colorScheme.subscribe([this](platform::ColorScheme) { invalidate(); },
                                                  decltype(platform.appearance.colorScheme)::Delivery::onChangeOnly);
}

// Starting a task may change state, but changes no list here: what it makes dirty is evaluated later.
void HostingView::runTasks() {
    std::erase_if(tasks, [](const auto& task) { return task.expired(); });
    for (const auto& weak : tasks) {
        const auto task = weak.lock();
        if (task->isRunning == isOnScreen) continue;
        task->isRunning = isOnScreen;
        if (isOnScreen)
            task->running = task->start();
        else
            task->running.cancel();
    }
}

const platform::Drawing& HostingView::drawing() {
    if (tree == nullptr) update();
    if (std::exchange(needsDrawing, false)) {
        counts.drawings += 1;
        draw(frames, platform.text, painted);
    }
    return painted;
}

void HostingView::handleEvent(const platform::NSEvent& event) {
    using platform::NSEventType;
    struct Entry {
        NSEventType type;
        void (HostingView::*handler)(const platform::NSEvent&);
    };
    static constexpr Entry handlers[] = {{NSEventType::leftMouseDown, &HostingView::mouseDown},
                                         {NSEventType::leftMouseUp, &HostingView::mouseUp},
                                         {NSEventType::rightMouseDown, &HostingView::rightMouseDown}};
    for (const Entry& entry : handlers)
        if (entry.type == event.type) (this->*entry.handler)(event);
}

std::string HostingView::toolTipAt(CGPoint point) const {
    const auto item = frames.frontmost(convertFromWindow(point),
                                       [](const LayoutItem& each) { return each.viewKind == ViewKind::help; });
    return item ? frames[*item].view->as<TextContent>().text : std::string();
}

std::optional<std::int32_t> HostingView::reactingItem(CGPoint point) const {
    return frames.frontmost(point, reacts);
}

void HostingView::mouseDown(const platform::NSEvent& event) {
    press.reset();
    const bool isControlClick = (event.modifierFlags & platform::NSEventModifierFlags::control) != 0;
    if (isControlClick && openContextMenu(event)) return;
    const auto item = reactingItem(convertFromWindow(event.locationInWindow));
    if (!item) return;
    if (frames[*item].viewKind == ViewKind::menu)
        openMenu(frames[*item]);
    else if (frames[*item].viewKind == ViewKind::representable)
        pressWrappedView(frames[*item], event);
    else
        press = Press{frames.placeOf(*item)};
}

// The place is compared, not the item: the tree may have been rebuilt since the press.
void HostingView::mouseUp(const platform::NSEvent& event) {
    const auto began = std::exchange(press, std::nullopt);
    const auto item = reactingItem(convertFromWindow(event.locationInWindow));
    if (!began || !item || frames.placeOf(*item) != began->place) return;
    if (const auto* content = std::get_if<ActionContent>(&frames[*item].view->content)) run(content->action);
}

void HostingView::run(const std::function<void()>& action) {
    if (!action) return;
    const auto keptTree = tree;
    action();
}

}  // namespace views
