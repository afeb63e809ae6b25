#include "play/soak/Soak.h"

#include <algorithm>
#include <chrono>
#include <ostream>
#include <sstream>

#include "play/ScriptPlayer.h"
#include "play/Session.h"
#include "play/soak/Shrinking.h"

namespace play {

namespace {

std::string scriptOf(const StoryEnd& end) {
    std::string script;
    for (const std::string& line : end.lines) script += line + '\n';
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

}  // namespace

int runSoak(const SoakOptions& options, std::ostream& output) {
    const auto began = std::chrono::steady_clock::now();
    std::uint64_t seed = options.seed;
    std::int64_t lines = 0;
    for (std::int64_t left = options.steps; left > 0; left -= stepsOfStory, ++seed) {
        const std::int64_t steps = std::min(left, stepsOfStory);
        RandomAuthor author(seed, steps);
        const StoryEnd end = playStory(author, options.prepare);
        lines += static_cast<std::int64_t>(end.lines.size());
        if (!end.finding) continue;
        tellFault(seed, steps, end, options.prepare, output);
        return 1;
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - began;
    output << options.steps << " steps (" << lines << " lines with those that brought the desk to rest) of "
           << seed - options.seed << " seeds held, "
           << static_cast<std::int64_t>(static_cast<double>(options.steps) / took.count()) << " steps per second\n";
    return 0;
}

}  // namespace play
