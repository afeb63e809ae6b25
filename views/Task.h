// Work on the main thread that sleeps between its steps: a coroutine that answers a Task.
//
//     Task blink(platform::Dispatch&, State<bool> isLit) {
//         while (true) {
//             isLit.set(!isLit.get());
//             co_await Task::sleep(platform::seconds(1));
//         }
//     }
//
// It begins in a later turn. Cancelling ends it where it sleeps, and what it holds goes at once. Its first parameter is the queue that it runs on, so lambdas and member functions don't
// compile: a task outlives the views that start it, and takes what it needs by value. Copies of the handle share the task; letting go of them doesn't cancel it.
#pragma once

#include <coroutine>
#include <memory>

#include "platform/Dispatch.h"

namespace views {

class Task {
    class Body;

public:
    class promise_type;
    struct Sleep {
        platform::Duration duration;
        bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<promise_type> sleeper) const;
        void await_resume() const noexcept {}
    };

    Task() = default;
    static Sleep sleep(platform::Duration duration) { return {duration}; }

    // A task that cancels itself ends at its next sleep.
    void cancel() const;

private:
    std::shared_ptr<Body> body;
};

class Task::promise_type {
public:
    template <typename... Parameters>
    explicit promise_type(platform::Dispatch& theDispatch, const Parameters&... /*parameters*/)
        : dispatch(theDispatch) {}

    Task get_return_object();
    std::suspend_always initial_suspend();
    std::suspend_always final_suspend() noexcept { return {}; }
    void return_void() {}
    void unhandled_exception() { throw; }

private:
    friend struct Sleep;

    platform::Dispatch& dispatch;
    Body* body = nullptr;  // it owns the coroutine, and with it this
};

}  // namespace views
