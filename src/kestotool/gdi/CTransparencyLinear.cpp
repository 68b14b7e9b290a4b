#include "kestotool/gdi/CTransparencyLinear.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CTransparencyLinear, CFillLinear)

CTransparencyLinear::CTransparencyLinear()
{
    SetColourIntPairs(DefaultStops(2, true));
}

} // namespace KestoGDI
