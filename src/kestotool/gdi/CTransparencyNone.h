#pragma once

#include "kestotool/gdi/CFillNone.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// No transparency: the object is as opaque as its fill.
class KESTO_API CTransparencyNone : public CFillNone {
    KESTO_DECLARE_FILL(CTransparencyNone)
public:
    bool IsTransparency() const override { return true; }
};

} // namespace KestoGDI
