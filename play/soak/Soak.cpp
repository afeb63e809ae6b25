#include "play/soak/Soak.h"

#include <algorithm>
#include <chrono>
#include <ostream>
#include <sched.h>
#include <sstream>

#include "play/ScriptPlayer.h"
#include "play/Session.h"
#include "play/soak/Shrinking.h"

namespace play {

namespace {

std::string scriptOf(const StoryEnd& end) {
    std::string script;
    for (const PlayedLine& line : end.lines) script += line.text + '\n';
    for (const std::string& line : end.finding->expectations) script += line + '\n';
    return script;
}

// Whether a plain player stumbles over the script's expectations, as whoever plays it again will.
bool showsTheFault(const std::string& script, const Preparation& prepare) {
    Session session;
    const std::shared_ptr<void> prepared = prepare ? prepare(session) : nullptr;
    std::ostringstream nowhere;
    ScriptPlayer player(session, "story", script, nowhere, nowhere);
    return player.play() == 1;
}

void tellFault(std::uint64_t seed, std::int64_t steps, const StoryEnd& whole, const Preparation& prepare,
               std::ostream& output) {
    output << "seed " << seed << ": " << whole.finding->message << " (" << whole.finding->check << ", after "
           << whole.lines.size() << " lines)\n"
           << "again: desk --soak " << seed << ' ' << steps << '\n'
           << std::flush;
    const StoryEnd shortest = shrinkStory(whole, prepare);
    const std::string script = scriptOf(shortest);
    output << "# " << shortest.finding->check << ": " << shortest.finding->message << '\n' << script;
    if (shortest.finding->expectations.empty())
        output << "# No expectation of a script sees this; the check is made at the end of these lines.\n";
    else if (!showsTheFault(script, prepare))
        output << "# Played as a script, these lines don't show it: the check looked at an earlier moment.\n";
}

// The threads of a desk hand one baton around; on one processor that costs a third of what it does across two.
void stayOnOneProcessor() {
    cpu_set_t processors;
    CPU_ZERO(&processors);
    CPU_SET(static_cast<unsigned>(std::max(sched_getcpu(), 0)), &processors);
    sched_setaffinity(0, sizeof processors, &processors);
}

}  // namespace

int runSoak(const SoakOptions& options, std::ostream& output) {
    stayOnOneProcessor();
    const auto began = std::chrono::steady_clock::now();
    RandomAuthor::Tally tally;
    std::uint64_t seed = options.seed;
    for (std::int64_t left = options.steps; left > 0; left -= stepsOfStory, ++seed) {
        const std::int64_t steps = std::min(left, stepsOfStory);
        RandomAuthor author(seed, steps);
        const StoryEnd end = playStory(author, options.prepare);
        for (const auto& [action, count] : author.tally()) tally[action] += count;
        tally["rest"] += end.rests;
        tally["bar-at-rest"] += end.barsAtRest;
        if (!end.finding) continue;
        tellFault(seed, steps, end, options.prepare, output);
        return 1;
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - began;
    if (options.isVerbose)
        for (const auto& [action, count] : tally) output << action << ' ' << count << '\n';
    output << options.steps << " steps of " << seed - options.seed << " seeds held; " << tally["bar-at-rest"]
           << " bars looked at in " << tally["rest"] << " rests; "
           << static_cast<std::int64_t>(static_cast<double>(options.steps) / took.count()) << " steps per second\n";
    return 0;
}

}  // namespace play
