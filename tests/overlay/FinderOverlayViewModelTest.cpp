#include "overlay/FinderOverlayViewModel.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindle {
namespace {

FinderWindowState reports() {
    FinderWindowState state;
    state.id = "finder-101";
    state.windowNumber = 101;
    state.path = "/Users/ana/Reports/";
    state.displayName = "Reports";
    state.frame = platform::CGRectMake(100, 200, 800, 500);
    return state;
}

FinderWindowState reportsWithSelection() {
    FinderWindowState state = reports();
    state.selectedFilePath = "/Users/ana/Reports/May.pdf";
    return state;
}

TEST(FinderOverlayViewModel, OpensTheFieldOnTheSelectedFileOrElseOnTheFolder) {
    FinderOverlayViewModel model;
    model.setWindowState(reports());
    model.beginEditing();
    EXPECT_EQ(model.inputText.get(), "/Users/ana/Reports/");

    model.cancelEditing();
    model.setWindowState(reportsWithSelection());
    model.beginEditing();
    EXPECT_EQ(model.inputText.get(), "/Users/ana/Reports/May.pdf");
}

TEST(FinderOverlayViewModel, DoesNotOpenTheFieldWithoutAWindow) {
    FinderOverlayViewModel model;
    int begun = 0;
    model.onBeginEditing = [&begun] { begun += 1; };
    model.beginEditing();
    EXPECT_FALSE(model.isEditing.get());
    EXPECT_EQ(begun, 0);
}

// The panel takes the keyboard in the callback: the field has to be open, with its text, by then.
TEST(FinderOverlayViewModel, CallsBackOnceTheFieldIsOpen) {
    FinderOverlayViewModel model;
    model.setWindowState(reports());
    model.errorMessage.set("The folder could not be found.");
    std::vector<std::string> seen;
    model.onBeginEditing = [&] {
        seen.push_back(model.inputText.get() + (model.isEditing.get() ? " open" : " shut") +
                       (model.errorMessage.get() ? " with error" : ""));
    };
    model.beginEditing();
    EXPECT_EQ(seen, std::vector<std::string>{"/Users/ana/Reports/ open"});
}

TEST(FinderOverlayViewModel, KeepsWhatTheUserTypesThroughRefreshesUntilItIsCancelled) {
    FinderOverlayViewModel model;
    model.setWindowState(reports());
    model.beginEditing();
    model.inputText.set("/Users/ana/Mo");
    model.errorMessage.set("The folder could not be found.");

    FinderWindowState elsewhere = reports();
    elsewhere.path = "/Users/ana/Music/";
    for (const auto& state : {reportsWithSelection(), elsewhere}) {
        model.setWindowState(state);
        EXPECT_EQ(model.windowState.get(), state);
        EXPECT_EQ(model.inputText.get(), "/Users/ana/Mo");
        EXPECT_EQ(model.errorMessage.get(), "The folder could not be found.");
        EXPECT_TRUE(model.isEditing.get());
    }

    model.cancelEditing();
    EXPECT_EQ(model.inputText.get(), "/Users/ana/Music/");
    EXPECT_EQ(model.errorMessage.get(), std::nullopt);
    EXPECT_FALSE(model.isEditing.get());
}

TEST(FinderOverlayViewModel, FollowsTheWindowWhileTheFieldIsShut) {
    FinderOverlayViewModel model;
    model.setWindowState(reports());
    EXPECT_EQ(model.inputText.get(), "/Users/ana/Reports/");
    model.setWindowState(reportsWithSelection());
    EXPECT_EQ(model.inputText.get(), "/Users/ana/Reports/May.pdf");
}

TEST(FinderOverlayViewModel, EndsEditingWhenItsWindowIsAnotherOneOrGone) {
    FinderWindowState other = reports();
    other.id = "finder-102";
    struct Case {
        std::optional<FinderWindowState> next;
        std::string inputText;
    };
    for (const Case& each : {Case{other, "/Users/ana/Reports/"}, Case{std::nullopt, ""}}) {
        FinderOverlayViewModel model;
        model.setWindowState(reports());
        model.beginEditing();
        model.inputText.set("typed");
        model.setWindowState(each.next);
        EXPECT_FALSE(model.isEditing.get());
        EXPECT_EQ(model.inputText.get(), each.inputText);
    }
}

// Whatever is published has the bar evaluated again: a window that only moves must not.
TEST(FinderOverlayViewModel, PublishesNothingForWhatTheBarDoesNotShow) {
    FinderOverlayViewModel model;
    model.setWindowState(reports());
    int changes = 0;
    const auto token = model.observe([&changes] { changes += 1; });

    FinderWindowState moved = reports();
    moved.frame.origin = {300, 400};
    moved.zIndex = 3;
    moved.isActive = true;
    moved.isFullScreen = true;
    model.setWindowState(moved);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(model.windowState.get(), reports());

    FinderWindowState renamed = reports();
    renamed.displayName = "Reports 2";
    model.setWindowState(renamed);
    EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace brindle
