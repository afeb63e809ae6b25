#include "actions/FinderNavigationService.h"

#include <initializer_list>
#include <string_view>
#include <utility>

#include "platform/FileURL.h"

namespace brindle {

namespace {

std::string replacingEach(char wanted, std::string_view replacement, std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (const char character : text) {
        if (character == wanted) {
            result += replacement;
        } else {
            result += character;
        }
    }
    return result;
}

// Backslashes go first: those that the quotes get must stay single.
std::string posixFile(const std::string& path) {
    return "POSIX file \"" + replacingEach('"', "\\\"", replacingEach('\\', "\\\\", path)) + "\"";
}

// One line of the script each, without the indentation that the block gives it.
std::string tellFinder(std::initializer_list<std::string> lines) {
    std::string script = "tell application \"Finder\"\n";
    for (const std::string& line : lines) script += "    " + line + "\n";
    return script + "end tell";
}

std::string scriptShowingFolder(const std::string& path) {
    const std::string folder = posixFile(path);
    return tellFinder({
        "activate",
        "if (count of Finder windows) is 0 then",
        "    make new Finder window to " + folder,
        "else",
        "    set target of front Finder window to " + folder,
        "end if",
    });
}

// The delay gives Finder the moment that it takes to show the folder; a selection made before is lost.
std::string scriptSelectingFile(const std::string& path) {
    const std::string parent = posixFile(platform::deletingLastPathComponent(path));
    return tellFinder({
        "activate",
        "if (count of Finder windows) is 0 then",
        "    make new Finder window to " + parent,
        "end if",
        "set target of front Finder window to " + parent,
        "delay 0.05",
        "select " + posixFile(path),
    });
}

std::string scriptOpeningWindow(const std::string& path) {
    return tellFinder({"activate", "make new Finder window to " + posixFile(path)});
}

}  // namespace

void FinderNavigationService::navigateFrontWindow(const std::string& to) {
    const ResolvedTarget target = resolvedTargetPath(to);
    const bool isFolder = target.kind == platform::FileKind::directory;
    run(isFolder ? scriptShowingFolder(target.path) : scriptSelectingFile(target.path));
}

void FinderNavigationService::openNewWindow(const std::string& at) {
    run(scriptOpeningWindow(normalizedDirectoryPath(at)));
}

std::string FinderNavigationService::normalizedDirectoryPath(const std::string& from) {
    ResolvedTarget target = resolvedTargetPath(from);
    if (target.kind != platform::FileKind::directory) throw FinderNavigationError::notDirectory();
    return std::move(target.path);
}

FinderNavigationService::ResolvedTarget FinderNavigationService::resolvedTargetPath(const std::string& from) {
    const std::string expanded = platform::stringByExpandingTildeInPath(from, platform.files.homeDirectory());
    std::string path = platform::standardizedPath(expanded, platform.files.currentDirectoryPath());
    const auto kind = platform.files.kindOfFileAtPath(path);
    if (!kind) throw FinderNavigationError::invalidPath();
    return {std::move(path), *kind};
}

void FinderNavigationService::run(const std::string& source) {
    const auto script = platform.appleEvents.makeAppleScript(source);
    if (!script) return;
    const platform::NSAppleScriptResult result = script->executeAndReturnError();
    if (!result.error) return;
    const platform::Value* entry = platform::find(*result.error, platform::NSAppleScriptErrorMessage);
    const std::string* message = entry == nullptr ? nullptr : entry->as<std::string>();
    throw FinderNavigationError::appleScriptFailed(message == nullptr ? "Finder could not be controlled." : *message);
}

}  // namespace brindle
