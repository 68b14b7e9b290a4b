// The row kernels built for this translation unit's instruction set (see Kernels_p.h).
#include "kestotool/raster/Kernels_p.h"

#include "kestotool/raster/KernelsSimd_p.h"

#include "kestotool/raster/KernelsRows.inc"

namespace KestoRaster::Kernels {

const KernelSet& Scalar()
{
    return KernelSetWith<NoFastPaths>;
}

} // namespace KestoRaster::Kernels
