#pragma once

#include "gdi/CFillBitmap.h"

namespace KestoGDI {

// A vector fill: a small drawing repeated in a tiled grid over the object. The three control
// points are its control box: 0 the tile's origin, 1 the end of its x axis, 2 the end of its
// y axis, which place, scale, rotate and skew the tile. The fill is fitted to its object's box
// under a transform of its own (UpdateBBox), which editors keep across a change of space.
class CFillVector : public CFillBitmap {
    KESTO_DECLARE_FILL(CFillVector)
public:
    FillType::Type GetFillType() const override { return FillType::Vector; }

    const K2DLtGeneral& GetTransform() const { return m_transform; }
    const CRect& GetObjectBox() const { return m_objectBox; }
    // Fits the fill to the object's box under transform.
    void UpdateBBox(const CRect& objectBox, const K2DLtGeneral& transform);

protected:
    bool IsEqualData(const CFill& other) const override;

private:
    K2DLtGeneral m_transform;
    CRect m_objectBox;
};

} // namespace KestoGDI
