// A whole bar in its host. With the fixed text a crumb's character is 9 points wide, the brand's 7.8.
#include <gtest/gtest.h>

#include "pathbar/PathBarBackground.h"
#include "pathbar/PathBarMetrics.h"
#include "pathbar/PathBarView.h"
#include "tests/kit/ViewPlatform.h"
#include "tests/pathbar/BarElements.h"

namespace {

using namespace brindle;
using kit::BarParts;
using platform::CGPoint;
using platform::CGRect;

struct Model : platform::ObservableObject {
    platform::Published<FinderWindowState> windowState{*this, {}};
    platform::Published<bool> isEditing{*this, false};
    platform::Published<std::string> inputText{*this, ""};
    platform::Published<std::optional<std::string>> errorMessage{*this, std::nullopt};
};

struct Root {
    platform::Platform* platform;
    views::ObservedObject<Model> model;
    std::vector<std::string>* log;

    void connect(views::Context& context) { context.connect(model); }
    views::View body() const {
        const auto logging = [entries = log](const char* name) {
            return [entries, name] { entries->push_back(name); };
        };
        PathBarView bar(*platform, model->windowState.get(), views::Binding<bool>::to(model->isEditing),
                        views::Binding<std::string>::to(model->inputText),
                        views::Binding<std::optional<std::string>>::to(model->errorMessage));
        bar.beginEditing = logging("beginEditing");
        bar.openPath = [entries = log](const std::string& path) { entries->push_back("openPath " + path); };
        bar.copyFullPath = logging("copyFullPath");
        return bar;
    }
};

class PathBarViewTest : public testing::Test {
protected:
    PathBarViewTest()
        : host(machine.platform, Root{&machine.platform, views::ObservedObject<Model>(model), &log},
               views::HostRole::bar) {}

    void show(std::string path, double width) {
        FinderWindowState state;
        state.path = std::move(path);
        model.windowState.set(state);
        host.setSize({width, 44});
        machine.endTurn();
    }
    BarParts parts() const { return BarParts::of(host.elements()); }
    void click(CGPoint point) {
        platform::NSEvent event;
        event.locationInWindow = {point.x, 44 - point.y};
        event.type = platform::NSEventType::leftMouseDown;
        host.handleEvent(event);
        event.type = platform::NSEventType::leftMouseUp;
        host.handleEvent(event);
        machine.endTurn();
    }
    void click(const CGRect& frame) { click(CGPoint{frame.midX(), frame.midY()}); }
    std::vector<std::string> crumbs() const {
        std::vector<std::string> titles;
        for (const auto& crumb : parts().crumbs) titles.push_back(crumb.title);
        return titles;
    }
    std::string copySymbol() const {
        for (const auto& element : host.elements())
            if (element.identifier == "copy") return element.value;
        return "";
    }

    kit::ViewPlatform machine;
    Model model;
    std::vector<std::string> log;
    views::NSHostingView<Root> host;
};

TEST_F(PathBarViewTest, PutsItsPartsWhereTheRulesSay) {
    show("/Users/ana", 800);
    const BarParts bar = parts();
    EXPECT_EQ(bar.plate, platform::CGRectMake(6, 6, 788, 32));
    EXPECT_EQ(bar.brand, platform::CGRectMake(6, 6, 111, 32));
    EXPECT_EQ(bar.copy, platform::CGRectMake(761, 8, 30, 28));
    EXPECT_FALSE(bar.field);
    EXPECT_FALSE(bar.ellipsis);
    // The row begins behind brand and divider with an inset of 10; a crumb is its text, 4 before and 2 behind it, and a
    // chevron of 22.
    const std::vector<BarParts::Crumb> expected{
        {"0-root", "Macintosh HD", {{128, 6}, {114, 32}}, CGRect{{242, 6}, {22, 32}}},
        {"1-Users", "Users", {{264, 6}, {51, 32}}, CGRect{{315, 6}, {22, 32}}},
        {"2-ana", "ana", {{337, 6}, {35, 32}}, std::nullopt}};
    EXPECT_EQ(bar.crumbs, expected);
    // Between the two dividers: 761 - 2 - 1 is where the second begins.
    EXPECT_EQ(bar.row, platform::CGRectMake(118, 6, 758 - 118, 32));
}

TEST_F(PathBarViewTest, TheBrandGrowsWithTheBarBetweenItsBounds) {
    const std::pair<double, double> rows[] = {{400, 111}, {800, 111}, {1000, 129}, {1154, 149}, {2000, 149}};
    for (const auto& [width, brand] : rows) {
        show("/", width);
        EXPECT_DOUBLE_EQ(parts().brand->width(), brand) << width;
    }
    EXPECT_EQ(PathBarMetrics::brandRegionLimit(800), 117);
    EXPECT_EQ(PathBarMetrics::brandRegionLimit(1200), 155);
}

TEST_F(PathBarViewTest, FoldsWhatDoesNotFitBehindTheEllipsis) {
    show("/Users/ana/Documents/Projects", 520);
    // The row is 520 - 12 - 111 - 1 - 3 - 30 - 2 - 1 = 360 wide; Documents and Projects need 109 + 78 + 40.
    EXPECT_EQ(crumbs(), (std::vector<std::string>{"ana", "Documents", "Projects"}));
    ASSERT_TRUE(parts().ellipsis);
    // As high as the row: above and below its text it isn't the row's empty space.
    const CGRect ellipsis = *parts().ellipsis;
    EXPECT_EQ(ellipsis, (CGRect{{128, 6}, {ellipsis.width(), 32}}));
    click(CGPoint{ellipsis.midX(), 7});
    EXPECT_EQ(log, std::vector<std::string>{});
    show("/Users/ana/Documents/Projects", 100);
    EXPECT_EQ(crumbs(), std::vector<std::string>{"Projects"});
    show("/Users/ana/Documents/Projects", 1200);
    EXPECT_FALSE(parts().ellipsis);
    EXPECT_EQ(crumbs().size(), 5U);
}

TEST_F(PathBarViewTest, ACrumbTooWideForItsRowIsCutInTheMiddle) {
    show("/abcdefghijklmnopqrstuvwxyz", 300);
    std::vector<std::string> texts;
    for (const auto& operation : host.drawing().operations)
        if (const auto* text = std::get_if<platform::DrawText>(&operation)) texts.push_back(text->text);
    // 140 points of row less 20 of insets, some 15 for the ellipsis menu's text and chevron with paddings and spacing,
    // and 8 for the crumb's own.
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[1], "…");
    EXPECT_EQ(texts[2].substr(0, 2), "ab");
    EXPECT_EQ(texts[2].substr(texts[2].size() - 2), "yz");
    EXPECT_NE(texts[2].find("…"), std::string::npos);
}

TEST_F(PathBarViewTest, ClicksReportWhatTheyLandOn) {
    show("/Users/ana", 800);
    const BarParts bar = parts();
    click(bar.crumbs[1].frame);
    click(bar.crumbs[2].frame);
    click(CGPoint{(bar.crumbs[2].frame.maxX() + bar.row->maxX()) / 2, 22});
    click(CGPoint{bar.row->minX() + 5, 22});
    click(*bar.crumbs[0].chevron);
    click(*bar.brand);
    EXPECT_EQ(log, (std::vector<std::string>{"openPath /Users", "beginEditing", "beginEditing", "beginEditing"}));
}

TEST_F(PathBarViewTest, APressOnACrumbThatIsReplacedBeforeTheReleaseOpensNothing) {
    show("/Users/ana", 800);
    platform::NSEvent event;
    event.locationInWindow = {290, 22};
    event.type = platform::NSEventType::leftMouseDown;
    host.handleEvent(event);
    show("/Other/ana", 800);
    event.type = platform::NSEventType::leftMouseUp;
    host.handleEvent(event);
    EXPECT_TRUE(log.empty());
}

TEST_F(PathBarViewTest, TheCopyConfirmationLastsFromTheLatestClick) {
    show("/Users/ana", 800);
    EXPECT_EQ(copySymbol(), "doc.on.doc");
    click(*parts().copy);
    EXPECT_EQ(copySymbol(), "checkmark");
    machine.advance(platform::seconds(1));
    click(*parts().copy);
    machine.advance(platform::seconds(1.399));
    EXPECT_EQ(copySymbol(), "checkmark");
    machine.advance(platform::seconds(0.001));
    EXPECT_EQ(copySymbol(), "doc.on.doc");
    EXPECT_EQ(log, (std::vector<std::string>{"copyFullPath", "copyFullPath"}));
}

TEST_F(PathBarViewTest, TheFieldTakesTheCrumbsPlaceWhileEditing) {
    show("/Users/ana", 800);
    const BarParts before = parts();
    model.inputText.set("/Users/ana");
    model.isEditing.set(true);
    machine.endTurn();
    const BarParts bar = parts();
    EXPECT_EQ(bar.field, platform::CGRectMake(130, 6, 758 - 130 - 6, 32));
    EXPECT_TRUE(bar.crumbs.empty());
    EXPECT_FALSE(bar.row);
    EXPECT_EQ(bar.brand, before.brand);
    EXPECT_EQ(bar.copy, before.copy);
}

TEST_F(PathBarViewTest, ANewStyleRedrawsTheBarAndASchemeChangesItsColours) {
    using platform::Color;
    using platform::ColorRole;
    show("/Users/ana", 800);
    const auto plate = [&] { return std::get<platform::FillShape>(host.drawing().operations.at(0)); };
    const auto edge = [&] { return std::get<platform::StrokeShape>(host.drawing().operations.at(1)); };
    EXPECT_EQ(plate().color, Color::of(ColorRole::white));
    EXPECT_EQ(edge().color, Color::of(ColorRole::primary, 0.16));
    machine.platform.shared<PathBarDesignManager>().select(PathBarDesign::graphite);
    machine.endTurn();
    EXPECT_EQ(edge().lineWidth, 1.5);
    machine.appearance.colorScheme.set(platform::ColorScheme::dark);
    machine.endTurn();
    EXPECT_EQ(plate().color, Color::of(ColorRole::black));
    EXPECT_EQ(edge().color, Color::of(ColorRole::primary, 0.58));
    EXPECT_EQ(edge().shape,
              (platform::RoundedShape{{{6.75, 6.75}, {786.5, 30.5}}, 5.25, platform::CornerStyle::continuous}));
}

}  // namespace
