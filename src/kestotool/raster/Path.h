#pragma once

#include "kestotool/platform/Export.h"
#include "kestotool/raster/Paint.h"

#include <vector>

namespace KestoRaster {

// An outline of straight and cubic Bezier pieces in paint space: the shapes of a small drawing
// that a vector fill repeats. Each piece started by MoveTo is closed when it is filled; a path
// that does not begin with MoveTo begins at the first point given.
class KESTO_API Path {
public:
    enum class Verb { Move, Line, Cubic, Close };

    // An upright rectangle between two corners, and an ellipse about a centre with the two
    // radii, as four quarter arcs (each cubic within 0.03% of the radius of a true arc).
    static Path Rectangle(Point corner, Point opposite);
    static Path Ellipse(Point centre, double rx, double ry);

    void MoveTo(Point p);
    void LineTo(Point p);
    void CubicTo(Point c1, Point c2, Point end);
    // Ends the current piece; the next LineTo or CubicTo starts from its first point again.
    void Close();
    bool IsEmpty() const { return m_verbs.empty(); }
    // The same path with every point mapped through m (an affine map takes lines and cubics to
    // lines and cubics, so the mapped path is exact).
    Path Mapped(const Affine& m) const;

    // The pieces as closed polygons under toDevice, each cubic divided finely enough that no
    // point strays more than tolerance (device pixels) from the curve. Pieces with a point that
    // is not finite are left out.
    std::vector<std::vector<Point>> Flatten(const Affine& toDevice, double tolerance = 0.02) const;

    // The path as stored, for a reader that saves or converts it: each Move and Line takes one
    // point of Points in turn, each Cubic three (two controls, then the end), each Close none.
    // Played back through MoveTo, LineTo, CubicTo and Close they rebuild the same path.
    const std::vector<Verb>& Verbs() const { return m_verbs; }
    const std::vector<Point>& Points() const { return m_points; }

private:
    // Starts a piece where a line or curve needs one: at first on an empty path, after Close at
    // the closed piece's first point.
    void StartPiece(Point first);
    std::vector<Verb> m_verbs;
    std::vector<Point> m_points;
    std::size_t m_pieceStart = 0;
};

// Writes into mask (a Mask8 target) the coverage of the filled path under toDevice, 0..255, at
// each pixel of the clip: the exact area of the pixel that the outline covers by the non-zero
// rule, so edges are anti-aliased without sampling. Pieces that wind the same way over a pixel
// add up and clamp at full; pieces winding against each other cancel. Nothing outside the clip
// is written. Answers the work it did (cells the edges touched and pixels written), which grows
// with the clip's area and the edges' lengths, never with how often they cross.
KESTO_API std::size_t RenderCoverage(const Path& path, const Affine& toDevice, const Target& mask, const Clip& clip);

} // namespace KestoRaster
