#pragma once

#include "Document.h"

#include <kestotool/filltool/FillTool.h>
#include <kestotool/filltool/ToolGesture.h>
#include <kestotool/filltool/ToolSession.h>
#include <kestotool/platform/CXTPCommandBars.h>
#include <kestotool/tool/IDocumentEx.h>
#include <kestotool/tool/IToolHelper.h>
#include <kestotool/tool/IToolSite.h>

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class QUndoStack;
class QWidget;

namespace KestoDraw {

// The host of the library's fill tools: their site, document and helper. It runs the tool for
// the selected shape's fill (or transparency), rebuilds it when the kind changes, and records
// every change as one step on the undo stack: a gesture, however many commits the tool makes
// while the mouse moves, is one step (ToolGesture). The view that shows the drawing tells it
// the scale on screen and owns the colour choosers' parent window.
class ToolHost : public QObject,
                 public KestoTool::IToolSite,
                 public KestoTool::IDocumentEx,
                 public KestoTool::IToolHelper {
    Q_OBJECT
public:
    ToolHost(Document& document, QUndoStack& undo, QWidget& view);
    ~ToolHost() override;

    // Whether the tools edit the selection's transparency rather than its fill.
    bool EditsTransparency() const { return m_editTransparency; }
    void SetEditTransparency(bool transparency);
    int Selected() const { return m_selected; }
    void Select(int index);
    Shape* SelectedShape();
    // The selection's fill or transparency, as edited.
    KestoKernel::RefPtr<const KestoGDI::CFill> EditedFill() const;

    // The running tool; null without a selection or for a kind without a tool.
    KestoTool::FillTool* Tool() const { return m_session.Tool(); }
    // The tool's session: the toolbar's commands go through it.
    KestoTool::ToolSession& Session() { return m_session; }
    // While a gesture lasts, the selection's fill (or transparency) as the tool shapes it, to be
    // painted in place of the document's; null otherwise.
    const KestoGDI::CFill* LiveFill() const { return m_live.get(); }
    KestoPlatform::CXTPCommandBars* ContextBars() { return &m_session.Bars(); }

    // Document units per screen pixel come from the view's zoom (document pixels per unit).
    void SetZoom(double pixelsPerUnit) { m_zoom = pixelsPerUnit; }
    int Grid() const { return m_grid; }
    int AngleStep() const { return m_angleStep; }
    // Grid in document units (0: no snap); angle step in hundredths of a degree (0: free).
    void SetPreferences(int grid, int angleStep);

    // The document was replaced or changed outside the host (open, new): selection cleared,
    // tool rebuilt.
    void DocumentReplaced();
    // Applies a step's shapes and selection (undo and redo come here).
    void ApplyShapes(const std::vector<Shape>& shapes, int selected);
    // Adds a shape as one step and selects it.
    void AddShape(Shape shape, const QString& stepName);
    void DeleteSelected();
    // Records the document's change since before as one step; undo selects what was selected
    // before it (by default what is selected now), redo what is selected now.
    void PushStep(const QString& name, std::vector<Shape> before, std::optional<int> selectedBefore = {});
    // The selection's fill or transparency as type number, as the type combos offer them.
    void SetKind(int fillType);
    // The rebuild a kind change asked for, done now (it normally waits for the event loop, so
    // that a tool is never destroyed inside its own handler).
    void FlushPendingRebuild();
    // The tool follows the document: given the selection's fill, or rebuilt for another kind.
    void SyncTool();

    // A gesture of the running tool, from the press at a document point; create draws a new
    // fill. A press for a shape whose fill has no tool first gives it a linear one to shape
    // (the step goes back to the fill it had).
    bool StartGesture(KestoPlatform::CPoint at, unsigned flags, bool create);
    void MoveGesture(KestoPlatform::CPoint at, unsigned flags) { m_session.Move(at, flags); }
    void EndGesture(KestoPlatform::CPoint at, unsigned flags);
    // Shows what a colour dropped at the point would make of the fill (LiveFill), committing
    // nothing; false (and nothing shown) where a drop would change nothing.
    bool PreviewDrop(KestoPlatform::CPoint at, const KestoGDI::CColour& colour);
    void EndPreview();
    // Moves the current handle (or the last) by a document offset, as one step.
    void Nudge(int dx, int dy);
    // Makes the next (step 1) or previous (-1) handle current.
    void CycleHandle(int step);

    // IToolSite
    static constexpr unsigned long kToolColour = 0xD77800; // the handles' and lines' colour
    unsigned long GetToolColour() override { return kToolColour; }
    Kesto2D::K2DLtGeneral GetObjectToSpreadTransform() override { return {}; }
    Kesto2D::K2DLtGeneral GetAppObjectToSpreadTransform() override { return {}; }
    void ClientToPaper(KestoPlatform::SIZE* size) override;
    KestoPlatform::CRect GetObjectBBox() override;
    KestoPlatform::CRect GetTransformedObjectBBox() override { return GetObjectBBox(); }
    bool IsCreate() override { return m_session.Gesture().IsCreate(); }
    bool IsInDrag() override { return m_session.Gesture().InDrag(); }
    void ConstrainAngle(KestoPlatform::CPoint origin, KestoPlatform::CPoint& point, bool flag) override;
    void ConstrainAnglePolar(KestoPlatform::CPoint origin, KestoPlatform::CPoint& point) override
    {
        ConstrainAngle(origin, point, false);
    }
    void Snap(const KestoPlatform::CPoint& in, KestoPlatform::CPoint& out) override;
    KestoPlatform::CString GetCurrentSelectionDescription() override;
    void AddContextItem(int hostCommand) override;
    KestoTool::IDocumentEx* GetDocument() override { return this; }
    void UpdateFill(const KestoGDI::CFill* fill, const wchar_t* undoName) override;
    void UpdateTransparency(const KestoGDI::CFill* fill, const wchar_t* undoName, bool flag) override;
    void SetFillType(const KestoPlatform::CRuntimeClass* fillClass) override;
    void SetTransparencyType(const KestoPlatform::CRuntimeClass* transparencyClass) override;
    void NotifyHandlesReset() override { emit Changed(); }
    double GetAngleSnapTolerance() override { return 20; }

    // IDocumentEx
    KestoTool::IToolHelper* GetToolHelper() override { return this; }

    // IToolHelper
    int CreateColourControl(KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) override;
    bool ColourPicker(const KestoGDI::CColour* current, KestoGDI::CColour*& result,
                      KestoPlatform::CWnd* owner) override;
    KestoGDI::CColour* ColourPicker(const KestoGDI::CColour* current, KestoPlatform::CWnd* owner) override;
    KestoGDI::CColour* AskUserForNewColour(const KestoGDI::CColour* current, KestoPlatform::CPoint where,
                                           KestoPlatform::CWnd* owner) override;
    // Only the kinds kestodraw can paint (and so edit) are offered.
    bool IsFillTypeAvailable(KestoGDI::CFill* fill) override;
    bool IsTransparencyTypeAvailable(KestoGDI::CFill* fill) override { return IsFillTypeAvailable(fill); }
    bool GetDialogSetting() override { return true; }
    bool IsLockRatioAvailable() override { return true; }

signals:
    // The tool and its context bars are about to go (a toolbar showing them must let go).
    void ToolAboutToChange();
    // A new tool (or none) runs, with its context bars.
    void ToolChanged();
    void SelectionChanged();
    void HintChanged();
    // The drawing or the tool's handles changed: the view repaints.
    void Changed();

private:
    // The tool made anew for the selection's fill (or transparency), now.
    void StartTool();
    void Commit(const KestoGDI::CFill* fill, const wchar_t* undoName, bool transparency);
    void RecordCommit(const KestoGDI::CFill* fill, const wchar_t* undoName, bool transparency);
    QString DefaultStepName() const;

    Document& m_document;
    QUndoStack& m_undo;
    QWidget& m_view;
    bool m_editTransparency = false;
    int m_selected = -1;
    bool m_ownImages = false; // kestodraw's own command pictures are in the bars' images
    double m_zoom = 1;
    KestoTool::ToolSession m_session; // after the fields its callbacks and the tools read
    int m_grid = 0;
    int m_angleStep = 1500;

    std::vector<Shape> m_before; // the shapes at the gesture's press
    KestoKernel::RefPtr<const KestoGDI::CFill> m_live;
    bool m_previewing = false; // a commit now only shows (a colour dragged over the fill)
};

} // namespace KestoDraw
