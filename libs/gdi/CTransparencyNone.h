#pragma once

#include "gdi/CFillNone.h"

namespace KestoGDI {

// No transparency: the object is as opaque as its fill.
class CTransparencyNone : public CFillNone {
    KESTO_DECLARE_FILL(CTransparencyNone)
public:
    bool IsTransparency() const override { return true; }
};

} // namespace KestoGDI
