#include <gtest/gtest.h>

#include "pathbar/PathBarBackground.h"
#include "pathbar/PathBarDesignManager.h"
#include "tests/kit/ViewPlatform.h"
#include "views/Views.h"

namespace {

using namespace brindle;
using platform::Color;
using platform::ColorRole;
using platform::ColorScheme;

TEST(PathBarDesignManager, StartsFromWhatIsStoredAndStoresTheOutcome) {
    const std::pair<std::optional<std::string>, std::string> rows[] = {{std::nullopt, "finderSimple"},
                                                                       {"neon", "finderSimple"},
                                                                       {"Graphite", "finderSimple"},
                                                                       {"graphite", "graphite"}};
    for (const auto& [stored, outcome] : rows) {
        kit::ViewPlatform machine;
        if (stored) machine.stored["pathBarDesign"] = *stored;
        EXPECT_EQ(rawValue(machine.platform.shared<PathBarDesignManager>().selectedDesign.get()), outcome);
        EXPECT_EQ(machine.stored["pathBarDesign"], outcome);
    }
}

TEST(PathBarDesignManager, SelectingTheChosenStyleDoesNothing) {
    kit::ViewPlatform machine;
    auto& manager = machine.platform.shared<PathBarDesignManager>();
    int published = 0;
    const auto token = manager.observe([&] { published += 1; });
    const int writes = machine.defaultsWrites;
    manager.select(PathBarDesign::finderSimple);
    EXPECT_EQ(published, 0);
    EXPECT_EQ(machine.defaultsWrites, writes);
    manager.select(PathBarDesign::minimalLine);
    EXPECT_EQ(published, 1);
    EXPECT_EQ(machine.stored["pathBarDesign"], "minimalLine");
}

struct Plate {
    PathBarDesign design;
    ColorScheme scheme;
    views::View body() const { return pathBarBackground(design, scheme); }
};

platform::Drawing drawn(PathBarDesign design, ColorScheme scheme) {
    kit::ViewPlatform machine;
    views::NSHostingView<Plate> host(machine.platform, Plate{design, scheme});
    host.setSize({100, 32});
    machine.endTurn();
    return host.drawing();
}

TEST(PathBarBackground, DrawsEachStyleInBothSchemes) {
    struct Row {
        PathBarDesign design;
        double radius;
        ColorRole light;
        ColorRole dark;
        double lineWidth;
        ColorRole line;
        double lineLight;
        double lineDark;
    };
    const Row rows[] = {
        {PathBarDesign::standard, 10, ColorRole::white, ColorRole::black, 2, ColorRole::accent, 0.55, 0.55},
        {PathBarDesign::finderSimple, 7, ColorRole::white, ColorRole::black, 1, ColorRole::primary, 0.16, 0.28},
        {PathBarDesign::searchField, 16, ColorRole::windowBackground, ColorRole::controlBackground, 1,
         ColorRole::primary, 0.14, 0.26},
        {PathBarDesign::graphite, 6, ColorRole::white, ColorRole::black, 1.5, ColorRole::primary, 0.38, 0.58}};
    for (const Row& row : rows) {
        for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
            const bool isLight = scheme == ColorScheme::light;
            const double half = row.lineWidth / 2;
            const platform::Drawing expected{
                {platform::FillShape{{{{0, 0}, {100, 32}}, row.radius, platform::CornerStyle::continuous},
                                     Color::of(isLight ? row.light : row.dark)},
                 platform::StrokeShape{{{{half, half}, {100 - row.lineWidth, 32 - row.lineWidth}},
                                        row.radius - half,
                                        platform::CornerStyle::continuous},
                                       Color::of(row.line, isLight ? row.lineLight : row.lineDark),
                                       row.lineWidth}}};
            EXPECT_EQ(drawn(row.design, scheme), expected) << rawValue(row.design);
        }
    }
    const platform::Drawing line{
        {platform::FillShape{{{{0, 0}, {100, 32}}, 5, platform::CornerStyle::continuous}, Color::of(ColorRole::black)},
         platform::FillShape{{{{4, 30}, {92, 2}}, 0, platform::CornerStyle::circular},
                             Color::of(ColorRole::accent, 0.85)}}};
    EXPECT_EQ(drawn(PathBarDesign::minimalLine, ColorScheme::dark), line);
}

TEST(PathBarDesign, IsOfferedWithTheDefaultFirst) {
    std::vector<std::string_view> offered;
    for (const PathBarDesign design : allPathBarDesigns) offered.push_back(title(design));
    EXPECT_EQ(offered,
              (std::vector<std::string_view>{"Default", "Accent Outline", "Rounded", "Minimal Line", "Graphite"}));
}

}  // namespace
