#include "tests/kit/MachineKit.h"

#include "desk/display/GuiApplication.h"
#include "desk/display/QtTextSystem.h"

namespace kit {

namespace {

class OrvaneProgram final : public desk::Program {
public:
    explicit OrvaneProgram(platform::Platform& platform) : orvane(brindle::OrvaneApp::main(platform)) {}
    platform::NSApplicationDelegate& delegate() override { return orvane->appDelegate; }

    std::unique_ptr<brindle::OrvaneApp> orvane;
};

// One for the process, which fonts need.
std::unique_ptr<platform::TextSystem> systemText() {
    static const desk::GuiApplication toolkit;
    return std::make_unique<desk::QtTextSystem>();
}

}  // namespace

OrvaneDesk::OrvaneDesk() : Desk(systemText()) {
    machine.defaults["com.velmora.Brindle"].emplace("hasCompletedOnboardingV1", true);
}

desk::LaunchedApplication& OrvaneDesk::launch(const std::string& bundlePath) {
    desk::LaunchedApplication& launched =
        machine.applications.launch(desk::bundleAt(machine.disk, bundlePath), [](platform::Platform& platform) {
            return std::make_unique<OrvaneProgram>(platform);
        });
    machine.settle();
    return launched;
}

desk::LaunchedApplication& OrvaneDesk::application() {
    return *machine.applications.all().back();
}

brindle::OrvaneApp& OrvaneDesk::orvane() {
    return *static_cast<OrvaneProgram*>(application().program())->orvane;
}

}  // namespace kit
