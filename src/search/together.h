#pragma once

#include <cstddef>
#include <functional>

namespace zolv {

/// As many threads as the machine has, where none are asked for; at least one.
[[nodiscard]] unsigned ThreadsOf(unsigned asked);

/// Calls work(0) to work(count - 1), each once, on several threads, of which the caller's is one, and returns when all
/// are done. Which thread takes which, and in what order, is left open: what a call does must not depend on it.
/// @param work  throws nothing
void Together(std::size_t count, unsigned threads, const std::function<void(std::size_t)>& work);

}  // namespace zolv
