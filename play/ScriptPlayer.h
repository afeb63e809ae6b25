// Plays one desk script on a session. It is the user of the machine: a program counter over the lines, with a step() that nested loops pull, so that a
// drag can be told in several lines. It stops at the first failure.
#pragma once

#include <deque>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

#include "desk/time/Scheduler.h"
#include "play/Arguments.h"
#include "play/LineSource.h"
#include "play/Session.h"

namespace play {

class ScriptPlayer final : public desk::Driver {
public:
    // Messages name the script as `theFile`.
    ScriptPlayer(Session& theSession, std::string theFile, std::string_view scriptText, std::ostream& theOutput,
                 std::ostream& theErrors);
    // Plays what the source gives.
    ScriptPlayer(Session& theSession, std::string theFile, std::unique_ptr<LineSource> theSource,
                 std::ostream& theOutput, std::ostream& theErrors);
    ~ScriptPlayer() override;

    // Plays to the end or to the first failure, and answers the exit code.
    int play();

    // One command, or one part of a command that takes several.
    bool step() override;
    // 0 until something has failed.
    int exitCode() const { return code; }

    // For commands. A part runs as a step of its own, after what is due has run.
    Session& session() { return stage; }
    desk::Machine& machine() { return stage.machine; }
    std::ostream& output() { return out; }
    void then(std::function<void()> part) { parts.push_back(std::move(part)); }
    // The window that a word names; ends the script when there is none.
    std::int64_t finderWindow(const Arguments& arguments, std::size_t index);
    // These end the script too.
    void requireBeforeLaunch() const;
    void requirePath(const std::string& path) const;

private:
    // False at the end.
    bool runNext();
    void run(const ScriptLine& line);
    void fail(int exitCode, int line, const std::string& message);

    Session& stage;
    std::string file;
    std::unique_ptr<LineSource> source;
    std::ostream& out;
    std::ostream& errors;
    int currentLine = 0;
    std::deque<std::function<void()>> parts;
    int code = 0;
};

}  // namespace play
