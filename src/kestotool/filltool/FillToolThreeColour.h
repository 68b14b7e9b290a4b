#pragma once

#include "kestotool/filltool/FillToolGradient.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// Edits a three-colour fill or transparency: colour blended over the parallelogram spanned by
// the arms P0-P1 and P0-P2, one colour per corner handle (handle i shows and edits node-list
// entry i). Dragging P0 moves the whole figure; dragging P1 or P2 turns the other arm with it,
// or with Ctrl moves it by the perpendicular offset; dragging off the handles draws a new one.
class KESTO_API FillToolThreeColour : public FillToolGradient {
    KESTO_DECLARE_DYNAMIC(FillToolThreeColour)
public:
    FillToolThreeColour(const CFill* fill, IToolSite* site) : FillToolGradient(fill, site) {}

    void OnDragStart(CPoint& point, unsigned int flags) override;
    void OnDragChange(CPoint& point, unsigned int flags) override;
    void BuildHandleScene(HandleScene& scene) const override;
    // The bounding box of P0, P1 and P2.
    CRect GetFillRect(const CFill* fill) override;
    // The tool has no hint of its own: the text is made empty.
    int GetHintLine(CString* out) const override;
    // P0, P1, P2.
    void BaseGetHandles(K2DArrayPoint* handles) const override;
    // Both arms at least 50 long.
    bool CheckSize() const override;
    // The parallelogram P0, P1, P1 + P2 - P0, P2, closed.
    K2DArrayPoint GetEffectiveBBox(const CFill* fill) override;

private:
    struct Corners {
        CPoint p0, p1, p2;
    };
    bool GetCorners(const CFill* fill, Corners& corners) const;
    void SetCorners(const Corners& corners);

    Corners m_atPress{};
};

} // namespace KestoTool
