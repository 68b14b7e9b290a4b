#pragma once

#include "kestotool/geometry/K2DDblPoint.h"
#include "kestotool/geometry/K2DLtGeneral.h"
#include "kestotool/geometry/KCAngle.h"
#include "kestotool/platform/Export.h"

#include <vector>

namespace Kesto2D {

// An outline of straight and elliptical-arc pieces, in double precision: the circles, ellipses
// and half circles that tools draw as control lines.
//
// An arc is kept as centre + u cos t + w sin t for t over its sweep, so an affine transform maps
// it exactly (the transform is applied to the centre and to u and w). For a plain circle of
// radius r, u = (r, 0) and w = (0, -r): t runs anticlockwise on screen, as angles do everywhere.
class KESTO_API K2DCurve {
public:
    K2DCurve() = default;

    static K2DCurve Circle(const K2DDblPoint& centre, double radius);
    // The arc of the circle that starts at angle start (from +x) and sweeps sweep; a negative
    // sweep runs clockwise.
    static K2DCurve Arc(const K2DDblPoint& centre, double radius, KCAngle start, KCAngle sweep);

    // Starts a new piece of outline at p.
    void MoveTo(const K2DDblPoint& p);
    // A straight line from the current point (or a new start, on an empty outline) to p.
    void LineTo(const K2DDblPoint& p);
    // An arc as above; a straight line joins the current point to the arc's start.
    void ArcTo(const K2DDblPoint& centre, double radius, KCAngle start, KCAngle sweep);

    bool IsEmpty() const { return m_pieces.empty(); }
    void Transform(const K2DLtGeneral& t);
    [[nodiscard]] K2DCurve Transformed(const K2DLtGeneral& t) const
    {
        K2DCurve c = *this;
        c.Transform(t);
        return c;
    }

    // The exact bounding box of the outline, each edge rounded half away from zero (right and
    // bottom are the largest coordinates themselves); all zero for an empty outline.
    CRect GetBBox() const;

    // The outline as polylines, one per piece started by MoveTo, no point farther than
    // tolerance from the true curve (a non-positive tolerance counts as a quarter unit).
    std::vector<std::vector<K2DDblPoint>> Flatten(double tolerance) const;

private:
    struct Piece {
        enum class Kind { Move, Line, Arc } kind;
        K2DDblPoint point; // Move and Line: the target; Arc: the centre
        K2DVector u;
        K2DVector w;
        double start = 0; // radians
        double sweep = 0; // radians
        K2DDblPoint ArcPoint(double t) const;
    };

    std::vector<Piece> m_pieces;
};

} // namespace Kesto2D
