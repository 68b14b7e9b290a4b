#include "kestotool/gdi/CTransparencyConical.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CTransparencyConical, CFillConical)

CTransparencyConical::CTransparencyConical()
{
    SetColourIntPairs(DefaultStops(2, true));
}

} // namespace KestoGDI
