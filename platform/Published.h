// Observable state. A Published value runs its subscribers synchronously inside the write; an ObservableObject is what a view observes
// as a whole: any of its published values changing counts as a change of it. Nothing here compares old and new values: who must not
// publish an equal value asks first, or calls setIfChanged. Main thread only.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/Signal.h"
#include "platform/Token.h"

namespace platform {

class ObservableObject {
public:
    ObservableObject() = default;
    ObservableObject(const ObservableObject&) = delete;
    ObservableObject& operator=(const ObservableObject&) = delete;

    // The handler runs after each write of a published value of this object, after that value's own subscribers.
    Token observe(std::function<void()> handler) { return changed.subscribe(std::move(handler)); }
    std::size_t observerCount() const { return changed.subscriberCount(); }

    void notifyChanged() { changed(); }

protected:
    ~ObservableObject() = default;

private:
    Signal<> changed;
};

// What every published value can do; Published decides who may write.
template <typename T>
class PublishedValue {
public:
    using Value = T;

    PublishedValue(ObservableObject& owner, T initial) : object(&owner), value(std::move(initial)) {}
    explicit PublishedValue(T initial) : value(std::move(initial)) {}
    PublishedValue(const PublishedValue&) = delete;
    PublishedValue& operator=(const PublishedValue&) = delete;

    const T& get() const { return value; }
    const T& operator*() const { return value; }
    const T* operator->() const { return &value; }

    enum class Delivery { now, onChangeOnly };
    // With Delivery::now the handler first runs once, inside the call, with the present value.
    Token subscribe(std::function<void(const T&)> handler, Delivery delivery = Delivery::now) {
        if (delivery == Delivery::now) handler(value);
        return changed.subscribe(std::move(handler));
    }
    std::size_t subscriberCount() const { return changed.subscriberCount(); }

protected:
    ~PublishedValue() = default;

    void write(T next) {
        value = std::move(next);
        announce();
    }
    bool writeIfChanged(T next) {
        if (value == next) return false;
        write(std::move(next));
        return true;
    }
    // Changes the value in place and announces it, whether or not it came out equal.
    template <typename Change>
    void change(Change edit) {
        edit(value);
        announce();
    }

private:
    void announce() {
        const std::uint64_t mine = ++generation;
        changed.deliver([this, mine] { return generation != mine; }, value);
        if (generation == mine && object != nullptr) object->notifyChanged();
    }

    ObservableObject* object = nullptr;
    T value;
    Signal<const T&> changed;
    std::uint64_t generation = 0;
};

// Published<T, Owner> is written by Owner alone.
template <typename T, typename Owner = void>
class Published final : public PublishedValue<T> {
public:
    using PublishedValue<T>::PublishedValue;

private:
    friend Owner;
    void set(T next) { this->write(std::move(next)); }
    bool setIfChanged(T next) { return this->writeIfChanged(std::move(next)); }
    template <typename Change>
    void mutate(Change edit) {
        this->change(std::move(edit));
    }
};

template <typename T>
class Published<T, void> final : public PublishedValue<T> {
public:
    using PublishedValue<T>::PublishedValue;
    void set(T next) { this->write(std::move(next)); }
    bool setIfChanged(T next) { return this->writeIfChanged(std::move(next)); }
    template <typename Change>
    void mutate(Change edit) {
        this->change(std::move(edit));
    }
};

// Runs the handler once at subscription and once for each write of one of the values, with the latest of each, equal values included.
template <typename Handler, typename... PublishedValues>
std::vector<Token> combineLatest(Handler handler, PublishedValues&... values) {
    auto run = std::make_shared<std::function<void()>>(
        [handler = std::move(handler), &values...] { handler(values.get()...); });
    std::vector<Token> tokens;
    (tokens.push_back(values.subscribe([run](const auto&) { (*run)(); }, PublishedValues::Delivery::onChangeOnly)),
     ...);
    (*run)();
    return tokens;
}

}  // namespace platform
