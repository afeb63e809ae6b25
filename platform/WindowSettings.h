// The settings of a window by the platform's names and numbers: levels, style bits, collection behaviour.
#pragma once

#include <string>

#include "platform/Drawing.h"
#include "platform/Geometry.h"

namespace platform {

inline constexpr int NSNormalWindowLevel = 0;
inline constexpr int NSFloatingWindowLevel = 3;

namespace NSWindowStyleMask {
inline constexpr unsigned borderless = 0;
inline constexpr unsigned titled = 1;
inline constexpr unsigned closable = 2;
inline constexpr unsigned miniaturizable = 4;
inline constexpr unsigned resizable = 8;
inline constexpr unsigned nonactivatingPanel = 128;
}  // namespace NSWindowStyleMask

enum class NSBackingStoreType { buffered = 2 };
enum class NSWindowOrderingMode { above = 1, below = -1, out = 0 };
enum class NSWindowAnimationBehavior { standard = 0, none = 2, documentWindow = 3 };

namespace NSWindowCollectionBehavior {
inline constexpr unsigned ignoresCycle = 64;
inline constexpr unsigned fullScreenAuxiliary = 256;
}  // namespace NSWindowCollectionBehavior

// The settings of a window as last set; the backend reads them when it orders, paints and routes input.
struct WindowSettings {
    unsigned styleMask = NSWindowStyleMask::borderless;
    NSBackingStoreType backing = NSBackingStoreType::buffered;
    bool isPanel = false;
    bool isReleasedWhenClosed = true;
    bool hasShadow = true;
    bool isOpaque = true;
    bool hidesOnDeactivate = false;
    bool ignoresMouseEvents = false;
    bool acceptsMouseMovedEvents = false;
    NSWindowAnimationBehavior animationBehavior = NSWindowAnimationBehavior::standard;
    unsigned collectionBehavior = 0;
    Color backgroundColor = Color::of(ColorRole::windowBackground);
    CGSize minSize;
    CGSize maxSize{1e6, 1e6};
    std::string title;
};

}  // namespace platform
