#include "desk/windows/Displays.h"

#include <algorithm>

namespace desk {

namespace {

using platform::CGRect;
using platform::CGRectMake;

platform::NSScreen screenOf(const DisplayOptions& options) {
    const CGRect& frame = options.frame;
    const double dock = std::clamp(options.dock, 0.0, frame.height());
    const double menuBar = std::clamp(options.menuBar, 0.0, frame.height() - dock);
    const CGRect visible =
        CGRectMake(frame.minX(), frame.minY() + dock, frame.width(), frame.height() - dock - menuBar);
    return {frame, visible, options.framesPerSecond};
}

}  // namespace

Displays::Displays() {
    made.emplace_back();
    list.push_back(screenOf(made.front()));
}

std::optional<platform::NSScreen> Displays::mainScreen() {
    if (list.empty()) return std::nullopt;
    return list.front();
}

void Displays::add(const DisplayOptions& options) {
    if (isDefault) {
        list.clear();
        made.clear();
        isDefault = false;
    }
    list.push_back(screenOf(options));
    made.push_back(options);
    changed();
}

void Displays::removeAll() {
    set({});
}

void Displays::set(std::vector<DisplayOptions> displays) {
    isDefault = false;
    list.clear();
    for (const DisplayOptions& options : displays) list.push_back(screenOf(options));
    made = std::move(displays);
    changed();
}

double Displays::anchorMaxY() const {
    if (list.empty()) return 0;
    const auto atOrigin = std::find_if(list.begin(), list.end(), [](const auto& screen) {
        return screen.frame.origin == platform::CGPoint{0, 0};
    });
    return (atOrigin == list.end() ? list.front() : *atOrigin).frame.maxY();
}

CGRect Displays::topLeftRect(const CGRect& appKitRect) const {
    if (list.empty()) return appKitRect;
    return CGRectMake(appKitRect.minX(), anchorMaxY() - appKitRect.maxY(), appKitRect.width(), appKitRect.height());
}

// The same reflection serves both ways.
CGRect Displays::appKitRect(const CGRect& topLeftRect) const {
    return this->topLeftRect(topLeftRect);
}

}  // namespace desk
