#include "kestotool/gdi/CFillGradient.h"

namespace KestoGDI {

KESTO_IMPLEMENT_DYNAMIC(CFillGradient, CFillWithStops)

} // namespace KestoGDI
