// An observer on a fake platform with some Finder windows, one line to a test: "Reports" in front, then "Archive", and so on, with folders of
// the same names. It counts what is published. It starts nothing by itself.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "tests/kit/FakePlatform.h"
#include "tracking/FinderObserver.h"

namespace brindle {

using namespace std::chrono_literals;

struct ObservedFinder {
    kit::FakePlatform fake;
    std::shared_ptr<AccessibilityManager> trust = std::make_shared<AccessibilityManager>(fake.platform);
    std::shared_ptr<FinderWindowTracker> tracker = std::make_shared<FinderWindowTracker>(fake.platform);
    std::unique_ptr<FinderObserver> observer = std::make_unique<FinderObserver>(
        fake.platform, trust, tracker, std::make_shared<FinderPathProvider>(fake.platform));
    int windowPublications = -1;  // subscribing delivers once
    int activePublications = -1;
    int tokens = -1;
    std::vector<platform::CGRect> liveFrames;
    std::vector<platform::Token> subscriptions;

    explicit ObservedFinder(int count = 1) {
        for (int number = 1; number <= count; ++number) add(number, nameOf(number));
        subscriptions.push_back(observer->windows.subscribe([this](const auto&) { windowPublications += 1; }));
        subscriptions.push_back(observer->activeWindow.subscribe([this](const auto&) { activePublications += 1; }));
        subscriptions.push_back(observer->editRequestToken.subscribe([this](const auto&) { tokens += 1; }));
        observer->onLiveGeometryChange = [this](const std::string&, const platform::CGRect& frame, bool) {
            liveFrames.push_back(frame);
        };
    }

    static std::string nameOf(int number) {
        return number == 1 ? "Reports" : number == 2 ? "Archive" : "Folder " + std::to_string(number);
    }
    // Of 800 by 500 points, each 10 further right; the first at AppKit (100, 200).
    kit::FakeWindow& add(std::int64_t number, const std::string& name) {
        kit::FakeWindow window;
        window.number = number;
        window.frame = {{90.0 + 10.0 * static_cast<double>(number), 200}, {800, 500}};
        window.title = window.name = name;
        window.path = "/Data/" + name + "/";
        window.isMain = fake.finderWindows.empty();
        fake.finderWindows.push_back(std::move(window));
        return fake.finderWindows.back();
    }
    // A pass and what it started, with Finder answering at once.
    void settle() {
        observer->refresh(true);
        fake.advance({});
    }
    void start() {
        observer->start();
        fake.advance({});
    }
    std::int64_t passes() const { return observer->counts().passes; }
    std::int64_t fetches() const { return observer->counts().pathFetches; }
    // "path" of each published window, with "*selection" behind it.
    std::vector<std::string> shown() const {
        std::vector<std::string> texts;
        for (const auto& state : *observer->windows)
            texts.push_back(state.path + (state.selectedFilePath ? "*" + *state.selectedFilePath : ""));
        return texts;
    }
    std::string log() { return fake.fileContents["/tmp/Orvane-debug.log"]; }
};

using Texts = std::vector<std::string>;

}  // namespace brindle
