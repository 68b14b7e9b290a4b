#pragma once

#include "kestotool/platform/Export.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace KestoRaster {

struct Point {
    double x = 0;
    double y = 0;
};

// A colour with straight (not premultiplied) 8-bit channels.
struct Rgba {
    std::uint8_t r = 0, g = 0, b = 0, a = 255;
    friend bool operator==(const Rgba&, const Rgba&) = default;
};

// One stop of a colour ramp: a position 0..10000 along the ramp, a colour, and the blend to the
// next stop as the two inner control values of a one-dimensional cubic Bezier from 0 to 1
// (1/3 and 2/3 blend straight).
struct RampStop {
    double position = 0;
    Rgba colour;
    double c1 = 1.0 / 3;
    double c2 = 2.0 / 3;
    friend bool operator==(const RampStop&, const RampStop&) = default;
};

// What a fill paints, in the paint's own coordinates, independent of any fill model. Each kind
// reads its points as listed; the colours of a ramp kind are the stops, those of the corner
// kinds the corners' colours.
//
//   Solid        colours[0]
//   Linear       points S, E: t is the projection of a pixel on S->E, padded at both ends
//   Radial       points C, E: t = |p - C| / |E - C|
//   Elliptical   points C, E, F: the radial gradient mapped so that its unit radii go to C->E
//                and C->F
//   Conical      points C, R: t is the angle between C->R and C->p folded onto 0..180 degrees
//                over 180, so a stop at position q lies at q * 180 / 10000 degrees either way
//                round from R (the conical tool puts its handles on the anticlockwise half)
//   Square       points C, E, F: t = max(|u|, |v|) where p - C = u (E - C) + v (F - C)
//   ThreeColour  points P0, P1, P2, colours c0..c2: the affine colour field that shows each
//                corner's colour exactly; outside the parallelogram the nearest edge's colours
//   FourColour   points P0, P1, P2, P3 (P3 opposite P0), colours c0..c3: bilinear over the
//                quadrilateral P0, P1, P3, P2 through its inverse map; each corner exact
//   Plasma       points P0, P1, P2 place one tile (P0 its origin, P1 the end of its x side, P2
//                of its y side); the tile is a seeded fractal intensity 0..1 (see PlasmaTile),
//                sampled bilinearly, coloured through the stops (intensity 1 = position 10000),
//                tiled mirrored when asked (seamless) and repeated otherwise
//   Bitmap       points P0, P1, P2 place the image as one tile, repeated (mirrored when asked),
//                sampled bilinearly on premultiplied values (nearest when asked); when recolour
//                is set each texel's intensity is coloured through the stops and keeps its alpha
//
// A degenerate geometry (zero-length axis, collinear corners) paints the last colour.
struct Paint {
    enum class Kind { Solid, Linear, Radial, Elliptical, Conical, Square, ThreeColour, FourColour, Plasma, Bitmap };

    // The plasma's pattern: the same values always give the same tile.
    struct Plasma {
        std::uint32_t seed = 1;
        int grain = 50;       // 0 smooth .. 100 grainy
        int resolution = 256; // samples along each side of the tile
        friend bool operator==(const Plasma&, const Plasma&) = default;
    };
    // A bitmap's pixels: 0xAARRGGBB words with straight alpha, rows top to bottom.
    struct Image {
        int width = 0;
        int height = 0;
        std::vector<std::uint32_t> argb;
        friend bool operator==(const Image&, const Image&) = default;
    };

    Kind kind = Kind::Solid;
    std::vector<Point> points;
    std::vector<RampStop> stops; // ramp kinds; sorted by position
    std::vector<Rgba> colours;   // solid and corner kinds
    Plasma plasma;
    std::shared_ptr<const Image> image;
    bool mirroredTiles = false; // plasma, bitmap
    bool nearest = false;       // bitmap
    bool recolour = false;      // bitmap
    // A transparency paints levels: its colours' red channel is the level 0 (opaque) .. 255
    // (clear), and as a mask it paints 255 - level.
    bool transparency = false;
};

// paint -> device: x' = a x + c y + e, y' = b x + d y + f.
struct KESTO_API Affine {
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;

    Point Apply(Point p) const { return {a * p.x + c * p.y + e, b * p.x + d * p.y + f}; }
    double Determinant() const { return a * d - b * c; }
    // The inverse; a singular transform answers the zero map.
    Affine Inverse() const;
};

// Where pixels go: native 32-bit words 0xAARRGGBB with premultiplied alpha, or one byte of
// coverage per pixel. The stride is in bytes.
enum class Output { Argb32, Mask8 };

struct Target {
    void* pixels = nullptr;
    int width = 0;
    int height = 0;
    std::ptrdiff_t stride = 0;
    Output format = Output::Argb32;
};

// Device pixels [x0, x1) x [y0, y1); rendering writes inside the clip and the target, nothing
// outside.
struct Clip {
    int x0 = 0, y0 = 0, x1 = 0, y1 = 0;
};

} // namespace KestoRaster
