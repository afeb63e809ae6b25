// The process's connection to the toolkit that fonts and painting need: made once, before any text is measured. It shows nothing by itself and
// works without a display.
#pragma once

#include <memory>
#include <optional>
#include <string>

class QGuiApplication;

namespace desk {

class GuiApplication {
public:
    // Does nothing when the process has one already.
    GuiApplication();
    ~GuiApplication();
    GuiApplication(const GuiApplication&) = delete;
    GuiApplication& operator=(const GuiApplication&) = delete;

    // One line that says what is missing when the system font isn't installed; text is drawn in the default font then.
    std::optional<std::string> fontProblem() const;

private:
    std::unique_ptr<QGuiApplication> application;
};

}  // namespace desk
