#pragma once

// The per-ISA row kernels. Each kernel translation unit compiles KernelsImpl.inc with its own
// instruction-set flags inside a namespace of its own; nothing else is shared with it, so no
// inline function compiled for a wider instruction set can stand in for another unit's copy.
#include "raster/Isa.h"

#include <cstdint>

namespace KestoRaster::Kernels {

// A ramp kind in the coordinates it measures in (see Shading::Geometry): along one row the
// first pixel centre is at (u0, v0) and each pixel steps by (du, dv).
enum class RampShape { Linear, Round, Square, Conical };

struct RampRow {
    RampShape shape;
    double u0, v0, du, dv;
    int count;
    const std::uint32_t* table;  // 1024 entries: words, or mask values
    bool mask;
    void* out;
};

using RampRowFunction = void (*)(const RampRow& row);

struct KernelSet {
    RampRowFunction ramp;
};

const KernelSet& Scalar();
const KernelSet& Avx2();
const KernelSet& Avx512();
const KernelSet& Active();

} // namespace KestoRaster::Kernels
