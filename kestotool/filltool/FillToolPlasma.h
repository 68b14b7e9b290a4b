#pragma once

#include "filltool/FillToolGradient.h"

namespace KestoTool {

// Edits a plasma fill or transparency: the pattern tile spanned by the stop line P0-P1 (with
// the stops along it) and the arm P0-P2. Dragging P1 turns P2 with it (or, with Ctrl, moves it
// by the perpendicular offset); dragging P2 leaves P1 where it is unless Shift or Ctrl says
// otherwise, on purpose. Handles: P0, the inner stops, P1, then P2 (the extended node).
class FillToolPlasma : public FillToolGradient {
    KESTO_DECLARE_DYNAMIC(FillToolPlasma)
public:
    FillToolPlasma(const CFill* fill, IToolSite* site) : FillToolGradient(fill, site) {}

    void OnDragStart(CPoint& point, unsigned int flags) override;
    void OnDragChange(CPoint& point, unsigned int flags) override;
    void Draw(IRenderTarget* target, bool outlineOnly, const K2DLtGeneral& view) const override;
    void Draw(CRenderContext* context) const override;
    // The bounding box of the tile parallelogram P0, P1, P1 + P2 - P0, P2.
    CRect GetFillRect(const CFill* fill) override;
    K2DArrayPoint GetEffectiveBBox(const CFill* fill) override;
    // The tool has no hint of its own: the text is made empty.
    int GetHintLine(CString* out) const override;
    bool CanCreateNewNode() const override { return true; }
    void BaseGetHandles(K2DArrayPoint* handles) const override;
    bool IsPointOnLine(const CPoint& point, int tolerance) const override;
    // The position along P0-P1, 0..10000; -1 without a fill or for a line of no length.
    int GetPercentageFromPoint(CPoint point) const override;
    bool CheckSize() const override;

private:
    struct Points {
        CPoint p0, p1, p2;
    };
    bool GetPoints(const CFill* fill, Points& points) const;
    void SetPoints(const Points& points);

    Points m_atPress{};
};

} // namespace KestoTool
