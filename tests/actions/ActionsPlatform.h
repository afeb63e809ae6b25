// What the actions reach of the outside world, as plain lists: what stands on disk, the scripts sent, the pasteboard,
// the files opened.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/kit/FakePlatform.h"

namespace kit {

class ActionsPlatform final : public platform::NSFileManager,
                              public platform::AppleEvents,
                              public platform::NSPasteboard,
                              public platform::Workspace {
public:
    // What the test sets.
    std::map<std::string, platform::FileKind> disk;
    std::optional<platform::Dictionary> scriptError;
    bool refusesScripts = false;

    // What the test reads.
    std::vector<std::string> scripts;  // that were run
    std::vector<std::string> pasteboard;
    std::vector<std::pair<std::string, std::vector<std::string>>> opened;  // application, files

    std::optional<platform::FileKind> kindOfFileAtPath(const std::string& path) override {
        const auto found = disk.find(path);
        return found == disk.end() ? std::nullopt : std::optional(found->second);
    }
    std::unique_ptr<platform::NSFileHandle> fileHandleForWritingAtPath(const std::string&) override { return nullptr; }
    std::optional<std::vector<platform::DirectoryEntry>> contentsOfDirectory(const std::string&, bool) override {
        return std::nullopt;
    }
    bool writeFile(const std::string&, std::string_view) override { return false; }
    std::string currentDirectoryPath() override { return "/lost here"; }
    std::string homeDirectory() override { return "/Users/ana"; }

    std::unique_ptr<platform::NSAppleScript> makeAppleScript(const std::string& source) override {
        return refusesScripts ? nullptr : std::make_unique<Script>(*this, source);
    }

    platform::OSStatus AEDeterminePermissionToAutomateTarget(const platform::NSAppleEventDescriptor&, std::uint32_t,
                                                             std::uint32_t, bool) override {
        return platform::noErr;
    }

    void clearContents() override { pasteboard.clear(); }
    bool setString(const std::string& text) override {
        pasteboard.push_back(text);
        return false;
    }
    std::optional<std::string> string() override { return std::nullopt; }

    std::vector<platform::NSRunningApplication> runningApplications() override { return {}; }
    std::optional<platform::NSRunningApplication> frontmostApplication() override { return std::nullopt; }
    std::int32_t currentProcessIdentifier() const override { return 1; }
    bool activate(std::int32_t, unsigned) override { return false; }
    platform::Token addObserver(platform::WorkspaceNotification, std::function<void()>) override { return {}; }
    void openApplicationAtURL(const std::string&) override {}
    bool openURL(const std::string&) override { return false; }
    void openURLs(const std::vector<std::string>& filePaths, const std::string& applicationPath) override {
        opened.emplace_back(applicationPath, filePaths);
    }

private:
    struct Script final : platform::NSAppleScript {
        Script(ActionsPlatform& theOwner, std::string theSource) : owner(theOwner), source(std::move(theSource)) {}
        platform::NSAppleScriptResult executeAndReturnError() override {
            owner.scripts.push_back(source);
            return {std::nullopt, owner.scriptError};
        }
        ActionsPlatform& owner;
        std::string source;
    };

    FakePlatform rest;

public:
    platform::Platform platform{.clock = rest,
                                .dispatch = rest,
                                .runLoop = rest,
                                .workspace = *this,
                                .screens = rest,
                                .appearance = rest.platform.appearance,
                                .windowServer = rest,
                                .accessibility = rest,
                                .appleEvents = *this,
                                .events = rest,
                                .application = rest.platform.application,
                                .windows = rest.platform.windows,
                                .menus = rest.platform.menus,
                                .text = rest.platform.text,
                                .images = rest.platform.images,
                                .textBoundaries = rest.platform.textBoundaries,
                                .collation = rest.platform.collation,
                                .files = *this,
                                .defaults = rest.platform.defaults,
                                .bundle = rest.platform.bundle,
                                .calendar = rest.platform.calendar,
                                .loginItem = rest.platform.loginItem,
                                .analytics = rest.platform.analytics,
                                .pasteboard = *this,
                                .uuids = rest,
                                .updaters = rest.platform.updaters,
                                .slots = rest.platform.slots};
};

}  // namespace kit
