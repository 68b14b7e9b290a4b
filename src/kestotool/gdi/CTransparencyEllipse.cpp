#include "kestotool/gdi/CTransparencyEllipse.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CTransparencyEllipse, CFillEllipse)

CTransparencyEllipse::CTransparencyEllipse()
{
    SetColourIntPairs(DefaultStops(2, true));
}

} // namespace KestoGDI
