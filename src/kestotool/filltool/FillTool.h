#pragma once

#include "kestotool/filltool/HandleScene.h"
#include "kestotool/gdi/CColour.h"
#include "kestotool/gdi/CFill.h"
#include "kestotool/gdi/CRenderContext.h"
#include "kestotool/gdi/IRenderTarget.h"
#include "kestotool/geometry/K2DArrayPoint.h"
#include "kestotool/geometry/K2DCurve.h"
#include "kestotool/geometry/K2DLtGeneral.h"
#include "kestotool/geometry/KCAngle.h"
#include "kestotool/platform/CCmdTarget.h"
#include "kestotool/platform/Export.h"
#include "kestotool/platform/WindowTypes.h"
#include "kestotool/tool/IToolSite.h"
#include "kestotool/tool/KestoToolImports.h"

#include <atomic>
#include <memory>

namespace KestoPlatform {
class CWnd;
}

namespace KestoTool {

class IDocumentEx;
class IToolHelper;

using Kesto2D::K2DArrayPoint;
using Kesto2D::K2DCurve;
using Kesto2D::K2DDblPoint;
using Kesto2D::K2DLtGeneral;
using Kesto2D::KCAngle;
using KestoGDI::CColour;
using KestoGDI::CFill;
using KestoGDI::CRenderContext;
using KestoGDI::IRenderTarget;
using KestoPlatform::CRuntimeClass;
using KestoPlatform::COLORREF;
using KestoPlatform::CXTPCommandBars;

// The mouse-key flags of the drag protocol, as the platform reports them with a mouse message,
// and the key (OnKeyDown) that deletes the current stop.
inline constexpr unsigned int DragFlagShift = 4;
inline constexpr unsigned int DragFlagCtrl = 8;
inline constexpr unsigned int KeyDelete = KestoPlatform::VK_DELETE;

// A hint line's string ids: one for a fill, one for a transparency.
struct KESTO_API HintIds {
    int fill;
    int transparency;
};

// The base of every on-canvas fill and transparency tool. A tool edits one fill: it keeps its
// own copy, talks to the host only through its IToolSite, and hands every change back as a
// whole new fill through UpdateFill / UpdateTransparency; the host then gives it the committed
// fill with SetFill. Concrete tools override the virtual operations; the base supplies the
// state, hit testing, snapping and angle maths, node colours and handle drawing.
class KESTO_API FillTool : public KestoPlatform::CCmdTarget {
    KESTO_DECLARE_DYNAMIC(FillTool)
public:
    static const int s_nHandleSize = 8; // screen pixels: handle side and hit box
    static const int s_nMinSize = 50;   // paper units: a shorter fill gets no handles

    // Takes fill as SetFill does; site must outlive the tool. Without a site the tool reports
    // and does nothing.
    FillTool(const CFill* fill, IToolSite* site);
    ~FillTool() override;
    FillTool(const FillTool&) = delete;
    FillTool& operator=(const FillTool&) = delete;

    virtual int IndexFromPoint(const CPoint& point) const;
    virtual const CFill* GetFill() const;
    // The drag protocol. The base records the start; a change or an end without a start is
    // reported and ignored. Tools that override OnDragStart and OnDragEnd call the base's first,
    // and their OnDragChange starts with CheckDragStarted.
    virtual void OnDragStart(CPoint& point, unsigned int flags);
    virtual void OnDragChange(CPoint& point, unsigned int flags);
    virtual void OnDragEnd(CPoint& point, unsigned int flags);
    virtual bool OnFillCellDrop(CPoint& point, const CColour* colour);
    virtual bool OnFillCellChanged(const CColour* colour);
    virtual bool OnAlphaCellChanged(unsigned char alpha);
    virtual bool OnTintChanged(int tint);
    // Draws the tool's handle scene (BuildHandleScene): on the render target after remembering
    // the view transform for the drawing helpers, or on the render context, which shows no
    // highlight and never outline-only. A null target or context is reported.
    virtual void Draw(IRenderTarget* target, bool outlineOnly, const K2DLtGeneral& view) const;
    virtual void Draw(CRenderContext* context) const;
    virtual void OnKeyDown(unsigned int key, unsigned int repeat, unsigned int flags);
    virtual CRect GetToolRect(const CFill* fill);
    virtual CRect GetFillRect(const CFill* fill);
    virtual const CColour* ColourFromNode() const;
    virtual int GetCurrentNode() const;
    virtual void SetCurrentNode(int node);
    // Answers 0 and leaves out alone: no hint.
    virtual int GetHintLine(CString* out) const;
    virtual bool CanCreateNewNode() const;
    virtual bool CanDeleteNode() const;
    virtual bool CreateNewNode(const CPoint& point);
    // Registers the command images once per process and puts the edit command, the context
    // item and the type combo on the context bar.
    virtual void InitContextButtons(CXTPCommandBars* bars);
    // Makes (or describes) the toolbar control of a fill tool command; the colour commands'
    // controls come from the tool helper. False for anything else.
    virtual int OnCreateControl(KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc);
    // Gives a made control its prompt; fills and selects the type combo; lets the colour
    // controls show their colour.
    virtual void OnAfterCreateControl(KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc);
    // Whether a host command number is one of the fill tools'.
    virtual bool RecognisedID(unsigned int hostCommand) const;
    virtual void GetHandles(K2DArrayPoint* handles) const;
    virtual void BaseGetHandles(K2DArrayPoint* handles) const;
    virtual const CColour* GetCurrentColour() const;
    virtual void SetGhostNode(CPoint& point, const CColour* colour);
    // Answers whether a ghost node was showing (and so whether to redraw).
    virtual bool ClearGhostNode();
    virtual K2DLtGeneral GetAppObjectToSpreadTransform() const;
    virtual void ConstrainAnglePolar(CPoint origin, CPoint& point);
    // The stop index of a handle; the base maps every handle to itself.
    virtual int GradientIndex(int handle) const;
    virtual bool IsPointOnLine(const CPoint& point, int tolerance) const;
    virtual int GetPercentageFromPoint(CPoint point) const;
    virtual CPoint GetPointFromPercentage(int percentage);
    virtual void DeleteGradientNode(int index);
    virtual bool CheckSize() const;
    // The four corners of GetFillRect(fill), closed.
    virtual K2DArrayPoint GetEffectiveBBox(const CFill* fill);

    // Gives the tool a new fill. A fill that its owner holds by reference (a committed fill the
    // host keeps) is shared, not copied: the host must not change it afterwards, as no one
    // changes a shared fill. A fill with no reference (on the stack, say) is copied.
    void SetFill(const CFill* fill);
    bool CanEditFill() const { return true; }
    bool IsTransparency() const;
    bool IsFill() const { return !IsTransparency(); }
    static bool IsTwoColourFill(const CFill* fill);
    static bool IsBitmapFill(const CFill* fill);

    // The pointer is at point (document units) with no button down: the handle under it, if any,
    // becomes the hot one, which Draw rings and the hint line speaks of (over no handle, the
    // hint says what a drag there would do). Answers whether the hot handle changed: the host
    // repaints and asks for the hint again.
    bool OnMouseHover(const CPoint& point);
    // The same for a host that finds the handle under the pointer itself (with a grab reach of
    // its own); -1 for none.
    bool SetHotNode(int handle);
    // The pointer left the canvas: no handle is hot, and the hint speaks of the current one.
    bool OnMouseLeave();
    int GetHotNode() const { return m_nHotNode; }
    // The handle the hint line speaks of: during a drag the one dragged, while the pointer
    // hovers the one under it (-1: none), otherwise the current one.
    int GetHintNode() const;
    bool HasGhostNode() const { return m_bGhostNode; }
    int GetControlBoxMode() const { return m_nControlBoxMode; }
    void SetControlBoxMode(int mode) { m_nControlBoxMode = mode; }
    const CPoint& GetDragStart() const { return m_ptDragStart; }
    // Where a drag is measured from: its start, or with Ctrl while creating, the site's create
    // centre for it (the new fill is centred on the object).
    CPoint DragOrigin(unsigned int flags) const
    {
        return IsCreate() && (flags & DragFlagCtrl) ? GetCreateCentre(m_ptDragStart) : m_ptDragStart;
    }

    // Node colours. A node is 3 (start), 4 (end) or 5 (selected); any other value is taken to
    // be a host command number and translated through the command-ID map first.
    // A new colour, or null.
    std::unique_ptr<CColour> GetNodeColour(unsigned int node) const;
    // Commits the fill with that node's colour replaced; a none fill becomes a solid fill.
    void SetNodeColour(unsigned int node, const CColour* colour);
    // Asks the user for the node's colour and sets it.
    void AdjustNodeColour(unsigned int node);
    bool IsNodeColourEnabled(unsigned int node) const;

    // Colour pickers of the tool helper; results belong to the caller. Without a document (or
    // helper) the pickers answer nothing.
    std::unique_ptr<CColour> ColourPicker(const CColour* current);
    bool ColourPicker(const CColour* current, std::unique_ptr<CColour>& result);
    std::unique_ptr<CColour> AskUserForNewColour(const CColour* current, CPoint where, KestoPlatform::CWnd* owner);

    // Site forwarders.
    unsigned long GetToolColour() const { return m_pSite->GetToolColour(); }
    K2DLtGeneral GetObjectToSpreadTransform() const { return m_pSite->GetObjectToSpreadTransform(); }
    void ClientToPaper(KestoPlatform::SIZE* size) const { m_pSite->ClientToPaper(size); }
    CRect GetObjectBBox() const { return m_pSite->GetObjectBBox(); }
    CRect GetTransformedObjectBBox() const { return m_pSite->GetTransformedObjectBBox(); }
    bool IsCreate() const { return m_pSite->IsCreate(); }
    bool IsInDrag() const { return m_pSite->IsInDrag(); }
    void ConstrainAngle(CPoint origin, CPoint& point, bool flag) { m_pSite->ConstrainAngle(origin, point, flag); }
    void Snap(const CPoint& in, CPoint& out) { m_pSite->Snap(in, out); }
    void ConstrainAngleNoTransform(CPoint origin, CPoint& point, bool flag)
    {
        m_pSite->ConstrainAngleNoTransform(origin, point, flag);
    }
    void SnapNoTransform(const CPoint& in, CPoint& out) { m_pSite->SnapNoTransform(in, out); }
    // Rounds in to an integer point for the site and writes the snapped point back as doubles.
    void SnapNoTransform(const K2DDblPoint& in, K2DDblPoint& out);
    CString GetCurrentSelectionDescription() const { return m_pSite->GetCurrentSelectionDescription(); }
    IDocumentEx* GetDocument() const { return m_pSite->GetDocument(); }
    // The host's helper; a null one (offering every kind, choosing no colour) when it has none.
    IToolHelper* GetToolHelper() const;
    // The same, for a colour picker: reports once that no colour can be chosen without one.
    IToolHelper* GetPickerHelper() const;
    void UpdateFill(const CFill* fill, const wchar_t* undoName) { m_pSite->UpdateFill(fill, undoName); }
    void UpdateTransparency(const CFill* fill, const wchar_t* undoName, bool flag)
    {
        m_pSite->UpdateTransparency(fill, undoName, flag);
    }
    void SetFillType(const CRuntimeClass* c) { m_pSite->SetFillType(c); }
    void SetTransparencyType(const CRuntimeClass* c) { m_pSite->SetTransparencyType(c); }
    CPoint GetCreateCentre(const CPoint& point) const { return m_pSite->GetCreateCentre(point); }

    // Geometry helpers, in document units.
    // Index of the first handle whose 8 x 8 pixel box holds pt, or -1.
    int HitPoint(const K2DArrayPoint& points, const CPoint& pt) const;
    // Half the handle size in document units.
    int GetDefaultTolerance() const;
    // Height / width of the object box; 1 when the width is not positive.
    float GetAspectRatio() const;
    static K2DLtGeneral GetNodeTransform(KCAngle& angle, CPoint& centre);
    // Constrains pt to the host's angle step from origin, unless the constrained point lies
    // outside the site's angle-snap tolerance; prefers the grid-snapped point when that is
    // nearer.
    void SnapAnglePoint(CPoint origin, CPoint& pt, bool flag);
    // other turned about centre by the angle that takes from onto to.
    static CPoint PreserveAngle(CPoint centre, CPoint from, CPoint to, CPoint other);
    // point turned about centre by a right angle (or by the angle between the arms p0-p1 and
    // p0-p2 when keeping one), its distance from centre scaled to keep the arms' ratio.
    CPoint CalculatePerpendicular(CPoint p0, CPoint p1, CPoint p2, CPoint& centre, CPoint& point, bool keepFirst,
                                  bool keepSecond);

    // Routes a host command number as the fill tools' own (-1, routed nowhere, when foreign).
    bool OnCmdMsg(int id, int code, void* extra, KestoPlatform::AFX_CMDHANDLERINFO* info) override;

protected:
    const KestoPlatform::AFX_MSGMAP* GetMessageMap() const override;

    // Commands of the context toolbar.
    void OnFillEdit();
    void OnUpdateFillEdit(KestoPlatform::CCmdUI* ui);
    void OnTransEdit();
    void OnFillEditType();
    void OnUpdateFillEditType(KestoPlatform::CCmdUI* ui);
    void OnFillStart();
    void OnFillEnd();
    void OnFillSolid();
    void OnUpdateFillStart(KestoPlatform::CCmdUI* ui);
    void OnUpdateFillEnd(KestoPlatform::CCmdUI* ui);
    void OnUpdateFillSolid(KestoPlatform::CCmdUI* ui);
    void OnFillTypeChange(KestoPlatform::NMXTPCONTROL* notify, long* result);

    // The hint line for the case at hand: the selection's description followed by the text of
    // fillStringId or transparencyStringId (-1 for no hint). False, out untouched, without one.
    bool ComposeHintLine(CString* out, int fillStringId, int transparencyStringId) const;

    // The control lines and handles the tool shows, in drawing order; the base shows nothing.
    virtual void BuildHandleScene(HandleScene& scene) const;

    // Handle and control-line drawing, in document units mapped through the view transform.
    void DrawBoxControl(IRenderTarget* target, bool outlineOnly, const CPoint& point, unsigned long colour,
                        int index) const;
    void DrawBoxControl(IRenderTarget* target, bool outlineOnly, const CPoint& point, const CColour* colour,
                        int index) const;
    void DrawBoxControl(CRenderContext* context, const CPoint& point, unsigned long colour, int index) const;
    void DrawControlLine(IRenderTarget* target, bool outlineOnly, const CPoint& a, const CPoint& b,
                         bool highlight) const;
    void DrawControlLine(IRenderTarget* target, bool outlineOnly, K2DCurve&& curve, bool highlight) const;
    void DrawControlLine(IRenderTarget* target, bool outlineOnly, const K2DArrayPoint& points, bool highlight) const;
    void DrawControlLine(CRenderContext* context, const CPoint& a, const CPoint& b, bool highlight) const;
    void DrawControlLine(CRenderContext* context, K2DCurve&& curve, bool highlight) const;
    void DrawControlLine(CRenderContext* context, const K2DArrayPoint& points, bool highlight) const;

    // Whether a drag is under way (OnDragStart came, OnDragEnd not yet); reports when not.
    bool CheckDragStarted() const;
    // Reports, once per fill, that the tool's fill is not of the tool's kind.
    void ReportWrongKind() const;
    // fill (the tool's own when null) as the tool's kind Kind; null when it is not one, which
    // for the tool's own fill is reported once.
    template <class Kind>
    const Kind* FillOfKind(const CFill* fill) const
    {
        const auto* kind = dynamic_cast<const Kind*>(fill ? fill : GetFill());
        if (!kind && !fill && GetFill())
            ReportWrongKind();
        return kind;
    }

    // Puts a fill tool command (its own number) on the context bar through the site.
    void AddContextItem(int libraryCommand);
    IToolSite* GetSite() const { return m_pSite; }
    // The tool's own copy, which drags reshape in place (copied first while it is shared); the
    // host reads it back through GetFill when the gesture ends.
    CFill* GetWorkingFill();
    const K2DLtGeneral& GetViewTransform() const { return m_viewTransform; }

private:
    // Shows a colour node's colour on the colour control behind an update request.
    void UpdateColourCommand(KestoPlatform::CCmdUI* ui, unsigned int node);

    // 3, 4 or 5, or a host command number translated to the library's.
    static unsigned int TranslateNode(unsigned int node);
    // The stop index a colour node stands for in a list of n stops; -1 for none.
    int StopIndexOfNode(unsigned int node, int n) const;

    IToolSite* const m_pSite;
    int m_nCurrentNode = 0;
    std::atomic<const CFill*> m_pFill{nullptr};
    CPoint m_ptDragStart;
    int m_nHotNode = -1;
    bool m_bHovering = false; // the host tells the tool where the pointer is
    bool m_bGhostNode = false;
    int m_nControlBoxMode = 0;
    mutable K2DLtGeneral m_viewTransform;
    bool m_bDragStarted = false;
    mutable bool m_bWrongKindReported = false;
};

} // namespace KestoTool
