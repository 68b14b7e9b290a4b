// The row kernels built for this translation unit's instruction set (see Kernels_p.h).
#include "kestotool/raster/Kernels_p.h"

#include "kestotool/raster/KernelsSimd_p.h"

#include "kestotool/raster/KernelsRows.inc"

#include "kestotool/raster/KernelsAvx2Paths.inc"

namespace KestoRaster::Kernels {

const KernelSet& Avx2()
{
    static constexpr KernelSet set{&RampRowKernel<Avx2Paths>, &ThreeColourRowKernel<Avx2Paths>, &Avx2Plasma,
                                   &Avx2FourColour, &Avx2Bitmap};
    return set;
}

} // namespace KestoRaster::Kernels
