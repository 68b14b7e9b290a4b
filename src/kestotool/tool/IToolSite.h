#pragma once

#include "kestotool/gdi/CFill.h"
#include "kestotool/geometry/K2DLtGeneral.h"
#include "kestotool/platform/Export.h"
#include "kestotool/tool/KestoToolImports.h"

namespace KestoTool {

class IDocumentEx;

// What a tool needs of its host: the document canvas implements it once per running tool, and
// so does every editor dialog's preview. Operations are in the order the library calls them by;
// all but three are the host's to write.
class KESTO_API IToolSite {
public:
    virtual ~IToolSite() = default;

    // The colour handles and control lines are drawn in (RGB).
    virtual unsigned long GetToolColour() = 0;
    virtual Kesto2D::K2DLtGeneral GetObjectToSpreadTransform() = 0;
    virtual Kesto2D::K2DLtGeneral GetAppObjectToSpreadTransform() = 0;
    // Converts a size in screen pixels, in place, into document units.
    virtual void ClientToPaper(KestoPlatform::SIZE* size) = 0;
    virtual CRect GetObjectBBox() = 0;
    virtual CRect GetTransformedObjectBBox() = 0;
    virtual bool IsCreate() = 0;
    virtual bool IsInDrag() = 0;
    // Moves point onto the nearest allowed angle from origin.
    virtual void ConstrainAngle(CPoint origin, CPoint& point, bool flag) = 0;
    virtual void ConstrainAnglePolar(CPoint origin, CPoint& point) = 0;
    // Snaps in to the grid or guides into out; they may be the same point.
    virtual void Snap(const CPoint& in, CPoint& out) = 0;
    // Without the object's transform; by default the same as ConstrainAngle.
    virtual void ConstrainAngleNoTransform(CPoint origin, CPoint& point, bool flag);
    // Without the object's transform; by default the same as Snap.
    virtual void SnapNoTransform(const CPoint& in, CPoint& out);
    // Words describing the selection, put in front of every hint line.
    virtual CString GetCurrentSelectionDescription() = 0;
    virtual void AddContextItem(int hostCommand) = 0;
    virtual IDocumentEx* GetDocument() = 0;
    // Applies the fill to the selection as one undoable step. The fill is reference counted and
    // never changes: keep it by taking a reference (RefPtr<const CFill>(fill)), not a clone.
    // A null name lets the host name the step.
    virtual void UpdateFill(const KestoGDI::CFill* fill, const wchar_t* undoName) = 0;
    virtual void UpdateTransparency(const KestoGDI::CFill* fill, const wchar_t* undoName, bool flag) = 0;
    virtual void SetFillType(const KestoPlatform::CRuntimeClass* fillClass) = 0;
    virtual void SetTransparencyType(const KestoPlatform::CRuntimeClass* transparencyClass) = 0;
    virtual void NotifyHandlesReset() = 0;
    // Distance in screen pixels within which an angle-constrained point is preferred.
    virtual double GetAngleSnapTolerance() = 0;
    // Where a fill created from point is centred: by default the centre of the object box,
    // or point itself when the box is empty.
    virtual CPoint GetCreateCentre(const CPoint& point);
};

} // namespace KestoTool
