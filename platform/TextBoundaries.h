// Where a caret may stand in a text: between what a reader takes for characters, and at the edges of words. Offsets are bytes of UTF-8 text; one inside a character counts as
// the character's. The answers are the platform's alone, so that the caret moves as it does in every other field. Main thread only.
#pragma once

#include <cstddef>
#include <string_view>

namespace platform {

class TextBoundaries {
public:
    virtual ~TextBoundaries() = default;

    // The end of the grapheme cluster that holds or follows the offset; the text's length at its end.
    virtual std::size_t nextCharacter(std::string_view text, std::size_t offset) = 0;
    // The beginning of the grapheme cluster that holds or precedes the offset; 0 at the beginning.
    virtual std::size_t previousCharacter(std::string_view text, std::size_t offset) = 0;

    // The end of the word that holds or follows the offset, past what lies between words; the text's length when there is none.
    virtual std::size_t nextWord(std::string_view text, std::size_t offset) = 0;
    // The beginning of the word that holds or precedes the offset; 0 when there is none.
    virtual std::size_t previousWord(std::string_view text, std::size_t offset) = 0;
};

}  // namespace platform
