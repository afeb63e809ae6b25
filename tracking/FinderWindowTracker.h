// Says which Finder windows are on screen, front to back, by joining the window server's list, which leads, with Accessibility's, which adds
// role, main and full screen. It also keeps the front window low enough for its bar. It knows no folders and publishes nothing. Main thread only.
#pragma once

#include <cstdint>
#include <unordered_set>
#include <vector>

#include "platform/Platform.h"
#include "tracking/AccessibilityReader.h"
#include "tracking/TrackedFinderWindow.h"

namespace brindle {

// What is known of a window at a pass:
//   matched   found in both lists          full data
//   known     matched before, not now      window-server data, full screen by geometry, never moved
//   unknown   never matched since it came  left out
class FinderWindowTracker {
public:
    explicit FinderWindowTracker(platform::Platform& thePlatform);

    // May move or shrink the front window. Empty when Finder isn't running or the window server gives no list.
    std::vector<TrackedFinderWindow> snapshot();

    // Every window must be matched afresh.
    void forgetKnownWindows() { knownWindowNumbers.clear(); }

private:
    struct CGFinderWindow;
    struct AXFinderWindow;

    std::vector<CGFinderWindow> finderCGWindows(std::int32_t processIdentifier) const;
    std::vector<AXFinderWindow> finderAXWindows(std::int32_t processIdentifier) const;
    void forgetWindowsNotIn(const std::vector<CGFinderWindow>& windows);
    TrackedFinderWindow tracked(CGFinderWindow& window, AXFinderWindow* match, bool finderIsFrontmost) const;

    const platform::NSScreen* bestScreen(const platform::CGRect& rect) const;
    bool fillsScreen(const platform::CGRect& rect) const;
    platform::CGRect keepBelowOverlay(const platform::CGRect& frame, const platform::AXUIElement& element) const;
    void setPosition(const platform::AXUIElement& of, const platform::CGRect& to) const;

    platform::Platform& platform;
    AccessibilityReader reader;
    // On the window server's list since they were matched.
    std::unordered_set<std::int64_t> knownWindowNumbers;
};

}  // namespace brindle
