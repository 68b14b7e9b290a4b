#pragma once

#include "kestotool/gdi/CFill.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/platform/Export.h"

#include <vector>

namespace KestoGDI {

// A mesh fill: a grid of nodes, each with a position and a colour, the colour blended across
// each cell. Control points: the nodes row by row from the top-left, columns × rows of them.
class KESTO_API CFillDiscreteMesh : public CFill {
    KESTO_DECLARE_FILL(CFillDiscreteMesh)
public:
    static constexpr int MinSide = 2;
    static constexpr int MaxSide = 32;

    // A 2 × 2 white mesh over an empty rectangle at the origin.
    CFillDiscreteMesh();

    FillType::Type GetFillType() const override { return FillType::DiscreteMesh; }

    int GetColumns() const { return m_columns; }
    int GetRows() const { return m_rows; }
    // A new white grid laid evenly over the rectangle; sides outside MinSide..MaxSide answer
    // false and change nothing.
    bool SetGrid(int columns, int rows, const CRect& rect);
    // Lays the current grid evenly over the rectangle, keeping the node colours.
    void SetDefaultControls(const CRect& rect) override;

    // Null, or false, for a node outside the grid.
    const CColour* GetNodeColour(int column, int row) const;
    bool SetNodeColour(int column, int row, const CColour& colour);

protected:
    std::span<K2DDblPoint> ControlPoints() override { return m_points; }
    bool IsEqualData(const CFill& other) const override;
    std::size_t HeapBytes() const override;

private:
    int IndexOf(int column, int row) const;

    int m_columns = MinSide;
    int m_rows = MinSide;
    std::vector<K2DDblPoint> m_points;
    std::vector<CRGBColour> m_colours;
};

} // namespace KestoGDI
