#pragma once

#include "kestotool/filltool/FillToolGradient.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// Edits a conical gradient fill or transparency: a sweep round the centre C from the radius end
// R. Stop positions 0..10000 are the angles 0..180 degrees from C-R, anticlockwise on screen,
// so the stops lie on the half circle from R to the point opposite it. Either end of the half
// circle turns the sweep, the centre moves it, inner stops slide round it. The tool never
// snaps to the grid.
//
// Handles: R (the first stop), the inner stops on the half circle, the point opposite R (the
// last stop), then C, the one extended node, which shows the last stop's colour.
class KESTO_API FillToolConical : public FillToolGradient {
    KESTO_DECLARE_DYNAMIC(FillToolConical)
public:
    FillToolConical(const CFill* fill, IToolSite* site) : FillToolGradient(fill, site) {}

    void OnDragStart(CPoint& point, unsigned int flags) override;
    void OnDragChange(CPoint& point, unsigned int flags) override;
    // A rectangle of r x r centred on C, r the distance C-R.
    CRect GetFillRect(const CFill* fill) override;
    // The rectangle (C, R), not normalised.
    CRect GetFillLineBox(const CFill* fill) override;
    // The box of the whole circle of radius |CR| about C, in spread space, grown for the handles.
    CRect GetToolRect(const CFill* fill) override;
    // The square round that circle, closed.
    K2DArrayPoint GetEffectiveBBox(const CFill* fill) override;
    int GetHintLine(CString* out) const override;
    bool CanCreateNewNode() const override { return true; }
    void BaseGetHandles(K2DArrayPoint* handles) const override;
    int GradientIndex(int handle) const override { return LastStopForExtendedNode(handle); }
    // Only the half circle that the stop handles lie on counts as the line.
    bool IsPointOnLine(const CPoint& point, int tolerance) const override;
    // The point's angle from C-R folded onto 0..180 degrees, as a position kept off the ends.
    int GetPercentageFromPoint(CPoint point) const override;

protected:
    void BuildHandleScene(HandleScene& scene) const override;

private:
    bool GetSweep(const CFill* fill, CPoint& centre, CPoint& radiusEnd) const;
    void SetSweep(const CPoint& centre, const CPoint& radiusEnd);
    // Where the stop at position sits: R turned about C by position x 180 / 10000 degrees.
    static CPoint StopPoint(CPoint centre, CPoint radiusEnd, int position);
    // The circle of radius |CR| about C, as a rectangle.
    static CRect CircleBox(CPoint centre, CPoint radiusEnd);

    CPoint m_centreAtPress;
    CPoint m_radiusEndAtPress;
};

} // namespace KestoTool
