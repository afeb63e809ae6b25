#include "views/Task.h"

#include <utility>

namespace views {

// Owned by the handles and by what is posted to wake it.
class Task::Body : public std::enable_shared_from_this<Body> {
public:
    Body(platform::Dispatch& theDispatch, std::coroutine_handle<> theFrame) : dispatch(theDispatch), frame(theFrame) {}
    Body(const Body&) = delete;
    Body& operator=(const Body&) = delete;
    ~Body() { end(); }

    void begin() {
        dispatch.mainTask([self = shared_from_this()] { self->resume(); });
    }
    void sleep(platform::Duration duration) {
        if (isCancelled) return;
        auto wake = [self = shared_from_this()] { self->resume(); };
        dispatch.mainAfter(duration, std::make_shared<platform::DispatchWorkItem>(std::move(wake)));
    }
    void cancel() {
        isCancelled = true;
        if (!isRunning) end();
    }

private:
    void resume() {
        if (!frame) return;
        isRunning = true;
        frame.resume();
        isRunning = false;
        if (isCancelled || frame.done()) end();
    }
    void end() {
        if (const auto ended = std::exchange(frame, nullptr)) ended.destroy();
    }

    platform::Dispatch& dispatch;
    std::coroutine_handle<> frame;
    bool isRunning = false;
    bool isCancelled = false;
};

void Task::cancel() const {
    if (const auto held = body) held->cancel();
}

void Task::Sleep::await_suspend(std::coroutine_handle<promise_type> sleeper) const {
    sleeper.promise().body->sleep(duration);
}

Task Task::promise_type::get_return_object() {
    Task task;
    task.body = std::make_shared<Body>(dispatch, std::coroutine_handle<promise_type>::from_promise(*this));
    body = task.body.get();
    return task;
}

std::suspend_always Task::promise_type::initial_suspend() {
    body->begin();
    return {};
}

}  // namespace views
