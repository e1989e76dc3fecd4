#include "studies/background.h"

#include <atomic>
#include <chrono>
#include <utility>

namespace zolv {

struct Background::Run {
    bool abandoned = false;  // on the thread of the fields alone
    std::atomic<bool> telling = false;
};

void Background::Start(Work work) {
    Abandon();
    if (!postToFields) {
        work({}, {})();
        return;
    }
    current_ = std::make_shared<Run>();
    thread_ =
        std::jthread([this, work = std::move(work), run = current_, post = postToFields](const std::stop_token& stop) {
            using Clock = std::chrono::steady_clock;
            constexpr auto kApart = std::chrono::milliseconds(40);
            auto last = Clock::time_point::min();
            const Tell tell = [&](std::function<void()> show) {
                if (run->telling || (last != Clock::time_point::min() && Clock::now() - last < kApart)) return;
                last = Clock::now();
                run->telling = true;
                post([run, show = std::move(show)] {
                    run->telling = false;
                    if (!run->abandoned) show();
                });
            };
            post([this, run, show = work(stop, tell)] {
                if (run->abandoned) return;
                current_.reset();
                show();
            });
        });
}

void Background::Abandon() {
    if (current_ != nullptr) current_->abandoned = true;
    current_.reset();
    thread_ = {};
}

}  // namespace zolv
