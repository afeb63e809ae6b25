// A platform of a few lines for tests of exact numbers: windows are plain records, time moves when the test says so, and a serial queue's
// blocks run when the test serves it. For whole behaviours there is the desk's machine; this one has no window management, no disk, no Finder.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Platform.h"
#include "tests/kit/FixedText.h"
#include "tests/kit/PlainText.h"
#include "tests/kit/UnusedPart.h"

namespace kit {

inline constexpr std::int32_t finderPid = 501;

// One Finder window as the window server and Accessibility see it. Frames are top-left space.
struct FakeWindow {
    std::int64_t number = 0;
    platform::CGRect frame;
    std::string title;
    std::string path;
    std::string name;  // Finder's own, in its answers
    bool isMain = false;
    bool isOnScreen = true;
    // Taken over what follows from the fields above; an empty one reads as missing.
    std::map<std::string, std::optional<platform::AXAttributeValue>, std::less<>> attributes;
    platform::AXUIElement element() const { return {finderPid, static_cast<std::uint64_t>(number)}; }
};

class FakePlatform final : public platform::Clock,
                           public platform::Dispatch,
                           public platform::RunLoop,
                           public platform::Workspace,
                           public platform::Screens,
                           public platform::WindowServer,
                           public platform::Accessibility,
                           public platform::AppleEvents,
                           public platform::Events,
                           public platform::NSFileManager,
                           public platform::UUIDSource {
public:
    // What the test sets.
    std::vector<platform::NSScreen> displays{{{{0, 0}, {1440, 900}}, {{0, 0}, {1440, 875}}, 60}};
    std::vector<FakeWindow> finderWindows;          // front to back, in both lists
    std::vector<std::uint64_t> accessibilityOrder;  // of Accessibility's list, where it isn't the same
    std::optional<std::string> frontmost = "com.apple.finder";
    std::vector<std::optional<std::string>> running{std::nullopt, "com.apple.finder"};
    bool isTrusted = true;
    bool servesQueues = true;              // otherwise blocks wait for serveQueue()
    std::optional<std::string> selection;  // of the front window
    std::function<platform::NSAppleScriptResult(const std::string& source)> answerScript;
    std::optional<platform::Value> windowList;  // in place of the one made from finderWindows
    std::optional<platform::AXUIElement> focused;
    platform::CGPoint mouse;
    platform::Date time{std::chrono::seconds(1'700'000'000)};
    std::map<std::string, std::string> fileContents;
    bool fileOpensFail = false;

    // What the test reads.
    std::vector<std::string> writes;  // of Accessibility attributes, "number attribute a b"
    int scriptsMade = 0;
    struct Subscription {
        std::uint64_t identity;
        std::string notification;
        void* context;
        friend bool operator==(const Subscription&, const Subscription&) = default;
    };
    std::vector<Subscription> subscriptions;
    std::size_t timerCount() const { return timers.size(); }
    std::size_t monitorCount() const { return global.size() + local.size(); }
    std::size_t workspaceObserverCount() const {
        return activations.subscriberCount() + spaceChanges.subscriberCount();
    }
    std::vector<platform::Duration> timerPeriods() const {
        std::vector<platform::Duration> periods;
        for (const FakeTimer* timer : timers) periods.push_back(timer->period);
        return periods;
    }

    FakeWindow& window(std::int64_t number) {
        return *std::find_if(finderWindows.begin(), finderWindows.end(),
                             [&](const auto& w) { return w.number == number; });
    }

    // Runs the blocks of one serial queue that have been posted by now.
    void serveQueue(const std::string& label) {
        for (auto& [name, block] : std::exchange(queued, {})) {
            if (name == label)
                onQueue(block);
            else
                queued.emplace_back(name, block);
        }
        advance({});
    }

    void advance(platform::Duration duration) {
        const platform::Date target = time + duration;
        while (true) {
            while (servesQueues && !queued.empty()) {
                auto [name, block] = queued.front();
                queued.erase(queued.begin());
                onQueue(block);
            }
            platform::Date due = target + platform::Duration(1);
            std::function<void()> next;
            for (auto item = items.begin(); item != items.end(); ++item) {
                if (item->due >= due) continue;
                due = item->due;
                next = [this, item] {
                    auto block = std::move(item->block);
                    items.erase(item);
                    block();
                };
            }
            for (FakeTimer* timer : timers) {
                if (timer->next >= due) continue;
                due = timer->next;
                next = [timer] {
                    timer->next = timer->next + timer->period;
                    auto block = timer->block;
                    block();
                };
            }
            if (!next) break;
            time = std::max(time, due);
            next();
        }
        time = target;
    }

    void sendGlobal(const platform::NSEvent& event) {
        for (const auto& monitor : global)
            if ((monitor.mask & maskOf(event.type)) != 0) monitor.handler(event);
    }
    void sendLocal(const platform::NSEvent& event) {
        for (const auto& monitor : local)
            if ((monitor.mask & maskOf(event.type)) != 0) monitor.answer(event);
    }
    void sendMouse(platform::NSEventType type, platform::CGPoint where) {
        mouse = where;
        platform::NSEvent event;
        event.type = type;
        sendGlobal(event);
    }
    void notify(std::uint64_t identity, const std::string& notification) {
        for (const Subscription& each : std::vector(subscriptions))
            if (each.identity == identity && each.notification == notification && axObserver != nullptr)
                axObserver->callback(*axObserver, {finderPid, identity}, notification, each.context);
    }
    void notify(platform::WorkspaceNotification notification) {
        (notification == platform::WorkspaceNotification::didActivateApplication ? activations : spaceChanges)();
    }

    // The interfaces.
    platform::Date now() const override { return time; }
    void mainAsync(platform::Block block) override { items.push_back({time, std::move(block)}); }
    void mainTask(platform::Block block) override { items.push_back({time, std::move(block)}); }
    void mainAfter(platform::Duration delay, std::shared_ptr<platform::DispatchWorkItem> item) override {
        items.push_back({time + delay, [item] { item->perform(); }});
    }
    std::unique_ptr<platform::SerialQueue> makeSerialQueue(std::string label, platform::QualityOfService) override {
        return std::make_unique<FakeQueue>(*this, std::move(label));
    }
    void detachedTask(platform::QualityOfService, platform::Block block) override {
        queued.emplace_back("detached", std::move(block));
    }
    bool isMainThread() const override { return isOnMain; }
    std::unique_ptr<platform::Timer> addTimer(platform::Duration period, bool, platform::Duration,
                                              platform::Block block) override {
        return std::make_unique<FakeTimer>(*this, period, std::move(block));
    }
    void atEndOfTurn(platform::Block block) override { mainAsync(std::move(block)); }

    std::vector<platform::NSRunningApplication> runningApplications() override {
        std::vector<platform::NSRunningApplication> answer;
        for (const auto& identifier : running)
            answer.push_back({identifier, identifier == "com.apple.finder" ? finderPid : 7, this});
        return answer;
    }
    std::optional<platform::NSRunningApplication> frontmostApplication() override {
        if (!frontmost) return std::nullopt;
        return platform::NSRunningApplication{frontmost, 7, this};
    }
    std::int32_t currentProcessIdentifier() const override { return 9; }
    bool activate(std::int32_t, unsigned) override { return false; }
    platform::Token addObserver(platform::WorkspaceNotification notification, std::function<void()> block) override {
        auto& signal =
            notification == platform::WorkspaceNotification::didActivateApplication ? activations : spaceChanges;
        return signal.subscribe(std::move(block));
    }
    void openURLs(const std::vector<std::string>&, const std::string&) override {}
    void openApplicationAtURL(const std::string&) override {}
    bool openURL(const std::string&) override { return false; }

    const std::vector<platform::NSScreen>& screens() override { return displays; }
    std::optional<platform::NSScreen> mainScreen() override {
        return displays.empty() ? std::nullopt : std::optional(displays.back());
    }

    platform::Value CGWindowListCopyWindowInfo(std::uint32_t option, std::int64_t) override {
        if (windowList) return *windowList;
        platform::Array list;
        for (const FakeWindow& each : finderWindows)
            if (each.isOnScreen && option == 17) list.emplace_back(serverEntry(each));
        return list;
    }
    static platform::Dictionary serverEntry(const FakeWindow& window) {
        return {{platform::kCGWindowOwnerPID, std::int64_t{finderPid}},
                {platform::kCGWindowLayer, 0},
                {platform::kCGWindowNumber, window.number},
                {platform::kCGWindowBounds, platform::CGRectCreateDictionaryRepresentation(window.frame)},
                {platform::kCGWindowName, window.title}};
    }

    bool AXIsProcessTrusted() override { return isTrusted; }
    bool AXIsProcessTrustedWithOptions(const platform::Dictionary&) override { return isTrusted; }
    platform::AXUIElement AXUIElementCreateApplication(std::int32_t pid) override { return {pid, 0}; }
    std::optional<platform::AXAttributeValue> AXUIElementCopyAttributeValue(const platform::AXUIElement& element,
                                                                            std::string_view attribute) override {
        if (!isTrusted) return std::nullopt;
        if (element.identity == 0) return applicationAttribute(attribute);
        for (const FakeWindow& each : finderWindows)
            if (each.element() == element) return windowAttribute(each, attribute);
        return std::nullopt;
    }
    platform::AXError AXUIElementSetAttributeValue(const platform::AXUIElement& element, std::string_view attribute,
                                                   const platform::AXAttributeValue& value) override {
        const auto& wrapped = std::get<platform::AXValue>(value);
        const auto point = wrapped.pointValue();
        const auto size = wrapped.sizeValue();
        const auto whole = [](double number) { return std::to_string(static_cast<std::int64_t>(number)); };
        writes.push_back(std::to_string(element.identity) + " " + std::string(attribute) + " " +
                         whole(point ? point->x : size->width) + " " + whole(point ? point->y : size->height));
        return platform::AXError::success;
    }
    platform::AXError AXUIElementPerformAction(const platform::AXUIElement&, std::string_view) override {
        return platform::AXError::failure;
    }
    std::unique_ptr<platform::AXObserver> AXObserverCreate(std::int32_t,
                                                           platform::AXObserverCallback callback) override {
        return std::make_unique<FakeAXObserver>(*this, callback);
    }

    platform::OSStatus AEDeterminePermissionToAutomateTarget(const platform::NSAppleEventDescriptor&, std::uint32_t,
                                                             std::uint32_t, bool) override {
        return platform::noErr;
    }
    std::unique_ptr<platform::NSAppleScript> makeAppleScript(const std::string& source) override {
        scriptsMade += 1;
        return std::make_unique<FakeScript>(*this, source);
    }

    platform::Token addGlobalMonitorForEventsMatchingMask(
        platform::NSEventMask mask, std::function<void(const platform::NSEvent&)> handler) override {
        return registered(global, {mask, std::move(handler), nullptr});
    }
    platform::Token addLocalMonitorForEventsMatchingMask(
        platform::NSEventMask mask,
        std::function<std::optional<platform::NSEvent>(const platform::NSEvent&)> handler) override {
        return registered(local, {mask, nullptr, std::move(handler)});
    }
    platform::CGPoint mouseLocation() override { return mouse; }

    std::optional<platform::FileKind> kindOfFileAtPath(const std::string& path) override {
        return fileContents.contains(path) ? std::optional(platform::FileKind::file) : std::nullopt;
    }
    std::unique_ptr<platform::NSFileHandle> fileHandleForWritingAtPath(const std::string& path) override {
        if (fileOpensFail) return nullptr;
        return std::make_unique<FakeFile>(fileContents[path]);
    }
    std::optional<std::vector<platform::DirectoryEntry>> contentsOfDirectory(const std::string&, bool) override {
        return std::nullopt;
    }
    bool writeFile(const std::string& path, std::string_view contents) override {
        fileContents[path] = contents;
        return true;
    }
    std::string currentDirectoryPath() override { return "/"; }
    std::string homeDirectory() override { return "/Users/me"; }

    platform::UUID makeUUID() override { return {{1, ++lastUUID}}; }

private:
    struct Item {
        platform::Date due;
        platform::Block block;
    };
    struct Monitor {
        platform::NSEventMask mask;
        std::function<void(const platform::NSEvent&)> handler;
        std::function<std::optional<platform::NSEvent>(const platform::NSEvent&)> answer;
    };
    struct FakeQueue final : platform::SerialQueue {
        FakeQueue(FakePlatform& thePlatform, std::string theLabel) : fake(thePlatform), label(std::move(theLabel)) {}
        void async(platform::Block block) override { fake.queued.emplace_back(label, std::move(block)); }
        FakePlatform& fake;
        std::string label;
    };
    struct FakeTimer final : platform::Timer {
        FakeTimer(FakePlatform& thePlatform, platform::Duration thePeriod, platform::Block theBlock)
            : fake(thePlatform), period(thePeriod), next(thePlatform.time + thePeriod), block(std::move(theBlock)) {
            fake.timers.push_back(this);
        }
        ~FakeTimer() override { invalidate(); }
        void invalidate() override { std::erase(fake.timers, this); }
        FakePlatform& fake;
        platform::Duration period;
        platform::Date next;
        platform::Block block;
    };
    struct FakeAXObserver final : platform::AXObserver {
        FakeAXObserver(FakePlatform& thePlatform, platform::AXObserverCallback theCallback)
            : fake(thePlatform), callback(theCallback) {}
        ~FakeAXObserver() override { removeSourceFromMainRunLoop(); }
        platform::AXError AXObserverAddNotification(const platform::AXUIElement& element, std::string_view notification,
                                                    void* context) override {
            fake.subscriptions.push_back({element.identity, std::string(notification), context});
            return platform::AXError::success;
        }
        platform::AXError AXObserverRemoveNotification(const platform::AXUIElement& element,
                                                       std::string_view notification) override {
            std::erase_if(fake.subscriptions, [&](const Subscription& each) {
                return each.identity == element.identity && each.notification == notification;
            });
            return platform::AXError::success;
        }
        void addSourceToMainRunLoop() override { fake.axObserver = this; }
        void removeSourceFromMainRunLoop() override {
            if (fake.axObserver == this) fake.axObserver = nullptr;
        }
        FakePlatform& fake;
        platform::AXObserverCallback callback;
    };
    struct FakeScript final : platform::NSAppleScript {
        FakeScript(FakePlatform& thePlatform, std::string theSource)
            : fake(thePlatform), source(std::move(theSource)) {}
        platform::NSAppleScriptResult executeAndReturnError() override {
            if (fake.answerScript) return fake.answerScript(source);
            return {fake.finderAnswer(source.find("every Finder window") != std::string::npos), std::nullopt};
        }
        FakePlatform& fake;
        std::string source;
    };
    struct FakeFile final : platform::NSFileHandle {
        explicit FakeFile(std::string& theContents) : contents(theContents) {}
        bool seekToEnd() override { return atEnd = true; }
        bool write(std::string_view data) override {
            contents = atEnd ? contents + std::string(data) : std::string(data);
            return true;
        }
        bool close() override { return true; }
        std::string& contents;
        bool atEnd = false;
    };
    struct NoDefaults final : platform::NSUserDefaults {
        std::optional<std::string> stringForKey(const std::string&) override { return std::nullopt; }
        bool boolForKey(const std::string&) override { return false; }
        std::optional<platform::Value> objectForKey(const std::string&) override { return std::nullopt; }
        void registerDefaults(const platform::Dictionary&) override {}
        void setObject(const std::string&, platform::Value) override {}
    };

    void onQueue(const platform::Block& block) {
        isOnMain = false;
        block();
        isOnMain = true;
    }

    std::optional<platform::AXAttributeValue> applicationAttribute(std::string_view attribute) const {
        if (attribute == "AXFocusedWindow" && focused) return platform::AXAttributeValue(*focused);
        if (attribute != "AXWindows") return std::nullopt;
        std::vector<platform::AXUIElement> elements;
        for (const std::uint64_t identity : accessibilityOrder) elements.push_back({finderPid, identity});
        if (elements.empty())
            for (const FakeWindow& each : finderWindows) elements.push_back(each.element());
        return platform::AXAttributeValue(elements);
    }
    static std::optional<platform::AXAttributeValue> windowAttribute(const FakeWindow& window,
                                                                     std::string_view attribute) {
        const auto given = window.attributes.find(attribute);
        if (given != window.attributes.end()) return given->second;
        if (attribute == "AXRole") return "AXWindow";
        if (attribute == "AXSubrole") return "AXStandardWindow";
        if (attribute == "AXPosition") return platform::AXValue(window.frame.origin);
        if (attribute == "AXSize") return platform::AXValue(window.frame.size);
        if (attribute == "AXTitle") return window.title;
        if (attribute == "AXMain") return window.isMain;
        return std::nullopt;
    }
    std::string finderAnswer(bool everyWindow) const {
        std::string answer;
        for (const FakeWindow& each : finderWindows) {
            const bool isFirst = &each == &finderWindows.front();
            const std::string selected = isFirst ? selection.value_or("") : "";
            if (!everyWindow) return std::to_string(each.number) + "\x1F" + selected;
            answer += std::to_string(each.number) + "\x1F" + each.path + "\x1F" + each.name + "\x1F" + selected +
                      "\x1F" + (isFirst ? "1" : "0") + "\x1E";
        }
        return answer;
    }
    static platform::Token registered(std::list<Monitor>& monitors, Monitor monitor) {
        monitors.push_back(std::move(monitor));
        return platform::Token([&monitors, place = std::prev(monitors.end())] { monitors.erase(place); });
    }

    std::list<Item> items;
    std::vector<std::pair<std::string, platform::Block>> queued;
    std::vector<FakeTimer*> timers;
    std::list<Monitor> global;
    std::list<Monitor> local;
    platform::Signal<> activations;
    platform::Signal<> spaceChanges;
    FakeAXObserver* axObserver = nullptr;
    bool isOnMain = true;
    std::uint64_t lastUUID = 0;
    platform::Appearance noAppearance;
    FixedText noText;
    PlainBoundaries boundaries;
    PlainCollation collation;
    NoDefaults noDefaults;
    UnusedPart unused;
    platform::SharedSlots noSlots;

public:
    platform::Platform platform{.clock = *this,
                                .dispatch = *this,
                                .runLoop = *this,
                                .workspace = *this,
                                .screens = *this,
                                .appearance = noAppearance,
                                .windowServer = *this,
                                .accessibility = *this,
                                .appleEvents = *this,
                                .events = *this,
                                .application = unused,
                                .windows = unused,
                                .menus = unused,
                                .text = noText,
                                .images = unused,
                                .textBoundaries = boundaries,
                                .collation = collation,
                                .files = *this,
                                .defaults = noDefaults,
                                .bundle = unused,
                                .calendar = unused,
                                .loginItem = unused,
                                .analytics = unused,
                                .pasteboard = unused,
                                .uuids = *this,
                                .updaters = unused,
                                .slots = noSlots};
};

}  // namespace kit
