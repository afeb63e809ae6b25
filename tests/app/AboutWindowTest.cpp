// The about window on a whole desk: whom it gives the focus back to, and what it says of a bundle that tells it little.
#include <gtest/gtest.h>

#include "app/AboutView.h"
#include "tests/kit/MachineKit.h"

namespace brindle {
namespace {

class AboutWindowTest : public testing::Test {
protected:
    kit::OrvaneDesk mac;

    std::string frontmost() const {
        const desk::Process* process = mac.machine.processes.frontmost();
        return process == nullptr ? "nobody" : process->bundleIdentifier.value_or("");
    }
    void showAbout() {
        mac.orvane().appDelegate.showAbout();
        mac.machine.settle();
    }
    platform::NSWindow* about() {
        for (const auto& [number, window] : mac.application().windows())
            if (window->settings().title == "About Orvane" && window->isVisible()) return window;
        return nullptr;
    }
    void pressCloseButton() {
        const platform::CGRect frame = about()->frame();
        mac.click({frame.minX() + 20, frame.maxY() - 14});
    }
};

TEST_F(AboutWindowTest, GivesTheFocusBackToWhoeverWasInFront) {
    mac.machine.launchServices.startOtherProcess("org.example.Editor");
    mac.launch();
    const std::string own = "com.velmora.Brindle";
    for (const std::string before : {"com.apple.finder", "org.example.Editor"}) {
        mac.machine.activation.activate(before);
        showAbout();
        ASSERT_NE(about(), nullptr);
        EXPECT_EQ(about()->frame(), platform::CGRectMake(530, 305, 380, 418));
        EXPECT_TRUE(about()->isKeyWindow());
        EXPECT_EQ(frontmost(), own);
        // Shown again while it is in front: centred anew, and it still knows where to go back to.
        about()->setFrameOrigin({100, 100});
        showAbout();
        EXPECT_EQ(about()->frame(), platform::CGRectMake(530, 305, 380, 418));
        mac.key("escape");
        ASSERT_NE(about(), nullptr);
        pressCloseButton();
        EXPECT_EQ(about(), nullptr);
        EXPECT_EQ(frontmost(), before);

        showAbout();
        mac.key("cmd+w");
        EXPECT_EQ(about(), nullptr);
        EXPECT_EQ(frontmost(), before);
    }
    // Who was in front may have gone.
    showAbout();
    mac.machine.processes.remove(mac.machine.processes.findByBundleIdentifier("org.example.Editor")->processIdentifier);
    pressCloseButton();
    EXPECT_EQ(about(), nullptr);
}

struct Info {
    const char* name;
    const char* entries;
    const char* version;
    std::optional<std::string> website;
    std::optional<std::string> copyright;
};

TEST_F(AboutWindowTest, SaysWhatTheBundleTellsAndNoMore) {
    const Info infos[] = {
        {"nothing", "", "Version - (-)", {}, {}},
        {"all",
         "<key>CFBundleShortVersionString</key><string>1.2</string><key>CFBundleVersion</key><string>34</string>"
         "<key>OrvaneWebsiteURL</key><string>https://example.org/a?b#c</string>"
         "<key>NSHumanReadableCopyright</key><string>Copyright</string>",
         "Version 1.2 (34)", "https://example.org/a?b#c", "Copyright"},
        {"other types",
         "<key>CFBundleShortVersionString</key><real>1.2</real><key>CFBundleVersion</key><integer>34</integer>"
         "<key>OrvaneWebsiteURL</key><array><string>https://example.org</string></array>"
         "<key>NSHumanReadableCopyright</key><true/>",
         "Version - (-)",
         {},
         {}},
        {"one version", "<key>CFBundleVersion</key><string>34</string>", "Version - (34)", {}, {}},
        {"empty address", "<key>OrvaneWebsiteURL</key><string></string>", "Version - (-)", {}, {}},
        {"no address", "<key>OrvaneWebsiteURL</key><string>not an address</string>", "Version - (-)", {}, {}},
    };
    for (const Info& info : infos) {
        const std::string bundle = std::string("/Applications/") + info.name + ".app";
        mac.machine.disk.makeFile(bundle + "/Contents/Info.plist",
                                  std::string("<plist><dict>") + info.entries + "</dict></plist>");
        auto& copy = mac.launch(bundle);
        const AboutView view(copy.platform());
        EXPECT_EQ(view.versionText(), info.version) << info.name;
        EXPECT_EQ(view.websiteURL(), info.website) << info.name;
        EXPECT_EQ(view.copyrightText(), info.copyright) << info.name;
        EXPECT_EQ(view.appIcon().name(), "application icon") << info.name;
    }
}

}  // namespace
}  // namespace brindle
