#include "kestotool/gdi/CTransparencyBitmap.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CTransparencyBitmap, CFillBitmap)

} // namespace KestoGDI
