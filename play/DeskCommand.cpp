#include "play/DeskCommand.h"

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

namespace play {

namespace {

constexpr const char* usage = "desk                 play the tour: it says what it does and where its pictures lie\n"
                              "desk --tour [DIR]    the same, with the pictures in DIR\n"
                              "desk --script FILE   play a desk script; - reads it from standard input\n"
                              "desk --contact-sheet FILE   draw every state of the bar on one page, a PNG\n"
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

int playTour(const std::vector<std::string>& values) {
    if (values.size() > 1) return complain("--tour takes one folder");
    return runTour(values.empty() ? std::string() : values.front());
}

int playContactSheet(const std::vector<std::string>& values) {
    if (values.size() != 1) return complain("--contact-sheet takes one file");
    return drawContactSheet(values.front());
}

int showHelp(const std::vector<std::string>& /*values*/) {
    std::cout << usage;
    return 0;
}

struct Mode {
    std::string_view name;
    int (*run)(const std::vector<std::string>& values);
};
constexpr Mode modes[] = {
    {"--script", playScript}, {"--tour", playTour}, {"--contact-sheet", playContactSheet}, {"--help", showHelp}};

// A toolkit without a session of a desktop warns of what it doesn't need here.
void writeToolkitMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message) {
    if (!message.startsWith(QLatin1String("QStandardPaths: "))) std::cerr << message.toStdString() << '\n';
}

// Scripts and the tour are the same wherever they are played.
void drawWithoutDisplay() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(writeToolkitMessage);
}

}  // namespace

int runDesk(const std::vector<std::string>& arguments) {
    drawWithoutDisplay();
    const desk::GuiApplication gui;
    if (arguments.empty()) return playTour({});
    for (const Mode& mode : modes)
        if (arguments.front() == mode.name) return mode.run({arguments.begin() + 1, arguments.end()});
    return complain("unknown argument: " + arguments.front() + "\n" + usage);
}

}  // namespace play
