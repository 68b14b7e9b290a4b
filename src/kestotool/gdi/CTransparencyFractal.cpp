#include "kestotool/gdi/CTransparencyFractal.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CTransparencyFractal, CFillFractal)

CTransparencyFractal::CTransparencyFractal()
{
    SetColourIntPairs(DefaultStops(2, true));
}

} // namespace KestoGDI
