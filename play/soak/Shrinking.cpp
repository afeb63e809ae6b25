#include "play/soak/Shrinking.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "play/ScriptReader.h"
#include "play/soak/Lines.h"
#include "play/soak/WindowNumbers.h"

namespace play {

namespace {

// As much is played in all before it takes what it has. A fresh desk takes as long as so many lines.
constexpr std::int64_t mostLinesPlayed = 400'000;
constexpr std::int64_t linesOfFreshDesk = 60;
constexpr std::size_t shortestEnd = 16;

class Shrinker {
public:
    Shrinker(StoryEnd first, const Preparation& thePreparation) : best(std::move(first)), prepare(thePreparation) {
        best.told = best.lines.size();
    }

    StoryEnd shrink() {
        keepLatest();
        std::size_t before = 0;
        do {
            before = best.told;
            leaveOut();
        } while (best.told < before && hasTime());
        simplifyNumbers();
        return best;
    }

private:
    bool hasTime() const { return played < mostLinesPlayed; }

    bool shows(const std::vector<std::string>& candidate) {
        if (!hasTime()) return false;
        ListAuthor author(candidate);
        StoryEnd end = playStory(author, prepare);
        played += static_cast<std::int64_t>(end.lines.size()) + linesOfFreshDesk;
        if (!end.finding || end.finding->check != best.finding->check) return false;
        // It failed before the end came to rest: everything was needed.
        if (end.told == 0) end.told = end.lines.size();
        best = std::move(end);
        return true;
    }

    std::vector<PlayedLine> told() const {
        return {best.lines.begin(), best.lines.begin() + static_cast<std::ptrdiff_t>(best.told)};
    }

    // Most of what a fault needs has just been told.
    void keepLatest() {
        const auto lines = told();
        const auto launch =
            std::find_if(lines.begin(), lines.end(), [](const auto& each) { return each.text == "launch"; });
        const auto opening = static_cast<std::size_t>(launch - lines.begin()) + 1;
        for (std::size_t kept = shortestEnd; opening + kept < lines.size(); kept *= 2) {
            std::vector<bool> isKept(lines.size(), true);
            std::fill(isKept.begin() + static_cast<std::ptrdiff_t>(opening),
                      isKept.end() - static_cast<std::ptrdiff_t>(kept), false);
            if (shows(renumbered(lines, isKept))) return;
        }
    }

    void leaveOut() {
        for (std::size_t size = std::max<std::size_t>(best.told / 2, 1); size > 0; size /= 2)
            for (std::size_t end = best.told; end > 0 && hasTime();) {
                const std::size_t begin = end > size ? end - size : 0;
                leaveOut(begin, end);
                end = std::min(begin, best.told);
            }
    }

    void leaveOut(std::size_t begin, std::size_t end) {
        const auto lines = told();
        std::vector<bool> isKept(lines.size(), true);
        std::fill(isKept.begin() + static_cast<std::ptrdiff_t>(begin),
                  isKept.begin() + static_cast<std::ptrdiff_t>(end), false);
        shows(renumbered(lines, isKept));
    }

    void simplifyNumbers() {
        for (std::size_t i = 0; i < best.told; ++i) {
            std::string message;
            const auto words = splitWords(best.lines[i].text, message);
            for (std::size_t word = 1; words && word < words->size() && i < best.told; ++word) simplify(i, word);
        }
    }

    void simplify(std::size_t line, std::size_t word) {
        std::string message;
        const auto words = splitWords(best.lines[line].text, message);
        if (!words || word >= words->size() || (*words)[word].quoted) return;
        const std::string& text = (*words)[word].text;
        if (text.find_first_not_of("-.0123456789") != std::string::npos) return;
        const double value = std::strtod(text.c_str(), nullptr);
        const std::array simpler = {0.0, 100 * std::round(value / 100), 10 * std::round(value / 10), std::round(value)};
        for (const double number : simpler)
            if (number == value || showsWith(line, word, *words, numberWord(number))) return;
    }

    bool showsWith(std::size_t line, std::size_t word, const std::vector<Word>& words, const std::string& number) {
        std::vector<std::string> written;
        for (std::size_t i = 0; i < words.size(); ++i)
            written.push_back(i == word ? number : words[i].quoted ? textWord(words[i].text) : words[i].text);
        std::vector<std::string> simpler;
        for (const PlayedLine& each : told()) simpler.push_back(each.text);
        simpler[line] = joinWords(written);
        return shows(simpler);
    }

    StoryEnd best;
    const Preparation& prepare;
    std::int64_t played = 0;
};

}  // namespace

StoryEnd shrinkStory(StoryEnd first, const Preparation& prepare) {
    return Shrinker(std::move(first), prepare).shrink();
}

}  // namespace play
