#pragma once

#include "kestotool/filltool/FillToolGradient.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// What the plasma and bitmap tools answer alike: their fill (of class Fill) is placed by a
// stop line P0-P1 and an arm P0-P2, which span one tile of the pattern. The rectangles are the
// tile parallelogram's, the line is P0-P1 (positions 0..10000 along it), both arms must be at
// least 50 long, and there is no hint. Without a fill each query reports, under the tool's own
// class name, and answers its empty result.
template <class Fill>
class KESTO_API FillToolStopLineArm : public FillToolGradient {
public:
    // The bounding box of the tile parallelogram P0, P1, P1 + P2 - P0, P2.
    CRect GetFillRect(const CFill* fill) override;
    K2DArrayPoint GetEffectiveBBox(const CFill* fill) override;
    int GetHintLine(CString* out) const override { return EmptyHint(out); }
    bool IsPointOnLine(const CPoint& point, int tolerance) const override;
    // The position along P0-P1, 0..10000; -1 without a fill or for a line of no length.
    int GetPercentageFromPoint(CPoint point) const override;
    bool CheckSize() const override;
    // Remembers the tile's points at the press and makes the handle there current.
    void OnDragStart(CPoint& point, unsigned int flags) override;

protected:
    FillToolStopLineArm(const CFill* fill, IToolSite* site, const char* module)
        : FillToolGradient(fill, site), m_module(module)
    {
    }

    using Points = Figure; // P3 unused
    // The tile's three points as the tool shows them (the control points unless a tool places
    // them otherwise); false without a fill of the kind.
    virtual bool GetPoints(const CFill* fill, Points& points) const;
    void SetPoints(const Points& points);
    const Points& PointsAtPress() const { return m_atPress; }
    // An inner stop (0 < node < last) slides along the stop line as it is now, after point.
    void SlideInnerStop(int node, int last, const CPoint& point);
    void ReportNoFill(int line) const;

private:
    const char* m_module;
    Points m_atPress{};
};

} // namespace KestoTool
