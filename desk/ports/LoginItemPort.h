// The login item as the application asks for it; its requests stand in the journal.
#pragma once

#include "desk/processes/Journal.h"
#include "desk/processes/LaunchedApplication.h"
#include "desk/processes/LoginItem.h"
#include "platform/LoginItems.h"

namespace desk {

class LoginItemPort final : public platform::SMAppService {
public:
    LoginItemPort(LoginItem& theItem, Journal& theJournal, const LaunchedApplication& theApplication)
        : item(theItem), journal(theJournal), application(theApplication) {}

    platform::SMAppServiceStatus status() override { return item.status; }
    std::optional<std::string> registerAndReturnError() override {
        return ask("login register", &LoginItem::registerIt);
    }
    std::optional<std::string> unregisterAndReturnError() override {
        return ask("login unregister", &LoginItem::unregisterIt);
    }
    void openSystemSettingsLoginItems() override {
        if (!application.isDead()) item.settingsWanted();
    }

private:
    std::optional<std::string> ask(const std::string& what, std::optional<std::string> (LoginItem::*request)()) {
        if (application.isDead()) return std::nullopt;
        std::optional<std::string> error = (item.*request)();
        journal.note(application.processIdentifier(), error ? what + " failed" : what);
        return error;
    }

    LoginItem& item;
    Journal& journal;
    const LaunchedApplication& application;
};

}  // namespace desk
