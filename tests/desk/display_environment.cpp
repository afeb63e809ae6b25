#include <gtest/gtest.h>

#include <memory>

#include "desk/display/GuiApplication.h"

namespace {

class GuiEnvironment final : public testing::Environment {
public:
    void SetUp() override {
        application = std::make_unique<desk::GuiApplication>();
        EXPECT_EQ(application->fontProblem(), std::nullopt);
    }
    void TearDown() override { application.reset(); }

private:
    std::unique_ptr<desk::GuiApplication> application;
};

[[maybe_unused]] const testing::Environment* const environment = testing::AddGlobalTestEnvironment(new GuiEnvironment);

}  // namespace
