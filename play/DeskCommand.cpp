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

constexpr std::string_view firstLaunchFlag = "--first-launch";

// What stands on the command line beside the mode.
struct Options {
    std::vector<std::string> values;
    bool isFirstLaunch = false;
};

constexpr const char* usage =
    "desk                 sit down at the desk; without a display, play the tour\n"
    "desk --screens N     the same with N displays beside each other\n"
    "desk --first-launch  sit down at a Mac on which the application has never run; also with --script FILE and "
    "--live\n"
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

int playScript(const Options& options) {
    if (options.values.size() != 1) return complain("--script takes one file");
    const auto text = readAll(options.values.front());
    if (!text) return complain("the script can't be read: " + options.values.front());
    Session session;
    if (options.isFirstLaunch) session.beFirstLaunch();
    ScriptPlayer player(session, options.values.front(), *text, std::cout, std::cerr);
    return player.play();
}

bool hasDisplay() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

int sitDown(const Options& options) {
    if (!hasDisplay()) return complain("there is no display to sit down at");
    LiveOptions live;
    live.isFirstLaunch = options.isFirstLaunch;
    if (options.values.size() != 1 || options.values.front().size() != 1 || options.values.front() < "1" ||
        options.values.front() > "4")
        return complain("--screens takes a number from 1 to 4");
    live.screens = options.values.front().front() - '0';
    return LiveDesk(live).run();
}

int playLive(const Options& options) {
    if (!options.values.empty()) return complain("--live takes its script from standard input");
    LiveOptions live;
    live.takesScript = true;
    live.isFirstLaunch = options.isFirstLaunch;
    return LiveDesk(live).run();
}

int measure(const Options& options) {
    if (options.values == std::vector<std::string>{"drags"}) return measureDrags(std::cout);
    if (options.values == std::vector<std::string>{"idle"}) return measureIdle(std::cout, 60);
    return complain("--measure takes drags or idle");
}

int playTour(const Options& options) {
    if (options.values.size() > 1) return complain("--tour takes one folder");
    return runTour(options.values.empty() ? std::string() : options.values.front());
}

int playContactSheet(const Options& options) {
    if (options.values.size() != 1) return complain("--contact-sheet takes one file");
    return drawContactSheet(options.values.front());
}

template <typename Number>
std::optional<Number> wholeNumber(const std::string& word) {
    Number number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size()) return std::nullopt;
    return number;
}

int soak(const Options& options) {
    const bool isVerbose = options.values.size() == 3 && options.values[2] == "--verbose";
    const bool isComplete = options.values.size() == 2 || isVerbose;
    const auto seed = isComplete ? wholeNumber<std::uint64_t>(options.values[0]) : std::nullopt;
    const auto steps = isComplete ? wholeNumber<std::int64_t>(options.values[1]) : std::nullopt;
    if (!seed || !steps || *steps < 1) return complain("--soak takes a seed and a number of steps");
    SoakOptions wanted;
    wanted.seed = *seed;
    wanted.steps = *steps;
    wanted.isVerbose = isVerbose;
    return runSoak(wanted, std::cout);
}

int showHelp(const Options& /*options*/) {
    std::cout << usage;
    return 0;
}

struct Mode {
    std::string_view name;
    int (*run)(const Options& options);
    bool showsWindow = false;
    bool canBeFirstLaunch = false;
};
constexpr Mode modes[] = {{"--screens", sitDown, true, true},
                          {"--live", playLive, true, true},
                          {"--measure", measure, true},
                          {"--script", playScript, false, true},
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
    Options options{arguments};
    options.isFirstLaunch = std::erase(options.values, firstLaunchFlag) > 0;
    const bool sitsDown = options.isFirstLaunch || hasDisplay();
    if (options.values.empty() && sitsDown) options.values = {"--screens", "1"};
    if (options.values.empty()) options.values = {"--tour"};
    const std::string name = options.values.front();
    options.values.erase(options.values.begin());
    const auto* mode =
        std::find_if(std::begin(modes), std::end(modes), [&](const Mode& each) { return name == each.name; });
    if (mode == std::end(modes)) return complain("unknown argument: " + name + "\n" + usage);
    if (options.isFirstLaunch && !mode->canBeFirstLaunch) return complain(name + " is no first launch");
    if (!mode->showsWindow) drawWithoutDisplay();
    const desk::GuiApplication gui;
    return mode->run(options);
}

}  // namespace play
