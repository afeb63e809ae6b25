// An immutable text of a script, cheap to copy. Texts that grow from one another share one buffer, of which each sees
// its own beginning, so that appending in a loop costs what is appended.
#pragma once

#include "desk/applescript/Failure.h"

#include <memory>
#include <string>
#include <string_view>

namespace desk::applescript {

class ScriptText {
public:
    ScriptText() : ScriptText(std::string()) {}
    explicit ScriptText(std::string bytes)
        : buffer(std::make_shared<Buffer>(Buffer{std::move(bytes), false})), length(buffer->bytes.size()) {}

    // A text whose buffer is never appended to: literals, which several runs of one script share.
    static ScriptText literal(std::string bytes) {
        ScriptText text(std::move(bytes));
        text.buffer->isSealed = true;
        return text;
    }

    // Valid until the next append to any text of the same origin.
    std::string_view view() const { return std::string_view(buffer->bytes).substr(0, length); }
    std::string string() const { return std::string(view()); }

    // Throws Failure for a text that becomes too long.
    ScriptText appending(std::string_view more) const {
        if (more.empty()) {
            return *this;
        }
        if (length + more.size() > greatestLength) {
            fail(ErrorNumber::outOfMemory, "Out of memory.");
        }
        ScriptText result = *this;
        if (!growsInPlace()) {
            std::string copy;
            copy.reserve((length + more.size()) * 2);
            copy.append(view()).append(more);
            result = ScriptText(std::move(copy));
        } else {
            buffer->bytes.append(more);
            result.length = buffer->bytes.size();
        }
        return result;
    }

    bool growsInPlace() const { return !buffer->isSealed && buffer->bytes.size() == length; }

private:
    static constexpr std::size_t greatestLength = 32 << 20;

    struct Buffer {
        std::string bytes;
        bool isSealed;
    };

    std::shared_ptr<Buffer> buffer;
    std::size_t length;
};

}  // namespace desk::applescript
