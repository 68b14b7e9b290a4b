#pragma once

#include "kestotool/filltool/FillToolStopLineArm.h"
#include "kestotool/gdi/CFillFractal.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// Edits a plasma fill or transparency: the pattern tile spanned by the stop line P0-P1 (with
// the stops along it) and the arm P0-P2. Dragging P1 turns P2 with it (or, with Ctrl, moves it
// by the perpendicular offset); dragging P2 leaves P1 where it is unless Shift or Ctrl says
// otherwise, on purpose. Handles: P0, the inner stops, P1, then P2 (the extended node).
class KESTO_API FillToolPlasma : public FillToolStopLineArm<KestoGDI::CFillFractal> {
    KESTO_DECLARE_DYNAMIC(FillToolPlasma)
public:
    FillToolPlasma(const CFill* fill, IToolSite* site) : FillToolStopLineArm(fill, site, "FillToolPlasma") {}

    void OnDragChange(CPoint& point, unsigned int flags) override;
    bool CanCreateNewNode() const override { return true; }
    void BaseGetHandles(K2DArrayPoint* handles) const override;

protected:
    void BuildHandleScene(HandleScene& scene) const override;
};

} // namespace KestoTool
