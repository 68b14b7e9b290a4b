#include "kestotool/gdi/CFillNone.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillNone, CFill)

} // namespace KestoGDI
