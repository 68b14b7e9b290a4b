#pragma once

#include "kestotool/gdi/CFillWithStops.h"
#include "kestotool/gdi/CLtBitmap.h"
#include "kestotool/gdi/FillWithControls.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// A bitmap tiled over the object. Control points: 0 P0 the tile's origin, 1 P1 the end of its
// first (x) axis, 2 P2 the end of its second (y) axis. Clones share the bitmap, which is never
// changed once a fill holds it. With gradient recolouring on, the bitmap's intensities are
// coloured through the stop list.
class KESTO_API CFillBitmap : public FillWithControls<CFillWithStops, 3> {
    KESTO_DECLARE_FILL(CFillBitmap)
public:
    CFillBitmap();
    explicit CFillBitmap(RefPtr<const CLtBitmap> bitmap);

    FillType::Type GetFillType() const override { return FillType::Bitmap; }

    void SetControls(const K2DDblPoint& p0, const K2DDblPoint& p1, const K2DDblPoint& p2) { SetPoints({p0, p1, p2}); }
    using CFill::SetControls;
    // One tile stretched over the rectangle: P0 top-left, P1 top-right, P2 bottom-left.
    void SetDefaultControls(const CRect& rect) override;

    // The tile image; null when the fill has none.
    const CLtBitmap* GetBitmapForFill() const { return m_bitmap.get(); }
    void SetBitmap(RefPtr<const CLtBitmap> bitmap) { m_bitmap = std::move(bitmap); }
    // Neighbouring tiles are mirrored.
    bool WantInvertedTiling() const { return m_invertedTiling; }
    void SetWantInvertedTiling(bool inverted) { m_invertedTiling = inverted; }
    bool GetGradientRecolour() const { return m_gradientRecolour; }
    void SetGradientRecolour(bool recolour) { m_gradientRecolour = recolour; }

protected:
    bool IsEqualData(const CFill& other) const override;
    // The bitmap is counted in full although clones share it.
    std::size_t HeapBytes() const override;

private:
    RefPtr<const CLtBitmap> m_bitmap;
    bool m_invertedTiling = false;
    bool m_gradientRecolour = false;
};

} // namespace KestoGDI
