#include "pathbar/PathInputView.h"

#include <utility>

namespace brindle {

namespace {

using platform::Duration;

// Measured from the request; the later ones are for a field that gets its window late.
constexpr Duration attemptDelays[] = {Duration{0}, Duration{10'000'000}, Duration{40'000'000}, Duration{100'000'000},
                                      Duration{200'000'000}};

}  // namespace

std::shared_ptr<PathInputView::Coordinator> PathInputView::makeCoordinator() const {
    return std::make_shared<Coordinator>(*this);
}

std::shared_ptr<SelectAllTextField> PathInputView::makeNSView(const Context& context) const {
    const auto& coordinator = context.coordinator;
    auto field = std::make_shared<SelectAllTextField>(platform);
    field->setBordered(false);
    field->setDrawsBackground(false);
    field->setFocusRingType(views::NSFocusRingType::none);
    field->setFont({.size = 14});
    field->setDelegate(coordinator);
    field->setTarget(coordinator);
    field->setAction([weakCoordinator = std::weak_ptr(coordinator)] {
        if (const auto held = weakCoordinator.lock()) held->commit();
    });
    field->setLineBreakMode(views::NSLineBreakMode::byTruncatingMiddle);
    field->setStringValue(text.get());
    coordinator->requestInitialSelection(*field);
    return field;
}

void PathInputView::updateNSView(SelectAllTextField& field, const Context& context) const {
    context.coordinator->parent = *this;
    std::string present = text.get();
    if (field.stringValue() != present) field.setStringValue(std::move(present));
    context.coordinator->requestInitialSelection(field);
}

PathInputView::Coordinator::Coordinator(PathInputView theParent)
    : parent(std::move(theParent)), selectionRequestID(parent.platform.get().uuids.makeUUID()) {}

void PathInputView::Coordinator::requestInitialSelection(SelectAllTextField& field) {
    if (selectionCompleted) return;
    for (const Duration delay : attemptDelays)
        parent.platform.get().dispatch.mainAfter(
            delay, std::make_shared<platform::DispatchWorkItem>(
                       [weakSelf = weak_from_this(), weakField = field.weak_from_this(), id = selectionRequestID] {
                           if (const auto self = weakSelf.lock()) self->attemptSelection(weakField, id);
                       }));
}

void PathInputView::Coordinator::attemptSelection(const std::weak_ptr<views::NSView>& weakField,
                                                  const platform::UUID& requestID) {
    const auto field = std::static_pointer_cast<SelectAllTextField>(weakField.lock());
    if (!field || requestID != selectionRequestID || selectionCompleted || field->window() == nullptr) return;
    selectionCompleted = focusAndSelectAll(*field);
}

bool PathInputView::Coordinator::focusAndSelectAll(SelectAllTextField& field) {
    platform::NSWindow* window = field.window();
    if (window == nullptr) return false;
    if (!window->isKeyWindow()) window->makeKeyAndOrderFront();
    return window->makeFirstResponder(&field) && field.selectAll();
}

// The callback may replace what it lies in.
void PathInputView::Coordinator::commit() {
    const auto callback = parent.onCommit;
    callback();
}

void PathInputView::Coordinator::controlTextDidChange(views::NSView* object) {
    if (const auto* field = dynamic_cast<views::NSTextField*>(object)) parent.text.set(field->stringValue());
}

bool PathInputView::Coordinator::control(views::NSTextField& /*control*/, views::FieldEditor& /*textView*/,
                                         std::string_view doCommandBy) {
    if (doCommandBy != "cancelOperation:") return false;
    const auto callback = parent.onCancel;
    callback();
    return true;
}

}  // namespace brindle
