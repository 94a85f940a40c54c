#pragma once

#include <chrono>
#include <thread>

namespace tessaro {

/// Asks until the answer is yes; gives the last one. The pauses are short, so that others who take
/// turns in a row do not keep us out for long.
template <class Question>
bool becomes(std::chrono::milliseconds patience, const Question& question) {
    constexpr std::chrono::microseconds betweenLooks{100};
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!question()) {
        if (std::chrono::steady_clock::now() >= end) return false;
        std::this_thread::sleep_for(betweenLooks);
    }
    return true;
}

}  // namespace tessaro
