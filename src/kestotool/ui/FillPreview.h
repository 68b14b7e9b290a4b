#pragma once

#include "kestotool/gdi/CFill.h"
#include "kestotool/platform/CWnd.h"
#include "kestotool/platform/Export.h"

#include <functional>

namespace KestoUI {

// A window that shows a fill over a rectangle of document units. It keeps its own copy of the
// fill; each change counts as one refresh of the picture.
class KESTO_API FillPreview : public KestoPlatform::CWnd {
public:
    void SetBounds(const KestoPlatform::CRect& bounds);
    const KestoPlatform::CRect& GetBounds() const { return m_bounds; }
    // Shows a copy of fill (null shows nothing).
    void SetFill(const KestoGDI::CFill* fill);
    const KestoGDI::CFill* GetFill() const { return m_fill.get(); }
    int GetRefreshCount() const { return m_refreshes; }
    // Told the fill (the preview's own copy: copy it to keep it) each time one is shown.
    using Shown = std::function<void(const KestoGDI::CFill*)>;
    void SetOnShown(Shown shown) { m_onShown = std::move(shown); }

protected:
    KestoPlatform::WindowKind GetWindowKind() const override { return KestoPlatform::WindowKind::FillPreview; }

private:
    KestoPlatform::CRect m_bounds;
    KestoKernel::RefPtr<KestoGDI::CFill> m_fill;
    int m_refreshes = 0;
    Shown m_onShown;
};

} // namespace KestoUI
