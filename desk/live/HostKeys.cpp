#include "desk/live/HostKeys.h"

#include <QKeyEvent>
#include <string>
#include <string_view>

namespace desk {

namespace {

namespace Flags = platform::NSEventModifierFlags;

struct NamedHostKey {
    int key;
    std::string_view name;  // as keyStroke() knows it
};
constexpr NamedHostKey hostKeys[] = {{Qt::Key_Return, "return"},
                                     {Qt::Key_Enter, "enter"},
                                     {Qt::Key_Tab, "tab"},
                                     {Qt::Key_Backtab, "tab"},
                                     {Qt::Key_Space, "space"},
                                     {Qt::Key_Escape, "escape"},
                                     {Qt::Key_Backspace, "delete"},
                                     {Qt::Key_Delete, "forward-delete"},
                                     {Qt::Key_Left, "left"},
                                     {Qt::Key_Right, "right"},
                                     {Qt::Key_Up, "up"},
                                     {Qt::Key_Down, "down"},
                                     {Qt::Key_Home, "home"},
                                     {Qt::Key_End, "end"},
                                     {Qt::Key_PageUp, "page-up"},
                                     {Qt::Key_PageDown, "page-down"},
                                     {Qt::Key_F1, "f1"},
                                     {Qt::Key_F2, "f2"},
                                     {Qt::Key_F3, "f3"},
                                     {Qt::Key_F4, "f4"},
                                     {Qt::Key_F5, "f5"},
                                     {Qt::Key_F6, "f6"},
                                     {Qt::Key_F7, "f7"},
                                     {Qt::Key_F8, "f8"},
                                     {Qt::Key_F9, "f9"},
                                     {Qt::Key_F10, "f10"},
                                     {Qt::Key_F11, "f11"}};

std::string prefixOf(std::uint64_t flags) {
    std::string prefix;
    if ((flags & Flags::control) != 0) prefix += "ctrl+";
    if ((flags & Flags::option) != 0) prefix += "alt+";
    if ((flags & Flags::shift) != 0) prefix += "shift+";
    if ((flags & Flags::command) != 0) prefix += "cmd+";
    return prefix;
}

bool isPrintable(const QString& text) {
    return !text.isEmpty() && text.front().isPrint();
}

}  // namespace

std::uint64_t modifierFlagsOf(Qt::KeyboardModifiers modifiers) {
    std::uint64_t flags = 0;
    if (modifiers.testFlag(Qt::ShiftModifier)) flags |= Flags::shift;
    if (modifiers.testFlag(Qt::AltModifier)) flags |= Flags::option;
    if (modifiers.testFlag(Qt::ControlModifier) || modifiers.testFlag(Qt::MetaModifier)) flags |= Flags::command;
    return flags;
}

std::optional<KeyStroke> keyStrokeOf(const QKeyEvent& event) {
    const std::uint64_t flags = modifierFlagsOf(event.modifiers());
    for (const NamedHostKey& each : hostKeys)
        if (each.key == event.key()) return keyStroke(prefixOf(flags) + std::string(each.name));
    const bool isCommand = (flags & Flags::command) != 0;
    if (!isCommand && isPrintable(event.text())) {
        KeyStroke stroke = keyStrokeTyping(event.text().toStdString());
        stroke.modifiers |= flags;
        return stroke;
    }
    // The host makes control characters of Command's combinations: only the key itself is of use.
    constexpr int firstSign = 0x21;
    constexpr int lastSign = 0x7E;
    if (event.key() < firstSign || event.key() > lastSign) return std::nullopt;
    const char sign = static_cast<char>(event.key());
    const char base = sign >= 'A' && sign <= 'Z' ? static_cast<char>(sign - 'A' + 'a') : sign;
    return keyStroke(prefixOf(flags) + base);
}

}  // namespace desk
