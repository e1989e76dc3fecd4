#pragma once

#include <optional>
#include <string>
#include <utility>

namespace zolv {

/// Why a text cannot be used, as words for a message.
struct Refusal {
    std::string reason;
};

/// What reading a text gives: its value, or why it has none.
template <class Value>
class [[nodiscard]] Parsed {
public:
    Parsed(Value value) : value_(std::move(value)) {}
    Parsed(Refusal refusal) : reason_(std::move(refusal.reason)) {}

    explicit operator bool() const { return value_.has_value(); }
    const Value& operator*() const { return *value_; }
    const Value* operator->() const { return &*value_; }
    const std::string& Reason() const { return reason_; }

private:
    std::optional<Value> value_;
    std::string reason_;
};

}  // namespace zolv
