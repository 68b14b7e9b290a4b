#pragma once

#include "kestotool/platform/Export.h"

#include <vector>

namespace KestoPlatform {

class CWnd;

// Window timers on a clock that only moves when told: the headless back end's time, and any
// back end's time in a test or a scripted session that must not depend on the wall clock.
class KESTO_API ManualClock {
public:
    long long Now() const { return m_now; }
    // Starts (or restarts) the window's timer id; it falls due every period, at least 1 ms.
    void SetTimer(CWnd* window, int id, int milliseconds);
    void KillTimer(CWnd* window, int id);
    // Forgets every timer of a window that is going away.
    void Forget(CWnd* window);
    int PendingTimers() const { return static_cast<int>(m_timers.size()); }
    // Moves the clock on, sending OnTimer for every timer that falls due, in time order (a
    // timer repeats until it is killed).
    void Advance(int milliseconds);

private:
    struct Timer {
        CWnd* window;
        int id;
        int period;
        long long due;
    };

    long long m_now = 0;
    std::vector<Timer> m_timers;
};

} // namespace KestoPlatform
