#include "play/Session.h"

namespace play {

namespace {

class OrvaneProgram final : public desk::Program {
public:
    explicit OrvaneProgram(platform::Platform& platform) : orvane(platform) {}
    platform::NSApplicationDelegate& delegate() override { return orvane.appDelegate; }

    brindle::OrvaneApp orvane;
};

}  // namespace

Session::Session() {
    image.info = {{"CFBundleIdentifier", image.bundleIdentifier}, {"CFBundleName", image.name}};
    setDefault("hasCompletedOnboardingV1", true);
    machine.launchServices.startProgram = [this](const std::string& bundlePath) {
        const bool isCopy = machine.disk.exists(bundlePath + "/Contents/MacOS/Orvane");
        if (isCopy) launch(bundlePath);
        return isCopy;
    };
}

Session::~Session() = default;

void Session::launch(const std::string& bundlePath) {
    launched = true;
    machine.applications.launch(bundlePath, image,
                                [](platform::Platform& platform) { return std::make_unique<OrvaneProgram>(platform); });
}

const platform::Dictionary& Session::defaults() {
    const auto* living = application();
    return machine.defaults[image.domain(living == nullptr ? installedCopy : living->bundlePath())];
}

void Session::setDefault(const std::string& key, const std::optional<platform::Value>& value) {
    for (const std::string& domain : {image.bundleIdentifier, std::string(installedCopy)}) {
        machine.defaults[domain].erase(key);
        if (value) machine.defaults[domain].emplace(key, *value);
    }
}

desk::LaunchedApplication* Session::application() const {
    const auto& all = machine.applications.all();
    for (auto entry = all.rbegin(); entry != all.rend(); ++entry)
        if (!(*entry)->isDead() && (*entry)->program() != nullptr) return entry->get();
    return nullptr;
}

const brindle::OrvaneApp* Session::orvane() const {
    const auto* living = application();
    return living == nullptr ? nullptr : &static_cast<OrvaneProgram*>(application()->program())->orvane;
}

}  // namespace play
