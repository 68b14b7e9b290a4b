#include "kestotool/gdi/CTransparencySquare.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CTransparencySquare, CFillSquare)

CTransparencySquare::CTransparencySquare()
{
    SetColourIntPairs(DefaultStops(2, true));
}

} // namespace KestoGDI
