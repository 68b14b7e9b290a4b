#pragma once

#include "kestotool/gdi/CFillEllipse.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// Transparency graded out over an ellipse; its stops are grey levels, 0 opaque to 255 clear.
class KESTO_API CTransparencyEllipse : public CFillEllipse {
    KESTO_DECLARE_FILL(CTransparencyEllipse)
public:
    CTransparencyEllipse();
    bool IsTransparency() const override { return true; }
};

} // namespace KestoGDI
