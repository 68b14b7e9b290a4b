#pragma once

#include "kestotool/filltool/FillTool.h"
#include "kestotool/gdi/ColourIntPairs.h"
#include "kestotool/platform/Export.h"

#include <optional>

namespace KestoTool {

// The base of the tools whose colours are a stop list: adding, moving, recolouring, making
// transparent and deleting stops, the transparency-level boxes, 90-degree rotation and fitting
// to the shape. Every edit copies the list, changes the copy and commits a whole new fill.
//
// Handles: the stop handles come first, in stop order (all stops when CanCreateNewNode, else
// only the first and the last), then the concrete tool's extra handles, the extended nodes.
class KESTO_API FillToolGradient : public FillTool {
    KESTO_DECLARE_DYNAMIC(FillToolGradient)
public:
    FillToolGradient(const CFill* fill, IToolSite* site) : FillTool(fill, site) {}

    int IndexFromPoint(const CPoint& point) const override;
    bool OnFillCellDrop(CPoint& point, const CColour* colour) override;
    bool OnFillCellChanged(const CColour* colour) override;
    bool OnAlphaCellChanged(unsigned char alpha) override;
    bool OnTintChanged(int tint) override;
    const CColour* ColourFromNode() const override;
    bool CreateNewNode(const CPoint& point) override;
    void InitContextButtons(CXTPCommandBars* bars) override;
    const CColour* GetCurrentColour() const override { return ColourFromNode(); }
    void DeleteGradientNode(int index) override;
    // KeyDelete removes the current stop when it may be deleted.
    void OnKeyDown(unsigned int key, unsigned int repeat, unsigned int flags) override;
    // The fill rectangle in spread space, normalised, grown by 7 x 7 pixels for the handles.
    CRect GetToolRect(const CFill* fill) override;
    // A rectangle in object space as GetToolRect gives the fill rectangle.
    CRect ToolRectOf(const CRect& box) const;

    // Rotates the fill about the object's centre by angle (hundredths of a degree,
    // anticlockwise), keeping its proportions to the object when the ratio is locked.
    virtual void RotateFill(int angle);
    virtual bool SupportsLockRatio() const { return true; }
    virtual int GetNodeCount() const { return GetGradientNodes().GetSize(); }
    virtual const KestoGDI::ColourIntPairs& GetGradientNodes() const;
    // Moves stop index to value; answers the stop's index after sorting.
    virtual int SetGradientValue(int index, int value);
    virtual void SetGradientColour(int index, const CColour* colour);
    virtual bool IsPointOnNodeLine(CPoint a, CPoint b, CPoint p, int tolerance) const;
    // The box of the fill's line, whose proportions decide the lock-ratio factor.
    virtual CRect GetFillLineBox(const CFill* fill) { return GetFillRect(fill); }

    // Appends the stop handles between start and end.
    void AddGradientHandles(K2DArrayPoint* handles, CPoint start, CPoint end) const;
    // Adds a stop at position of the given colour (for a transparency, of the inverted level);
    // answers its index.
    int AddGradientNode(const CColour& colour, int position);
    // Adds a stop at position with the gradient's own colour there; answers its index.
    int AddGradientNode(int position);
    bool CanDeleteCurrentNode() const;
    void DeleteCurrentNode() { DeleteGradientNode(GetCurrentNode()); }
    // A box per handle that shows a stop, in the stop's colour.
    void AddControlBoxes(HandleScene& scene) const;
    // A closed control line through the handles in handle order, highlighted on the render
    // target (and with onContextToo on the render context as well).
    void AddHandleOutline(HandleScene& scene, bool onContextToo = false) const;
    // The corner tools' handles: the closed line through them, then a box per node-list entry i
    // at handle i in entry i's colour (their node list holds one colour per corner).
    void AddCorners(HandleScene& scene) const;
    // Gives the fill its default placement over the object; with max, a bitmap fill grows the
    // box to the bitmap's proportions so that it still covers the object.
    void FitToShape(bool max);
    int GetExtendedNode() const;
    const CColour* GetGradientColour(int index) const;
    // The transparency level (0..255) of handle h's stop; -1 when there is none.
    int GetLevel(int handle) const;
    // Position 0..10000 of the point of segment start-end nearest p; -1 for a degenerate segment.
    int GetNodeValueFromPoints(CPoint start, CPoint end, CPoint p) const;
    int GetNumGradientNodes() const;
    bool IsExtendedNode(int handle) const { return handle >= GetNumGradientNodes(); }
    bool IsExtendedNode() const { return IsExtendedNode(GetCurrentNode()); }
    bool IsFirstNode(int handle) const { return handle == 0; }
    bool IsFirstNode() const { return IsFirstNode(GetCurrentNode()); }
    bool IsLastNode(int handle) const;
    bool IsLastNode() const { return IsLastNode(GetCurrentNode()); }
    void SetGradientAlpha(int index, unsigned char alpha);
    // Commits the fill with this stop list: the one place a changed list leaves the tool.
    void SetGradientNodes(const KestoGDI::ColourIntPairs& stops);
    void SetGradientTint(int index, int tint);
    // Sets stop index (-1: the current node) to a grey level and commits the transparency.
    void SetLevel(int level, int index, bool commit);
    bool IsLockRatio() const { return m_bLockRatio; }
    // Moves stop index to the position of point on the segment from-to (0..10000) and keeps it
    // current wherever sorting puts it: the stop drag of the tools whose stop follows the pointer
    // past its neighbours.
    void SlideStopFollowing(int index, CPoint from, CPoint to, CPoint point)
    {
        SetCurrentNode(SetGradientValue(index, GetNodeValueFromPoints(from, to, point)));
    }
    // The hint of the tools that have none of their own: the text made empty; answers 1.
    static int EmptyHint(CString* out);
    // Where the ends of a corner's two arms go when one end is dragged from draggedStart by the
    // pointer's move press -> point: the dragged end follows (snapped unless shift), and the
    // other end turns with it about the corner, or with ctrl moves by press -> perpendicular.
    struct Arms {
        CPoint dragged;
        CPoint other;
    };
    Arms DragArmEnd(CPoint corner, CPoint draggedStart, CPoint otherStart, CPoint press, CPoint point,
                    CPoint perpendicular, bool shift, bool ctrl);
    // A figure placed by a corner P0 and the ends P1 and P2 of its two arms, and for the
    // four-colour kind the opposite corner P3: the plasma and bitmap tiles, the corner kinds.
    struct Figure {
        CPoint p0, p1, p2;
        CPoint p3{};
    };
    // A new figure drawn from anchor to point with its second arm ending at perpendicular;
    // anchor snaps to the grid, and point too (in place) unless shift.
    Figure DrawnFigure(CPoint anchor, CPoint& point, CPoint perpendicular, bool shift);
    // The figure moved whole by the pointer's move press -> point; P0 alone snaps unless shift.
    Figure MovedFigure(const Figure& start, CPoint press, CPoint point, bool shift);
    // The figure with the end of its first arm (P1) or second (P2) dragged, as DragArmEnd says.
    Figure FigureWithArmDragged(const Figure& start, bool first, CPoint press, CPoint point, CPoint perpendicular,
                                bool shift, bool ctrl);
    // The stop of handle h for the tools whose extra handles show and edit the last stop.
    int LastStopForExtendedNode(int handle) const
    {
        return IsExtendedNode(handle) ? GetNumGradientNodes() - 1 : handle;
    }
    // The square whose centre line runs from start to end, as a closed outline of four corners.
    static K2DArrayPoint SquareOnLine(CPoint start, CPoint end);
    // The parallelogram centre +- (end - centre) +- (shape - centre), closed: the outline of a
    // fill spanned by two axes from its centre.
    static K2DArrayPoint AxesParallelogram(CPoint centre, CPoint end, CPoint shape);
    // The parallelogram p0, p1, p1 + p2 - p0, p2, closed: the outline of a fill spanned by two
    // arms from its corner p0.
    static K2DArrayPoint CornerParallelogram(CPoint p0, CPoint p1, CPoint p2);
    // The rectangle from centre to the farther of end and shape (end when they are as far).
    static CRect LongerAxisBox(CPoint centre, CPoint end, CPoint shape);

protected:
    const KestoPlatform::AFX_MSGMAP* GetMessageMap() const override;

    void OnFillRotateCCW() { RotateFill(9000); }
    void OnFillRotateCW() { RotateFill(-9000); }
    void OnTransStart(KestoPlatform::NMXTPCONTROL* notify, long* result);
    void OnTransEnd(KestoPlatform::NMXTPCONTROL* notify, long* result);
    void OnTransSolid(KestoPlatform::NMXTPCONTROL* notify, long* result);
    void OnUpdateTransStart(KestoPlatform::CCmdUI* ui);
    void OnUpdateTransEnd(KestoPlatform::CCmdUI* ui);
    void OnUpdateTransSolid(KestoPlatform::CCmdUI* ui);
    void OnFillAspect() { m_bLockRatio = !m_bLockRatio; }
    void OnUpdateFillAspect(KestoPlatform::CCmdUI* ui);
    void OnFitToShape() { FitToShape(false); }
    void OnMaxFitToShape() { FitToShape(true); }
    void OnTransFitToShape() { FitToShape(false); }
    void OnResetNodes() { FitToShape(false); }

private:
    // A level box's value, as a level, set on stop index (-1: the current node).
    void TakeLevelFromBox(KestoPlatform::NMXTPCONTROL* notify, int index);
    // Shows the level of handle h in the level box behind an update request.
    void ShowLevelInBox(KestoPlatform::CCmdUI* ui, int handle);
    // The stop that the current handle's alpha or tint edit goes to; none without a current
    // node, or (clearing it) for a current node past the stops.
    std::optional<int> CurrentStopForEdit();
    // The colour a handle is drawn in.
    const CColour* HandleColour(int handle) const;
    // The object's box moved into object space.
    CRect ObjectBoxInObjectSpace() const;
    // Commits a whole new fill as the tool's kind of edit: fill or transparency.
    void Commit(const CFill* fill, const wchar_t* undoName);

    bool m_bLockRatio = false;
};

} // namespace KestoTool
