#pragma once

#include "kestotool/gdi/CFillSquare.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// Transparency graded over nested parallelograms; its stops are grey levels.
class KESTO_API CTransparencySquare : public CFillSquare {
    KESTO_DECLARE_FILL(CTransparencySquare)
public:
    CTransparencySquare();
    bool IsTransparency() const override { return true; }
};

} // namespace KestoGDI
