// The part of a platform that views and the path bar use, for tests without a machine: time that the test moves, turns
// that it ends, user defaults in a map, the fixed text, plain windows, a clipboard. The other parts must not be called.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/Platform.h"
#include "tests/kit/FixedText.h"
#include "tests/kit/PlainText.h"
#include "tests/kit/PlainWindows.h"
#include "tests/kit/UnusedPart.h"

namespace kit {

class ViewPlatform final : public platform::Clock,
                           public platform::Dispatch,
                           public platform::RunLoop,
                           public platform::NSUserDefaults,
                           public platform::NSPasteboard,
                           public platform::UUIDSource {
public:
    ViewPlatform() = default;
    // With real fonts in place of the fixed text.
    explicit ViewPlatform(platform::TextSystem& real) : measuring(real) {}

    FixedText text;
    PlainBoundaries boundaries;
    PlainCollation collation;
    PlainWindows windows;
    std::optional<std::string> clipboard;
    platform::Appearance appearance;
    std::map<std::string, std::string> stored;
    int defaultsWrites = 0;

    // Runs what comes due, each in a turn of its own.
    void advance(platform::Duration duration) {
        const platform::Date target = time + duration;
        while (!delayed.empty() && delayed.begin()->first <= target) {
            time = delayed.begin()->first;
            const auto item = delayed.begin()->second;
            delayed.erase(delayed.begin());
            item->perform();
            endTurn();
        }
        time = target;
        endTurn();
    }
    void endTurn() {
        for (const auto& block : std::exchange(atTheEnd, {})) block();
    }

    platform::Date now() const override { return time; }
    void mainAsync(platform::Block block) override {
        mainAfter({}, std::make_shared<platform::DispatchWorkItem>(std::move(block)));
    }
    void mainAfter(platform::Duration delay, std::shared_ptr<platform::DispatchWorkItem> item) override {
        delayed.emplace(time + delay, std::move(item));
    }
    void mainTask(platform::Block block) override { mainAsync(std::move(block)); }
    std::unique_ptr<platform::SerialQueue> makeSerialQueue(std::string, platform::QualityOfService) override {
        return nullptr;
    }
    void detachedTask(platform::QualityOfService, platform::Block) override {}
    bool isMainThread() const override { return true; }
    std::unique_ptr<platform::Timer> addTimer(platform::Duration, bool, platform::Duration, platform::Block) override {
        return nullptr;
    }
    void atEndOfTurn(platform::Block block) override { atTheEnd.push_back(std::move(block)); }
    std::optional<std::string> stringForKey(const std::string& key) override {
        const auto found = stored.find(key);
        return found == stored.end() ? std::nullopt : std::optional(found->second);
    }
    bool boolForKey(const std::string&) override { return false; }
    std::optional<platform::Value> objectForKey(const std::string&) override { return std::nullopt; }
    void registerDefaults(const platform::Dictionary&) override {}
    void setObject(const std::string& key, platform::Value value) override {
        defaultsWrites += 1;
        stored[key] = *value.as<std::string>();
    }
    void clearContents() override { clipboard.reset(); }
    bool setString(const std::string& copied) override {
        clipboard = copied;
        return true;
    }
    std::optional<std::string> string() override { return clipboard; }
    platform::UUID makeUUID() override { return {{++lastUUID, 0}}; }

private:
    UnusedPart unused;
    platform::TextSystem& measuring = text;
    platform::Date time;
    std::uint64_t lastUUID = 0;
    std::multimap<platform::Date, std::shared_ptr<platform::DispatchWorkItem>> delayed;
    std::vector<platform::Block> atTheEnd;
    platform::SharedSlots slots;

public:
    platform::Platform platform{*this,  *this,  *this,   unused, unused,    appearance, unused,     unused,    unused,
                                unused, unused, windows, unused, measuring, unused,     boundaries, collation, unused,
                                *this,  unused, unused,  unused, unused,    *this,      *this,      unused,    slots};
};

}  // namespace kit
