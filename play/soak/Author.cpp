#include "play/soak/Author.h"

#include <algorithm>
#include <utility>

#include "play/Session.h"
#include "play/soak/Lines.h"

namespace play {

namespace {

// A seed's own weighting: what a story does often, another one hardly does.
constexpr double factors[] = {0.1, 0.5, 1, 1, 1, 2, 4};
constexpr double faultFactors[] = {0, 0, 0.3, 1, 1, 3};
constexpr std::size_t windowLimits[] = {4, 6, 6, 10, 10, 20};
constexpr std::size_t windowAims[] = {1, 2, 3, 4};
constexpr int shortestUnrest = 10;
constexpr int longestUnrest = 110;
// An action can fail to find anything to do.
constexpr int mostTries = 20;
// After so many rests all windows are closed.
constexpr int restsBetweenClearings = 4;

}  // namespace

RandomAuthor::RandomAuthor(std::uint64_t seed, std::int64_t theSteps)
    : random(seed),
      stepsLeft(theSteps),
      mostWindows(random.pick(windowLimits)),
      fewestWindows(random.pick(windowAims)) {
    addActions(windowActions(), false);
    addActions(machineActions(), false);
    addActions(inputActions(), false);
    addActions(pressActions(), false);
    if (!random.oneIn(4)) addActions(faultActions(), true);
}

void RandomAuthor::addActions(const std::vector<Action>& table, bool areFaults) {
    for (const Action& each : table) {
        const double factor = areFaults ? random.pick(faultFactors) : random.pick(factors);
        const double before = actions.empty() ? 0 : actions.back().upTo;
        actions.push_back({before + each.weight * factor, &each});
    }
}

std::optional<Told> RandomAuthor::next(const Session& session) {
    if (stepsLeft <= 0 && isAtRest) return std::nullopt;
    if (stepsLeft <= 0 || (untilRest <= 0 && hasBegun)) return rest();
    if (written.empty()) write(session);
    Told told;
    told.line = std::move(written.front());
    written.pop_front();
    --stepsLeft;
    --untilRest;
    ++counts[action];
    isAtRest = false;
    return told;
}

void RandomAuthor::refused() {
    ++stepsLeft;
    --counts[action];
}

Told RandomAuthor::rest() {
    untilRest = random.between(shortestUnrest, longestUnrest);
    isAtRest = true;
    Told told;
    told.clears = ++rests % restsBetweenClearings == 0 || stepsLeft <= 0;
    return told;
}

void RandomAuthor::write(const Session& session) {
    const Chooser choose(session, random);
    Lines lines;
    if (!std::exchange(hasBegun, true)) {
        action = "opening";
        lines = openingLines(choose);
        untilRest = static_cast<int>(lines.size()) + random.between(0, longestUnrest);
    } else if (choose.windowCount() > mostWindows) {
        action = "close";
        lines = {"finder close " + choose.window([](const desk::FinderWindow&) { return true; }).value_or("front")};
    }
    if (lines.empty() && choose.windowCount() < fewestWindows && choose.finderRuns() && random.oneIn(2)) {
        action = "open";
        lines = {"finder open " + textWord(choose.folder()) + ' ' + choose.frame()};
    }
    for (int tries = 0; lines.empty() && tries < mostTries; ++tries) {
        const double at = random.fraction() * actions.back().upTo;
        const auto chosen = std::upper_bound(actions.begin(), actions.end() - 1, at,
                                             [](double value, const Weighted& each) { return value < each.upTo; });
        action = chosen->action->name;
        lines = chosen->action->lines(choose);
    }
    if (lines.empty()) lines = {"wait 0.5"};
    written.assign(lines.begin(), lines.end());
}

std::optional<Told> ListAuthor::next(const Session& /*session*/) {
    if (position > lines.size()) return std::nullopt;
    Told told;
    if (position < lines.size()) told.line = lines[position];
    told.clears = true;
    ++position;
    return told;
}

}  // namespace play
