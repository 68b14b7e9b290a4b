// The row kernels built for this translation unit's instruction set (see Kernels_p.h).
#include "kestotool/raster/Kernels_p.h"

#include "kestotool/raster/KernelsImpl.inc"

namespace KestoRaster::Kernels {

const KernelSet& Avx512()
{
    return kSet;
}

} // namespace KestoRaster::Kernels
