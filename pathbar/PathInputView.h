// The path field that takes the crumbs' place while a bar is edited. It has the keyboard, and its whole text selected, from the start. It has no policy about paths: it edits a
// text and reports Return and Escape.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "pathbar/SelectAllTextField.h"
#include "platform/Uuid.h"
#include "views/Views.h"

namespace brindle {

class PathInputView {
public:
    // The field's delegate and target. The field comes into being in the middle of a view update, without a window, and in a panel that may not be key yet, so taking the
    // keyboard is attempted several times until it has worked once.
    //
    //   selectionCompleted  event                                     next
    //   false               an attempt with a window succeeds         true
    //   false               an attempt fails, or finds no window      false
    //   true                any                                       true; updates attempt nothing any more
    class Coordinator;
    using NSViewType = SelectAllTextField;
    using Context = views::RepresentableContext<Coordinator>;

    std::shared_ptr<Coordinator> makeCoordinator() const;
    std::shared_ptr<SelectAllTextField> makeNSView(const Context& context) const;
    void updateNSView(SelectAllTextField& field, const Context& context) const;

    std::reference_wrapper<platform::Platform> platform;
    views::Binding<std::string> text;
    std::function<void()> onCommit;
    std::function<void()> onCancel;
};

class PathInputView::Coordinator final : public views::NSTextFieldDelegate,
                                         public std::enable_shared_from_this<PathInputView::Coordinator> {
public:
    explicit Coordinator(PathInputView theParent);

    void requestInitialSelection(SelectAllTextField& field);
    // One attempt; answers whether the field now has the keyboard and its text selected.
    static bool focusAndSelectAll(SelectAllTextField& field);
    // The field's action.
    void commit();

    void controlTextDidChange(views::NSView* object) override;
    bool control(views::NSTextField& control, views::FieldEditor& textView, std::string_view doCommandBy) override;

    // As of the last update.
    PathInputView parent;
    bool selectionCompleted = false;
    const platform::UUID selectionRequestID;

private:
    void attemptSelection(const std::weak_ptr<views::NSView>& weakField, const platform::UUID& requestID);
};

}  // namespace brindle
