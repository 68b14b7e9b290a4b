#pragma once

// The per-ISA row kernels. Each kernel translation unit (KernelsScalar.cpp, KernelsAvx2.cpp
// and KernelsAvx2Interleaved.cpp, KernelsAvx512.cpp) compiles the primitives (KernelsSimd_p.h)
// and the rows (KernelsRows.inc) with its own instruction-set flags inside an unnamed namespace;
// nothing else is shared with it, so no inline function compiled for a wider instruction set
// can stand in for another unit's copy. Only x86 builds have the AVX units.
#include "kestotool/raster/Isa.h"

#include <cstdint>

namespace KestoRaster::Kernels {

// A ramp kind in the coordinates it measures in (see Shading::Geometry): along one row the
// centre of device column 0 is at (u0, v0) and each pixel steps by (du, dv); the kernel writes
// columns x0 .. x0 + count - 1 to out (column x0 first). Blocks of pixels start at columns that
// are multiples of the block size, so that a pixel's value does not depend on the clip.
enum class RampShape { Linear, Round, Square, Conical };

struct RampRow {
    RampShape shape;
    double u0, v0, du, dv;
    int x0;
    int count;
    const std::uint32_t* table; // 256 entries: words, or mask values
    bool mask;
    void* out;
};

using RampRowFunction = void (*)(const RampRow& row);

// The three-colour kind along one row: (u, v) as for a ramp; each channel is
// c0 + u d1 + v d2 with u and v clamped to 0..1, rounded half up and clamped to 0..255. For a
// mask the alpha channel (a colour) or 255 - red (a transparency) is written.
struct CornerRow {
    double u0, v0, du, dv;
    int x0;
    int count;
    float c0[4], d1[4], d2[4]; // r, g, b, a
    bool mask;
    bool transparency;
    void* out;
};

using CornerRowFunction = void (*)(const CornerRow& row);

// The plasma kind along one row: (u, v) are tile coordinates (one tile is 1 x 1) of column 0's
// centre, stepping by (du, dv); the tile's n x n intensities are sampled bilinearly between
// sample centres, with repeated or mirrored tiles, and looked up in the ramp's table.
struct PlasmaRow {
    double u0, v0, du, dv;
    int x0;
    int count;
    const std::uint64_t* cells; // (n + 1) x (n + 1), see PreparedPaint::PlasmaCells
    int n;
    bool mirrored;
    const std::uint32_t* table; // 256 entries
    bool mask;
    void* out;
};

using PlasmaRowFunction = void (*)(const PlasmaRow& row);

// The four-colour kind along one row: q = p - P0 of column 0's centre and its step per pixel;
// p - P0 = u e1 + v e2 + u v e3 is solved for (u, v) as Shading::CornerCoordinates does (in
// double), and the corners' colours c[k] (r, g, b, a) blend bilinearly.
struct QuadRow {
    double qx0, qy0, dqx, dqy;
    double e1x, e1y, e2x, e2y, e3x, e3y;
    int x0;
    int count;
    float c[4][4];
    bool mask;
    bool transparency;
    void* out;
};

using QuadRowFunction = void (*)(const QuadRow& row);

// The bitmap kind along one row: (u, v) are tile coordinates as for the plasma; the texels are
// the output values of the image's pixels (premultiplied words, or mask values), w x h, padded
// by one texel on every side as the tiling continues (stride w + 2 texels a row), sampled
// bilinearly channel by channel (or the nearest one).
struct BitmapRow {
    double u0, v0, du, dv;
    int x0;
    int count;
    const std::uint32_t* texels;
    const std::uint32_t* maskCells; // for a mask's bilinear samples, see PreparedPaint::MaskCells
    int w, h;
    int stride;
    bool mirrored;
    bool nearest;
    bool mask;
    void* out;
};

using BitmapRowFunction = void (*)(const BitmapRow& row);

struct KernelSet {
    RampRowFunction ramp;
    CornerRowFunction threeColour;
    PlasmaRowFunction plasma;
    QuadRowFunction fourColour;
    BitmapRowFunction bitmap;
};

const KernelSet& Scalar();
const KernelSet& Avx2();   // x86 builds only
// The AVX2 set's plasma, four-colour and bitmap kernels (KernelsAvx2Interleaved.cpp).
void Avx2Plasma(const PlasmaRow& row);
void Avx2FourColour(const QuadRow& row);
void Avx2Bitmap(const BitmapRow& row);
const KernelSet& Avx512(); // x86 builds only
const KernelSet& Active();

// What the build's architecture offers (IsaX86.cpp, or IsaPortable.cpp elsewhere): the widest
// instruction set this processor runs, and the kernels of an available one.
Isa BestIsa();
const KernelSet& ForIsa(Isa isa);

} // namespace KestoRaster::Kernels
