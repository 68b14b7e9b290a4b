#include "kestotool/gdi/CFillDiscreteMesh.h"

#include "kestotool/geometry/CoordinateRange.h"

#include <algorithm>

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillDiscreteMesh, CFill)

CFillDiscreteMesh::CFillDiscreteMesh()
{
    SetGrid(MinSide, MinSide, CRect());
}

bool CFillDiscreteMesh::SetGrid(int columns, int rows, const CRect& rect)
{
    if (columns < MinSide || columns > MaxSide || rows < MinSide || rows > MaxSide)
        return false;
    m_columns = columns;
    m_rows = rows;
    const std::size_t n = static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows);
    m_points.assign(n, K2DDblPoint());
    m_colours.assign(n, CRGBColour(0xFFFFFF));
    SetDefaultControls(rect);
    return true;
}

void CFillDiscreteMesh::SetDefaultControls(const CRect& rect)
{
    const CRect r = rect.Normalized();
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column) {
            m_points[static_cast<std::size_t>(IndexOf(column, row))] =
                Kesto2D::SaturateToRange(K2DDblPoint(r.left + static_cast<double>(r.Width()) * column / (m_columns - 1),
                                                     r.top + static_cast<double>(r.Height()) * row / (m_rows - 1)));
        }
    }
}

int CFillDiscreteMesh::IndexOf(int column, int row) const
{
    if (column < 0 || column >= m_columns || row < 0 || row >= m_rows)
        return -1;
    return row * m_columns + column;
}

const CColour* CFillDiscreteMesh::GetNodeColour(int column, int row) const
{
    const int i = IndexOf(column, row);
    return i < 0 ? nullptr : &m_colours[static_cast<std::size_t>(i)];
}

bool CFillDiscreteMesh::SetNodeColour(int column, int row, const CColour& colour)
{
    const int i = IndexOf(column, row);
    if (i < 0)
        return false;
    CRGBColour& node = m_colours[static_cast<std::size_t>(i)];
    node = CRGBColour(colour.GetRGB());
    node.SetAlpha(colour.GetAlpha());
    return true;
}

bool CFillDiscreteMesh::IsEqualData(const CFill& other) const
{
    const auto& o = static_cast<const CFillDiscreteMesh&>(other);
    return CFill::IsEqualData(other) && m_columns == o.m_columns && m_rows == o.m_rows &&
           std::equal(m_colours.begin(), m_colours.end(), o.m_colours.begin(), o.m_colours.end(),
                      [](const CRGBColour& a, const CRGBColour& b) { return a.IsEqual(b); });
}

std::size_t CFillDiscreteMesh::HeapBytes() const
{
    return m_points.capacity() * sizeof(K2DDblPoint) + m_colours.capacity() * sizeof(CRGBColour);
}

} // namespace KestoGDI
