#pragma once

#include "Document.h"
#include "DrawingPainter.h"

#include <kestotool/filltool/FillTool.h>
#include <kestotool/filltool/ToolGesture.h>
#include <kestotool/platform/CXTPCommandBars.h>
#include <kestotool/tool/IDocumentEx.h>
#include <kestotool/tool/IToolHelper.h>
#include <kestotool/tool/IToolSite.h>

#include <QPointer>
#include <QWidget>

#include <memory>
#include <optional>
#include <string>

class QMimeData;
class QUndoStack;

namespace KestoDraw {

// The drawing area and the host of the fill tools. It shows the page and its shapes, draws
// shapes with the shape tools, selects them, zooms and pans; for the selected shape it runs the
// library's tool for the fill (or the transparency) being edited, turning the mouse into the
// drag protocol, keys into the tool's keys and nudges, and dropped palette colours into stops.
// Every change reaches the document as one step on the undo stack: a gesture, however many
// commits it makes while the mouse moves, is one step.
class Canvas : public QWidget,
               public KestoTool::IToolSite,
               public KestoTool::IDocumentEx,
               public KestoTool::IToolHelper {
    Q_OBJECT
public:
    enum class Mode { Select, Rectangle, Ellipse, Path };

    // The MIME type of a colour dragged from the palette: a colour as the document keeps it.
    static constexpr const char* ColourMime = "application/x-kestodraw-colour";

    Canvas(Document& document, QUndoStack& undo, QWidget* parent = nullptr);
    ~Canvas() override;

    Mode GetMode() const { return m_mode; }
    void SetMode(Mode mode);
    // Whether the tools edit the selection's transparency rather than its fill.
    bool EditsTransparency() const { return m_editTransparency; }
    void SetEditTransparency(bool transparency);
    int Selected() const { return m_selected; }
    void Select(int index);

    // The running tool; null without a selection or for a kind without a tool.
    KestoTool::FillTool* Tool() const { return m_tool.get(); }
    KestoPlatform::CXTPCommandBars* ContextBars() const { return m_bars.get(); }

    // Document pixels per unit on screen, and where the page's origin lies on the widget.
    double Zoom() const { return m_zoom; }
    void SetZoom(double pixelsPerUnit);
    void ZoomBy(double factor);
    void FitPage();
    QTransform View() const;

    int Grid() const { return m_grid; }
    int AngleStep() const { return m_angleStep; }
    // Grid in document units (0: no snap); angle step in hundredths of a degree (0: free).
    void SetPreferences(int grid, int angleStep);

    // The document was replaced or changed outside the canvas (open, new): selection cleared,
    // tool rebuilt.
    void DocumentReplaced();
    // Applies a step's shapes (undo and redo come here).
    void ApplyShapes(const std::vector<Shape>& shapes);
    // Adds a shape as one step and selects it.
    void AddShape(Shape shape, const QString& stepName);
    void DeleteSelected();
    // The selection's fill or transparency as type number, as the type combos offer them.
    void SetKind(int fillType);
    // The page alone, painted at pixelsPerUnit.
    QImage RenderPage(double pixelsPerUnit);
    // The hint line: the tool's, or the canvas's own for what a press does now. Words between
    // vertical bars are keys and mouse words.
    QString HintLine() const;
    // The rebuild a kind change asked for, done now (it normally waits for the event loop, so
    // that a tool is never destroyed inside its own handler).
    void FlushPendingRebuild();

    // IToolSite
    unsigned long GetToolColour() override { return 0xD77800; }
    Kesto2D::K2DLtGeneral GetObjectToSpreadTransform() override { return {}; }
    Kesto2D::K2DLtGeneral GetAppObjectToSpreadTransform() override { return {}; }
    void ClientToPaper(KestoPlatform::SIZE* size) override;
    KestoPlatform::CRect GetObjectBBox() override;
    KestoPlatform::CRect GetTransformedObjectBBox() override { return GetObjectBBox(); }
    bool IsCreate() override { return m_gesture.IsCreate(); }
    bool IsInDrag() override { return m_gesture.InDrag(); }
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
    void NotifyHandlesReset() override { update(); }
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
    bool IsFillTypeAvailable(KestoGDI::CFill*) override { return true; }
    bool IsTransparencyTypeAvailable(KestoGDI::CFill*) override { return true; }
    bool GetDialogSetting() override { return true; }
    bool IsLockRatioAvailable() override { return true; }

signals:
    // The tool and its context bars are about to go (a toolbar showing them must let go).
    void ToolAboutToChange();
    // A new tool (or none) runs, with its context bars.
    void ToolChanged();
    void SelectionChanged();
    void HintChanged();
    void ZoomChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; } // Tab cycles handles here
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    enum class Press { None, Tool, PendingCreate, Shape, Move, Pan };

    KestoPlatform::CPoint ToDocument(const QPointF& device) const;
    Shape* SelectedShape();
    KestoKernel::RefPtr<const KestoGDI::CFill> EditedFill() const;
    void RebuildTool();
    void ScheduleRebuild();
    void SyncTool();
    void Commit(const KestoGDI::CFill* fill, const wchar_t* undoName, bool transparency);
    void RecordCommit(const KestoGDI::CFill* fill, const wchar_t* undoName, bool transparency);
    void PushStep(const QString& name, std::vector<Shape> before);
    void StartGesture(KestoPlatform::CPoint at, unsigned flags, bool create);
    void EndGesture(KestoPlatform::CPoint at, unsigned flags);
    void Nudge(int dx, int dy);
    void CycleHandle(int step);
    std::unique_ptr<KestoGDI::CColour> DroppedColour(const QMimeData* mime) const;
    static unsigned DragFlags(Qt::KeyboardModifiers modifiers);
    QString DefaultStepName() const;

    Document& m_document;
    QUndoStack& m_undo;
    DrawingPainter m_painter;
    Mode m_mode = Mode::Select;
    bool m_editTransparency = false;
    int m_selected = -1;
    std::unique_ptr<KestoPlatform::CXTPCommandBars> m_bars;
    std::unique_ptr<KestoTool::FillTool> m_tool;
    bool m_rebuildPending = false;

    double m_zoom = 0.2;
    QPointF m_pan{20, 20};
    bool m_fitOnResize = true; // until the user zooms or pans, the page fits the window
    int m_grid = 0;
    int m_angleStep = 1500;

    // The gesture under way.
    Press m_press = Press::None;
    QPointF m_pressDevice;
    KestoPlatform::CPoint m_pressPoint;
    KestoPlatform::CPoint m_lastPoint;
    KestoTool::ToolGesture m_gesture;
    std::vector<Shape> m_before;
    std::vector<KestoPlatform::CPoint> m_pathPoints;
    QPointF m_panFrom;
};

} // namespace KestoDraw
