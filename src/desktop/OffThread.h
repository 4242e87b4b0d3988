#pragma once

#include <QCoreApplication>
#include <chrono>
#include <functional>
#include <future>
#include <optional>
#include <thread>

namespace kestrel::desktop {

// What the work, done on a thread of its own, gives. Meanwhile the windows are painted but take no
// input. Nothing when it takes longer than `patience`: the thread is left to end by itself, so the
// work must own all that it uses.
template <class Answer>
std::optional<Answer> AskOffThread(std::function<Answer()> work,
                                   std::chrono::milliseconds patience) {
    constexpr std::chrono::milliseconds kPause{5};
    std::packaged_task<Answer()> task(std::move(work));
    std::future<Answer> answer = task.get_future();
    std::thread(std::move(task)).detach();
    const auto end = std::chrono::steady_clock::now() + patience;
    while (answer.wait_for(kPause) != std::future_status::ready) {
        if (std::chrono::steady_clock::now() >= end) return std::nullopt;
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    return answer.get();
}

}  // namespace kestrel::desktop
