#include "search/together.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace zolv {

unsigned ThreadsOf(unsigned asked) { return std::max(1U, asked > 0 ? asked : std::thread::hardware_concurrency()); }

void Together(std::size_t count, unsigned threads, const std::function<void(std::size_t)>& work) {
    std::atomic<std::size_t> next = 0;
    const auto takeTurns = [&] {
        for (std::size_t i = next++; i < count; i = next++) work(i);
    };
    std::vector<std::jthread> others;
    for (std::size_t i = 1; i < std::min<std::size_t>(threads, count); ++i) others.emplace_back(takeTurns);
    takeTurns();
}

}  // namespace zolv
