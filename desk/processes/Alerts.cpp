#include "desk/processes/Alerts.h"

#include <algorithm>
#include <utility>

namespace desk {

std::uint64_t Alerts::show(Alert alert, Answer answer) {
    const std::uint64_t number = ++lastNumber;
    waiting.push_back({number, std::move(alert), std::move(answer)});
    changed();
    return number;
}

template <typename Condition>
void Alerts::eraseIf(Condition condition) {
    if (std::erase_if(waiting, condition) > 0) changed();
}

void Alerts::withdraw(std::uint64_t number) {
    eraseIf([number](const Waiting& each) { return each.number == number; });
}

void Alerts::withdrawAllOf(std::int32_t owner) {
    eraseIf([owner](const Waiting& each) { return each.alert.owner == owner; });
}

void Alerts::bringForward(std::uint64_t number) {
    const auto found =
        std::find_if(waiting.begin(), waiting.end(), [number](const Waiting& each) { return each.number == number; });
    if (found == waiting.end()) return;
    std::rotate(waiting.begin(), found, found + 1);
    changed();
}

std::size_t Alerts::front() const {
    const auto system =
        std::find_if(waiting.begin(), waiting.end(), [](const Waiting& each) { return each.alert.owner == 0; });
    return system == waiting.end() ? 0 : static_cast<std::size_t>(system - waiting.begin());
}

const Alert* Alerts::shown() const {
    return waiting.empty() ? nullptr : &waiting[front()].alert;
}

bool Alerts::press(const std::string& button) {
    if (waiting.empty()) return false;
    const auto pressed = waiting.begin() + static_cast<std::ptrdiff_t>(front());
    const std::vector<std::string>& buttons = pressed->alert.buttons;
    if (std::find(buttons.begin(), buttons.end(), button) == buttons.end()) return false;
    const Answer answer = std::move(pressed->answer);
    waiting.erase(pressed);
    changed();
    if (answer) answer(button);
    return true;
}

}  // namespace desk
