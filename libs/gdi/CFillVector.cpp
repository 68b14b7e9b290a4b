#include "gdi/CFillVector.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillVector, CFillBitmap)

} // namespace KestoGDI
