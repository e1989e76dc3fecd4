#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace zolv {

/// Joins many strings into one: appends them to a buffer that grows in blocks, so that a table of 1801 rows is not
/// built by joining whole texts over and over.
class StringConcat {
public:
    /// Nothing happens for an empty string.
    void Add(std::string_view strAddString);

    /// Room for `size` characters behind what is used, for a writer that knows its length only afterwards; Use then
    /// takes up to there.
    char* Room(std::size_t size) {
        if (lngUsed_ + size > lngAllocated_) Grow(size);
        return buffer_.data() + lngUsed_;
    }
    void Use(const char* end) { lngUsed_ = static_cast<std::size_t>(end - buffer_.data()); }

    /// What has been added so far.
    [[nodiscard]] std::string GetStr() const& { return buffer_.substr(0, lngUsed_); }
    [[nodiscard]] std::string GetStr() && {
        buffer_.resize(lngUsed_);
        return std::move(buffer_);
    }

private:
    void Grow(std::size_t size);

    std::string buffer_;               // as long as lngAllocated_
    std::size_t lngUsed_ = 0;          // characters in use
    std::size_t lngAllocated_ = 0;     // capacity
    std::size_t lngAllocSize_ = 1000;  // block size
};

}  // namespace zolv
