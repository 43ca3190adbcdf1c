#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

namespace Ipgen::Session {

/// Ends the program (exit status 70, with a line on standard error) when the thread that made it
/// does not come back to its event loop for `limit` ms: the last resort against an IP that never
/// returns from a call.
class Watchdog {
public:
    explicit Watchdog(int limit);
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

    /// The thread is alive.
    void feed();

private:
    void watch();

    int m_limit;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_fed = false;
    bool m_done = false;
    std::thread m_thread;
};

} // namespace Ipgen::Session
