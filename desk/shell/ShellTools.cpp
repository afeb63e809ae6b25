#include "desk/shell/ShellTools.h"

#include <algorithm>
#include <cstdlib>

#include "desk/disk/Disk.h"
#include "platform/FileURL.h"

namespace desk {

namespace {

bool has(const std::string& options, char letter) {
    return options.find(letter) != std::string::npos;
}

ShellResult failure(const std::string& tool, const std::string& what) {
    return {1, "", tool + ": " + what + "\n"};
}

ShellResult usage(const std::string& tool) {
    return {64, "", "usage: " + tool + " [options] operand ...\n"};
}

}  // namespace

const std::vector<ShellTools::Tool>& ShellTools::tools() {
    static const std::vector<Tool> table{
        {"/bin/cat", &ShellTools::cat},         {"/bin/cp", &ShellTools::copy},
        {"/bin/ls", &ShellTools::list},         {"/bin/mkdir", &ShellTools::makeFolder},
        {"/bin/mv", &ShellTools::move},         {"/bin/rm", &ShellTools::remove},
        {"/bin/sleep", &ShellTools::pause},     {"/usr/bin/ditto", &ShellTools::copy},
        {"/usr/bin/touch", &ShellTools::touch},
    };
    return table;
}

std::vector<std::string> ShellTools::paths() {
    std::vector<std::string> result;
    for (const Tool& tool : tools()) result.emplace_back(tool.path);
    return result;
}

ShellResult ShellTools::run(const std::vector<std::string>& command) {
    if (command.empty()) return {127, "", ""};
    Call call;
    call.name = platform::lastPathComponent(command.front());
    bool optionsEnded = false;
    for (auto word = command.begin() + 1; word != command.end(); ++word) {
        const bool isOption = !optionsEnded && word->size() > 1 && word->front() == '-';
        if (isOption && *word == "--")
            optionsEnded = true;
        else if (isOption)
            call.options += word->substr(1);
        else
            call.operands.push_back(*word);
    }
    for (const Tool& tool : tools())
        if (command.front() == tool.path) return (this->*tool.run)(call);
    return {127, "", command.front() + ": No such file or directory\n"};
}

// Into the destination if that is a folder, as cp and mv do.
std::string ShellTools::placedIn(const std::string& destination, const std::string& source) const {
    if (disk.kind(destination) != platform::FileKind::directory) return destination;
    return platform::appendingPathComponent(destination, platform::lastPathComponent(source));
}

ShellResult ShellTools::cat(const Call& call) {
    ShellResult result;
    for (const std::string& path : call.operands) {
        if (const auto contents = disk.read(path))
            result.output += *contents;
        else
            result = {1, result.output, result.errors + "cat: " + path + ": No such file or directory\n"};
    }
    return result;
}

ShellResult ShellTools::copy(const Call& call) {
    if (call.operands.size() != 2) return usage(call.name);
    const std::string& source = call.operands[0];
    const std::string& destination = call.operands[1];
    const auto kind = disk.kind(source);
    if (!kind) return failure(call.name, source + ": No such file or directory");
    const bool isFolder = kind == platform::FileKind::directory;
    if (call.name == "cp" && isFolder && !has(call.options, 'R') && !has(call.options, 'r') && !has(call.options, 'a'))
        return failure(call.name, source + " is a directory (not copied).");
    const std::string target = call.name == "cp" ? placedIn(destination, source) : destination;
    if (!isFolder && disk.kind(target) == platform::FileKind::file) disk.remove(target);
    if (disk.copy(source, target)) return {};
    return failure(call.name, target + ": Operation not permitted");
}

ShellResult ShellTools::list(const Call& call) {
    ShellResult result;
    const std::vector<std::string> paths = call.operands.empty() ? std::vector<std::string>{"/"} : call.operands;
    for (const std::string& path : paths) {
        const auto entries = disk.list(path);
        std::vector<std::string> names;
        for (const DiskEntry& entry : entries.value_or(std::vector<DiskEntry>()))
            if (!entry.isHidden || has(call.options, 'a') || has(call.options, 'A')) names.push_back(entry.name);
        if (!entries && disk.exists(path)) names.push_back(path);
        if (!entries && !disk.exists(path))
            result = {1, result.output, result.errors + "ls: " + path + ": No such file or directory\n"};
        std::sort(names.begin(), names.end());
        for (const std::string& name : names) result.output += name + "\n";
    }
    return result;
}

ShellResult ShellTools::makeFolder(const Call& call) {
    if (call.operands.empty()) return usage(call.name);
    for (const std::string& path : call.operands) {
        const bool mayExist = has(call.options, 'p');
        if (!mayExist && disk.exists(path)) return failure(call.name, path + ": File exists");
        if (!mayExist && !disk.kind(platform::deletingLastPathComponent(path)))
            return failure(call.name, path + ": No such file or directory");
        if (!disk.makeFolder(path)) return failure(call.name, path + ": Operation not permitted");
    }
    return {};
}

ShellResult ShellTools::move(const Call& call) {
    if (call.operands.size() != 2) return usage(call.name);
    const std::string target = placedIn(call.operands[1], call.operands[0]);
    if (!disk.exists(call.operands[0])) return failure(call.name, call.operands[0] + ": No such file or directory");
    if (disk.kind(target) == platform::FileKind::file) disk.remove(target);
    if (disk.move(call.operands[0], target)) return {};
    return failure(call.name, target + ": Operation not permitted");
}

ShellResult ShellTools::remove(const Call& call) {
    const bool isForced = has(call.options, 'f');
    if (call.operands.empty() && !isForced) return usage(call.name);
    for (const std::string& path : call.operands) {
        if (!disk.exists(path)) {
            if (isForced) continue;
            return failure(call.name, path + ": No such file or directory");
        }
        const bool isFolder = disk.kind(path) == platform::FileKind::directory;
        if (isFolder && !has(call.options, 'r') && !has(call.options, 'R'))
            return failure(call.name, path + ": is a directory");
        if (!disk.remove(path)) return failure(call.name, path + ": Operation not permitted");
    }
    return {};
}

ShellResult ShellTools::pause(const Call& call) {
    if (call.operands.size() != 1) return usage(call.name);
    sleep(platform::seconds(std::max(0.0, std::strtod(call.operands.front().c_str(), nullptr))));
    return {};
}

ShellResult ShellTools::touch(const Call& call) {
    for (const std::string& path : call.operands)
        if (!disk.exists(path) && !disk.makeFile(path, ""))
            return failure(call.name, path + ": Operation not permitted");
    return {};
}

}  // namespace desk
