// The application's icon, name, version, website and copyright line, as its bundle tells them. It holds nothing itself: each value is read from the bundle when it is asked for, and one
// that is missing or of another type costs no more than itself.
#pragma once

#include <optional>
#include <string>

#include "platform/Platform.h"
#include "views/Views.h"

namespace brindle {

class AboutView {
public:
    explicit AboutView(platform::Platform& thePlatform) : platform(thePlatform) {}

    views::View body() const;

    // AppIcon.png of the bundle, or else the icon that the system has for the application.
    platform::NSImage appIcon() const;
    // "Version 1.2 (34)"; a hyphen stands for what the bundle doesn't tell.
    std::string versionText() const;
    std::optional<std::string> websiteURL() const;
    std::optional<std::string> copyrightText() const;

private:
    std::optional<std::string> infoText(const char* key) const;
    views::View website() const;

    platform::Platform& platform;
};

}  // namespace brindle
