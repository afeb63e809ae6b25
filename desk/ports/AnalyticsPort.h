// Stands in for the analytics SDK of one process: it writes down what it is handed, in the journal and in the machine's list of events, and sends nothing anywhere.
#pragma once

#include <string>
#include <vector>

#include "desk/processes/Journal.h"
#include "desk/processes/LaunchedApplication.h"
#include "platform/AnalyticsSDK.h"

namespace desk {

class AnalyticsPort final : public platform::AnalyticsSDK {
public:
    AnalyticsPort(std::vector<std::string>& theEvents, Journal& theJournal, const LaunchedApplication& theApplication)
        : events(theEvents), journal(theJournal), application(theApplication) {}

    bool hasDefaultApp() override { return isConfigured; }
    void configure() override {
        isConfigured = true;
        note("configure");
    }
    void setAnalyticsCollectionEnabled(bool enabled) override { note(enabled ? "collection on" : "collection off"); }
    void logEvent(const std::string& name) override {
        if (!application.isDead()) events.push_back(name);
        note("event " + name);
    }

private:
    void note(const std::string& what) {
        if (!application.isDead()) journal.note(application.processIdentifier(), "analytics " + what);
    }

    std::vector<std::string>& events;
    Journal& journal;
    const LaunchedApplication& application;
    bool isConfigured = false;
};

}  // namespace desk
