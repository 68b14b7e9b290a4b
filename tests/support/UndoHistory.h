#pragma once

#include "kestotool/gdi/CFill.h"

#include <vector>

namespace KestoTest {

// An undo stack as a host keeps one: each step shares the committed fill, as a real host does,
// and keeps a deep snapshot of it taken when it was recorded, so that a fill that anyone
// changed after handing it over shows up as a step that no longer equals its snapshot.
class UndoHistory {
public:
    // A new step after the current one; the steps that could have been redone are dropped.
    void Record(const KestoGDI::CFill* fill);

    int Size() const { return static_cast<int>(m_steps.size()); }
    int Current() const { return m_current; }
    // Moves one step back or forward and answers the fill that is current then; null at either end.
    const KestoGDI::CFill* Undo();
    const KestoGDI::CFill* Redo();

    const KestoGDI::CFill& Shared(int step) const { return *m_steps[static_cast<std::size_t>(step)].shared; }
    const KestoGDI::CFill& Snapshot(int step) const { return *m_steps[static_cast<std::size_t>(step)].snapshot; }
    // The first step whose shared fill no longer equals its snapshot; -1 when none.
    int FirstChangedStep() const;

private:
    struct Step {
        KestoKernel::RefPtr<const KestoGDI::CFill> shared;
        KestoKernel::RefPtr<const KestoGDI::CFill> snapshot;
    };
    std::vector<Step> m_steps;
    int m_current = -1;
};

} // namespace KestoTest
