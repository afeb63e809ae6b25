// The general pasteboard, text only. Main thread only.
#pragma once

#include <optional>
#include <string>

namespace platform {

class NSPasteboard {
public:
    virtual ~NSPasteboard() = default;
    virtual void clearContents() = 0;
    virtual bool setString(const std::string& text) = 0;
    virtual std::optional<std::string> string() = 0;
};

}  // namespace platform
