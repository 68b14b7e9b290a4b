#include "kestotool/gdi/CTransparencyFlat.h"

#include "kestotool/gdi/CMonoColour.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CTransparencyFlat, CFillSolid)

CTransparencyFlat::CTransparencyFlat() : CFillSolid(CMonoColour(128), false) {}

} // namespace KestoGDI
