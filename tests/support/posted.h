#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <utility>

#include "studies/background.h"

namespace zolv {

/// While it lives, work runs beside the thread of the fields, and what it posts waits here to be fetched.
class Posted {
public:
    Posted() {
        postToFields = [this](std::function<void()> work) {
            const std::scoped_lock lock(mutex_);
            queue_.push_back(std::move(work));
            come_.notify_one();
        };
    }
    ~Posted() { postToFields = {}; }  // whatever works has been abandoned
    Posted(const Posted&) = delete;
    Posted& operator=(const Posted&) = delete;

    /// Waits for a piece and runs it.
    void RunOne() {
        std::unique_lock lock(mutex_);
        come_.wait(lock, [this] { return !queue_.empty(); });
        const std::function<void()> work = std::move(queue_.front());
        queue_.pop_front();
        lock.unlock();
        work();
    }

    /// Runs what has come; nothing more comes meanwhile.
    void RunRest() {
        while (!queue_.empty()) RunOne();
    }

private:
    std::mutex mutex_;
    std::condition_variable come_;
    std::deque<std::function<void()>> queue_;
};

}  // namespace zolv
