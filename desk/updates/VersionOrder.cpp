#include "desk/updates/VersionOrder.h"

#include <algorithm>
#include <string>
#include <vector>

namespace desk {

namespace {

bool isDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

bool isSeparator(char letter) {
    return letter > 0 && !isDigit(letter) && (letter < 'A' || letter > 'Z') && (letter < 'a' || letter > 'z');
}

// Compared member by member. A number is its digits without leading zeros, so that its length goes first.
struct VersionPart {
    bool isNumber = true;
    std::size_t length = 0;
    std::string text;
    friend auto operator<=>(const VersionPart&, const VersionPart&) = default;
};

VersionPart takePart(std::string_view& version) {
    const bool isNumber = isDigit(version.front());
    const auto end = std::find_if(version.begin(), version.end(),
                                  [&](char letter) { return isSeparator(letter) || isDigit(letter) != isNumber; });
    std::string_view text = version.substr(0, static_cast<std::size_t>(end - version.begin()));
    version.remove_prefix(text.size());
    if (isNumber) text.remove_prefix(std::min(text.find_first_not_of('0'), text.size()));
    return {isNumber, isNumber ? text.size() : 0, std::string(text)};
}

std::vector<VersionPart> partsOf(std::string_view version) {
    std::vector<VersionPart> parts;
    while (!version.empty()) {
        if (isSeparator(version.front()))
            version.remove_prefix(1);
        else
            parts.push_back(takePart(version));
    }
    return parts;
}

}  // namespace

std::strong_ordering compareVersions(std::string_view left, std::string_view right) {
    std::vector<VersionPart> leftParts = partsOf(left);
    std::vector<VersionPart> rightParts = partsOf(right);
    const std::size_t count = std::max(leftParts.size(), rightParts.size());
    leftParts.resize(count);
    rightParts.resize(count);
    return leftParts <=> rightParts;
}

}  // namespace desk
