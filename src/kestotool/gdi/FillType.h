#pragma once

namespace KestoGDI {

// Fill-type numbers, as GetFillType answers them and as tool factories and type combos use them.
// A transparency has the number of the fill kind it shapes (a linear transparency is 4).
// 2 and 3 are not used.
struct FillType {
    enum Type : int {
        None = 0,
        Solid = 1,
        Linear = 4,
        Radial = 5,
        ThreeColour = 6,
        FourColour = 7,
        Plasma = 8,
        Square = 9,
        Elliptical = 10,
        Conical = 11,
        Bitmap = 12,
        DiscreteMesh = 13,
        Vector = 14,
    };
};

} // namespace KestoGDI
