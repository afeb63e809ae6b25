// The soak run finds what is wrong: with a fault planted in the machine it fails, by the check that is meant for it, and what it prints shows the fault again.
#include <algorithm>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "desk/display/GuiApplication.h"
#include "play/ScriptPlayer.h"
#include "play/Session.h"
#include "play/soak/Actions.h"
#include "play/soak/Soak.h"
#include "tests/kit/Sanitized.h"

namespace {

using play::Session;

// Runs the harm after each change of the window stack. What the harm itself changes leads to no other.
class Saboteur {
public:
    template <typename Harm>
    Saboteur(Session& session, Harm harm)
        : token(session.machine.windows.changed.subscribe([this, &session, harm] {
              if (std::exchange(isBusy, true)) return;
              const auto* orvane = session.orvane();
              const auto* coordinator = orvane == nullptr ? nullptr : orvane->appDelegate.coordinator();
              if (coordinator != nullptr) harm(session, coordinator->liveControllers());
              isBusy = false;
          })) {}

private:
    bool isBusy = false;
    platform::Token token;
};

using Bars = brindle::FinderOverlayCoordinator::Controllers;

template <typename Harm>
play::Preparation planted(Harm harm) {
    return [harm](Session& session) { return std::make_shared<Saboteur>(session, harm); };
}

const play::Preparation losesThirdBar = planted([](Session& session, const Bars& bars) {
    if (bars.size() > 2)
        session.machine.windows.order(bars.rbegin()->second->panel->windowNumber(), platform::NSWindowOrderingMode::out,
                                      0);
});
const play::Preparation placesBarTooHigh = planted([](Session& session, const Bars& bars) {
    if (bars.size() != 2) return;
    const auto* shown = session.machine.windows.find(bars.begin()->second->panel->windowNumber());
    session.machine.windows.setFrame(shown->number,
                                     {{shown->frame.origin.x, shown->frame.origin.y + 1}, shown->frame.size});
});
const play::Preparation forgetsText = planted([](Session& session, const Bars& bars) {
    if (session.machine.appearance.colorScheme.get() != platform::ColorScheme::dark) return;
    for (const auto& [id, bar] : bars)
        if (!bar->viewModel->inputText.get().empty()) bar->viewModel->inputText.set("");
});

struct Fault {
    const char* check;
    const play::Preparation* plant;
};

class PlantedFault : public testing::TestWithParam<Fault> {
protected:
    desk::GuiApplication gui;
};

int playAgain(const std::string& script, const play::Preparation& prepare) {
    Session session;
    const auto prepared = prepare ? prepare(session) : nullptr;
    std::ostringstream output;
    play::ScriptPlayer player(session, "story", script, output, output);
    return player.play();
}

TEST_P(PlantedFault, IsFoundAndTheScriptShowsItAgain) {
    if (kit::isSanitized && GetParam().plant != &placesBarTooHigh) GTEST_SKIP() << "one will do under a sanitizer";
    play::SoakOptions options;
    options.seed = 1;
    options.steps = 20000;
    options.prepare = *GetParam().plant;
    std::ostringstream output;
    ASSERT_EQ(play::runSoak(options, output), 1) << output.str();
    const std::string script = output.str().substr(output.str().find("\n# ") + 1);
    EXPECT_EQ(script.rfind("# " + std::string(GetParam().check) + ": ", 0), 0u) << output.str();
    EXPECT_LT(std::count(script.begin(), script.end(), '\n'), 20) << script;
    EXPECT_EQ(playAgain(script, options.prepare), 1) << script;
    EXPECT_EQ(playAgain(script, {}), 0) << "without the fault: " << script;
}

INSTANTIATE_TEST_SUITE_P(Soak, PlantedFault,
                         testing::Values(Fault{"bars", &losesThirdBar}, Fault{"places", &placesBarTooHigh},
                                         Fault{"typing", &forgetsText}),
                         [](const auto& each) { return std::string(each.param.check); });

TEST(Soak, DoesEverythingThatItCanDo) {
    if (kit::isSanitized) GTEST_SKIP() << "the run itself is played under a sanitizer";
    const desk::GuiApplication gui;
    play::SoakOptions options;
    options.seed = 3;  // a seed may leave some faults out; together these four leave out none
    options.steps = 4 * play::stepsOfStory;
    options.isVerbose = true;
    std::ostringstream output;
    ASSERT_EQ(play::runSoak(options, output), 0) << output.str();
    std::map<std::string, int> counts;
    std::istringstream lines(output.str());
    std::string name;
    for (int count = 0; lines >> name >> count;) counts[name] = count;
    for (const auto* table : {&play::windowActions(), &play::machineActions(), &play::inputActions(),
                              &play::pressActions(), &play::faultActions()})
        for (const play::Action& action : *table) EXPECT_GT(counts[std::string(action.name)], 4) << action.name;
    EXPECT_GT(counts["bar-at-rest"], counts["rest"]) << "looked at what is hardly ever there";
}

}  // namespace
