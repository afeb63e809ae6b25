// Asks Finder by AppleScript which folder each window shows and what is selected. The observer calls it on its two serial queues, one for
// each operation; it decides neither when to ask nor what an answer is worth. Every failure is an empty answer.
#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/Platform.h"
#include "tracking/FinderPathSnapshot.h"
#include "tracking/FinderSelectionSnapshot.h"

namespace brindle {

class FinderPathProvider {
public:
    explicit FinderPathProvider(platform::Platform& thePlatform) : platform(thePlatform) {}

    // In Finder's order. Blocks until Finder has answered; always on the same queue, since the script object belongs to it.
    std::vector<FinderPathSnapshot> fetchWindowPaths();
    // Blocks likewise, on a queue that may be another one.
    std::optional<FinderSelectionSnapshot> fetchFrontWindowSelection();

private:
    // Not yet made is an empty optional; a source that the platform refused is a null script, and isn't tried again.
    using LazyScript = std::optional<std::unique_ptr<platform::NSAppleScript>>;

    std::optional<std::string> run(LazyScript& held, std::string_view source);
    static std::optional<FinderPathSnapshot> parseRecord(std::string_view record);

    static constexpr char fieldSeparator = '\x1F';
    static constexpr char recordSeparator = '\x1E';

    platform::Platform& platform;
    LazyScript script;
    LazyScript selectionScript;
};

}  // namespace brindle
