#include "kestotool/gdi/CFillEllipse.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillEllipse, CFillCentreAxes)

} // namespace KestoGDI
