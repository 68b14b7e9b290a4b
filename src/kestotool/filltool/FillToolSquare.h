#pragma once

#include "kestotool/filltool/FillToolGradient.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// Edits a square gradient fill or transparency: nested parallelograms round the centre C,
// spanned by the axes C-E (along which the stops lie) and C-F. F is the one extended node and
// shows the last stop's colour.
//
// Unlike the other gradient tools, a stop position is not kept off the ends (a click at C adds
// a stop at 0), Shift constrains a handle from where that handle started, and a stop dragged
// past its neighbour stays the current one. The outline drawn and every rectangle is the
// parallelogram C +- (E - C) +- (F - C).
class KESTO_API FillToolSquare : public FillToolGradient {
    KESTO_DECLARE_DYNAMIC(FillToolSquare)
public:
    FillToolSquare(const CFill* fill, IToolSite* site) : FillToolGradient(fill, site) {}

    void OnDragStart(CPoint& point, unsigned int flags) override;
    void OnDragChange(CPoint& point, unsigned int flags) override;
    // The bounding box of the parallelogram.
    CRect GetFillRect(const CFill* fill) override;
    // The rectangle from C to the farther of E and F, not normalised.
    CRect GetFillLineBox(const CFill* fill) override;
    K2DArrayPoint GetEffectiveBBox(const CFill* fill) override;
    // The tool has no hint of its own: the text is made empty.
    int GetHintLine(CString* out) const override;
    bool CanCreateNewNode() const override { return true; }
    void BaseGetHandles(K2DArrayPoint* handles) const override;
    // Handle n (F, with n stops) edits stop n - 1.
    int GradientIndex(int handle) const override;
    bool IsPointOnLine(const CPoint& point, int tolerance) const override;
    // The position along C-E, not clamped: 0 and 10000 included, -1 for a degenerate axis.
    int GetPercentageFromPoint(CPoint point) const override;
    // Both axes longer than 49.
    bool CheckSize() const override;

protected:
    void BuildHandleScene(HandleScene& scene) const override;

private:
    struct Axes {
        CPoint centre, end, shape;
    };
    bool GetAxes(const CFill* fill, Axes& axes) const;
    // The tool's own axes; reports with line when the tool has no fill.
    bool GetOwnAxes(Axes& axes, int line) const;
    void SetAxes(const Axes& axes);

    Axes m_atPress;
};

} // namespace KestoTool
