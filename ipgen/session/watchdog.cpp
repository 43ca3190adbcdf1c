#include "ipgen/session/watchdog.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace Ipgen::Session {

Watchdog::Watchdog(int limit)
    : m_limit(limit)
    , m_thread([this] { watch(); }) {}

Watchdog::~Watchdog() {
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_done = true;
    }
    m_wake.notify_one();
    m_thread.join();
}

void Watchdog::feed() {
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_fed = true;
    }
    m_wake.notify_one();
}

void Watchdog::watch() {
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_done) {
        m_fed = false;
        const bool sign = m_wake.wait_for(lock, std::chrono::milliseconds(m_limit),
                                          [this] { return m_fed || m_done; });
        if (!sign) {
            std::fprintf(stderr, "ipgen: session: the IP has not answered for %d s\n",
                         m_limit / 1000);
            std::_Exit(70);
        }
    }
}

} // namespace Ipgen::Session
