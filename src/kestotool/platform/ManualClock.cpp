#include "kestotool/platform/ManualClock.h"

#include "kestotool/platform/CWnd.h"

#include <algorithm>

namespace KestoPlatform {

void ManualClock::SetTimer(CWnd* window, int id, int milliseconds)
{
    KillTimer(window, id);
    const int period = std::max(milliseconds, 1);
    m_timers.push_back({window, id, period, m_now + period});
}

void ManualClock::KillTimer(CWnd* window, int id)
{
    std::erase_if(m_timers, [&](const Timer& t) { return t.window == window && t.id == id; });
}

void ManualClock::Forget(CWnd* window)
{
    std::erase_if(m_timers, [&](const Timer& t) { return t.window == window; });
}

void ManualClock::Advance(int milliseconds)
{
    const long long until = m_now + std::max(milliseconds, 0);
    for (;;) {
        const auto next = std::min_element(m_timers.begin(), m_timers.end(),
                                           [](const Timer& a, const Timer& b) { return a.due < b.due; });
        if (next == m_timers.end() || next->due > until)
            break;
        m_now = next->due;
        next->due += next->period;
        CWnd* window = next->window;
        const int id = next->id;
        // The handler may kill or restart timers, so the entry is not used after this call.
        window->OnTimer(id);
    }
    m_now = until;
}

} // namespace KestoPlatform
