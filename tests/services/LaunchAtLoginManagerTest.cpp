// The login item against the preference, on the desk: each status with each stored value, and what a refusal leaves.
#include <gtest/gtest.h>

#include "services/LaunchAtLoginManager.h"
#include "tests/kit/MachineKit.h"

namespace brindle {
namespace {

using Status = platform::SMAppServiceStatus;
using Outcome = desk::LoginItem::Outcome;

constexpr const char* approve = "Allow Orvane in System Settings > Login Items.";
constexpr const char* move = "Move Orvane to the Applications folder.";

struct LaunchAtLoginTest : testing::Test {
    kit::OrvaneDesk mac;
    desk::LoginItem& item = mac.machine.loginItem;
    platform::Platform& platform = mac.launch().platform();
    LaunchAtLoginManager manager{platform};

    std::string requestsSince(std::size_t start) {
        std::string requests;
        const auto& entries = mac.machine.journal.entries();
        for (std::size_t i = start; i < entries.size(); ++i) requests += entries[i].what + ";";
        return requests;
    }
};

TEST_F(LaunchAtLoginTest, AsksForNoMoreThanThePreferenceWantsAndSaysWhatIsLeftToDo) {
    struct Case {
        Status before;
        platform::Value stored;
        bool isEnabled;
        const char* requests;
        Status after;
        std::optional<std::string> message;
    };
    const Case cases[] = {
        {Status::notRegistered, {}, true, "login register;", Status::enabled, {}},
        {Status::notRegistered, true, true, "login register;", Status::enabled, {}},
        {Status::enabled, true, true, "", Status::enabled, {}},
        {Status::requiresApproval, true, true, "", Status::requiresApproval, approve},
        {Status::notFound, true, true, "login register;", Status::enabled, {}},
        {Status::notRegistered, false, false, "", Status::notRegistered, {}},
        {Status::enabled, false, false, "login unregister;", Status::notRegistered, {}},
        {Status::requiresApproval, false, false, "login unregister;", Status::notRegistered, {}},
        {Status::notFound, false, false, "login unregister;", Status::notRegistered, {}},
        // What isn't a boolean counts as the platform counts it.
        {Status::enabled, "YES", true, "", Status::enabled, {}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(&each - cases);
        auto& defaults = mac.machine.defaults["com.velmora.Brindle"];
        defaults.erase(manager.preferenceKey);
        if (!each.stored.isNull()) defaults[manager.preferenceKey] = each.stored;
        item.status = each.before;
        const std::size_t start = mac.machine.journal.entries().size();
        manager.configureDefault();
        EXPECT_EQ(manager.isEnabled.get(), each.isEnabled);
        EXPECT_EQ(requestsSince(start), each.requests);
        EXPECT_EQ(item.status, each.after);
        EXPECT_EQ(manager.statusMessage.get(), each.message);
        EXPECT_EQ(defaults[manager.preferenceKey], each.stored.isNull() ? platform::Value(true) : each.stored);
    }
}

TEST_F(LaunchAtLoginTest, KeepsTheUsersWishWhenTheSystemRefusesOrDoesNothing) {
    item.unregistering = {Outcome::fails, "It is managed."};
    manager.setEnabled(false);
    EXPECT_FALSE(manager.isEnabled.get());
    EXPECT_EQ(mac.machine.defaults["com.velmora.Brindle"][manager.preferenceKey], platform::Value(false));
    EXPECT_EQ(manager.statusMessage.get(), "It is managed.");
    // Still registered: nothing is to be done, and the message goes.
    manager.setEnabled(true);
    EXPECT_EQ(manager.statusMessage.get(), std::nullopt);

    item.status = Status::notFound;
    item.registering = {Outcome::keeps, {}};
    manager.setEnabled(true);
    EXPECT_EQ(manager.statusMessage.get(), move);
    // The status is read anew after the request.
    item.registering = {};
    manager.setEnabled(true);
    EXPECT_EQ(manager.statusMessage.get(), std::nullopt);
}

}  // namespace
}  // namespace brindle
