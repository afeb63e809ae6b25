// What the manager makes of the platform's answers, and of questions that overlap.
#include "tracking/FinderAutomationPermissionManager.h"

#include <gtest/gtest.h>

#include "tests/kit/MachineKit.h"

namespace brindle {
namespace {

using Status = FinderAutomationPermissionManager::Status;

class AutomationPermissionTest : public testing::Test {
protected:
    std::vector<std::string> checks() {
        std::vector<std::string> list;
        for (const auto& entry : mac.machine.journal.entries())
            if (entry.what.starts_with("automation ")) list.push_back(entry.what.substr(11));
        return list;
    }

    kit::OrvaneDesk mac;
    std::unique_ptr<FinderAutomationPermissionManager> manager =
        std::make_unique<FinderAutomationPermissionManager>(mac.launch().platform());
};

TEST_F(AutomationPermissionTest, EachCodeIsAStatusAssignedOnEveryCall) {
    int assigned = 0;
    const auto token = manager->status.subscribe([&](const Status&) { assigned += 1; },
                                                 platform::PublishedValue<Status>::Delivery::onChangeOnly);
    const std::pair<std::int32_t, Status> answers[] = {
        {0, Status::allowed},
        {0, Status::allowed},
        {-1744, Status::notChecked},
        {-1743, Status::denied},
        {-600, Status::failedWith("Open Finder, then try again.")},
        {-1745, Status::failedWith("Finder access could not be verified. Error -1745.")},
        {1, Status::failedWith("Finder access could not be verified. Error 1.")},
    };
    int expected = 0;
    for (const auto& [code, status] : answers) {
        mac.machine.faults.automationCode = code;
        manager->refresh();
        EXPECT_TRUE(manager->isRefreshing());
        mac.machine.settle();
        EXPECT_FALSE(manager->isRefreshing());
        EXPECT_EQ(manager->status.get(), status) << code;
        EXPECT_EQ(assigned, ++expected) << code;
    }
}

TEST_F(AutomationPermissionTest, OneCheckOfEachKindAtATimeAndTheLaterAnswerStays) {
    mac.machine.faults.automationLatency = platform::seconds(2);
    mac.machine.faults.automationCode = -1743;
    manager->refresh();
    manager->refresh();
    mac.run(1);
    mac.machine.faults.automationCode = 0;
    manager->requestAccess();
    manager->requestAccess();
    EXPECT_TRUE(manager->isRequesting.get());
    mac.run(1.5);
    EXPECT_EQ(manager->status.get(), Status::denied);
    EXPECT_FALSE(manager->isRefreshing());
    manager->refresh();
    EXPECT_FALSE(manager->isRefreshing()) << "not during a request";
    mac.run(1);
    EXPECT_EQ(manager->status.get(), Status::allowed);
    EXPECT_FALSE(manager->isRequesting.get());
    EXPECT_EQ(checks(), (std::vector<std::string>{"query", "request"}));

    manager->requestAccess();
    mac.run(1);
    manager.reset();
    mac.run(5);
    EXPECT_EQ(checks().size(), 3U);
}

}  // namespace
}  // namespace brindle
