#pragma once

#include <kestotool/gdi/CFill.h>
#include <kestotool/platform/CPoint.h>
#include <kestotool/platform/CRect.h>
#include <kestotool/raster/Path.h>

#include <QPainterPath>
#include <QString>

#include <algorithm>
#include <vector>

namespace KestoDraw {

// One shape of a drawing, in document units: a rectangle, an ellipse in its box, a closed path
// through its corners, or an outline of lines and curves (as an imported drawing brings them).
// Fills are shared and never changed once a shape holds them.
struct Shape {
    enum class Kind { Rectangle, Ellipse, Path, Curves };

    Kind kind = Kind::Rectangle;
    KestoPlatform::CRect box;                                // normalized; a path's bounds
    std::vector<KestoPlatform::CPoint> points;               // a path's corners
    KestoRaster::Path curves;                                // the outline of curves
    KestoKernel::RefPtr<const KestoGDI::CFill> fill;         // never null
    KestoKernel::RefPtr<const KestoGDI::CFill> transparency; // null: none

    QPainterPath Outline() const;
    // Whether the other shape has the same outline (fills aside).
    bool SameOutline(const Shape& other) const
    {
        return kind == other.kind && box == other.box && points == other.points &&
               curves.Verbs() == other.curves.Verbs() &&
               std::equal(curves.Points().begin(), curves.Points().end(), other.curves.Points().begin(),
                          other.curves.Points().end(),
                          [](const auto& a, const auto& b) { return a.x == b.x && a.y == b.y; });
    }
    // The name that starts every hint line about the shape ("Rectangle: "), in the user's language.
    QString Description() const;
    // Moves the shape and its fills by (dx, dy), inside the coordinate range.
    void Offset(int dx, int dy);
};

// A drawing: a page and its shapes, bottom to top.
struct Document {
    static constexpr int DefaultWidth = 4000;
    static constexpr int DefaultHeight = 3000;

    int width = DefaultWidth;
    int height = DefaultHeight;
    std::vector<Shape> shapes;

    // The topmost shape whose outline holds the point; -1 for none.
    int ShapeAt(const KestoPlatform::CPoint& point) const;
};

} // namespace KestoDraw
