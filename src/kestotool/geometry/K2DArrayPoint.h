#pragma once

#include "kestotool/geometry/Kesto2DImports.h"
#include "kestotool/platform/Export.h"

#include <vector>

namespace Kesto2D {

// A growable array of integer points: outlines, polylines and a tool's handle list.
class KESTO_API K2DArrayPoint {
public:
    K2DArrayPoint() = default;
    // initialSize points at the origin; a negative size gives an empty array.
    explicit K2DArrayPoint(int initialSize);

    int GetSize() const { return static_cast<int>(m_points.size()); }
    bool IsEmpty() const { return m_points.empty(); }
    // The point at index; an index out of range reports "Verify failed" and answers (0, 0).
    CPoint GetAt(int index) const;
    // Replaces the point at index; out of range reports "Verify failed" and changes nothing.
    void SetAt(int index, const CPoint& p);
    // Appends a point and answers its index.
    int Add(const CPoint& p);
    // Closes the outline that starts at startIndex by repeating that point at the end, unless
    // the last point already equals it. Does nothing to an empty array or a bad index.
    void AddClose(int startIndex = 0);
    // Appends a closed polygon through the ellipse with the given centre and radii: 64 points
    // starting at centre + (radiusX, 0) and running anticlockwise on screen, then the first
    // point again.
    void AppendEllipse(const CPoint& centre, int radiusX, int radiusY);
    void RemoveAll() { m_points.clear(); }

    // The rectangle from the smallest to the largest coordinates (right and bottom are the
    // largest x and y themselves); all zero for an empty array.
    CRect GetBBox() const;

    auto begin() const { return m_points.begin(); }
    auto end() const { return m_points.end(); }
    friend bool operator==(const K2DArrayPoint&, const K2DArrayPoint&) = default;

private:
    std::vector<CPoint> m_points;
};

} // namespace Kesto2D
