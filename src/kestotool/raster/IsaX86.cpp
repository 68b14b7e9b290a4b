// The instruction sets of an x86 processor, and their kernels.
#include "kestotool/raster/Kernels_p.h"

namespace KestoRaster::Kernels {

Isa BestIsa()
{
    static const Isa best = [] {
        if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
            __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512dq") &&
            __builtin_cpu_supports("avx512vbmi"))
            return Isa::Avx512;
        if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma"))
            return Isa::Avx2;
        return Isa::Scalar;
    }();
    return best;
}

const KernelSet& ForIsa(Isa isa)
{
    switch (isa) {
    case Isa::Avx512: return Avx512();
    case Isa::Avx2: return Avx2();
    case Isa::Scalar: break;
    }
    return Scalar();
}

} // namespace KestoRaster::Kernels
