#pragma once

#include "kestotool/platform/Export.h"

namespace KestoRaster {

// The instruction sets the renderer has kernels for; Avx512 means F, BW, DQ, VL and VBMI (the
// byte permutes), as processors from 2019 on have them; older AVX-512 processors run Avx2. The best one the processor
// supports is chosen once, unless KESTO_RASTER_ISA=scalar|avx2|avx512 asks for another (tests and benchmarks run every
// path the machine has).
enum class Isa { Scalar, Avx2, Avx512 };

KESTO_API bool IsaAvailable(Isa isa);
KESTO_API Isa ActiveIsa();
// Makes isa the active one when the processor supports it; answers the one that is active.
KESTO_API Isa SetActiveIsa(Isa isa);
KESTO_API const char* IsaName(Isa isa);

} // namespace KestoRaster
