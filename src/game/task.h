// SPDX-License-Identifier: GPL-3.0-or-later
//
// Waiting without a thread. A procedure that can wait returns Task and is awaited; `co_await eventi()` parks
// the whole game until the window's events have run. One Runner holds the game: it resumes whatever stands on
// top, never one coroutine from within another, so that neither a deep call nor a long wait costs stack.
//
// A Task takes its arguments by value and is never a capturing lambda: the frame outlives the call.
#pragma once

#include <coroutine>
#include <exception>
#include <utility>

class Runner;

class [[nodiscard]] Task {
  public:
    struct promise_type {
        std::coroutine_handle<> caller;  // who awaits this one; none for the root

        Task get_return_object() { return Task(std::coroutine_handle<promise_type>::from_promise(*this)); }
        std::suspend_always initial_suspend() noexcept { return {}; }
        auto final_suspend() noexcept;
        void return_void() {}
        void unhandled_exception() { std::terminate(); }
    };

    Task() = default;
    Task(Task&& other) noexcept : handle_(std::exchange(other.handle_, {})) {}
    Task& operator=(Task&& other) noexcept
    {
        if (this != &other) {
            destroy();
            handle_ = std::exchange(other.handle_, {});
        }
        return *this;
    }
    ~Task() { destroy(); }

    bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> caller) const noexcept;
    void await_resume() const noexcept {}

  private:
    friend class Runner;
    explicit Task(std::coroutine_handle<promise_type> handle) : handle_(handle) {}
    void destroy()  // with it go the suspended coroutines that it awaits
    {
        if (auto const h = std::exchange(handle_, {}))
            h.destroy();
    }

    std::coroutine_handle<promise_type> handle_;
};

class Runner {
  public:
    // Puts a game in the place of whatever waits now, which is abandoned for good. It begins at the next
    // resume(). Not while a game is running, but any event handler may.
    void start(Task root)
    {
        root_ = std::move(root);
        current_ = root_.handle_;
        waiting_ = false;
    }

    // Lets the game go on until it waits or ends. Does nothing inside itself (a message box of the game lets
    // events run) and after stop().
    void resume()
    {
        if (running_ || stopped_)
            return;
        running_ = true;
        waiting_ = false;
        while (current_ && !waiting_)
            current_.resume();
        running_ = false;
    }

    // The game ends here: no resume() has an effect any more. The coroutines go when a new game starts or the
    // runner is cleared, so that this may be called from within the game.
    void stop() { stopped_ = true; }

    // Nothing left, ready for a new game. Not while a game is running.
    void clear()
    {
        root_ = {};
        current_ = {};
        waiting_ = stopped_ = false;
    }

    bool alive() const { return current_ && !stopped_; }
    bool running() const { return running_; }

  private:
    friend class Task;
    friend struct Eventi;
    friend struct TaskEnd;

    Task root_;
    std::coroutine_handle<> current_;  // goes on next; none when the root has ended
    bool waiting_ = false;
    bool running_ = false;
    bool stopped_ = false;
};

inline Runner runner;

// One go for the window's events.
struct Eventi {
    bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> who) const noexcept
    {
        runner.current_ = who;
        runner.waiting_ = true;
    }
    void await_resume() const noexcept {}
};
inline Eventi eventi() { return {}; }

struct TaskEnd {
    bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<Task::promise_type> who) const noexcept
    {
        runner.current_ = who.promise().caller;
    }
    void await_resume() const noexcept {}
};
inline auto Task::promise_type::final_suspend() noexcept { return TaskEnd{}; }

inline void Task::await_suspend(std::coroutine_handle<> caller) const noexcept
{
    handle_.promise().caller = caller;
    runner.current_ = handle_;
}
