#pragma once

#include "kestotool/filltool/FillToolGradient.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// Edits a radial gradient fill or transparency: a circle given by its centre C and a rim point
// E, the stops on the radius C-E. The centre handle moves the whole circle, the rim handle its
// radius and angle, inner stops slide along the radius; dragging off the handles draws a new
// circle from its centre out.
class KESTO_API FillToolRadial : public FillToolGradient {
    KESTO_DECLARE_DYNAMIC(FillToolRadial)
public:
    FillToolRadial(const CFill* fill, IToolSite* site) : FillToolGradient(fill, site) {}

    void OnDragStart(CPoint& point, unsigned int flags) override;
    void OnDragChange(CPoint& point, unsigned int flags) override;
    void BuildHandleScene(HandleScene& scene) const override;
    // The bounding box of the circle (fill, or the tool's own when null).
    CRect GetFillRect(const CFill* fill) override;
    // The rectangle (C, E), not normalised.
    CRect GetFillLineBox(const CFill* fill) override;
    int GetHintLine(CString* out) const override;
    bool CanCreateNewNode() const override { return true; }
    void BaseGetHandles(K2DArrayPoint* handles) const override;
    int GradientIndex(int handle) const override { return LastStopForExtendedNode(handle); }
    bool IsPointOnLine(const CPoint& point, int tolerance) const override;
    // The position of point along the radius, kept off the ends: 1..9999.
    int GetPercentageFromPoint(CPoint point) const override;
    // The square on the diameter through E: side 2r, centred on C, turned with the radius.
    K2DArrayPoint GetEffectiveBBox(const CFill* fill) override;

private:
    bool GetCircle(const CFill* fill, CPoint& centre, CPoint& rim) const;
    void SetCircle(const CPoint& centre, const CPoint& rim);

    CPoint m_centreAtPress;
    CPoint m_rimAtPress;
};

} // namespace KestoTool
