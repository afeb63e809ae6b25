#include "platform/URL.h"

#include <algorithm>

namespace platform {

namespace {

bool isAlpha(char letter) {
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
}

bool isDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

bool isHexDigit(char letter) {
    return isDigit(letter) || (letter >= 'a' && letter <= 'f') || (letter >= 'A' && letter <= 'F');
}

// What may stand in every part but scheme and port: unreserved letters, sub-delims, escapes, and what a part allows beside them.
bool holds(std::string_view part, std::string_view others) {
    constexpr std::string_view everywhere = "-._~!$&'()*+,;=";
    for (std::size_t i = 0; i < part.size(); ++i) {
        const char letter = part[i];
        const bool isEscape =
            letter == '%' && i + 2 < part.size() && isHexDigit(part[i + 1]) && isHexDigit(part[i + 2]);
        const bool isAllowed = isAlpha(letter) || isDigit(letter) ||
                               everywhere.find(letter) != std::string_view::npos ||
                               others.find(letter) != std::string_view::npos;
        if (!isEscape && !isAllowed) return false;
    }
    return true;
}

bool isScheme(std::string_view text) {
    return !text.empty() && isAlpha(text.front()) && std::all_of(text.begin(), text.end(), [](char letter) {
        return isAlpha(letter) || isDigit(letter) || letter == '+' || letter == '-' || letter == '.';
    });
}

bool isAuthority(std::string_view text) {
    if (const std::size_t at = text.find('@'); at != std::string_view::npos) {
        if (!holds(text.substr(0, at), ":")) return false;
        text.remove_prefix(at + 1);
    }
    const std::size_t bracket = text.starts_with('[') ? text.find(']') : 0;
    if (bracket == std::string_view::npos) return false;
    const std::size_t colon = std::min(text.find(':', bracket), text.size());
    const std::string_view port = text.substr(std::min(colon + 1, text.size()));
    const bool isHost = bracket > 0 ? colon == bracket + 1 && bracket > 1 && holds(text.substr(1, bracket - 1), ":")
                                    : holds(text.substr(0, colon), "");
    return isHost && std::all_of(port.begin(), port.end(), isDigit);
}

// Cuts off what stands behind the sign, and answers whether it may.
bool cutsTail(std::string_view& text, char sign) {
    const std::size_t place = text.find(sign);
    if (place == std::string_view::npos) return true;
    const std::string_view tail = text.substr(place + 1);
    text = text.substr(0, place);
    return holds(tail, ":@/?");
}

}  // namespace

std::optional<std::string> URLWithString(std::string_view text) {
    std::string_view rest = text;
    if (text.empty() || !cutsTail(rest, '#') || !cutsTail(rest, '?')) return std::nullopt;
    const std::size_t colon = rest.substr(0, rest.find('/')).find(':');
    if (colon != std::string_view::npos) {
        if (!isScheme(rest.substr(0, colon))) return std::nullopt;
        rest.remove_prefix(colon + 1);
    }
    if (rest.starts_with("//")) {
        const std::string_view authority = rest.substr(2, rest.find('/', 2) - 2);
        if (!isAuthority(authority)) return std::nullopt;
        rest.remove_prefix(2 + authority.size());
    }
    if (!holds(rest, ":@/")) return std::nullopt;
    return std::string(text);
}

}  // namespace platform
