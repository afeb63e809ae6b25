#include "desk/display/GuiApplication.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <cstdlib>

#include "desk/display/SystemFonts.h"

namespace desk {

namespace {

void useOffscreenWithoutDisplay() {
    const auto isSet = [](const char* name) {
        const char* value = std::getenv(name);
        return value != nullptr && *value != '\0';
    };
    if (isSet("QT_QPA_PLATFORM") || isSet("DISPLAY") || isSet("WAYLAND_DISPLAY")) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

// The toolkit keeps references to both for as long as the application object lives.
struct Arguments {
    int count = 1;
    char name[5] = "desk";
    char* values[2] = {name, nullptr};
};

}  // namespace

GuiApplication::GuiApplication() {
    if (QCoreApplication::instance() != nullptr) return;
    useOffscreenWithoutDisplay();
    static Arguments arguments;
    application = std::make_unique<QGuiApplication>(arguments.count, arguments.values);
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

GuiApplication::~GuiApplication() = default;

std::optional<std::string> GuiApplication::fontProblem() const {
    if (QFontDatabase::hasFamily(QString::fromLatin1(systemFontFamily))) return std::nullopt;
    return std::string("The font \"") + systemFontFamily + "\" isn't installed (package fonts-inter).";
}

}  // namespace desk
