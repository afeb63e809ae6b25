// Typing into a bar while everything else goes on: passes, Finder's answers early, late and failing, selections, other folders, windows that move. What the
// user typed is lost to Escape and Command-L alone.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/kit/MachineKit.h"
#include "views/HostingView.h"
#include "views/NSTextField.h"

namespace brindle {
namespace {

// A field of ASCII text, as plain as can be.
struct PlainField {
    std::string text;
    std::size_t anchor = 0;
    std::size_t caret = 0;

    std::size_t begin() const { return std::min(anchor, caret); }
    std::size_t length() const { return std::max(anchor, caret) - begin(); }
    void replace(const std::string& typed) {
        text.replace(begin(), length(), typed);
        anchor = caret = begin() + typed.size();
    }
    void moveTo(std::size_t place) { anchor = caret = place; }
    void left() { moveTo(length() > 0 || caret == 0 ? begin() : caret - 1); }
    void right() { moveTo(length() > 0 ? begin() + length() : std::min(text.size(), caret + 1)); }
    void backspace() {
        if (length() == 0 && caret > 0) caret -= 1;
        replace("");
    }
    void selectAll() {
        anchor = 0;
        caret = text.size();
    }
};

class TypingOnDeskTest : public testing::TestWithParam<unsigned> {
protected:
    TypingOnDeskTest() {
        mac.twoWindows();
        mac.tree(
            {"/Users/ana/Work/One/a/", "/Users/ana/Work/One/b", "/Users/ana/Work/Two/c/", "/Users/ana/Work/Two/d"});
        mac.launch();
        mac.run(2);
    }

    std::size_t below(std::size_t count) { return random() % count; }
    std::int64_t anyWindow() { return below(2) == 0 ? 101 : 102; }

    FinderOverlayWindowController* editedBar() {
        for (const auto& [id, controller] : mac.orvane().appDelegate.coordinator()->liveControllers())
            if (controller->viewModel->isEditing.get()) return controller.get();
        return nullptr;
    }
    static const views::NSTextField* fieldOf(const FinderOverlayWindowController& bar) {
        const auto* host = dynamic_cast<const views::HostingView*>(bar.panel->contentView());
        return dynamic_cast<const views::NSTextField*>(host->wrappedView("field"));
    }

    void openField() {
        mac.key("cmd+l");
        mac.run(0.3);
        ASSERT_NE(editedBar(), nullptr);
        model = {fieldOf(*editedBar())->stringValue(), 0, 0};
        model.selectAll();
        EXPECT_EQ(model.text, editedBar()->viewModel->windowState.get()->path.empty()
                                  ? std::string()
                                  : editedBar()->viewModel->windowState.get()->selectedFilePath.value_or(
                                        editedBar()->viewModel->windowState.get()->path));
    }
    void expectTheModel(const std::string& after) {
        const auto* bar = editedBar();
        ASSERT_NE(bar, nullptr) << after;
        const auto* field = fieldOf(*bar);
        ASSERT_NE(field, nullptr) << after;
        ASSERT_EQ(field->stringValue(), model.text) << after;
        ASSERT_EQ(bar->viewModel->inputText.get(), model.text) << after;
        ASSERT_NE(field->currentEditor(), nullptr) << after;
        ASSERT_EQ(field->currentEditor()->selectedRange(), (views::NSRange{model.begin(), model.length()})) << after;
        ASSERT_TRUE(bar->panel->isKeyWindow()) << after;
    }

    std::string userActs() {
        struct Act {
            const char* key;
            void (*expected)(PlainField&);
        };
        static constexpr Act acts[] = {
            {"left", [](PlainField& field) { field.left(); }},
            {"right", [](PlainField& field) { field.right(); }},
            {"home", [](PlainField& field) { field.moveTo(0); }},
            {"end", [](PlainField& field) { field.moveTo(field.text.size()); }},
            {"delete", [](PlainField& field) { field.backspace(); }},
            {"cmd+a", [](PlainField& field) { field.selectAll(); }},
            {"tab", [](PlainField& field) { field.selectAll(); }},
        };
        if (below(2) == 0) {
            static constexpr const char* typed[] = {"q", "x", "/q", "x q", "~"};
            const char* text = typed[below(std::size(typed))];
            mac.type(text);
            model.replace(text);
            return text;
        }
        // No folder has a q in its path, so that nothing but a message comes of it.
        if (below(8) == 0 && model.text.find('q') != std::string::npos) {
            mac.key("return");
            EXPECT_EQ(editedBar()->viewModel->errorMessage.get(), "The folder could not be found.");
            return "return";
        }
        const Act& act = acts[below(std::size(acts))];
        mac.key(act.key);
        act.expected(model);
        return act.key;
    }

    std::string somethingElseHappens() {
        auto& finder = mac.machine.finder;
        auto& faults = mac.machine.faults;
        switch (below(8)) {
        case 0:
            faults.scriptLatency = platform::seconds(std::array{0.0, 0.05, 0.3, 1.5, 4.0}[below(5)]);
            return "another latency";
        case 1:
            faults.scriptError = below(2) == 0 ? std::optional<std::string>("no") : std::nullopt;
            return "scripts fail or work";
        case 2:
            finder.go(anyWindow(), below(2) == 0 ? "/Users/ana/Work/One" : "/Users/ana/Work/Two");
            return "another folder";
        case 3: {
            const std::int64_t window = anyWindow();
            const std::string folder = finder.find(window)->target.value_or("");
            finder.select(window,
                          below(2) == 0 ? std::vector<std::string>{} : std::vector{folder + "/" + "abcd"[below(4)]});
            return "another selection";
        }
        case 4:
            finder.setFrame(anyWindow(), platform::CGRectMake(100 + static_cast<double>(below(300)), 100,
                                                              700 + static_cast<double>(below(200)), 400));
            return "a window moves";
        case 5:
            finder.raise(anyWindow());
            return "a window comes forward";
        default:
            mac.run(std::array{0.01, 0.2, 0.6, 3.0}[below(4)]);
            return "time passes";
        }
    }

    kit::OrvaneDesk mac;
    std::mt19937 random{GetParam()};
    PlainField model;
};

TEST_P(TypingOnDeskTest, NothingThatHappensMeanwhileTouchesTextCaretOrKeyboard) {
    openField();
    for (int step = 0; step < 120 && !HasFatalFailure(); ++step) {
        const std::string what = below(3) == 0 ? somethingElseHappens() : userActs();
        mac.machine.settle();
        expectTheModel("step " + std::to_string(step) + ": " + what);
        if (below(40) != 0) continue;
        mac.key("escape");
        ASSERT_EQ(editedBar(), nullptr);
        openField();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, TypingOnDeskTest, testing::Range(1U, 13U));

}  // namespace
}  // namespace brindle
