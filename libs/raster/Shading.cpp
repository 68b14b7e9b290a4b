#include "raster/Shading_p.h"

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
    case Paint::Kind::ThreeColour: {
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
    default: break;
    }
    return std::isfinite(t) ? std::clamp(t, 0.0, 1.0) : 1.0;
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
