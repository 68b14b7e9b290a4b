#include "kestotool/gdi/CTransparencyThreePoint.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CTransparencyThreePoint, CFillThreeColour)

CTransparencyThreePoint::CTransparencyThreePoint()
{
    SetColourIntPairs(DefaultStops(3, true));
}

} // namespace KestoGDI
