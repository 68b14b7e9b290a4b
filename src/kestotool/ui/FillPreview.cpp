#include "kestotool/ui/FillPreview.h"

namespace KestoUI {

void FillPreview::SetBounds(const KestoPlatform::CRect& bounds)
{
    m_bounds = bounds;
    ++m_refreshes;
    StateChanged();
    if (m_onShown)
        m_onShown(m_fill.get());
}

void FillPreview::SetFill(const KestoGDI::CFill* fill)
{
    m_fill = fill ? fill->Clone() : nullptr;
    ++m_refreshes;
    StateChanged();
    if (m_onShown)
        m_onShown(m_fill.get());
}

} // namespace KestoUI
