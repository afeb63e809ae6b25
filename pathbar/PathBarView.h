// Everything that one bar shows: brand label, crumbs or path field, and copy button on a plate in the chosen style,
// with one context menu and two popovers. It decides nothing about paths or Finder: each action is a callback of its
// owner, who also holds the editing state behind the bindings.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "pathbar/BreadcrumbItem.h"
#include "pathbar/PathBarDesignManager.h"
#include "tracking/FinderWindowState.h"
#include "views/Views.h"

namespace brindle {

class PathBarView {
public:
    PathBarView(platform::Platform& thePlatform, FinderWindowState theWindowState, views::Binding<bool> theIsEditing,
                views::Binding<std::string> theInputText, views::Binding<std::optional<std::string>> theErrorMessage);

    void connect(views::Context& context);
    views::View body() const;

    // All crumbs of the window's path, from the root on, whether or not they fit.
    std::vector<BreadcrumbItem> breadcrumbItems() const;
    // The plate in the chosen style and the present colour scheme.
    views::View pathBarBackground() const;
    // Reads whether there is a message; writing false clears it.
    views::Binding<bool> errorPresented() const;
    // Copies the path and shows so for 1.4 seconds from now.
    void copyCurrentPath() const;

private:
    platform::Platform& platform;

public:
    views::ColorSchemeEnvironment colorScheme;
    views::ObservedObject<PathBarDesignManager> designManager;
    views::State<bool> showsCopyConfirmation{false};
    views::State<std::optional<views::Task>> copyConfirmationTask{std::nullopt};
    FinderWindowState windowState;
    views::Binding<bool> isEditing;
    views::Binding<std::string> inputText;
    views::Binding<std::optional<std::string>> errorMessage;

    // Set by the owner before the view is shown.
    std::function<void()> beginEditing;
    std::function<void()> commitPath;
    std::function<void()> cancelEditing;
    std::function<void(const std::string& path)> openPath;
    std::function<void()> copyFullPath;
    std::function<void()> copyFolderName;
    std::function<void()> openInTerminal;
    std::function<void()> openInNewWindow;
    std::function<void()> openInVSCode;

private:
    views::View plate(double width) const;
    views::View row(double width) const;
    views::View brandLabel(double width) const;
    views::View fieldOrCrumbs() const;
    views::View copyButton() const;
    views::View copyPopover() const;
    views::View errorPopover() const;
    views::View contextMenu() const;
    void select(const BreadcrumbItem& item) const;
};

}  // namespace brindle
