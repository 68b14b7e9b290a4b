#include "kestotool/gdi/CTransparencyNone.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CTransparencyNone, CFillNone)

} // namespace KestoGDI
