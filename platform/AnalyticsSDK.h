// The analytics SDK: all that the application asks of it. It reads its configuration from the bundle by itself and answers nothing. Main thread only.
#pragma once

#include <string>

namespace platform {

class AnalyticsSDK {
public:
    virtual ~AnalyticsSDK() = default;
    // FIRApp: whether there is a default app, which configure() makes.
    virtual bool hasDefaultApp() = 0;
    virtual void configure() = 0;
    // FIRAnalytics. Events have no parameters.
    virtual void setAnalyticsCollectionEnabled(bool enabled) = 0;
    virtual void logEvent(const std::string& name) = 0;
};

}  // namespace platform
