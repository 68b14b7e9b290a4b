#pragma once

#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/VectorDrawing.h"
#include "kestotool/platform/CPoint.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// A vector fill: a small drawing (the meta instance) repeated in a grid over the object.
//
// Control box. The three control points are the raw box: 0 the tile's origin O, 1 the end of
// its x axis X, 2 the end of its y axis Y. The axes run as a reader sees the drawing: O is the
// drawing's bottom-left corner (0, height), X its bottom-right (width, height) and Y its
// top-left (0, 0), so an upright tile has its y axis pointing up the page and a tile rotation
// (MeasureTileRotation) of 0. The box places, scales, turns and skews the instance. The placed
// box is what is painted: the raw box once it is scaled to the meta instance (see
// ScaleControlBoxToMetaInstance). A raw box that no edit has scaled yet (a default box over the
// object, say) shows the drawing at its own size, along the box's axes, from the box's origin.
// GetWidthHeight is the size of the instance as placed, |X - O| by |Y - O|.
//
// Spread space. A point of the placed box reaches the page as c + L (p - c), where c is the
// notional centre and L the fit transform (UpdateBBox) followed by the object transform. The
// object transform is the identity unless the tile is kept independent of the object
// (SetScaleRotateIndependentOfObject), when it undoes the turn and scale of the object's own.
//
// Spacing. Two offsets (paper units) and two turns (whole degrees) place the neighbours: the
// spacing vectors are s1 = (x of offset 1, y of offset 2) and s2 = (-x of offset 2, -y of
// offset 1); the next instance along the x axis starts at O + R s1 + (X - O) and the next one
// along the y axis at O + R s2 + (Y - O), with R the turn of the tile (TileRotationTransform).
// A fill flipped on one axis only puts that axis's neighbour on the other side of the origin
// (its axis is negated), one flipped on both turns both neighbours half round about O.
// NeighbourOrigins is that rule: the tool puts its spacing handles there and the renderer its
// tiles. The x neighbour is turned by the second turn, the y neighbour by the first; the
// painted grid repeats every second instance, so instance (i, j) is turned by the second turn
// when i is odd plus the first when j is odd.
class KESTO_API CFillVector : public CFillBitmap {
    KESTO_DECLARE_FILL(CFillVector)
public:
    CFillVector() = default;
    explicit CFillVector(RefPtr<const VectorDrawing> drawing) : m_drawing(std::move(drawing)) {}

    FillType::Type GetFillType() const override { return FillType::Vector; }

    // The meta instance; null when the fill has none (it then paints nothing).
    const VectorDrawing* GetMetaInstance() const { return m_drawing.get(); }
    void SetMetaInstance(RefPtr<const VectorDrawing> drawing) { m_drawing = std::move(drawing); }
    // The drawing's own size in paper units; (1, 1) without a drawing.
    K2DDblPoint GetNaturalSize() const;

    // One box as three points.
    struct Box {
        K2DDblPoint origin, xEnd, yEnd;
    };
    Box GetRawBox() const { return {Point(0), Point(1), Point(2)}; }
    // Sets the raw box and whether it is already scaled to the meta instance.
    void SetRawBox(const Box& box, bool alreadyScaled);
    bool IsAlreadyScaled() const { return m_alreadyScaled; }
    Box GetPlacedBox() const;

    // Scales a box to the meta instance, keeping its origin and the directions of its axes.
    // fitAspect false: both axes take the drawing's own lengths. fitAspect true: the axes take
    // the drawing's proportions, the leading axis (y when yLeads, else x) keeping its length.
    // An axis of no length is left as it is.
    void ScaleControlBoxToMetaInstance(K2DDblPoint& origin, K2DDblPoint& xEnd, K2DDblPoint& yEnd, bool yLeads,
                                       bool fitAspect) const;
    // The same on integer points, rounded halves away from zero.
    void ScaleControlBoxToMetaInstance(CPoint& origin, CPoint& xEnd, CPoint& yEnd, bool yLeads, bool fitAspect) const;

    // The instance as placed: |X - O| by |Y - O| of the placed box, rounded.
    CPoint GetWidthHeight() const;
    // A box's axis lengths over the placed instance's: (1, 1) for the placed box itself;
    // an axis of the instance with no length counts as 1.
    K2DDblPoint GetScale(const K2DDblPoint& origin, const K2DDblPoint& xEnd, const K2DDblPoint& yEnd) const;

    // The fit transform and the box it was fitted to (editors keep them across a change of space).
    const K2DLtGeneral& GetTransform() const { return m_transform; }
    const CRect& GetObjectBox() const { return m_objectBox; }
    void UpdateBBox(const CRect& objectBox, const K2DLtGeneral& transform);
    const K2DLtGeneral& GetObjectTransform() const { return m_objectTransform; }
    // With independent on, the tile keeps its size and turn whatever the object's transform
    // (objectTransform is the object's current one); off, it follows the object again.
    void SetScaleRotateIndependentOfObject(bool independent, const K2DLtGeneral& objectTransform);
    bool ScaleRotateIndependentOfObject() const { return m_independent; }
    // The centre that the fit and object transforms turn about: the middle of the fitted
    // object's box, or of the placed box when there is none.
    K2DDblPoint GetNotionalCentre() const;
    // A point of the fill's space on the page, and back (p itself when that cannot be undone).
    K2DDblPoint ToSpread(const K2DDblPoint& p) const;
    K2DDblPoint FromSpread(const K2DDblPoint& p) const;

    CPoint GetAdditionalOffset() const { return m_offset1; }
    CPoint GetAdditionalOffset2() const { return m_offset2; }
    // Puts the neighbour along the y axis at spacing vector s2 = spacing (offset 2's x and
    // offset 1's y become its negation).
    void SetAdditionalOffsetsX1Y2(CPoint spacing);
    // Puts the neighbour along the x axis at spacing vector s1 = -negated (offset 1's x and
    // offset 2's y become -negated), as the x neighbour's handle hands its spacing on negated.
    void SetAdditionalOffsetsX2Y1(CPoint negated);
    double GetAdditionalRotation() const { return m_rotation; }
    double GetAdditionalRotation2() const { return m_rotation2; }
    void SetAdditionalRotation(double degrees) { m_rotation = degrees; }
    void SetAdditionalRotation2(double degrees) { m_rotation2 = degrees; }

    bool HFlipped() const { return m_hFlipped; }
    bool VFlipped() const { return m_vFlipped; }
    void SetFlipped(bool horizontal, bool vertical);

    // The drawing at its own size, upright, centred on the notional centre; no spacing, no
    // turns, no flips, identity transforms.
    void ResetExtents();
    // Maps the box; a mirroring transform flips the fill (a negative x scale horizontally, a
    // negative y scale vertically). Kept independent of the object, the tile only moves with
    // the middle of its box.
    void Transform(const K2DLtGeneral& t) override;
    // The raw box over the rectangle, upright (O its bottom-left corner); not yet scaled to the
    // meta instance.
    void SetDefaultControls(const CRect& rect) override;

    // The turn of the tile from a placed box: pi less the angle between the y axis and the line
    // from O towards larger y, negated when Y lies left of O (0 for a y axis pointing to smaller
    // y, pi for one pointing to larger y).
    static double MeasureTileRotation(const K2DDblPoint& origin, const K2DDblPoint& yEnd);
    // Rotation by -rotation about the point (0.5, 0.5) of the unit tile.
    static K2DLtGeneral TileRotationTransform(double rotation);
    // Where the neighbours along the x axis (a) and the y axis (b) start, from a placed box in
    // spread space, the scale of the tool's start box (GetScale) and the tile's turn R.
    struct Neighbours {
        K2DDblPoint a, b;
    };
    Neighbours NeighbourOrigins(const Box& spreadBox, const K2DDblPoint& scale, const K2DLtGeneral& turn) const;
    // Maps the drawing's own coordinates onto a box.
    K2DLtGeneral DrawingToBox(const Box& box) const;

protected:
    bool IsEqualData(const CFill& other) const override;
    std::size_t HeapBytes() const override;

private:
    RefPtr<const VectorDrawing> m_drawing;
    bool m_alreadyScaled = false;
    CPoint m_offset1;
    CPoint m_offset2;
    double m_rotation = 0;
    double m_rotation2 = 0;
    bool m_hFlipped = false;
    bool m_vFlipped = false;
    bool m_independent = false;
    K2DLtGeneral m_transform;
    K2DLtGeneral m_objectTransform;
    CRect m_objectBox;
};

} // namespace KestoGDI
