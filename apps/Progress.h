#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <string>
#include <thread>

namespace physics::apps {

class Output;

/// As long as it lives, a line on the terminal says what is being done, how far it is, and for how long:
/// "building a.json: 1200 of 90000, 3 s". It appears only when the work takes a while, and goes away at the end.
/// Nothing happens where the output shows no progress. Nobody else must write to the output meanwhile.
class Progress {
public:
    using Clock = std::chrono::steady_clock;

    /// Without a `total` the line does not count. The line appears after `patience`.
    Progress(Output& output, std::string what, std::size_t total = 0,
             Clock::duration patience = std::chrono::milliseconds(500));
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// One more of the total is done. Costs next to nothing.
    void step() { m_done.fetch_add(1, std::memory_order_relaxed); }

private:
    void show(Clock::duration patience);
    std::string line() const;

    Output& m_output;
    const std::string m_what;
    const std::size_t m_total;
    const Clock::time_point m_begin = Clock::now();
    std::atomic<std::size_t> m_done = 0;
    bool m_isOver = false; ///< guarded by the mutex
    std::mutex m_mutex;
    std::condition_variable m_over;
    std::thread m_painter;
};

} // namespace physics::apps
