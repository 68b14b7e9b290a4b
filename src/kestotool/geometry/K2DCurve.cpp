#include "kestotool/geometry/K2DCurve.h"

#include "kestotool/geometry/Rounding.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace Kesto2D {
namespace {

constexpr double twoPi = 2 * std::numbers::pi;

// Whether angle t lies on the sweep that starts at start (sweep of either sign).
bool OnSweep(double t, double start, double sweep)
{
    if (std::abs(sweep) >= twoPi)
        return true;
    double from = sweep >= 0 ? start : start + sweep;
    double offset = std::fmod(t - from, twoPi);
    if (offset < 0)
        offset += twoPi;
    return offset <= std::abs(sweep);
}

struct Bounds {
    double minX = std::numeric_limits<double>::infinity();
    double minY = std::numeric_limits<double>::infinity();
    double maxX = -std::numeric_limits<double>::infinity();
    double maxY = -std::numeric_limits<double>::infinity();
    void Include(const K2DDblPoint& p)
    {
        minX = std::min(minX, p.x);
        minY = std::min(minY, p.y);
        maxX = std::max(maxX, p.x);
        maxY = std::max(maxY, p.y);
    }
};

} // namespace

K2DDblPoint K2DCurve::Piece::ArcPoint(double t) const
{
    return point + u * std::cos(t) + w * std::sin(t);
}

K2DCurve K2DCurve::Circle(const K2DDblPoint& centre, double radius)
{
    return Arc(centre, radius, 0, KCAngle::FullCircle);
}

K2DCurve K2DCurve::Arc(const K2DDblPoint& centre, double radius, KCAngle start, KCAngle sweep)
{
    K2DCurve c;
    c.ArcTo(centre, radius, start, sweep);
    return c;
}

void K2DCurve::MoveTo(const K2DDblPoint& p)
{
    m_pieces.push_back({Piece::Kind::Move, p, {}, {}, 0, 0});
}

void K2DCurve::LineTo(const K2DDblPoint& p)
{
    if (m_pieces.empty())
        MoveTo(p);
    else
        m_pieces.push_back({Piece::Kind::Line, p, {}, {}, 0, 0});
}

void K2DCurve::ArcTo(const K2DDblPoint& centre, double radius, KCAngle start, KCAngle sweep)
{
    Piece arc{Piece::Kind::Arc, centre, {radius, 0}, {0, -radius}, start.ToRadians(), sweep.ToRadians()};
    if (m_pieces.empty())
        MoveTo(arc.ArcPoint(arc.start));
    m_pieces.push_back(arc);
}

void K2DCurve::Transform(const K2DLtGeneral& t)
{
    for (Piece& p : m_pieces) {
        p.point = t.ApplyTo(p.point);
        p.u = t.ApplyTo(p.u);
        p.w = t.ApplyTo(p.w);
    }
}

CRect K2DCurve::GetBBox() const
{
    if (m_pieces.empty())
        return {};
    Bounds b;
    for (const Piece& p : m_pieces) {
        if (p.kind != Piece::Kind::Arc) {
            b.Include(p.point);
            continue;
        }
        b.Include(p.ArcPoint(p.start));
        b.Include(p.ArcPoint(p.start + p.sweep));
        // x and y are sinusoids of t; their extremes sit where the derivatives vanish.
        for (const double t0 : {std::atan2(p.w.dx, p.u.dx), std::atan2(p.w.dy, p.u.dy)}) {
            for (const double t : {t0, t0 + std::numbers::pi}) {
                if (OnSweep(t, p.start, p.sweep))
                    b.Include(p.ArcPoint(t));
            }
        }
    }
    return {RoundHalfAwayFromZero(b.minX), RoundHalfAwayFromZero(b.minY), RoundHalfAwayFromZero(b.maxX),
            RoundHalfAwayFromZero(b.maxY)};
}

std::vector<std::vector<K2DDblPoint>> K2DCurve::Flatten(double tolerance) const
{
    if (!(tolerance > 0))
        tolerance = 0.25;
    std::vector<std::vector<K2DDblPoint>> lines;
    for (const Piece& p : m_pieces) {
        if (p.kind == Piece::Kind::Move) {
            lines.push_back({p.point});
            continue;
        }
        if (p.kind == Piece::Kind::Line) {
            lines.back().push_back(p.point);
            continue;
        }
        const K2DDblPoint first = p.ArcPoint(p.start);
        if (!(lines.back().back() == first))
            lines.back().push_back(first);
        // The chord of angle a sags r (1 - cos(a / 2)) below the arc.
        const double radius = std::max(p.u.Length(), p.w.Length());
        int steps = 1;
        if (radius > tolerance) {
            const double step = 2 * std::acos(1 - tolerance / radius);
            steps = static_cast<int>(std::ceil(std::abs(p.sweep) / step));
        }
        steps = std::clamp(steps, 1, 1024);
        for (int i = 1; i <= steps; ++i)
            lines.back().push_back(p.ArcPoint(p.start + p.sweep * i / steps));
    }
    return lines;
}

} // namespace Kesto2D
