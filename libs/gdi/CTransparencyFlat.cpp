#include "gdi/CTransparencyFlat.h"

#include "gdi/CMonoColour.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CTransparencyFlat, CFillSolid)

CTransparencyFlat::CTransparencyFlat() : CFillSolid(CMonoColour(128), false)
{
}

} // namespace KestoGDI
