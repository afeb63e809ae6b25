#include "play/DeskCommand.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string_view>

#include <QString>
#include <QtGlobal>

#include "desk/display/GuiApplication.h"
#include "play/ContactSheet.h"
#include "play/ScriptPlayer.h"
#include "play/Session.h"
#include "play/Tour.h"
#include "play/live/LiveDesk.h"
#include "play/live/Measuring.h"
#include "play/soak/Soak.h"

namespace play {

namespace {

constexpr const char* usage =
    "desk                 sit down at the desk; without a display, play the tour\n"
    "desk --screens N     the same with N displays beside each other\n"
    "desk --live          play a script from standard input on the desk in real time\n"
    "desk --measure drags|idle   how closely bars follow in real time; what an idle desktop costs\n"
    "desk --tour [DIR]    play the tour: it says what it does; its pictures lie in DIR\n"
    "desk --script FILE   play a desk script; - reads it from standard input\n"
    "desk --contact-sheet FILE   draw every state of the bar on one page, a PNG\n"
    "desk --soak SEED STEPS [--verbose]   shake the desk at random and check it, a seed for each 5000 steps; a "
    "failure\n"
    "                     tells its seed and a script\n"
    "desk --help          this page\n";

int complain(const std::string& message) {
    std::cerr << "desk: " << message << '\n';
    return 2;
}

std::optional<std::string> readAll(const std::string& file) {
    if (file == "-") return std::string(std::istreambuf_iterator<char>(std::cin), {});
    if (std::filesystem::is_directory(file)) return std::nullopt;
    std::ifstream stream(file, std::ios::binary);
    if (!stream) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

int playScript(const std::vector<std::string>& values) {
    if (values.size() != 1) return complain("--script takes one file");
    const auto text = readAll(values.front());
    if (!text) return complain("the script can't be read: " + values.front());
    Session session;
    ScriptPlayer player(session, values.front(), *text, std::cout, std::cerr);
    return player.play();
}

bool hasDisplay() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

int sitDown(const std::vector<std::string>& values) {
    if (!hasDisplay()) return complain("there is no display to sit down at");
    LiveOptions options;
    if (values.size() != 1 || values.front().size() != 1 || values.front() < "1" || values.front() > "4")
        return complain("--screens takes a number from 1 to 4");
    options.screens = values.front().front() - '0';
    return LiveDesk(options).run();
}

int playLive(const std::vector<std::string>& values) {
    if (!values.empty()) return complain("--live takes its script from standard input");
    LiveOptions options;
    options.takesScript = true;
    return LiveDesk(options).run();
}

int measure(const std::vector<std::string>& values) {
    if (values == std::vector<std::string>{"drags"}) return measureDrags(std::cout);
    if (values == std::vector<std::string>{"idle"}) return measureIdle(std::cout, 60);
    return complain("--measure takes drags or idle");
}

int playTour(const std::vector<std::string>& values) {
    if (values.size() > 1) return complain("--tour takes one folder");
    return runTour(values.empty() ? std::string() : values.front());
}

int playContactSheet(const std::vector<std::string>& values) {
    if (values.size() != 1) return complain("--contact-sheet takes one file");
    return drawContactSheet(values.front());
}

template <typename Number>
std::optional<Number> wholeNumber(const std::string& word) {
    Number number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size()) return std::nullopt;
    return number;
}

int soak(const std::vector<std::string>& values) {
    const bool isVerbose = values.size() == 3 && values[2] == "--verbose";
    const bool isComplete = values.size() == 2 || isVerbose;
    const auto seed = isComplete ? wholeNumber<std::uint64_t>(values[0]) : std::nullopt;
    const auto steps = isComplete ? wholeNumber<std::int64_t>(values[1]) : std::nullopt;
    if (!seed || !steps || *steps < 1) return complain("--soak takes a seed and a number of steps");
    SoakOptions options;
    options.seed = *seed;
    options.steps = *steps;
    options.isVerbose = isVerbose;
    return runSoak(options, std::cout);
}

int showHelp(const std::vector<std::string>& /*values*/) {
    std::cout << usage;
    return 0;
}

struct Mode {
    std::string_view name;
    int (*run)(const std::vector<std::string>& values);
    bool showsWindow = false;
};
constexpr Mode modes[] = {{"--screens", sitDown, true},
                          {"--live", playLive, true},
                          {"--measure", measure, true},
                          {"--script", playScript},
                          {"--tour", playTour},
                          {"--contact-sheet", playContactSheet},
                          {"--soak", soak},
                          {"--help", showHelp}};

// A toolkit without a session of a desktop warns of what it doesn't need here.
void writeToolkitMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message) {
    if (!message.startsWith(QLatin1String("QStandardPaths: "))) std::cerr << message.toStdString() << '\n';
}

// What shows no window is the same wherever it is played.
void drawWithoutDisplay() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

}  // namespace

int runDesk(const std::vector<std::string>& arguments) {
    qInstallMessageHandler(writeToolkitMessage);
    const std::vector<std::string> words = !arguments.empty() ? arguments
                                           : hasDisplay()     ? std::vector<std::string>{"--screens", "1"}
                                                              : std::vector<std::string>{"--tour"};
    const auto* mode =
        std::find_if(std::begin(modes), std::end(modes), [&](const Mode& each) { return words.front() == each.name; });
    if (mode == std::end(modes)) return complain("unknown argument: " + words.front() + "\n" + usage);
    if (!mode->showsWindow) drawWithoutDisplay();
    const desk::GuiApplication gui;
    return mode->run({words.begin() + 1, words.end()});
}

}  // namespace play
