#include "play/soak/Expectations.h"

#include <QJsonArray>

#include "play/BarParts.h"
#include "play/Json.h"
#include "play/Session.h"
#include "play/soak/Lines.h"

namespace play {

std::string jsonOf(const platform::CGRect& frame) {
    return toText(QJsonArray{frame.origin.x, frame.origin.y, frame.size.width, frame.size.height});
}

std::string jsonOf(const std::string& text) {
    return toText(jsonText(std::string_view(text)));
}

std::string jsonOf(bool flag) {
    return flag ? "true" : "false";
}

std::string expectField(const char* list, std::size_t index, const char* field) {
    return std::string("expect /") + list + '/' + numberWord(static_cast<std::int64_t>(index)) + '/' + field + ' ';
}

std::size_t indexOfPanel(const Session& session, std::int64_t number) {
    std::size_t index = 0;
    for (const auto* window : session.machine.windows.all()) {
        if (window->number == number) break;
        if (barOfPanel(session, window->number)) ++index;
    }
    return index;
}

}  // namespace play
