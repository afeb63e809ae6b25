// Wraps one Accessibility observer on Finder's process and hands each notification over as a FinderWindowEvent. The observer owns it and
// decides what an event leads to. It follows the process that ran at start(): if Finder is relaunched, it is deaf until started again.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "tracking/AccessibilityReader.h"
#include "tracking/FinderWindowEvent.h"

namespace brindle {

class FinderWindowEventMonitor {
public:
    // `onEvent` is called on the main thread.
    FinderWindowEventMonitor(platform::Platform& thePlatform, std::function<void(const FinderWindowEvent&)> theOnEvent);
    FinderWindowEventMonitor(const FinderWindowEventMonitor&) = delete;
    FinderWindowEventMonitor& operator=(const FinderWindowEventMonitor&) = delete;
    ~FinderWindowEventMonitor() { stop(); }

    // Stays stopped, without trying again, if trust is missing or Finder isn't running.
    void start();
    void stop();

    // Finder's application element; empty while stopped.
    const std::optional<platform::AXUIElement>& applicationElement() const { return observation.applicationElement; }
    // Top-left space; empty unless position and size can both be read.
    std::optional<platform::CGRect> copyFrame(const platform::AXUIElement& from) const {
        return reader.copyFrame(from);
    }

private:
    // From start() to stop().
    struct Observation {
        std::unique_ptr<platform::AXObserver> observer;
        std::optional<platform::AXUIElement> applicationElement;
        std::vector<platform::AXUIElement> observedWindows;
    };

    void synchronizeWindowNotifications();
    void removeWindowNotifications(platform::AXObserver& observer);
    std::vector<platform::AXUIElement> copyWindows(const platform::AXUIElement& from) const;
    static void finderWindowEventCallback(platform::AXObserver& observer, const platform::AXUIElement& element,
                                          const std::string& notification, void* context);
    void deliver(const platform::AXUIElement& element, const std::string& notification);

    platform::Platform& platform;
    AccessibilityReader reader;
    const std::function<void(const FinderWindowEvent&)> onEvent;
    Observation observation;
};

}  // namespace brindle
