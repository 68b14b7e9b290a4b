// Architectures without AVX kernels: the portable ones, whose vectors the compiler maps onto the
// architecture's own (NEON, SVE, RVV) where it can.
#include "kestotool/raster/Kernels_p.h"

namespace KestoRaster::Kernels {

Isa BestIsa()
{
    return Isa::Scalar;
}

const KernelSet& ForIsa(Isa)
{
    return Scalar();
}

} // namespace KestoRaster::Kernels
