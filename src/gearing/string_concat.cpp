#include "gearing/string_concat.h"

namespace zolv {

void StringConcat::Grow(std::size_t size) {
    const std::size_t blocks = (lngUsed_ + size - lngAllocated_) / lngAllocSize_ + 1;
    lngAllocated_ += blocks * lngAllocSize_;
    buffer_.resize(lngAllocated_, ' ');
}

void StringConcat::Add(std::string_view strAddString) {
    if (strAddString.empty()) return;
    char* const to = Room(strAddString.size());
    Use(to + strAddString.copy(to, strAddString.size()));
}

}  // namespace zolv
