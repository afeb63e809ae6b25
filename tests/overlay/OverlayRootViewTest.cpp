#include "overlay/OverlayRootView.h"

#include <gtest/gtest.h>

#include "tests/actions/ActionsPlatform.h"

namespace brindle {
namespace {

using platform::FileKind;

class OverlayRootViewTest : public testing::Test {
protected:
    OverlayRootViewTest() {
        state.id = "finder-101";
        state.path = "/Users/ana/Reports/";
        state.displayName = "Reports";
        state.selectedFilePath = "/Users/ana/Reports/May.pdf";
        model->setWindowState(state);
        fake.disk["/Users/ana/Reports"] = FileKind::directory;
        fake.disk["/Users/ana/Reports/May.pdf"] = FileKind::file;
    }

    PathBarView bar() { return root.pathBar(*model->windowState.get()); }
    std::string error() { return model->errorMessage.get().value_or("none"); }

    kit::ActionsPlatform fake;
    std::shared_ptr<FinderOverlayViewModel> model = std::make_shared<FinderOverlayViewModel>();
    FinderWindowState state;
    OverlayRootView root{fake.platform,
                         model,
                         std::make_shared<FinderNavigationService>(fake.platform),
                         std::make_shared<ClipboardService>(fake.platform),
                         std::make_shared<TerminalService>(fake.platform),
                         std::make_shared<VSCodeService>(fake.platform)};
};

TEST_F(OverlayRootViewTest, ClosesTheFieldOnlyWhenFinderShowsWhatWasTyped) {
    bar().beginEditing();
    model->inputText.set("/Users/ana/Reports/May.pdf ");
    bar().commitPath();
    EXPECT_TRUE(model->isEditing.get());
    EXPECT_EQ(model->inputText.get(), "/Users/ana/Reports/May.pdf ");
    EXPECT_EQ(error(), "The folder could not be found.");

    model->inputText.set("/Users/ana/Reports/May.pdf");
    bar().commitPath();
    EXPECT_FALSE(model->isEditing.get());
    EXPECT_EQ(error(), "none");
    EXPECT_EQ(fake.scripts.size(), 1u);
}

TEST_F(OverlayRootViewTest, SaysWhatFailedWithTheFieldShut) {
    bar().openPath("/gone");
    EXPECT_EQ(error(), "The folder could not be found.");
    EXPECT_FALSE(model->isEditing.get());

    fake.scriptError = platform::Dictionary{{"NSAppleScriptErrorMessage", "Finder got an error."}};
    bar().openInNewWindow();
    EXPECT_EQ(error(), "Finder got an error.");

    bar().openInVSCode();
    EXPECT_EQ(error(), "Visual Studio Code could not be found.");

    model->cancelEditing();
    fake.disk.clear();
    bar().openInNewWindow();
    EXPECT_EQ(error(), "The folder could not be found.");
}

TEST_F(OverlayRootViewTest, CopiesTheSelectedFileButNamesTheFolder) {
    bar().copyFullPath();
    EXPECT_EQ(fake.pasteboard, std::vector<std::string>{"/Users/ana/Reports/May.pdf"});
    bar().copyFolderName();
    EXPECT_EQ(fake.pasteboard, std::vector<std::string>{"Reports"});
    state.selectedFilePath.reset();
    model->setWindowState(state);
    bar().copyFullPath();
    EXPECT_EQ(fake.pasteboard, std::vector<std::string>{"/Users/ana/Reports/"});
}

TEST_F(OverlayRootViewTest, HandsTheFolderOnAsItWasWhenTheBarWasShown) {
    fake.disk["/Applications/Visual Studio Code.app"] = FileKind::directory;
    const PathBarView shown = bar();
    state.path.clear();
    model->setWindowState(state);
    shown.openInTerminal();
    shown.openInVSCode();
    ASSERT_EQ(fake.opened.size(), 2u);
    EXPECT_EQ(fake.opened[0].second, std::vector<std::string>{"/Users/ana/Reports/"});
    EXPECT_EQ(fake.opened[1].second, std::vector<std::string>{"/Users/ana/Reports/"});

    bar().openInTerminal();
    EXPECT_EQ(fake.opened.size(), 2u);
    EXPECT_EQ(error(), "none");
}

}  // namespace
}  // namespace brindle
