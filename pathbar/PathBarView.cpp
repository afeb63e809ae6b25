#include "pathbar/PathBarView.h"

#include <utility>

#include "pathbar/BreadcrumbModel.h"
#include "pathbar/BreadcrumbView.h"
#include "pathbar/PathBarBackground.h"
#include "pathbar/PathBarMetrics.h"
#include "pathbar/PathInputView.h"

namespace brindle {

using namespace views;

namespace {

constexpr platform::Duration copyConfirmationTime{1'400'000'000};

View divider() {
    return Rectangle().fill(Color::of(ColorRole::primary, 0.12)).frame({.width = 1, .height = 18});
}

Task endCopyConfirmation(platform::Dispatch& /*dispatch*/, State<bool> showsCopyConfirmation) {
    co_await Task::sleep(copyConfirmationTime);
    showsCopyConfirmation.set(false);
}

View inPopover(View content) {
    return std::move(content)
        .font({.size = 13})
        .lineLimit(1)
        .truncationMode(TextTruncation::middle)
        .padding({.top = 10, .leading = 14, .bottom = 10, .trailing = 14});
}

}  // namespace

PathBarView::PathBarView(platform::Platform& thePlatform, FinderWindowState theWindowState, Binding<bool> theIsEditing,
                         Binding<std::string> theInputText, Binding<std::optional<std::string>> theErrorMessage)
    : platform(thePlatform),
      designManager(thePlatform.shared<PathBarDesignManager>()),
      windowState(std::move(theWindowState)),
      isEditing(std::move(theIsEditing)),
      inputText(std::move(theInputText)),
      errorMessage(std::move(theErrorMessage)) {}

void PathBarView::connect(Context& context) {
    context.connect(colorScheme, designManager, showsCopyConfirmation, copyConfirmationTask);
}

View PathBarView::body() const {
    return GeometryReader([this](CGSize size) {
               return VStack({.spacing = 2}, plate(size.width)).padding(PathBarMetrics::plateMargin);
           })
        .lineLimit(1)
        .truncationMode(TextTruncation::middle)
        .frame({.maxWidth = infinity});
}

View PathBarView::plate(double width) const {
    return ZStack({}, pathBarBackground(), row(width))
        .frame({.height = PathBarMetrics::rowHeight})
        .accessibilityIdentifier("plate")
        .contextMenu([this] { return contextMenu(); })
        .popover(errorPresented(), Edge::bottom, [this] { return errorPopover(); });
}

View PathBarView::pathBarBackground() const {
    return brindle::pathBarBackground(designManager->selectedDesign.get(), colorScheme.get());
}

View PathBarView::row(double width) const {
    return HStack({.spacing = 0}, brandLabel(width), divider(), fieldOrCrumbs(), divider().padding(Edge::trailing, 2),
                  copyButton())
        .padding(Edge::trailing, 3);
}

View PathBarView::brandLabel(double width) const {
    return Text("Orvane")
        .font({.size = 13, .weight = FontWeight::semibold})
        .foregroundStyle(ColorRole::secondary)
        .frame({.width = PathBarMetrics::brandWidth(width), .height = PathBarMetrics::rowHeight})
        .accessibilityIdentifier("brand");
}

View PathBarView::fieldOrCrumbs() const {
    if (isEditing.get())
        return View(PathInputView{platform, inputText, commitPath, cancelEditing})
            .accessibilityIdentifier("field")
            .padding({.leading = 12, .trailing = 6})
            .frame({.height = PathBarMetrics::rowHeight});
    return BreadcrumbView(
        platform, breadcrumbItems(), [this](const BreadcrumbItem& item) { select(item); }, beginEditing);
}

View PathBarView::copyButton() const {
    const bool isConfirmed = showsCopyConfirmation.get();
    return Button([this] { copyCurrentPath(); },
                  Image(isConfirmed ? "checkmark" : "doc.on.doc")
                      .font({.size = 13, .weight = FontWeight::medium})
                      .foregroundStyle(isConfirmed ? ColorRole::green : ColorRole::secondary)
                      .frame({.width = PathBarMetrics::copyButtonWidth, .height = PathBarMetrics::copyButtonHeight})
                      .contentShape())
        .accessibilityIdentifier("copy")
        .help("Copy Current Path")
        .popover(showsCopyConfirmation.binding(), Edge::bottom, [this] { return copyPopover(); });
}

View PathBarView::copyPopover() const {
    return inPopover(Label("Path copied.", "checkmark.circle.fill").foregroundStyle(ColorRole::primary))
        .accessibilityIdentifier("copy-confirmation");
}

View PathBarView::errorPopover() const {
    return inPopover(Text(errorMessage.get().value_or("")).foregroundStyle(ColorRole::red))
        .accessibilityIdentifier("error-message");
}

View PathBarView::contextMenu() const {
    return Group(Button("Copy Full Path", copyFullPath), Button("Copy Folder Name", copyFolderName), Divider(),
                 Button("Open in Terminal", openInTerminal), Button("Open in New Finder Window", openInNewWindow),
                 Button("Open in VS Code", openInVSCode));
}

std::vector<BreadcrumbItem> PathBarView::breadcrumbItems() const {
    return brindle::breadcrumbItems(windowState);
}

Binding<bool> PathBarView::errorPresented() const {
    return {[this] { return errorMessage.get().has_value(); },
            [this](bool isPresented) {
                if (!isPresented) errorMessage.set(std::nullopt);
            }};
}

void PathBarView::copyCurrentPath() const {
    copyFullPath();
    if (const auto& task = copyConfirmationTask.get()) task->cancel();
    showsCopyConfirmation.set(true);
    copyConfirmationTask.set(endCopyConfirmation(platform.dispatch, showsCopyConfirmation));
}

void PathBarView::select(const BreadcrumbItem& item) const {
    if (item.isLast)
        beginEditing();
    else
        openPath(item.path);
}

}  // namespace brindle
