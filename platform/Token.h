// A registration that ends when its token goes: monitors, notification observers, subscriptions. Whoever registers keeps the token;
// where an order of removal is laid down, tokens are cleared by hand in that order. A token may outlive what it was registered with.
#pragma once

#include <functional>
#include <utility>

namespace platform {

class Token {
public:
    Token() = default;
    explicit Token(std::function<void()> atTheEnd) : unregister(std::move(atTheEnd)) {}
    Token(Token&& other) noexcept : unregister(std::exchange(other.unregister, nullptr)) {}
    Token& operator=(Token&& other) noexcept {
        if (this != &other) {
            clear();
            unregister = std::exchange(other.unregister, nullptr);
        }
        return *this;
    }
    Token(const Token&) = delete;
    Token& operator=(const Token&) = delete;
    ~Token() { clear(); }

    // Empty when the platform refused the registration, or after clear().
    explicit operator bool() const { return static_cast<bool>(unregister); }

    void clear() {
        if (auto action = std::exchange(unregister, nullptr)) action();
    }

private:
    std::function<void()> unregister;
};

}  // namespace platform
