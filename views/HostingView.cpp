#include "views/HostingView.h"

#include <algorithm>
#include <utility>

#include "views/Canvas.h"
#include "views/LayoutPass.h"
#include "views/PresentedPopover.h"
#include "views/Reconciler.h"
#include "views/nodes/CompositeNode.h"

namespace views {

namespace {

bool reacts(const LayoutItem& item) {
    return item.node != nullptr && item.node->reacts();
}

bool hasHelp(const LayoutItem& item) {
    return item.node != nullptr && item.node->help() != nullptr;
}

bool scrolls(const LayoutItem& item) {
    return item.node != nullptr && item.node->scrolls();
}

bool isDefault(const LayoutItem& item) {
    return item.control.isDefault() && item.control.isEnabled && reacts(item);
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

void HostingView::setOrderedIn(bool orderedIn) {
    if (std::exchange(isOrderedIn, orderedIn) != orderedIn) work.runTasks(isOrderedIn);
}

void HostingView::setOnScreen(bool onScreen) {
    if (!onScreen) menu.reset();
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
    work.runTasks(isOrderedIn);
    presentPopovers();
    const auto keptTree = tree;
    work.runChanges();
}

void HostingView::evaluate() {
    needsEvaluation = false;
    counts.evaluations += 1;
    link->readsColorScheme = false;
    auto fresh = std::make_shared<View>(CompositeNode(root));
    Reconciler reconciler(link, work);
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
    Reconciler reconciler(link, work);
    LayoutPass pass(
        platform.text, [&](View& view, const LayoutPass::Declaration& declare) { reconciler.redeclare(view, declare); },
        frames);
    pass.layOut(*tree, size);
    followColorScheme();
    placeWrappedViews();
    setNeedsDisplay();
}

CGSize HostingView::idealSize() {
    if (needsEvaluation) evaluate();
    Layout scratch;
    return LayoutPass(
               platform.text, [](View&, const LayoutPass::Declaration&) {}, scratch)
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

const platform::Drawing& HostingView::drawing() {
    if (tree == nullptr) update();
    const bool hasKeyboard = showsKeyboard();
    const bool hadKeyboard = std::exchange(isDrawnWithKeyboard, hasKeyboard);
    if (std::exchange(needsDrawing, false) || hasKeyboard != hadKeyboard) {
        counts.drawings += 1;
        Canvas(frames, platform.text, pressedItem(), painted).draw();
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
                                         {NSEventType::leftMouseDragged, &HostingView::mouseDragged},
                                         {NSEventType::leftMouseUp, &HostingView::mouseUp},
                                         {NSEventType::scrollWheel, &HostingView::scrollWheel},
                                         {NSEventType::keyDown, &HostingView::keyDown},
                                         {NSEventType::rightMouseDown, &HostingView::rightMouseDown}};
    for (const Entry& entry : handlers)
        if (entry.type == event.type) (this->*entry.handler)(event);
}

std::string HostingView::toolTipAt(CGPoint point) const {
    const auto item = frames.frontmost(convertFromWindow(point), hasHelp);
    return item ? *frames[*item].node->help() : std::string();
}

std::optional<std::int32_t> HostingView::reactingItem(CGPoint point) const {
    return frames.frontmost(point, reacts);
}

void HostingView::mouseDown(const platform::NSEvent& event) {
    press.reset();
    const bool isControlClick = (event.modifierFlags & platform::NSEventModifierFlags::control) != 0;
    if (isControlClick && openContextMenu(event)) return;
    const auto item = reactingItem(convertFromWindow(event.locationInWindow));
    if (item && frames[*item].control.isEnabled) frames[*item].node->mouseDown(*this, frames[*item], event);
}

void HostingView::beginPress(const LayoutItem& item) {
    const auto index = static_cast<std::int32_t>(&item - &frames[0]);
    press = Press{frames.placeOf(index), true, item.control.isBordered()};
    if (press->isShown) setNeedsDisplay();
}

// The place is compared, not the item: the tree may have been rebuilt since the press.
bool HostingView::isOverPress(const platform::NSEvent& event) const {
    const auto item = reactingItem(convertFromWindow(event.locationInWindow));
    return press && item && frames.placeOf(*item) == press->place;
}

std::int32_t HostingView::pressedItem() const {
    if (!press || !press->isShown || !press->isInside) return LayoutItem::none;
    for (std::size_t index = 0; index < frames.items.size(); ++index)
        if (reacts(frames.items[index]) && frames.placeOf(static_cast<std::int32_t>(index)) == press->place)
            return static_cast<std::int32_t>(index);
    return LayoutItem::none;
}

void HostingView::mouseDragged(const platform::NSEvent& event) {
    if (!press || !press->isShown) return;
    const bool isInside = isOverPress(event);
    if (std::exchange(press->isInside, isInside) != isInside) setNeedsDisplay();
}

void HostingView::mouseUp(const platform::NSEvent& event) {
    if (!press) return;
    const bool isClick = isOverPress(event);
    if (press->isShown) setNeedsDisplay();
    press.reset();
    if (!isClick) return;
    const LayoutItem& item = frames[*reactingItem(convertFromWindow(event.locationInWindow))];
    if (item.control.isEnabled) item.node->clicked(*this);
}

void HostingView::scrollWheel(const platform::NSEvent& event) {
    const auto item = frames.frontmost(convertFromWindow(event.locationInWindow), scrolls);
    if (!item || !frames[*item].node->scrolled(frames[*item], event.scrollingDeltaY)) return;
    needsLayout = true;
    scheduleUpdate();
}

// Of the keys that no field takes, Return alone means something here.
void HostingView::keyDown(const platform::NSEvent& event) {
    if (event.characters != "\r") return;
    const auto item = std::find_if(frames.items.begin(), frames.items.end(), isDefault);
    if (item != frames.items.end()) item->node->clicked(*this);
}

void HostingView::run(const std::function<void()>& action) {
    if (!action) return;
    const auto keptTree = tree;
    action();
}

}  // namespace views
