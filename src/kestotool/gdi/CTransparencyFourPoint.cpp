#include "kestotool/gdi/CTransparencyFourPoint.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CTransparencyFourPoint, CFillFourColour)

CTransparencyFourPoint::CTransparencyFourPoint()
{
    SetColourIntPairs(DefaultStops(4, true));
}

} // namespace KestoGDI
