#include "play/soak/Story.h"

#include <algorithm>
#include <sstream>

#include "play/ScriptPlayer.h"
#include "play/Session.h"
#include "play/soak/Checks.h"
#include "play/soak/Healing.h"
#include "play/soak/Watch.h"

namespace play {

namespace {

class StorySource final : public LineSource {
public:
    StorySource(Session& theSession, Author& theAuthor, StoryEnd& theEnd)
        : session(theSession), author(theAuthor), end(theEnd), watch(theSession) {}

    std::optional<ScriptLine> next() override {
        lookBack();
        if (end.finding) return std::nullopt;
        auto text = nextText();
        if (!text) return std::nullopt;
        end.lines.push_back(*text);
        Script script = readScript(*text);
        if (script.error) return ScriptLine{0, script.error->message, {}};
        return std::move(script.lines.front());
    }

    bool goesOnAfter(const Failure& /*failure*/) override {
        end.lines.pop_back();
        if (isTold) author.refused();
        return true;
    }

private:
    enum class Phase { telling, healing, resting };

    // At what the line before has done.
    void lookBack() {
        if (!end.lines.empty()) end.finding = watch.look(end.lines.back());
        const auto& faults = session.machine.faults;
        longestDelay = std::max({longestDelay, faults.scriptLatency, faults.notificationDelay});
        if (phase != Phase::resting || end.finding) return;
        end.finding = checkAtRest(session, watch);
        phase = Phase::telling;
        longestDelay = {};
    }

    std::optional<std::string> nextText() {
        if (phase == Phase::telling) {
            auto told = author.next(session);
            if (!told) return std::nullopt;
            isTold = true;
            if (told->line) return told->line;
            isTold = false;
            phase = Phase::healing;
            healings = 0;
        }
        // A line that doesn't heal would be told for ever.
        if (++healings < mostHealings)
            if (auto line = healingLine(session)) return line;
        phase = Phase::resting;
        return restLine(longestDelay);
    }

    static constexpr int mostHealings = 1000;

    Session& session;
    Author& author;
    StoryEnd& end;
    Watch watch;
    bool isTold = false;  // the last line is the author's
    Phase phase = Phase::telling;
    int healings = 0;
    platform::Duration longestDelay{0};
};

}  // namespace

StoryEnd playStory(Author& author, const Preparation& prepare) {
    StoryEnd end;
    Session session;
    const std::shared_ptr<void> prepared = prepare ? prepare(session) : nullptr;
    std::ostringstream nowhere;
    ScriptPlayer player(session, "story", std::make_unique<StorySource>(session, author, end), nowhere, nowhere);
    player.play();
    return end;
}

}  // namespace play
