#include "support/UndoHistory.h"

namespace KestoTest {

void UndoHistory::Record(const KestoGDI::CFill* fill)
{
    m_steps.resize(static_cast<std::size_t>(m_current + 1));
    m_steps.push_back({KestoKernel::RefPtr<const KestoGDI::CFill>(fill), fill->Clone()});
    m_current = Size() - 1;
}

const KestoGDI::CFill* UndoHistory::Undo()
{
    if (m_current <= 0)
        return nullptr;
    return &Shared(--m_current);
}

const KestoGDI::CFill* UndoHistory::Redo()
{
    if (m_current + 1 >= Size())
        return nullptr;
    return &Shared(++m_current);
}

int UndoHistory::FirstChangedStep() const
{
    for (int i = 0; i < Size(); ++i) {
        if (!Shared(i).IsEqual(Snapshot(i)))
            return i;
    }
    return -1;
}

} // namespace KestoTest
