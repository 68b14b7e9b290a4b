#pragma once

// What the reference renderer and the kernels share: where a paint-space point lies on a
// kind's ramp, the ramp's colour there, the corner kinds' colours, and the output rules.
#include "kestotool/raster/Paint.h"

#include <array>
#include <vector>

namespace KestoRaster::Shading {

// A paint's geometry, solved once: the point -> ramp parameter map of each kind.
struct Geometry {
    Paint::Kind kind = Paint::Kind::Solid;
    bool degenerate = false;
    Point origin; // S, C or P0
    // The inverse of the basis (first axis, second axis) that the kind measures in; for the
    // linear kind the axis divided by its squared length.
    double iux = 0, iuy = 0, ivx = 0, ivy = 0;
    // Conical: the direction of C->R as an angle in radians (y down, anticlockwise on screen).
    double zeroAngle = 0;
    // FourColour: P1 - P0, P2 - P0 and P3 - P1 - P2 + P0.
    Point e1, e2, e3;
};

Geometry Solve(const Paint& paint);

// The ramp parameter 0..1 of a paint-space point (ramp kinds).
double RampParameter(const Geometry& g, Point p);
// The tile coordinates of a paint-space point (plasma, bitmap), brought into one tile: [0, 1).
Point TileCoordinates(const Geometry& g, Point p, bool mirrored);

// The plasma's tile: resolution x resolution intensities 0..1, row by row. Periodic octaves of
// seeded value noise (the seed drives a splitmix64 stream), each octave's weight the previous
// one's times 0.35 + 0.5 x grain / 100, stretched to span 0..1.
std::vector<float> PlasmaTile(const Paint::Plasma& plasma);
// The tile's samples along each side: the resolution kept to 2 .. 1024.
int PlasmaResolution(const Paint::Plasma& plasma);
// The tile's intensity at tile coordinates, bilinear between sample centres.
double PlasmaValue(const std::vector<float>& tile, int resolution, Point uv, bool mirrored);
// One of a bitmap paint's image pixels (straight 0xAARRGGBB) as output: recoloured when asked,
// then the premultiplied word or the mask value.
std::uint32_t TexelOutput(const Paint& paint, std::uint32_t argb, Output output);
// A w x h grid of samples with one more row and column on every side as the tiling continues
// past its edges (repeated, or mirrored): (w + 2) x (h + 2), so that the two samples a bilinear
// step blends always sit side by side.
std::vector<std::uint32_t> PadTile(const std::vector<std::uint32_t>& samples, int w, int h, bool mirrored);
std::vector<float> PadTile(const std::vector<float>& samples, int w, int h, bool mirrored);
// A bitmap paint's texels as output values, padded as PadTile does.
std::vector<std::uint32_t> PaddedTexels(const Paint& paint, Output output);
// Whether a bitmap paint has an image to show (one that holds all its pixels).
bool HasImage(const Paint& paint);
// A bitmap paint's output at tile coordinates (see Paint), for either output: the texels'
// outputs blended channel by channel (or the nearest one).
std::uint32_t BitmapSample(const Paint& paint, Point uv, Output output);
// The corner kinds' coordinates (u, v) in 0..1 of a paint-space point.
Point CornerCoordinates(const Geometry& g, Point p);

// The ramp's colour at a position 0..10000 by the fill model's rule: before the first stop the
// first colour, after the last the last; between two stops each channel (alpha too) blends
// straight from the earlier to the later by the earlier stop's spline, rounded half up.
Rgba RampColour(const Paint& paint, double position);
// Three corners: c0 + u (c1 - c0) + v (c2 - c0); four: bilinear. Rounded half up, clamped.
Rgba CornerColour(const Paint& paint, Point uv);

// The output rules: premultiplied 0xAARRGGBB; a transparency shows its level as an opaque
// grey. A mask byte is 255 - level for a transparency and the alpha for a colour.
std::uint32_t ToArgb(const Paint& paint, Rgba c);
std::uint8_t ToMask(const Paint& paint, Rgba c);

} // namespace KestoRaster::Shading
