// The path field in its panel: how it comes by the keyboard, what it reports, and what updates leave alone. The bar is 200 points wide; a character of the field is 8.4.
#include <gtest/gtest.h>

#include "pathbar/PathInputView.h"
#include "tests/kit/ViewPlatform.h"

namespace {

using namespace brindle;
using platform::Duration;
using views::NSRange;

struct Model : platform::ObservableObject {
    platform::Published<bool> isEditing{*this, true};
    platform::Published<std::string> text{*this, "/Users/ana"};
    platform::Published<int> other{*this, 0};
};

struct Root {
    platform::Platform* platform;
    views::ObservedObject<Model> model;
    std::vector<std::string>* log;

    void connect(views::Context& context) { context.connect(model); }
    views::View body() const {
        if (!model->isEditing.get()) return views::Text("crumbs");
        const auto logging = [entries = log](const char* name) {
            return [entries, name] { entries->push_back(name); };
        };
        return views::View(PathInputView{*platform, views::Binding<std::string>::to(model->text), logging("commit"),
                                         logging("cancel")})
            .accessibilityIdentifier("field");
    }
};

class PathInputViewTest : public testing::Test {
protected:
    // The host evaluates before it has a window, as in a panel being made.
    void declare() {
        made = std::make_unique<views::NSHostingView<Root>>(
            machine.platform, Root{&machine.platform, views::ObservedObject<Model>(model), &log});
        host = made.get();
        host->setSize({200, 32});
        machine.endTurn();
    }
    void intoWindow() {
        panel->orderFrontRegardless();
        panel->setContentView(std::move(made));
    }
    void show() {
        declare();
        intoWindow();
        machine.advance(Duration{0});
    }
    const views::NSTextField& field() const {
        return *dynamic_cast<const views::NSTextField*>(host->wrappedView("field"));
    }
    std::optional<NSRange> selection() const {
        const auto* editor = field().currentEditor();
        return editor == nullptr ? std::nullopt : std::optional(editor->selectedRange());
    }
    void press(const std::string& characters, std::uint64_t modifiers = 0) {
        platform::NSEvent event;
        event.type = platform::NSEventType::keyDown;
        event.characters = characters;
        event.charactersIgnoringModifiers = characters;
        event.modifierFlags = modifiers;
        panel->sendEvent(event);
        machine.advance(Duration{0});
    }
    void click() {
        platform::NSEvent event;
        event.type = platform::NSEventType::leftMouseDown;
        event.locationInWindow = {100, 16};
        panel->sendEvent(event);
    }
    // What is drawn of the text, and from where.
    platform::DrawText drawnText() {
        for (const auto& operation : host->drawing().operations)
            if (const auto* text = std::get_if<platform::DrawText>(&operation)) return *text;
        return {};
    }

    kit::ViewPlatform machine;
    Model model;
    std::vector<std::string> log;
    std::shared_ptr<kit::KeyPanel> panel =
        std::make_shared<kit::KeyPanel>(machine.platform, platform::CGRectMake(0, 0, 200, 32));
    std::unique_ptr<views::NSHostingView<Root>> made;
    views::NSHostingView<Root>* host = nullptr;
};

TEST_F(PathInputViewTest, HasTheKeyboardAndItsTextSelectedOnceItHasAWindow) {
    declare();
    machine.advance(Duration{20'000'000});
    intoWindow();
    EXPECT_FALSE(selection());
    machine.advance(Duration{19'000'000});
    EXPECT_FALSE(selection());
    machine.advance(Duration{1'000'000});  // 0.04 s
    EXPECT_EQ(selection(), (NSRange{0, 10}));
    EXPECT_TRUE(panel->isKeyWindow());
}

TEST_F(PathInputViewTest, SelectsEveryTextWhole) {
    const std::pair<const char*, NSRange> cases[] = {{"", {0, 0}}, {"/a\n\t", {0, 4}}, {"/😀/é", {0, 5}}};
    for (const auto& [text, range] : cases) {
        model.text.set(text);
        model.isEditing.set(false);
        show();
        model.isEditing.set(true);
        machine.endTurn();
        machine.advance(Duration{0});
        EXPECT_EQ(selection(), range) << text;
    }
}

TEST_F(PathInputViewTest, UpdatesLeaveTypingAlone) {
    show();
    press("x");
    press("y");
    EXPECT_EQ(model.text.get(), "xy");
    press("\uF702");
    model.other.set(1);
    machine.advance(Duration{300'000'000});
    EXPECT_EQ(field().stringValue(), "xy");
    EXPECT_EQ(selection(), (NSRange{1, 0}));

    model.text.set("/from outside");
    machine.endTurn();
    EXPECT_EQ(field().stringValue(), "/from outside");
    press("!");
    EXPECT_EQ(model.text.get(), "/from outside!");
}

TEST_F(PathInputViewTest, ReportsReturnAndEscapeAndNothingElse) {
    show();
    for (const char* key : {"\t", "\uF703", "\uF700", "\r", "\x1B"}) press(key);
    EXPECT_EQ(log, (std::vector<std::string>{"commit", "cancel"}));
    EXPECT_EQ(model.text.get(), "/Users/ana");
    EXPECT_TRUE(selection());
}

TEST_F(PathInputViewTest, EveryClickAndTabSelectAll) {
    show();
    press("\uF703");
    EXPECT_EQ(selection(), (NSRange{10, 0}));
    click();
    EXPECT_EQ(selection(), (NSRange{0, 10}));
    press("\uF702");
    press("\t");
    EXPECT_EQ(selection(), (NSRange{0, 10}));
}

TEST_F(PathInputViewTest, CutsCopiesAndPastesByteForByte) {
    using platform::NSEventModifierFlags::command;
    show();
    press("c", command);
    EXPECT_EQ(machine.clipboard, "/Users/ana");
    press("x", command);
    EXPECT_EQ(model.text.get(), "");
    machine.clipboard = "/a b\n\te\u0301";
    press("v", command);
    EXPECT_EQ(model.text.get(), "/a b\n\te\u0301");
    press("c", command);
    EXPECT_EQ(machine.clipboard, "/a b\n\te\u0301") << "nothing is selected";
    press("z", command);
    press("z", command);
    EXPECT_EQ(model.text.get(), "/Users/ana");
}

TEST_F(PathInputViewTest, GoesWithItsPlaceAndGivesTheKeyboardUp) {
    show();
    ASSERT_NE(panel->firstResponder(), nullptr);
    model.isEditing.set(false);
    machine.endTurn();
    EXPECT_EQ(panel->firstResponder(), nullptr);
    press("x");
    machine.advance(Duration{300'000'000});
    EXPECT_EQ(model.text.get(), "/Users/ana");
}

// 196 points show 23 characters and the caret.
TEST_F(PathInputViewTest, ShowsThePartOfALongPathAroundTheCaret) {
    model.text.set("/" + std::string(49, 'x'));  // 420 points
    show();
    EXPECT_EQ(drawnText().rect.minX(), 2) << "from its beginning";
    press("\uF703");
    EXPECT_NEAR(drawnText().rect.minX(), 2 + 195 - 420, 1e-9);
    press("a", platform::NSEventModifierFlags::command);
    EXPECT_NEAR(drawnText().rect.minX(), 2 + 195 - 420, 1e-9) << "selecting all leaves it where it is";
    press("\uF700");
    EXPECT_EQ(drawnText().rect.minX(), 2);
    panel->makeFirstResponder(nullptr);
    EXPECT_NE(drawnText().text.find("…"), std::string::npos);
}

TEST_F(PathInputViewTest, WithoutTheKeyboardItHasAPaleSelectionAndNoCaret) {
    const auto opacities = [&] {
        std::vector<double> all;
        for (const auto& operation : host->drawing().operations)
            if (const auto* fill = std::get_if<platform::FillShape>(&operation)) all.push_back(fill->color.opacity);
        return all;
    };
    const auto other = std::make_shared<kit::KeyPanel>(machine.platform, platform::CGRectMake(0, 0, 9, 9));
    other->orderFrontRegardless();
    show();
    const std::uint64_t version = host->drawingVersion();
    EXPECT_EQ(opacities(), std::vector<double>{1});
    other->makeKeyWindow();
    EXPECT_NE(host->drawingVersion(), version);
    EXPECT_EQ(opacities(), std::vector<double>{0.4});
    panel->makeKeyWindow();
    press("\uF703");
    EXPECT_EQ(opacities(), std::vector<double>{1}) << "the caret";
    other->makeKeyWindow();
    EXPECT_TRUE(opacities().empty());
}

TEST_F(PathInputViewTest, AnUntouchedFieldIsDrawnOnce) {
    show();
    machine.advance(Duration{1'000'000'000});
    const int redraws = machine.windows.redraws;
    const auto version = host->drawingVersion();
    model.other.set(1);
    machine.advance(Duration{1'000'000'000});
    EXPECT_EQ(machine.windows.redraws, redraws);
    EXPECT_EQ(host->drawingVersion(), version);
}

}  // namespace
