#include "play/soak/Shrinking.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string_view>

#include "play/ScriptReader.h"
#include "play/soak/Lines.h"

namespace play {

namespace {

// As many lines are played in all before it takes what it has.
constexpr std::int64_t mostLinesPlayed = 3'000'000;

class Shrinker {
public:
    Shrinker(StoryEnd first, const Preparation& thePreparation)
        : best(std::move(first)), prepare(thePreparation), lines(best.lines) {}

    StoryEnd shrink() {
        // Played once more without its intermediate rests, or else with what they had become.
        shows(lines);
        std::size_t before = 0;
        do {
            before = lines.size();
            leaveOut();
            simplifyNumbers();
        } while (lines.size() < before && played < mostLinesPlayed);
        return best;
    }

private:
    bool shows(const std::vector<std::string>& candidate) {
        if (played >= mostLinesPlayed) return false;
        ListAuthor author(candidate);
        StoryEnd end = playStory(author, prepare);
        played += static_cast<std::int64_t>(end.lines.size()) + 1;
        if (!end.finding || end.finding->check != best.finding->check) return false;
        best = std::move(end);
        lines = candidate;
        return true;
    }

    void leaveOut() {
        for (std::size_t size = std::max<std::size_t>(lines.size() / 2, 1); size > 0; size /= 2)
            for (std::size_t end = lines.size(); end > 0;) {
                const std::size_t begin = end > size ? end - size : 0;
                std::vector<std::string> fewer(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(begin));
                fewer.insert(fewer.end(), lines.begin() + static_cast<std::ptrdiff_t>(end), lines.end());
                shows(fewer);
                end = begin;
            }
    }

    void simplifyNumbers() {
        for (std::size_t i = 0; i < lines.size(); ++i) {
            std::string message;
            const auto words = splitWords(lines[i], message);
            for (std::size_t word = 1; words && word < words->size(); ++word) simplify(i, word);
        }
    }

    void simplify(std::size_t line, std::size_t word) {
        std::string message;
        auto words = splitWords(lines[line], message);
        const std::string& text = (*words)[word].text;
        if (text.find_first_not_of("-.0123456789") != std::string::npos || (*words)[word].quoted) return;
        const double value = std::strtod(text.c_str(), nullptr);
        const std::array simpler = {0.0, 100 * std::round(value / 100), 10 * std::round(value / 10), std::round(value)};
        for (const double number : simpler) {
            if (number == value) return;
            if (showsWith(line, word, *words, numberWord(number))) return;
        }
    }

    bool showsWith(std::size_t line, std::size_t word, const std::vector<Word>& words, const std::string& number) {
        std::vector<std::string> written;
        for (std::size_t i = 0; i < words.size(); ++i)
            written.push_back(i == word ? number : words[i].quoted ? textWord(words[i].text) : words[i].text);
        std::vector<std::string> simpler = lines;
        simpler[line] = joinWords(written);
        return shows(simpler);
    }

    StoryEnd best;
    const Preparation& prepare;
    std::vector<std::string> lines;
    std::int64_t played = 0;
};

}  // namespace

StoryEnd shrinkStory(StoryEnd first, const Preparation& prepare) {
    return Shrinker(std::move(first), prepare).shrink();
}

}  // namespace play
