#include "desk/shell/Shell.h"

#include <algorithm>

#include "desk/disk/Disk.h"
#include "desk/shell/BashProcess.h"
#include "desk/shell/ShellTools.h"
#include "platform/FileURL.h"

namespace desk {

namespace {

// Asks the desk to run a tool: descriptor 7 leads there.
constexpr const char* askForTool = R"(
__desk_tool() {
    local status output errors
    printf '%s\0' "$#" "$@" >&7
    IFS= read -r -d '' status <&7
    IFS= read -r -d '' output <&7
    IFS= read -r -d '' errors <&7
    printf '%s' "$output"
    printf '%s' "$errors" >&2
    return "${status:-1}"
}
)";

// A restricted shell starts no program by its path and writes no file. Builtins that reach past it are taken away, and can't be taken back.
constexpr const char* shutIn = R"(
enable -n kill history fc suspend bind
readonly -f __desk_tool
readonly PATH SHELL ENV BASH_ENV HISTFILE
ulimit -c 0
ulimit -f 0
ulimit -t 10
set -r
eval "$1"
)";

std::string preamble() {
    std::string text = askForTool;
    for (const std::string& path : ShellTools::paths()) {
        for (const std::string& name : {path, std::string(platform::lastPathComponent(path))})
            text.append("function ").append(name).append(" { __desk_tool ").append(path).append(" \"$@\"; }\n");
    }
    return text + shutIn;
}

// Copies a line and leaves out nothing but this: outside quotes, `>/dev/null` becomes a descriptor that leads there, since the restricted shell writes to no
// file, not even that one.
class NullRedirections {
public:
    explicit NullRedirections(const std::string& theLine) : line(theLine) {}

    std::string replaced() {
        while (position < line.size()) {
            const char character = line[position];
            if (character == '\\' && quote != '\'')
                copy(2);
            else if (quote == 0 && character == '>' && replace())
                continue;
            else {
                if (quote == character)
                    quote = 0;
                else if (quote == 0 && (character == '\'' || character == '"'))
                    quote = character;
                copy(1);
            }
        }
        return result;
    }

private:
    void copy(std::size_t count) {
        result += line.substr(position, count);
        position += count;
    }

    bool replace() {
        static const std::string target = "/dev/null";
        const bool appends = line.compare(position, 2, ">>") == 0;
        const std::size_t begin = line.find_first_not_of(" \t", position + (appends ? 2 : 1));
        if (begin == std::string::npos || line.compare(begin, target.size(), target) != 0) return false;
        const std::size_t end = begin + target.size();
        if (end < line.size() && std::string_view(" \t\n;&|)<>").find(line[end]) == std::string_view::npos)
            return false;
        const bool redirectsBoth = !result.empty() && result.back() == '&';
        if (redirectsBoth) result.pop_back();
        result += redirectsBoth ? ">&9 2>&9" : ">&9";
        position = end;
        return true;
    }

    const std::string& line;
    std::string result;
    std::size_t position = 0;
    char quote = 0;
};

}  // namespace

ShellResult Shell::run(const std::string& line) {
    const std::string command = line.substr(0, line.find('\0'));
    ShellTools tools(disk, sleep);
    BashProcess bash(preamble(), {NullRedirections(command).replaced()}, disk.hostPath("/tmp").value_or("/"));
    return bash.finish([&tools](const std::vector<std::string>& words) { return tools.run(words); });
}

}  // namespace desk
