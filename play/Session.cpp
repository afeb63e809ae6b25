#include "play/Session.h"

namespace play {

namespace {

constexpr const char* completedGuide = "hasCompletedOnboardingV1";

class OrvaneProgram final : public desk::Program {
public:
    explicit OrvaneProgram(platform::Platform& platform) : orvane(platform) {}
    platform::NSApplicationDelegate& delegate() override { return orvane.appDelegate; }

    brindle::OrvaneApp orvane;
};

}  // namespace

Session::Session() {
    setDefault(completedGuide, true);
    machine.launchServices.startProgram = [this](const std::string& bundlePath) {
        const bool isOurs = isCopy(bundlePath);
        if (isOurs) launch(bundlePath);
        return isOurs;
    };
}

Session::~Session() = default;

void Session::beFirstLaunch() {
    machine.permissions.setAccessibility(false);
    machine.permissions.setAutomation(desk::AutomationPermission::ask);
    setDefault(completedGuide, std::nullopt);
}

bool Session::isCopy(const std::string& path) const {
    return machine.disk.exists(path + "/Contents/MacOS/Orvane");
}

void Session::launch(const std::string& bundlePath) {
    launched = true;
    machine.applications.launch(desk::bundleAt(machine.disk, bundlePath, info),
                                [](platform::Platform& platform) { return std::make_unique<OrvaneProgram>(platform); });
}

const platform::Dictionary& Session::defaults() {
    const auto* living = application();
    const auto bundle = living == nullptr ? desk::bundleAt(machine.disk, installedCopy, info) : living->bundle();
    return machine.defaults[bundle.defaultsDomain()];
}

void Session::setDefault(const std::string& key, const std::optional<platform::Value>& value) {
    for (const std::string domain : {applicationIdentifier, installedCopy}) {
        machine.defaults[domain].erase(key);
        if (value) machine.defaults[domain].emplace(key, *value);
    }
}

desk::LaunchedApplication* Session::application() const {
    const auto& all = machine.applications.all();
    for (auto entry = all.rbegin(); entry != all.rend(); ++entry)
        if (orvane(**entry) != nullptr) return entry->get();
    return nullptr;
}

const brindle::OrvaneApp* Session::orvane() const {
    const auto* living = application();
    return living == nullptr ? nullptr : orvane(*living);
}

const desk::BarItem* Session::statusItem() const {
    const auto* living = application();
    if (living == nullptr) return nullptr;
    for (const auto& item : machine.menuBar.items())
        if (item->owner == living->processIdentifier()) return item.get();
    return nullptr;
}

const brindle::OrvaneApp* Session::orvane(const desk::LaunchedApplication& copy) {
    const auto* program = copy.isDead() ? nullptr : dynamic_cast<const OrvaneProgram*>(copy.program());
    return program == nullptr ? nullptr : &program->orvane;
}

}  // namespace play
