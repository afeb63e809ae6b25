// One bash of the host that runs a text: what it prints, and a line to it over which it asks for tools (descriptor 7 on its side). It knows neither the disk
// nor the tools; who starts it answers.
#pragma once

#include <sys/types.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "desk/shell/Shell.h"

namespace desk {

class BashProcess {
public:
    // `arguments` follow the text as $1, $2, ...; `folder` is where it starts.
    BashProcess(const std::string& text, const std::vector<std::string>& arguments, const std::string& folder);
    ~BashProcess();
    BashProcess(const BashProcess&) = delete;
    BashProcess& operator=(const BashProcess&) = delete;

    // To its end, or for 10 seconds of the host without anything from it.
    using Answer = std::function<ShellResult(const std::vector<std::string>& command)>;
    ShellResult finish(const Answer& answer);

private:
    struct Stream {
        int descriptor = -1;
        std::string read;
    };

    bool readInto(Stream& stream);
    void serve(const Answer& answer);
    std::optional<std::vector<std::string>> takeRequest();
    int waitForExit();

    pid_t process = -1;
    Stream output;
    Stream errors;
    Stream requests;
};

}  // namespace desk
