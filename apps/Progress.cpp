#include "apps/Progress.h"

#include "apps/Output.h"

#include <csignal>
#include <ostream>
#include <utility>

namespace physics::apps {
namespace {

constexpr const char* clearLine = "\r\x1B[K";

/// Threads that begin meanwhile leave all signals to the others: Ctrl-C is for the one that does the work, which
/// may have to finish a file first.
class WithoutSignals {
public:
    WithoutSignals()
    {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &m_before);
    }
    ~WithoutSignals() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    WithoutSignals(const WithoutSignals&) = delete;
    WithoutSignals& operator=(const WithoutSignals&) = delete;

private:
    sigset_t m_before = {};
};

} // namespace

Progress::Progress(Output& output, std::string what, std::size_t total, Clock::duration patience)
    : m_output(output), m_what(std::move(what)), m_total(total)
{
    if (output.progress() != nullptr) {
        const WithoutSignals without;
        m_painter = std::thread([this, patience] { show(patience); });
    }
}

Progress::~Progress()
{
    if (!m_painter.joinable()) {
        return;
    }
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isOver = true;
    }
    m_over.notify_one();
    m_painter.join();
}

void Progress::show(Clock::duration patience)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const auto isOver = [this] { return m_isOver; };
    if (m_over.wait_for(lock, patience, isOver)) {
        return;
    }
    std::ostream& stream = *m_output.progress();
    do {
        stream << clearLine << line() << std::flush;
    } while (!m_over.wait_for(lock, std::chrono::milliseconds(250), isOver));
    stream << clearLine << std::flush;
}

std::string Progress::line() const
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - m_begin).count();
    const std::string count =
        m_total == 0 ? ""
                     : ": " + std::to_string(m_done.load(std::memory_order_relaxed)) + " of " + std::to_string(m_total);
    return m_what + count + ", " + std::to_string(seconds) + " s";
}

} // namespace physics::apps
