// Windows that are a frame and two flags: the one asked last is key. For tests of what stands in a window.
#pragma once

#include <memory>

#include "platform/Windows.h"

namespace kit {

class PlainWindows final : public platform::WindowSystem {
public:
    std::unique_ptr<platform::WindowHandle> makeWindow(platform::NSWindow&, const platform::CGRect& frame) override {
        return std::make_unique<Handle>(*this, frame);
    }

    int redraws = 0;

private:
    class Handle final : public platform::WindowHandle {
    public:
        Handle(PlainWindows& theOwner, const platform::CGRect& frame) : owner(theOwner), place(frame) {}
        std::int64_t windowNumber() const override { return 1; }
        platform::CGRect frame() const override { return place; }
        void setFrame(const platform::CGRect& frame) override { place = frame; }
        int level() const override { return 0; }
        void setLevel(int) override {}
        bool isVisible() const override { return isOrderedIn; }
        void orderWindow(platform::NSWindowOrderingMode mode, std::int64_t) override {
            isOrderedIn = mode != platform::NSWindowOrderingMode::out;
        }
        void makeKey() override { owner.key = this; }
        bool isKey() const override { return owner.key == this; }
        void settingsChanged() override {}
        void setNeedsDisplay() override { owner.redraws += 1; }

    private:
        PlainWindows& owner;
        platform::CGRect place;
        bool isOrderedIn = false;
    };

    const platform::WindowHandle* key = nullptr;
};

// A panel that can have the keyboard, as the bars' can.
class KeyPanel final : public platform::NSPanel {
public:
    KeyPanel(platform::Platform& thePlatform, const platform::CGRect& frame)
        : NSPanel(thePlatform, frame, platform::NSWindowStyleMask::nonactivatingPanel,
                  platform::NSBackingStoreType::buffered, false) {}
    bool canBecomeKey() const override { return true; }
};

}  // namespace kit
