// Characters, words and line breaks by the rules of Unicode (UAX 29, UAX 14). The iterators are made once, and read the text where it lies.
#pragma once

#include <memory>
#include <vector>

#include <unicode/brkiter.h>

#include "platform/TextBoundaries.h"

namespace desk {

class IcuTextBoundaries final : public platform::TextBoundaries {
public:
    IcuTextBoundaries();

    std::size_t nextCharacter(std::string_view text, std::size_t offset) override;
    std::size_t previousCharacter(std::string_view text, std::size_t offset) override;
    std::size_t nextWord(std::string_view text, std::size_t offset) override;
    std::size_t previousWord(std::string_view text, std::size_t offset) override;

    // Byte offsets between which characters lie, 0 and the text's size included.
    std::vector<std::size_t> edgesOfCharacters(std::string_view text);
    // Where a line may end (UAX 14), in order; the text's size is the last.
    struct LineEdge {
        std::size_t offset = 0;
        bool endsLine = false;  // a line feed or the like is before it
    };
    std::vector<LineEdge> edgesOfLines(std::string_view text);

private:
    // Null when the library's data is missing.
    std::unique_ptr<icu::BreakIterator> characters;
    std::unique_ptr<icu::BreakIterator> words;
    std::unique_ptr<icu::BreakIterator> lines;
};

}  // namespace desk
