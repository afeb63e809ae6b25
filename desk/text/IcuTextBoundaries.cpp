#include "desk/text/IcuTextBoundaries.h"

#include <algorithm>
#include <cstdint>

namespace desk {

namespace {

using Maker = icu::BreakIterator* (*)(const icu::Locale&, UErrorCode&);

std::unique_ptr<icu::BreakIterator> made(Maker maker) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::BreakIterator> iterator(maker(icu::Locale::getRoot(), status));
    return U_SUCCESS(status) != 0 ? std::move(iterator) : nullptr;
}

// Has the iterator read this text, whose bytes it doesn't copy.
class Reading {
public:
    Reading(icu::BreakIterator* theIterator, std::string_view text) : iterator(theIterator) {
        utext_openUTF8(&source, text.data(), static_cast<std::int64_t>(text.size()), &status);
        if (iterator != nullptr) iterator->setText(&source, status);
    }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;
    ~Reading() { utext_close(&source); }

    bool isPossible() const { return iterator != nullptr && U_SUCCESS(status) != 0; }

private:
    icu::BreakIterator* iterator;
    UErrorCode status = U_ZERO_ERROR;
    UText source = UTEXT_INITIALIZER;
};

bool endsWord(const icu::BreakIterator& words) {
    return words.getRuleStatus() >= UBRK_WORD_NONE_LIMIT;
}

}  // namespace

IcuTextBoundaries::IcuTextBoundaries()
    : characters(made(icu::BreakIterator::createCharacterInstance)),
      words(made(icu::BreakIterator::createWordInstance)),
      lines(made(icu::BreakIterator::createLineInstance)) {}

std::size_t IcuTextBoundaries::nextCharacter(std::string_view text, std::size_t offset) {
    if (offset >= text.size()) return text.size();
    const Reading reading(characters.get(), text);
    if (!reading.isPossible()) return text.size();
    const std::int32_t found = characters->following(static_cast<std::int32_t>(offset));
    return found == icu::BreakIterator::DONE ? text.size() : static_cast<std::size_t>(found);
}

std::size_t IcuTextBoundaries::previousCharacter(std::string_view text, std::size_t offset) {
    if (offset == 0) return 0;
    const Reading reading(characters.get(), text);
    if (!reading.isPossible()) return 0;
    const std::int32_t found = characters->preceding(static_cast<std::int32_t>(std::min(offset, text.size())));
    return found == icu::BreakIterator::DONE ? 0 : static_cast<std::size_t>(found);
}

std::vector<std::size_t> IcuTextBoundaries::edgesOfCharacters(std::string_view text) {
    const Reading reading(characters.get(), text);
    if (!reading.isPossible()) return {0, text.size()};
    std::vector<std::size_t> edges;
    for (std::int32_t edge = characters->first(); edge != icu::BreakIterator::DONE; edge = characters->next())
        edges.push_back(static_cast<std::size_t>(edge));
    return edges;
}

std::vector<IcuTextBoundaries::LineEdge> IcuTextBoundaries::edgesOfLines(std::string_view text) {
    const Reading reading(lines.get(), text);
    if (text.empty()) return {};
    if (!reading.isPossible()) return {{text.size(), false}};
    std::vector<LineEdge> edges;
    lines->first();
    for (std::int32_t edge = lines->next(); edge != icu::BreakIterator::DONE; edge = lines->next())
        edges.push_back({static_cast<std::size_t>(edge), lines->getRuleStatus() == UBRK_LINE_HARD});
    return edges;
}

std::size_t IcuTextBoundaries::nextWord(std::string_view text, std::size_t offset) {
    if (offset >= text.size()) return text.size();
    const Reading reading(words.get(), text);
    if (!reading.isPossible()) return text.size();
    for (std::int32_t edge = words->following(static_cast<std::int32_t>(offset)); edge != icu::BreakIterator::DONE;
         edge = words->next())
        if (endsWord(*words)) return static_cast<std::size_t>(edge);
    return text.size();
}

// The status at an edge tells of what ends there, so a word's beginning is the edge before one that ends a word.
std::size_t IcuTextBoundaries::previousWord(std::string_view text, std::size_t offset) {
    if (offset == 0) return 0;
    const Reading reading(words.get(), text);
    if (!reading.isPossible()) return 0;
    auto edge = static_cast<std::int32_t>(std::min(offset, text.size()));
    // From inside a word the word's own beginning is the answer.
    if (words->isBoundary(edge) == 0) edge = words->following(edge);
    while (edge > 0) {
        words->isBoundary(edge);
        const bool isWord = endsWord(*words);
        edge = words->preceding(edge);
        if (isWord) return edge == icu::BreakIterator::DONE ? 0 : static_cast<std::size_t>(edge);
    }
    return 0;
}

}  // namespace desk
