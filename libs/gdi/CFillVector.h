#pragma once

#include "gdi/CFillBitmap.h"

namespace KestoGDI {

// A vector fill: a small drawing repeated in a tiled grid over the object. The three control
// points are its control box: 0 the tile's origin, 1 the end of its x axis, 2 the end of its
// y axis, which place, scale, rotate and skew the tile.
class CFillVector : public CFillBitmap {
    KESTO_DECLARE_FILL(CFillVector)
public:
    FillType::Type GetFillType() const override { return FillType::Vector; }
    const wchar_t* GetTypeAsString() const override { return L"Vector"; }
};

} // namespace KestoGDI
