#include "kestotool/gdi/CFillSquare.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillSquare, CFillCentreAxes)

} // namespace KestoGDI
