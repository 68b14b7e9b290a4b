#include "kestotool/raster/Shading_p.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace KestoRaster::Shading {

namespace {

int RoundHalfUp(double x)
{
    return static_cast<int>(std::floor(x + 0.5));
}

std::uint8_t Channel(double x)
{
    return static_cast<std::uint8_t>(std::clamp(RoundHalfUp(x), 0, 255));
}

// Inverse of the basis (u, v); false when it is singular.
bool InvertBasis(Point u, Point v, Geometry& g)
{
    const double det = u.x * v.y - u.y * v.x;
    if (!std::isfinite(det) || std::abs(det) < 1e-12)
        return false;
    g.iux = v.y / det;
    g.iuy = -v.x / det;
    g.ivx = -u.y / det;
    g.ivy = u.x / det;
    return true;
}

Point Minus(Point a, Point b)
{
    return {a.x - b.x, a.y - b.y};
}

double Spline(const RampStop& s, double t)
{
    if (s.c1 == 1.0 / 3 && s.c2 == 2.0 / 3)
        return t;
    const double r = 1 - t;
    return 3 * r * r * t * s.c1 + 3 * r * t * t * s.c2 + t * t * t;
}

} // namespace

Geometry Solve(const Paint& paint)
{
    Geometry g;
    g.kind = paint.kind;
    const auto& p = paint.points;
    const auto need = [&](std::size_t n) { return p.size() >= n; };
    switch (paint.kind) {
    case Paint::Kind::Solid: break;
    case Paint::Kind::Linear: {
        if (!need(2))
            break;
        g.origin = p[0];
        const Point axis = Minus(p[1], p[0]);
        const double length2 = axis.x * axis.x + axis.y * axis.y;
        g.degenerate = !(length2 > 0) || !std::isfinite(length2);
        if (!g.degenerate) {
            g.iux = axis.x / length2;
            g.iuy = axis.y / length2;
        }
        return g;
    }
    case Paint::Kind::Radial: {
        if (!need(2))
            break;
        g.origin = p[0];
        const Point u = Minus(p[1], p[0]);
        // A circle: the second radius is the first turned by a right angle.
        g.degenerate = !InvertBasis(u, {-u.y, u.x}, g);
        return g;
    }
    case Paint::Kind::Elliptical:
    case Paint::Kind::Square:
    case Paint::Kind::ThreeColour:
    case Paint::Kind::Plasma:
    case Paint::Kind::Bitmap: {
        if (!need(3))
            break;
        g.origin = p[0];
        g.degenerate = !InvertBasis(Minus(p[1], p[0]), Minus(p[2], p[0]), g);
        return g;
    }
    case Paint::Kind::Conical: {
        if (!need(2))
            break;
        g.origin = p[0];
        const Point r = Minus(p[1], p[0]);
        g.degenerate = !(r.x != 0 || r.y != 0);
        g.zeroAngle = std::atan2(-r.y, r.x);
        return g;
    }
    case Paint::Kind::FourColour: {
        if (!need(4))
            break;
        g.origin = p[0];
        g.e1 = Minus(p[1], p[0]);
        g.e2 = Minus(p[2], p[0]);
        g.e3 = {p[3].x - p[1].x - p[2].x + p[0].x, p[3].y - p[1].y - p[2].y + p[0].y};
        const double area = g.e1.x * g.e2.y - g.e1.y * g.e2.x;
        g.degenerate = !(std::abs(area) > 1e-12);
        return g;
    }
    }
    g.degenerate = paint.kind != Paint::Kind::Solid;
    return g;
}

double RampParameter(const Geometry& g, Point p)
{
    if (g.degenerate)
        return 1.0;
    const double dx = p.x - g.origin.x;
    const double dy = p.y - g.origin.y;
    double t = 0;
    switch (g.kind) {
    case Paint::Kind::Linear: t = dx * g.iux + dy * g.iuy; break;
    case Paint::Kind::Radial:
    case Paint::Kind::Elliptical: t = std::hypot(dx * g.iux + dy * g.iuy, dx * g.ivx + dy * g.ivy); break;
    case Paint::Kind::Square: t = std::max(std::abs(dx * g.iux + dy * g.iuy), std::abs(dx * g.ivx + dy * g.ivy)); break;
    case Paint::Kind::Conical: {
        // The anticlockwise (on screen: y grows downward) angle from C->R to C->p, folded.
        double a = std::atan2(-dy, dx) - g.zeroAngle;
        a = std::remainder(a, 2 * std::numbers::pi);
        t = std::abs(a) / std::numbers::pi;
        break;
    }
    // Not measured along a ramp.
    case Paint::Kind::Solid:
    case Paint::Kind::ThreeColour:
    case Paint::Kind::FourColour:
    case Paint::Kind::Plasma:
    case Paint::Kind::Bitmap: break;
    }
    return std::isfinite(t) ? std::clamp(t, 0.0, 1.0) : 1.0;
}

namespace {

// Into [0, 1): repeated, or mirrored with period two so that neighbouring tiles meet seamlessly.
double Wrap(double u, bool mirrored)
{
    if (!std::isfinite(u))
        return 0;
    if (!mirrored)
        return u - std::floor(u);
    const double m = u - 2 * std::floor(u / 2);
    return m < 1 ? m : std::nextafter(2 - m, 0.0);
}

// The index of sample i of n along a tiled axis.
int TileIndex(long long i, int n, bool mirrored)
{
    if (!mirrored)
        return static_cast<int>(((i % n) + n) % n);
    const long long period = 2LL * n;
    const long long m = ((i % period) + period) % period;
    return static_cast<int>(m < n ? m : period - 1 - m);
}

// Where a sample falls between sample centres: the cell's first sample and the fractions.
struct BilinearCell {
    long long x0, y0;
    double sx, sy;
};

BilinearCell CellAt(double fx, double fy)
{
    const double floorX = std::floor(fx);
    const double floorY = std::floor(fy);
    return {static_cast<long long>(floorX), static_cast<long long>(floorY), fx - floorX, fy - floorY};
}

std::uint64_t SplitMix(std::uint64_t& state)
{
    std::uint64_t z = (state += 0x9E3779B97F4A7C15ull);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}

} // namespace

Point TileCoordinates(const Geometry& g, Point p, bool mirrored)
{
    if (g.degenerate)
        return {0, 0};
    const double dx = p.x - g.origin.x;
    const double dy = p.y - g.origin.y;
    return {Wrap(dx * g.iux + dy * g.iuy, mirrored), Wrap(dx * g.ivx + dy * g.ivy, mirrored)};
}

int PlasmaResolution(const Paint::Plasma& plasma)
{
    return std::clamp(plasma.resolution, 2, 1024);
}

std::vector<float> PlasmaTile(const Paint::Plasma& plasma)
{
    const int n = PlasmaResolution(plasma);
    const double persistence = 0.35 + 0.5 * std::clamp(plasma.grain, 0, 100) / 100.0;
    std::vector<double> sum(static_cast<std::size_t>(n) * n, 0.0);
    std::uint64_t state = plasma.seed;
    double weight = 1;
    for (int lattice = 2; lattice <= n; lattice *= 2, weight *= persistence) {
        std::vector<double> knots(static_cast<std::size_t>(lattice) * lattice);
        for (double& k : knots)
            k = static_cast<double>(SplitMix(state) >> 11) / static_cast<double>(1ull << 53);
        const auto knot = [&](int i, int j) {
            return knots[static_cast<std::size_t>((j % lattice) * lattice + (i % lattice))];
        };
        for (int y = 0; y < n; ++y) {
            const double fy = (y + 0.5) * lattice / n;
            const int j = static_cast<int>(fy);
            const double sy = (fy - j) * (fy - j) * (3 - 2 * (fy - j));
            for (int x = 0; x < n; ++x) {
                const double fx = (x + 0.5) * lattice / n;
                const int i = static_cast<int>(fx);
                const double sx = (fx - i) * (fx - i) * (3 - 2 * (fx - i));
                const double top = knot(i, j) + (knot(i + 1, j) - knot(i, j)) * sx;
                const double bottom = knot(i, j + 1) + (knot(i + 1, j + 1) - knot(i, j + 1)) * sx;
                sum[static_cast<std::size_t>(y) * n + x] += weight * (top + (bottom - top) * sy);
            }
        }
    }
    const auto [lo, hi] = std::minmax_element(sum.begin(), sum.end());
    const double span = *hi - *lo;
    std::vector<float> tile(sum.size());
    for (std::size_t i = 0; i < sum.size(); ++i)
        tile[i] = span > 0 ? static_cast<float>((sum[i] - *lo) / span) : 0.5f;
    return tile;
}

double PlasmaValue(const std::vector<float>& tile, int resolution, Point uv, bool mirrored)
{
    const int n = std::clamp(resolution, 2, 1024);
    const auto [x0, y0, sx, sy] = CellAt(uv.x * n - 0.5, uv.y * n - 0.5);
    const auto at = [&](long long x, long long y) {
        return static_cast<double>(
            tile[static_cast<std::size_t>(TileIndex(y, n, mirrored)) * n + TileIndex(x, n, mirrored)]);
    };
    const double top = at(x0, y0) + (at(x0 + 1, y0) - at(x0, y0)) * sx;
    const double bottom = at(x0, y0 + 1) + (at(x0 + 1, y0 + 1) - at(x0, y0 + 1)) * sx;
    return std::clamp(top + (bottom - top) * sy, 0.0, 1.0);
}

std::uint32_t TexelOutput(const Paint& paint, std::uint32_t argb, Output output)
{
    Rgba c{static_cast<std::uint8_t>(argb >> 16), static_cast<std::uint8_t>(argb >> 8), static_cast<std::uint8_t>(argb),
           static_cast<std::uint8_t>(argb >> 24)};
    if (paint.recolour && !paint.stops.empty()) {
        const int intensity = (299 * c.r + 587 * c.g + 114 * c.b + 500) / 1000;
        const Rgba ramp = RampColour(paint, intensity * 10000.0 / 255);
        c = {ramp.r, ramp.g, ramp.b, static_cast<std::uint8_t>((ramp.a * c.a + 127) / 255)};
    }
    if (output == Output::Mask8)
        return paint.transparency ? 255u - c.r : c.a;
    return ToArgb(paint, c);
}

bool HasImage(const Paint& paint)
{
    const Paint::Image* image = paint.image.get();
    return image && image->width > 0 && image->height > 0 &&
           image->argb.size() >= static_cast<std::size_t>(image->width) * static_cast<std::size_t>(image->height);
}

namespace {

template <class Sample>
std::vector<Sample> Padded(const std::vector<Sample>& samples, int w, int h, bool mirrored)
{
    std::vector<Sample> padded;
    padded.reserve(static_cast<std::size_t>(w + 2) * static_cast<std::size_t>(h + 2));
    for (int y = -1; y <= h; ++y) {
        const std::size_t row = static_cast<std::size_t>(TileIndex(y, h, mirrored)) * w;
        for (int x = -1; x <= w; ++x)
            padded.push_back(samples[row + TileIndex(x, w, mirrored)]);
    }
    return padded;
}

} // namespace

std::vector<std::uint32_t> PadTile(const std::vector<std::uint32_t>& samples, int w, int h, bool mirrored)
{
    return Padded(samples, w, h, mirrored);
}

std::vector<float> PadTile(const std::vector<float>& samples, int w, int h, bool mirrored)
{
    return Padded(samples, w, h, mirrored);
}

std::vector<std::uint32_t> PaddedTexels(const Paint& paint, Output output)
{
    if (!HasImage(paint))
        return {};
    const Paint::Image& image = *paint.image;
    std::vector<std::uint32_t> texels;
    texels.reserve(static_cast<std::size_t>(image.width) * image.height);
    for (std::size_t i = 0; i < static_cast<std::size_t>(image.width) * image.height; ++i)
        texels.push_back(TexelOutput(paint, image.argb[i], output));
    return PadTile(texels, image.width, image.height, paint.mirroredTiles);
}

std::uint32_t BitmapSample(const Paint& paint, Point uv, Output output)
{
    if (!HasImage(paint))
        return 0;
    const Paint::Image& image = *paint.image;
    const int w = image.width;
    const int h = image.height;
    const auto texel = [&](long long x, long long y) {
        return TexelOutput(paint,
                           image.argb[static_cast<std::size_t>(TileIndex(y, h, paint.mirroredTiles)) * w +
                                      TileIndex(x, w, paint.mirroredTiles)],
                           output);
    };
    if (paint.nearest)
        return texel(static_cast<long long>(std::floor(uv.x * w)), static_cast<long long>(std::floor(uv.y * h)));
    const auto [x0, y0, sx, sy] = CellAt(uv.x * w - 0.5, uv.y * h - 0.5);
    const std::uint32_t a = texel(x0, y0), b = texel(x0 + 1, y0), c = texel(x0, y0 + 1), d = texel(x0 + 1, y0 + 1);
    // Channel by channel (a mask value is the low byte).
    std::uint32_t result = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        const auto at = [shift](std::uint32_t p) { return static_cast<double>((p >> shift) & 0xFF); };
        const double top = at(a) + (at(b) - at(a)) * sx;
        const double bottom = at(c) + (at(d) - at(c)) * sx;
        result |= std::uint32_t{Channel(top + (bottom - top) * sy)} << shift;
    }
    return result;
}

Point CornerCoordinates(const Geometry& g, Point p)
{
    if (g.degenerate)
        return {1, 1};
    const double dx = p.x - g.origin.x;
    const double dy = p.y - g.origin.y;
    double u = 0, v = 0;
    if (g.kind == Paint::Kind::ThreeColour) {
        u = dx * g.iux + dy * g.iuy;
        v = dx * g.ivx + dy * g.ivy;
    } else {
        // Solve p - P0 = u e1 + v e2 + u v e3 for (u, v): a quadratic in v.
        const auto cross = [](Point a, Point b) { return a.x * b.y - a.y * b.x; };
        const Point q{dx, dy};
        const double qa = -cross(g.e2, g.e3);
        const double qb = cross(g.e1, g.e2) + cross(q, g.e3);
        const double qc = cross(q, g.e1);
        if (std::abs(qa) < 1e-12 * (std::abs(qb) + 1e-300)) {
            v = qb != 0 ? -qc / qb : 0;
        } else {
            const double disc = std::sqrt(std::max(qb * qb - 4 * qa * qc, 0.0));
            const double v1 = (-qb + disc) / (2 * qa);
            const double v2 = (-qb - disc) / (2 * qa);
            // The root inside the quadrilateral, else the nearer one.
            v = std::abs(v1 - 0.5) <= std::abs(v2 - 0.5) ? v1 : v2;
        }
        const Point d{g.e1.x + v * g.e3.x, g.e1.y + v * g.e3.y};
        u = std::abs(d.x) >= std::abs(d.y) ? (dx - v * g.e2.x) / d.x : (dy - v * g.e2.y) / d.y;
    }
    if (!std::isfinite(u) || !std::isfinite(v))
        return {1, 1};
    return {std::clamp(u, 0.0, 1.0), std::clamp(v, 0.0, 1.0)};
}

Rgba RampColour(const Paint& paint, double position)
{
    const auto& stops = paint.stops;
    if (stops.empty())
        return paint.colours.empty() ? Rgba{} : paint.colours.front();
    if (position <= stops.front().position)
        return stops.front().colour;
    for (std::size_t i = 1; i < stops.size(); ++i) {
        if (position >= stops[i].position)
            continue;
        const RampStop& a = stops[i - 1];
        const RampStop& b = stops[i];
        const double span = b.position - a.position;
        const double s = Spline(a, span > 0 ? (position - a.position) / span : 1.0);
        const auto lerp = [s](std::uint8_t x, std::uint8_t y) { return Channel(x + (y - x) * s); };
        return {lerp(a.colour.r, b.colour.r), lerp(a.colour.g, b.colour.g), lerp(a.colour.b, b.colour.b),
                lerp(a.colour.a, b.colour.a)};
    }
    return stops.back().colour;
}

Rgba CornerColour(const Paint& paint, Point uv)
{
    const auto& c = paint.colours;
    const std::size_t n = paint.kind == Paint::Kind::ThreeColour ? 3 : 4;
    if (c.size() < n)
        return c.empty() ? Rgba{} : c.back();
    const auto mix = [&](auto channel) {
        const double c0 = channel(c[0]), c1 = channel(c[1]), c2 = channel(c[2]);
        if (n == 3)
            return Channel(c0 + uv.x * (c1 - c0) + uv.y * (c2 - c0));
        const double c3 = channel(c[3]);
        const double top = c0 + uv.x * (c1 - c0);
        const double bottom = c2 + uv.x * (c3 - c2);
        return Channel(top + uv.y * (bottom - top));
    };
    return {mix([](const Rgba& x) { return x.r; }), mix([](const Rgba& x) { return x.g; }),
            mix([](const Rgba& x) { return x.b; }), mix([](const Rgba& x) { return x.a; })};
}

std::uint32_t ToArgb(const Paint& paint, Rgba c)
{
    if (paint.transparency)
        return 0xFF000000u | (std::uint32_t{c.r} << 16) | (std::uint32_t{c.r} << 8) | c.r;
    const auto pre = [&](std::uint8_t v) { return static_cast<std::uint32_t>((v * c.a + 127) / 255); };
    return (std::uint32_t{c.a} << 24) | (pre(c.r) << 16) | (pre(c.g) << 8) | pre(c.b);
}

std::uint8_t ToMask(const Paint& paint, Rgba c)
{
    return paint.transparency ? static_cast<std::uint8_t>(255 - c.r) : c.a;
}

} // namespace KestoRaster::Shading
