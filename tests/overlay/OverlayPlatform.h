// The fake platform with panels on it: windows keep a frame, a level and whether they are on screen, a tracking loop
// takes the steps that the test lists, and whatever is asked of the outside is noted in one list of sentences. Nothing
// here decides an order of windows.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/kit/FakePlatform.h"

namespace kit {

class OverlayPlatform final : public platform::Accessibility,
                              public platform::Workspace,
                              public platform::WindowSystem,
                              public platform::NSApplication,
                              public platform::NSBundle {
public:
    FakePlatform fake;

    // What the test sets. A step of a tracking loop may do anything before it answers its event; without steps the loop
    // ends.
    using Step = std::function<std::optional<platform::NSEvent>()>;
    std::deque<Step> steps;
    std::optional<std::string> ownBundleIdentifier = "com.velmora.Brindle";
    std::vector<platform::NSRunningApplication> others{{"com.apple.finder", finderPid, this}};

    // "panel 1: above 101", "101 AXMain true", "activate 501 with 2": what was done since the last call.
    std::vector<std::string> takeCalls() { return std::exchange(calls, {}); }
    // Windows that exist now.
    int windowCount = 0;

    void addFinderWindow(std::int64_t number, const std::string& path, const platform::CGRect& topLeftFrame) {
        FakeWindow window;
        window.number = number;
        window.frame = topLeftFrame;
        window.title = window.name = path;
        window.path = path;
        fake.finderWindows.push_back(window);
    }

    std::unique_ptr<platform::WindowHandle> makeWindow(platform::NSWindow&, const platform::CGRect& frame) override {
        return std::make_unique<Handle>(*this, ++lastWindow, frame);
    }

    std::optional<platform::NSEvent> nextEventMatchingMask(platform::NSEventMask mask, platform::Date,
                                                           platform::NSRunLoopMode, bool) override {
        note("wait for mask " + std::to_string(mask));
        if (steps.empty()) return std::nullopt;
        const Step step = std::move(steps.front());
        steps.pop_front();
        return step();
    }
    platform::NSImage applicationIconImage() override { return {}; }
    void setActivationPolicy(platform::NSApplicationActivationPolicy policy) override {
        note("policy " + std::to_string(static_cast<int>(policy)));
    }
    void activate(bool) override { note("activate application"); }
    void terminate() override { note("terminate"); }

    bool AXIsProcessTrusted() override { return fake.isTrusted; }
    bool AXIsProcessTrustedWithOptions(const platform::Dictionary&) override { return fake.isTrusted; }
    platform::AXUIElement AXUIElementCreateApplication(std::int32_t pid) override { return {pid, 0}; }
    std::optional<platform::AXAttributeValue> AXUIElementCopyAttributeValue(const platform::AXUIElement& element,
                                                                            std::string_view attribute) override {
        return fake.AXUIElementCopyAttributeValue(element, attribute);
    }
    platform::AXError AXUIElementSetAttributeValue(const platform::AXUIElement& element, std::string_view attribute,
                                                   const platform::AXAttributeValue& value) override {
        note(std::to_string(element.identity) + " " + std::string(attribute) + " " + text(value));
        return platform::AXError::failure;
    }
    platform::AXError AXUIElementPerformAction(const platform::AXUIElement& element, std::string_view action) override {
        note(std::to_string(element.identity) + " " + std::string(action));
        return platform::AXError::failure;
    }
    std::unique_ptr<platform::AXObserver> AXObserverCreate(std::int32_t pid,
                                                           platform::AXObserverCallback callback) override {
        return fake.AXObserverCreate(pid, callback);
    }

    std::vector<platform::NSRunningApplication> runningApplications() override { return others; }
    std::optional<platform::NSRunningApplication> frontmostApplication() override {
        return fake.frontmostApplication();
    }
    std::int32_t currentProcessIdentifier() const override { return 9; }
    bool activate(std::int32_t pid, unsigned options) override {
        note("activate " + std::to_string(pid) + " with " + std::to_string(options));
        return true;
    }
    platform::Token addObserver(platform::WorkspaceNotification notification, std::function<void()> block) override {
        return fake.addObserver(notification, std::move(block));
    }
    void openURLs(const std::vector<std::string>&, const std::string&) override {}
    void openApplicationAtURL(const std::string&) override {}
    bool openURL(const std::string&) override { return false; }

    std::optional<std::string> bundleIdentifier() override { return ownBundleIdentifier; }
    std::string bundleURL() override { return "/Applications/Orvane.app"; }
    std::optional<platform::Value> objectForInfoDictionaryKey(const std::string&) override { return {}; }
    std::optional<std::string> URLForResource(const std::string&, const std::string&) override { return {}; }

    void note(std::string call) { calls.push_back(std::move(call)); }

private:
    static std::string whole(double number) { return std::to_string(static_cast<std::int64_t>(number)); }
    static std::string text(const platform::CGPoint& point) { return whole(point.x) + " " + whole(point.y); }
    static std::string text(const platform::AXAttributeValue& value) {
        if (const bool* flag = std::get_if<bool>(&value)) return *flag ? "true" : "false";
        if (const auto* element = std::get_if<platform::AXUIElement>(&value)) return std::to_string(element->identity);
        const auto* wrapped = std::get_if<platform::AXValue>(&value);
        return wrapped != nullptr && wrapped->pointValue() ? text(*wrapped->pointValue()) : "?";
    }

    class Handle final : public platform::WindowHandle {
    public:
        Handle(OverlayPlatform& theOwner, std::int64_t theNumber, const platform::CGRect& theRect)
            : owner(theOwner), number(theNumber), rect(theRect) {
            owner.windowCount += 1;
        }
        ~Handle() override { owner.windowCount -= 1; }
        std::int64_t windowNumber() const override { return number; }
        platform::CGRect frame() const override { return rect; }
        void setFrame(const platform::CGRect& frame) override {
            note((frame.size == rect.size ? "moved to " : "sized " + whole(frame.width()) + " at ") +
                 text(frame.origin));
            rect = frame;
        }
        int level() const override { return height; }
        void setLevel(int level) override {
            if (level != height) note("level " + std::to_string(level));
            height = level;
        }
        bool isVisible() const override { return visible; }
        void orderWindow(platform::NSWindowOrderingMode mode, std::int64_t relativeTo) override {
            visible = mode != platform::NSWindowOrderingMode::out;
            if (!visible) key = false;
            note(!visible ? "out" : relativeTo == 0 ? "front" : "above " + std::to_string(relativeTo));
        }
        void makeKey() override {
            note("key");
            key = true;
        }
        bool isKey() const override { return key; }
        void settingsChanged() override {}
        void setNeedsDisplay() override {}

    private:
        void note(const std::string& what) { owner.note("panel " + std::to_string(number) + ": " + what); }

        OverlayPlatform& owner;
        std::int64_t number;
        platform::CGRect rect;
        int height = 0;
        bool visible = false;
        bool key = false;
    };

    std::vector<std::string> calls;
    std::int64_t lastWindow = 0;

public:
    platform::Platform platform{.clock = fake,
                                .dispatch = fake,
                                .runLoop = fake,
                                .workspace = *this,
                                .screens = fake,
                                .appearance = fake.platform.appearance,
                                .windowServer = fake,
                                .accessibility = *this,
                                .appleEvents = fake,
                                .events = fake,
                                .application = *this,
                                .windows = *this,
                                .menus = fake.platform.menus,
                                .text = fake.platform.text,
                                .images = fake.platform.images,
                                .textBoundaries = fake.platform.textBoundaries,
                                .collation = fake.platform.collation,
                                .files = fake,
                                .defaults = fake.platform.defaults,
                                .bundle = *this,
                                .calendar = fake.platform.calendar,
                                .loginItem = fake.platform.loginItem,
                                .analytics = fake.platform.analytics,
                                .pasteboard = fake.platform.pasteboard,
                                .uuids = fake,
                                .updaters = fake.platform.updaters,
                                .slots = fake.platform.slots};
};

}  // namespace kit
