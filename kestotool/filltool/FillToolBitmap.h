#pragma once

#include "filltool/FillToolGradient.h"

namespace KestoTool {

// Places, scales, rotates and skews a bitmap fill's tile: P0 its origin, P1 the end of its
// first axis, P2 the end of its second. Dragging P0 moves the tile; dragging an axis end turns
// the other axis with it (with Ctrl, moves it by the perpendicular offset). Shift constrains the
// angle about P0, except on P1 without Ctrl. Handles: P0, P1 (the first and last stops' handles,
// as bitmaps show no inner stops), then P2.
class FillToolBitmap : public FillToolGradient {
    KESTO_DECLARE_DYNAMIC(FillToolBitmap)
public:
    FillToolBitmap(const CFill* fill, IToolSite* site) : FillToolGradient(fill, site) {}

    void OnDragStart(CPoint& point, unsigned int flags) override;
    void OnDragChange(CPoint& point, unsigned int flags) override;
    void Draw(IRenderTarget* target, bool outlineOnly, const K2DLtGeneral& view) const override;
    void Draw(CRenderContext* context) const override;
    // The bounding box of the tile parallelogram P0, P1, P1 + P2 - P0, P2.
    CRect GetFillRect(const CFill* fill) override;
    K2DArrayPoint GetEffectiveBBox(const CFill* fill) override;
    // The tool has no hint of its own: the text is made empty.
    int GetHintLine(CString* out) const override;
    void BaseGetHandles(K2DArrayPoint* handles) const override;
    // While the P2 handle is current, every handle edits the last stop.
    int GradientIndex(int handle) const override;
    bool IsPointOnLine(const CPoint& point, int tolerance) const override;
    // The position along P0-P1, 0..10000; -1 without a fill or for a line of no length.
    int GetPercentageFromPoint(CPoint point) const override;
    bool CheckSize() const override;

protected:
    struct Points {
        CPoint p0, p1, p2;
    };
    bool GetPoints(const CFill* fill, Points& points) const;
    void SetPoints(const Points& points);

private:
    Points m_atPress{};
};

} // namespace KestoTool
