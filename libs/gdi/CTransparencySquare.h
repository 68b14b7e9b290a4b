#pragma once

#include "gdi/CFillSquare.h"

namespace KestoGDI {

// Transparency graded over nested parallelograms; its stops are grey levels.
class CTransparencySquare : public CFillSquare {
    KESTO_DECLARE_FILL(CTransparencySquare)
public:
    CTransparencySquare();
    bool IsTransparency() const override { return true; }
};

} // namespace KestoGDI
