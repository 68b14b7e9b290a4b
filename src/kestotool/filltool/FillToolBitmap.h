#pragma once

#include "kestotool/filltool/FillToolStopLineArm.h"
#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// Places, scales, rotates and skews a bitmap fill's tile: P0 its origin, P1 the end of its
// first axis, P2 the end of its second. Dragging P0 moves the tile; dragging an axis end turns
// the other axis with it (with Ctrl, moves it by the perpendicular offset). Shift constrains the
// angle about P0, except on P1 without Ctrl. Handles: P0, P1 (the first and last stops' handles,
// as bitmaps show no inner stops), then P2.
class KESTO_API FillToolBitmap : public FillToolStopLineArm<KestoGDI::CFillBitmap> {
    KESTO_DECLARE_DYNAMIC(FillToolBitmap)
public:
    FillToolBitmap(const CFill* fill, IToolSite* site) : FillToolStopLineArm(fill, site, "FillToolBitmap") {}

    void OnDragChange(CPoint& point, unsigned int flags) override;
    void BaseGetHandles(K2DArrayPoint* handles) const override;
    // While the P2 handle is current, every handle edits the last stop.
    int GradientIndex(int handle) const override;

protected:
    void BuildHandleScene(HandleScene& scene) const override;
    // For tools built on this one, which report under their own class name.
    FillToolBitmap(const CFill* fill, IToolSite* site, const char* module) : FillToolStopLineArm(fill, site, module) {}
};

} // namespace KestoTool
