#pragma once

#include "kestotool/filltool/FillToolGradient.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// Edits an elliptical gradient fill or transparency: the image of a circle under the affine map
// that takes two perpendicular radii to C-E and C-F. The stops lie on C-E; the shape handle F
// is the one extended node and shows the last stop's colour. Dragging E or F turns the other
// with it (or, with Ctrl, keeps the aspect ratio); dragging off the handles draws a new
// ellipse.
class KESTO_API FillToolElliptical : public FillToolGradient {
    KESTO_DECLARE_DYNAMIC(FillToolElliptical)
public:
    FillToolElliptical(const CFill* fill, IToolSite* site) : FillToolGradient(fill, site) {}

    void OnDragStart(CPoint& point, unsigned int flags) override;
    void OnDragChange(CPoint& point, unsigned int flags) override;
    // The bounding box of the ellipse (fill, or the tool's own when null).
    CRect GetFillRect(const CFill* fill) override;
    // The rectangle from C to the farther of E and F, not normalised.
    CRect GetFillLineBox(const CFill* fill) override;
    int GetHintLine(CString* out) const override;
    bool CanCreateNewNode() const override { return true; }
    // The stop handles along C-E, then F.
    void BaseGetHandles(K2DArrayPoint* handles) const override;
    int GradientIndex(int handle) const override { return LastStopForExtendedNode(handle); }
    bool IsPointOnLine(const CPoint& point, int tolerance) const override;
    // The position of point along C-E, kept off the ends: 1..9999.
    int GetPercentageFromPoint(CPoint point) const override;
    // The parallelogram that encloses the ellipse: its bounding box in the axes' own frame,
    // C +- (E - C) +- (F - C), as four corners, closed. It turns and shears with the fill, as
    // the other tools' outlines turn with theirs.
    K2DArrayPoint GetEffectiveBBox(const CFill* fill) override;

protected:
    void BuildHandleScene(HandleScene& scene) const override;

private:
    struct Axes {
        CPoint centre, end, shape;
    };
    bool GetAxes(const CFill* fill, Axes& axes) const;
    void SetAxes(const Axes& axes);
    // The ellipse as the image of a circle of 100 units about C.
    static K2DLtGeneral CircleToEllipse(const Axes& axes);

    Axes m_atPress;
};

} // namespace KestoTool
