#include "play/soak/Story.h"

#include <algorithm>
#include <deque>
#include <malloc.h>
#include <sstream>

#include "play/ScriptPlayer.h"
#include "play/Session.h"
#include "play/soak/Checks.h"
#include "play/soak/CopyWatch.h"
#include "play/soak/Healing.h"
#include "play/soak/Leeway.h"
#include "play/soak/Leftovers.h"
#include "play/soak/TypingWatch.h"

namespace play {

namespace {

std::int64_t bytesOf(const std::vector<PlayedLine>& lines) {
    std::size_t bytes = lines.capacity() * sizeof(PlayedLine);
    const std::size_t leastOnHeap = std::string().capacity() + 1;
    for (const PlayedLine& line : lines)
        if (line.text.capacity() >= leastOnHeap) bytes += malloc_usable_size(const_cast<char*>(line.text.data()));
    return static_cast<std::int64_t>(bytes);
}

class StorySource final : public LineSource {
public:
    StorySource(Session& theSession, Author& theAuthor, StoryEnd& theEnd)
        : session(theSession),
          author(theAuthor),
          end(theEnd),
          leeway(theSession),
          typing(theSession),
          copying(theSession) {}

    std::optional<ScriptLine> next() override {
        lookBack();
        if (end.finding) return std::nullopt;
        auto text = nextText();
        if (!text) return std::nullopt;
        Script script = readScript(*text);
        end.lines.push_back({std::move(*text), 0});
        if (script.error) return ScriptLine{0, script.error->message, {}};
        return std::move(script.lines.front());
    }

    bool goesOnAfter(const Failure& /*failure*/) override {
        end.lines.pop_back();
        if (isTold) author.refused();
        return true;
    }

private:
    enum class Phase { telling, healing, resting, clearing };

    // At what the line before has done.
    void lookBack() {
        if (end.lines.empty()) return;
        const std::int32_t finder = session.machine.finder.pid();
        for (const auto* window : session.machine.windows.all())
            if (window->owner == finder) lastWindow = std::max(lastWindow, window->number);
        end.lines.back().lastWindow = lastWindow;
        leeway.look();
        leftovers.look(session);
        end.finding = typing.look(end.lines.back().text);
        auto lost = copying.look(end.lines.back().text);
        if (!end.finding) end.finding = std::move(lost);
        const auto& faults = session.machine.faults;
        longestDelay = std::max({longestDelay, faults.scriptLatency, faults.notificationDelay});
        if (phase == Phase::resting && !end.finding) endRest();
    }

    void endRest() {
        end.finding = checkAtRest(session, leeway);
        ++end.rests;
        if (const auto* orvane = session.orvane())
            end.barsAtRest += std::ssize(orvane->appDelegate.finderObserver().windows.get());
        if (hasCleared && !end.finding) end.finding = leftovers.check(session, bytesOf(end.lines));
        phase = Phase::telling;
        longestDelay = {};
        if (!willClear || end.finding) return;
        clearing = clearingLines(session);
        phase = Phase::clearing;
    }

    std::optional<std::string> nextText() {
        if (phase == Phase::telling) {
            auto told = author.next(session);
            while (told && told->line && pressesTwice(*told->line)) {
                author.refused();
                told = author.next(session);
            }
            if (!told) return std::nullopt;
            isTold = told->line.has_value();
            if (isTold) return told->line;
            willClear = told->clears;
            hasCleared = false;
            end.told = end.lines.size();
            comeToRest();
        }
        if (phase == Phase::clearing) {
            if (auto line = nextClearing()) return line;
            willClear = false;
            hasCleared = true;
            comeToRest();
        }
        // A line that doesn't heal would be told for ever.
        if (++healings < mostHealings)
            if (auto line = healingLine(session)) return line;
        phase = Phase::resting;
        return restLine(longestDelay);
    }

    // A mouse can't: that button is down.
    bool pressesTwice(std::string_view line) const {
        const bool isDown = line.starts_with("mouse down ");
        if (!isDown && !line.starts_with("click ") && !line.starts_with("drag ")) return false;
        const bool isRight = isDown ? line.ends_with(" right") : line.starts_with("click right ");
        return session.machine.pointer.isPressed(isRight ? desk::MouseButton::right : desk::MouseButton::left);
    }

    std::optional<std::string> nextClearing() {
        if (clearing.empty()) return std::nullopt;
        std::string line = std::move(clearing.front());
        clearing.pop_front();
        return line;
    }

    void comeToRest() {
        phase = Phase::healing;
        healings = 0;
    }

    static constexpr int mostHealings = 1000;

    Session& session;
    Author& author;
    StoryEnd& end;
    Leeway leeway;
    TypingWatch typing;
    CopyWatch copying;
    Leftovers leftovers;
    bool isTold = false;  // the last line is the author's
    Phase phase = Phase::telling;
    int healings = 0;
    bool willClear = false;
    bool hasCleared = false;
    std::deque<std::string> clearing;
    platform::Duration longestDelay{0};
    std::int64_t lastWindow = desk::firstFinderWindowNumber - 1;
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
