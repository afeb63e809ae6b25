// Lower case of ASCII letters, in which words, terms and variables are compared; other characters stay as they are.
#pragma once

#include <string>
#include <string_view>

namespace desk::applescript {

inline char foldedCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

inline std::string foldedCase(std::string_view text) {
    std::string folded(text);
    for (char& character : folded) {
        character = foldedCase(character);
    }
    return folded;
}

}  // namespace desk::applescript
