#include "desk/disk/Utf8.h"

#include <unicode/utf8.h>

#include <cstdint>

namespace desk {

bool isUtf8(std::string_view bytes) {
    const auto* text = reinterpret_cast<const std::uint8_t*>(bytes.data());
    for (std::size_t position = 0; position < bytes.size();) {
        UChar32 character = 0;
        U8_NEXT(text, position, bytes.size(), character);
        if (character < 0) return false;
    }
    return true;
}

}  // namespace desk
