#include "kestotool/ui/FillPreview.h"

namespace KestoUI {

void FillPreview::SetBounds(const KestoPlatform::CRect& bounds)
{
    m_bounds = bounds;
    ++m_refreshes;
    StateChanged();
}

void FillPreview::SetFill(const KestoGDI::CFill* fill)
{
    m_fill = fill ? fill->Clone() : nullptr;
    ++m_refreshes;
    StateChanged();
}

} // namespace KestoUI
