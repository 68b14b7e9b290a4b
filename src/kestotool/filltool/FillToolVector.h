#pragma once

#include "kestotool/filltool/FillToolBitmap.h"
#include "kestotool/gdi/CFillVector.h"
#include "kestotool/platform/Export.h"

#include <vector>

namespace KestoTool {

using KestoGDI::CFillVector;

// One control box: origin, x-axis end, y-axis end.
struct KESTO_API ControlInstance {
    K2DDblPoint origin, xEnd, yEnd;
};

// What places a neighbouring tile: the axis of the tile that leads to it and its spacing
// vector beyond that axis's end.
struct KESTO_API VectorPair {
    Kesto2D::K2DVector axis;
    Kesto2D::K2DVector spacing;
};

// Edits a vector fill in one of two modes. Scaling mode (0): handles at the tile's origin, the
// end of its x axis and the end of its y axis place, scale, turn and skew the tile. Spacing
// mode (1): handle 0 sits where the next instance along the y axis starts (B), 1 where the next
// one along the x axis starts (A), 2 and 3 turn those instances. The mode button switches.
class KESTO_API FillToolVector : public FillToolBitmap {
    KESTO_DECLARE_DYNAMIC(FillToolVector)
public:
    static constexpr int ScalingMode = 0;
    static constexpr int SpacingMode = 1;
    // Paper units: the rotation handles' distance from their tile handles, the reach of a
    // spacing snap, and the pointer's travel before a create drag makes a new box (more than
    // SpacingCreateTravel on both axes in spacing mode, ScalingCreateTravel on either in
    // scaling mode).
    static constexpr int RotationHandleLength = 15000;
    static constexpr int SnapReach = 3500;
    static constexpr int SpacingCreateTravel = 6000;
    static constexpr int ScalingCreateTravel = 6001;

    FillToolVector(const CFill* fill, IToolSite* site) : FillToolBitmap(fill, site, "FillToolVector") {}

    // raw false: the placed box on the page; raw true: the raw box, scaled to the drawing when
    // no edit has scaled it yet.
    void GetCurrentControls(const CFillVector* fill, ControlInstance& out, bool raw) const;
    // Nothing to write back: the fill keeps its box itself.
    void SetCurrentControls(CFillVector*, const ControlInstance&, bool) {}
    // A point of the fill's space (moved by offset first) on the page.
    K2DDblPoint GetTransformedPointFromFill(const CFillVector* fill, const K2DDblPoint& p,
                                            const K2DDblPoint& offset = {}) const;
    // The angle (clockwise radians) that counts as zero for the rotation handles.
    double GetZeroDegrees(const CFillVector* fill) const;
    // The box of the neighbour reached along now.axis, its spacing scaled as that axis's length
    // changed since atStart: the neighbours stay attached while the tile is scaled.
    static void CalculateTileHandles(ControlInstance& out, const ControlInstance& in, const VectorPair& atStart,
                                     const VectorPair& now);

    void BaseGetHandles(K2DArrayPoint* handles) const override;
    void OnDragStart(CPoint& point, unsigned int flags) override;
    void OnDragChange(CPoint& point, unsigned int flags) override;
    void OnDragEnd(CPoint& point, unsigned int flags) override;
    void InitContextButtons(CXTPCommandBars* bars) override;

    void OnFillControlBoxModeClicked();
    void OnFillControlResetHandles();
    // With on, the tile turns and scales with its object; off, it keeps its size and turn.
    void OnTransformWithObject(bool on);
    void SetDrawObjectTransform(const K2DLtGeneral& transform) { m_drawObjectTransform = transform; }

    // The first snap value within SnapReach of each coordinate replaces it.
    void GetSnappedOffset(CPoint& offset) const;
    double GetTileRotation() const { return m_tileRotation; }
    const std::vector<int>& GetXSnapOffsets() const { return m_xSnapOffsets; }
    const std::vector<int>& GetYSnapOffsets() const { return m_ySnapOffsets; }

protected:
    void BuildHandleScene(HandleScene& scene) const override;
    const KestoPlatform::AFX_MSGMAP* GetMessageMap() const override;
    // The placed box on the page, rounded.
    bool GetPoints(const CFill* fill, Points& points) const override;

    void OnUpdateFillControlBoxScaleMode(KestoPlatform::CCmdUI* ui);
    void OnUpdateFillControlBoxSpaceMode(KestoPlatform::CCmdUI* ui);

private:
    void OnDragChangeSpaceAdjust(CPoint& point, unsigned int flags);
    void OnDragChangeScaleAndRotate(CPoint& point, unsigned int flags);
    // The spacing-mode handles for a placed box: B, A and their rotation handles.
    void SpacingHandles(const CFillVector& fill, const Points& box, K2DArrayPoint* handles) const;
    // The current controls, start points and spacing vectors from fill.
    void TakeStartState(const CFillVector& fill);
    // Rebuilds both snap lists from the placed instance's size.
    void BuildSnapOffsets(const CFillVector& fill);
    // Commits a box edited on the page (scaled to the drawing, the yEnd axis leading when
    // yLeads) with the neighbours kept attached.
    void CommitBox(ControlInstance box, bool yLeads);

    CPoint m_startOrigin, m_startXEnd, m_startYEnd;
    ControlInstance m_currentControls{};
    CPoint m_spacingVector1, m_spacingVector2;
    double m_tileRotation = 0;
    K2DLtGeneral m_tileRotationTransform;
    std::vector<int> m_xSnapOffsets, m_ySnapOffsets;
    K2DLtGeneral m_drawObjectTransform;
    // The spacing handles where the press found them.
    K2DArrayPoint m_spacingHandlesAtPress;
};

} // namespace KestoTool
