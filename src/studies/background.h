#pragma once

#include <functional>
#include <memory>
#include <stop_token>
#include <thread>

namespace zolv {

/// How a piece of work reaches the thread of the fields: it is called there later, in the order of the posts. Empty
/// where nothing runs beside that thread, as in a script; then a study is done before its start returns.
using Post = std::function<void(std::function<void()>)>;
inline Post postToFields;

/// One long piece of work at a time, beside the thread of the fields. All calls come from that thread.
class Background {
public:
    /// Has something shown on the thread of the fields while the work goes on. What comes too soon behind the last one,
    /// or from work that has been abandoned, is dropped.
    using Tell = std::function<void(std::function<void()>)>;
    /// Touches no field and no state. What it returns is called on the thread of the fields, unless it was abandoned.
    using Work = std::function<std::function<void()>(const std::stop_token&, const Tell&)>;

    Background() = default;
    Background(const Background&) = delete;
    Background& operator=(const Background&) = delete;
    ~Background() { Abandon(); }

    /// Abandons what runs.
    void Start(Work work);

    /// The work ends soon, and shows what it has.
    void Stop() { thread_.request_stop(); }

    /// The work ends, and shows nothing more. Returns when its thread has ended.
    void Abandon();

    [[nodiscard]] bool Running() const { return current_ != nullptr; }

private:
    struct Run;

    std::shared_ptr<Run> current_;
    std::jthread thread_;
};

}  // namespace zolv
