// The general pasteboard: the machine's one clipboard, shared by all applications, never the host's.
#pragma once

#include <optional>
#include <string>

#include "platform/Pasteboard.h"

namespace desk {

class PasteboardPort final : public platform::NSPasteboard {
public:
    explicit PasteboardPort(std::optional<std::string>& theClipboard) : clipboard(theClipboard) {}

    void clearContents() override { clipboard.reset(); }
    bool setString(const std::string& text) override {
        clipboard = text;
        return true;
    }
    std::optional<std::string> string() override { return clipboard; }

private:
    std::optional<std::string>& clipboard;
};

}  // namespace desk
