// The AVX2 kernels whose pixels are long chains of dependent steps: the plasma's and bitmap's
// reads (an index, then the cells or texels it points at, then the table), the four-colour
// kind's exact solve (a square root, then two reciprocals). Each chain is longer than the
// processor's window can overlap with the next vector's, so this unit is built with GCC's
// scheduler before register allocation (see CMakeLists.txt), which interleaves a block's
// independent vectors; the other kernels lose by it.
#include "kestotool/raster/Kernels_p.h"

#include "kestotool/raster/KernelsSimd_p.h"

#include "kestotool/raster/KernelsRows.inc"

#include "kestotool/raster/KernelsAvx2Paths.inc"

namespace KestoRaster::Kernels {

void Avx2Plasma(const PlasmaRow& row)
{
    PlasmaRowKernel(row);
}

void Avx2FourColour(const QuadRow& row)
{
    FourColourRowKernel<Avx2Paths>(row);
}

void Avx2Bitmap(const BitmapRow& row)
{
    BitmapRowKernel<Avx2Paths>(row);
}

} // namespace KestoRaster::Kernels
