#include "kestotool/gdi/CTransparencyRadial.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CTransparencyRadial, CFillRadial)

CTransparencyRadial::CTransparencyRadial()
{
    SetColourIntPairs(DefaultStops(2, true));
}

} // namespace KestoGDI
