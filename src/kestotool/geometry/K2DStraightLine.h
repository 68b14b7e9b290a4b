#pragma once

#include "kestotool/platform/Export.h"

#include "kestotool/geometry/K2DDblPoint.h"

namespace Kesto2D {

// A straight line through two points: finite (the segment between them) or infinite.
//
// Two coincident points make no line. Setting one answers false and leaves the line invalid;
// an invalid line behaves as the single point it was given: closest points and feet of
// perpendiculars are that point, it meets nothing, and a point is on it when within the
// tolerance of that point.
class KESTO_API K2DStraightLine {
public:
    K2DStraightLine() = default;

    bool SetFinite(const K2DDblPoint& start, const K2DDblPoint& end) { return Set(start, end, true); }
    bool SetInfinite(const K2DDblPoint& through1, const K2DDblPoint& through2)
    {
        return Set(through1, through2, false);
    }

    bool IsValid() const { return m_valid; }
    bool IsFinite() const { return m_finite; }
    const K2DDblPoint& GetStart() const { return m_start; }
    const K2DDblPoint& GetEnd() const { return m_end; }
    double GetLength() const { return m_start.Distance(m_end); }

    // The point of the line nearest to p (for a finite line, clamped to the segment).
    K2DDblPoint ClosestPointOnLine(const K2DDblPoint& p) const;
    // The foot of the perpendicular from p on the infinite line through the two points,
    // whether or not this line is finite.
    K2DDblPoint IntersectPerp(const K2DDblPoint& p) const;
    double DistanceTo(const K2DDblPoint& p) const { return p.Distance(ClosestPointOnLine(p)); }
    bool IsPointOnLine(const K2DDblPoint& p, double tolerance) const { return DistanceTo(p) <= tolerance; }

    // Where this line meets other. Finite lines count as meeting when the crossing lies within
    // tolerance of both segments. Parallel lines (overlapping ones too) do not meet.
    bool Intersect(const K2DStraightLine& other, K2DDblPoint& where, double tolerance) const;

    // The point at a signed distance from at, at right angles to the line: positive distances
    // go to the left of the direction start->end as seen on screen.
    K2DDblPoint PointAtPerpendicularDistance(const K2DDblPoint& at, double distance) const;

    // The angle between the two lines' directions in radians, 0..pi; 0 when either is invalid.
    double GetAngle(const K2DStraightLine& other) const;

private:
    bool Set(const K2DDblPoint& a, const K2DDblPoint& b, bool finite);
    K2DVector Direction() const { return m_end - m_start; }
    // Parameter of the foot of the perpendicular from p: 0 at start, 1 at end.
    double ParameterOf(const K2DDblPoint& p) const;

    K2DDblPoint m_start;
    K2DDblPoint m_end;
    bool m_finite = true;
    bool m_valid = false;
};

} // namespace Kesto2D
