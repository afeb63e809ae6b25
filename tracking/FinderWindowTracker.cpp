#include "tracking/FinderWindowTracker.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

#include "tracking/CoordinateSpaceConverter.h"
#include "tracking/OverlayMetrics.h"
#include "tracking/RectangleMatching.h"

namespace brindle {

using platform::AXUIElement;
using platform::CGRect;

namespace {

constexpr const char* finderBundleIdentifier = "com.apple.finder";
constexpr double certainDistance = 20;
constexpr double rejectedDistance = 1000;

// Layers and process identifiers may come as any kind of number.
std::optional<std::int64_t> integerFor(const platform::Dictionary& entry, const char* key) {
    const platform::Value* value = platform::find(entry, key);
    return value == nullptr ? std::nullopt : value->integer();
}

std::string stringFor(const platform::Dictionary& entry, const char* key) {
    const platform::Value* value = platform::find(entry, key);
    const auto* text = value == nullptr ? nullptr : value->as<std::string>();
    return text == nullptr ? std::string() : *text;
}

bool isOnLayerZero(const platform::Dictionary& entry) {
    const platform::Value* layer = platform::find(entry, platform::kCGWindowLayer);
    return layer != nullptr && layer->number() == 0.0;
}

}  // namespace

struct FinderWindowTracker::CGFinderWindow {
    std::int64_t number = 0;
    std::int64_t zIndex = 0;
    CGRect frame;  // top-left space
    std::string title;
};

struct FinderWindowTracker::AXFinderWindow {
    AXUIElement element;
    CGRect frame;  // top-left space; for matching only
    std::string title;
    bool isMain = false;
    std::optional<bool> isFullScreen;
};

FinderWindowTracker::FinderWindowTracker(platform::Platform& thePlatform)
    : platform(thePlatform), reader(thePlatform.accessibility) {}

namespace {

// Answers the index in `untaken` of the Accessibility window that belongs to the window-server window. Titles decide only where the frames
// don't: unequal titles rule a pair out at a distance of 20 or more, and nothing is matched over a distance of 1000 or more.
template <typename CGWindow, typename AXWindow>
std::optional<std::size_t> nearestMatch(const CGWindow& window, const std::vector<AXWindow>& windows,
                                        const std::vector<std::size_t>& untaken) {
    std::optional<std::size_t> best;
    double bestDistance = rejectedDistance;
    for (std::size_t position = 0; position < untaken.size() && bestDistance > 0; ++position) {
        const AXWindow& candidate = windows[untaken[position]];
        const double distance = frameDistance(candidate.frame, window.frame);
        if (!(distance < bestDistance)) continue;
        if (distance >= certainDistance && candidate.title != window.title) continue;
        best = position;
        bestDistance = distance;
    }
    return best;
}

}  // namespace

std::vector<TrackedFinderWindow> FinderWindowTracker::snapshot() {
    const auto applications = platform.workspace.runningApplications();
    const auto finder = std::find_if(applications.begin(), applications.end(), [](const auto& application) {
        return application.bundleIdentifier == finderBundleIdentifier;
    });
    if (finder == applications.end()) return {};
    const auto frontmost = platform.workspace.frontmostApplication();
    const bool finderIsFrontmost = frontmost && frontmost->bundleIdentifier == finderBundleIdentifier;

    std::vector<AXFinderWindow> axWindows = finderAXWindows(finder->processIdentifier);
    std::vector<CGFinderWindow> cgWindows = finderCGWindows(finder->processIdentifier);
    forgetWindowsNotIn(cgWindows);

    std::vector<std::size_t> untaken(axWindows.size());
    for (std::size_t index = 0; index < untaken.size(); ++index) untaken[index] = index;

    std::vector<TrackedFinderWindow> result;
    result.reserve(cgWindows.size());
    for (CGFinderWindow& window : cgWindows) {
        AXFinderWindow* match = nullptr;
        if (const auto position = nearestMatch(window, axWindows, untaken)) {
            match = &axWindows[untaken[*position]];
            untaken.erase(untaken.begin() + static_cast<std::ptrdiff_t>(*position));
            knownWindowNumbers.insert(window.number);
        } else if (!knownWindowNumbers.contains(window.number)) {
            continue;
        }
        result.push_back(tracked(window, match, finderIsFrontmost));
    }
    return result;
}

std::vector<FinderWindowTracker::AXFinderWindow> FinderWindowTracker::finderAXWindows(
    std::int32_t processIdentifier) const {
    const AXUIElement application = platform.accessibility.AXUIElementCreateApplication(processIdentifier);
    const auto elements = reader.copyElements("AXWindows", application);
    std::vector<AXFinderWindow> windows;
    if (!elements) return windows;
    windows.reserve(elements->size());
    for (const AXUIElement& element : *elements) {
        const auto role = reader.copyString("AXRole", element);
        const auto subrole = reader.copyString("AXSubrole", element);
        if (role != "AXWindow" || (subrole && *subrole != "AXStandardWindow")) continue;
        if (reader.copyBool("AXMinimized", element).value_or(false)) continue;
        const auto position = reader.copyPoint("AXPosition", element);
        if (!position) continue;
        const auto size = reader.copySize("AXSize", element);
        if (!size) continue;
        AXFinderWindow& window = windows.emplace_back();
        window.element = element;
        window.frame = {*position, *size};
        window.title = reader.copyString("AXTitle", element).value_or(std::string());
        window.isMain = reader.copyBool("AXMain", element).value_or(false);
        window.isFullScreen = reader.copyBool("AXFullScreen", element);
    }
    return windows;
}

std::vector<FinderWindowTracker::CGFinderWindow> FinderWindowTracker::finderCGWindows(
    std::int32_t processIdentifier) const {
    const platform::Value list = platform.windowServer.CGWindowListCopyWindowInfo(
        platform::kCGWindowListOptionOnScreenOnly | platform::kCGWindowListExcludeDesktopElements, 0);
    std::vector<CGFinderWindow> windows;
    const auto* entries = list.as<platform::Array>();
    if (entries == nullptr) return windows;
    for (const platform::Value& value : *entries) {
        const auto* entry = value.as<platform::Dictionary>();
        if (entry == nullptr) return {};
        if (integerFor(*entry, platform::kCGWindowOwnerPID) != processIdentifier) continue;
        if (!isOnLayerZero(*entry)) continue;
        const auto number = integerFor(*entry, platform::kCGWindowNumber);
        if (!number) continue;
        const platform::Value* bounds = platform::find(*entry, platform::kCGWindowBounds);
        const auto frame = bounds == nullptr ? std::nullopt : platform::CGRectMakeWithDictionaryRepresentation(*bounds);
        if (!frame) continue;
        const auto zIndex = static_cast<std::int64_t>(windows.size());
        windows.push_back({*number, zIndex, *frame, stringFor(*entry, platform::kCGWindowName)});
    }
    return windows;
}

void FinderWindowTracker::forgetWindowsNotIn(const std::vector<CGFinderWindow>& windows) {
    std::unordered_set<std::int64_t> still;
    still.reserve(windows.size());
    for (const CGFinderWindow& window : windows)
        if (knownWindowNumbers.contains(window.number)) still.insert(window.number);
    knownWindowNumbers = std::move(still);
}

TrackedFinderWindow FinderWindowTracker::tracked(CGFinderWindow& window, AXFinderWindow* match,
                                                 bool finderIsFrontmost) const {
    TrackedFinderWindow result;
    result.id = "finder-" + std::to_string(window.number);
    result.windowNumber = window.number;
    result.zIndex = window.zIndex;
    result.isActive = window.zIndex == 0;
    result.frame = CoordinateSpaceConverter::appKitRect(platform.screens, window.frame);
    const auto attribute = match == nullptr ? std::nullopt : match->isFullScreen;
    result.isFullScreen = attribute ? *attribute : fillsScreen(result.frame);
    if (!result.isFullScreen && result.isActive && finderIsFrontmost && match != nullptr && match->isMain)
        result.frame = keepBelowOverlay(result.frame, match->element);
    result.title = std::move(window.title);
    if (result.title.empty() && match != nullptr) result.title = std::move(match->title);
    return result;
}

const platform::NSScreen* FinderWindowTracker::bestScreen(const CGRect& rect) const {
    return platform::screenShowingMost(platform.screens.screens(), rect);
}

bool FinderWindowTracker::fillsScreen(const CGRect& rect) const {
    const platform::NSScreen* screen = bestScreen(rect);
    if (screen == nullptr) return false;
    return std::abs(rect.minX() - screen->frame.minX()) < 1.0 && std::abs(rect.width() - screen->frame.width()) < 1.0 &&
           std::abs(rect.minY() - screen->frame.minY()) < 1.0 && rect.height() >= screen->visibleFrame.height() - 1.0;
}

CGRect FinderWindowTracker::keepBelowOverlay(const CGRect& frame, const AXUIElement& element) const {
    const platform::NSScreen* screen = bestScreen(frame);
    if (screen == nullptr) return frame;
    const CGRect visible = screen->visibleFrame;
    const double overflow = frame.maxY() - (visible.maxY() - OverlayMetrics::barHeight);
    if (overflow <= 0.5) return frame;

    constexpr double leastHeight = 120;
    CGRect lowered = frame;
    // A window as high as the screen would only go off its bottom.
    const bool spansVisibleHeight = frame.minY() <= visible.minY() + 1.0 && frame.maxY() >= visible.maxY() - 1.0;
    if (spansVisibleHeight)
        lowered.size.height = std::max(frame.height() - overflow, leastHeight);
    else
        lowered.origin.y -= overflow;

    setPosition(element, lowered);
    if (lowered.height() != frame.height()) {
        if (const auto size = platform::AXValueCreate(lowered.size))
            platform.accessibility.AXUIElementSetAttributeValue(element, "AXSize", *size);
    }
    return lowered;
}

void FinderWindowTracker::setPosition(const AXUIElement& of, const CGRect& to) const {
    const auto primary = CoordinateSpaceConverter::anchorFrame(platform.screens);
    if (!primary) return;
    const auto position = platform::AXValueCreate(platform::CGPoint{to.minX(), primary->maxY() - to.maxY()});
    if (!position) return;
    platform.accessibility.AXUIElementSetAttributeValue(of, "AXPosition", *position);
}

}  // namespace brindle
