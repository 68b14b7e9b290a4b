#pragma once

#include "Document.h"
#include "PageLayers.h"
#include "SelectionLayer.h"
#include "ToolHost.h"

#include <QWidget>

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

class QMimeData;
class QPainter;
class QTimer;

namespace KestoGDI {
class IRenderTarget;
}
class QUndoStack;

namespace KestoDraw {

// The drawing area: it shows the page and its shapes, draws shapes with the shape tools,
// selects them, zooms and pans, and turns the mouse into the fill tool's drag protocol, keys
// into the tool's keys and nudges, and dropped palette colours into stops. The tool itself, its
// site and the undo steps it makes are the ToolHost's.
class Canvas : public QWidget {
    Q_OBJECT
public:
    enum class Mode { Select, Rectangle, Ellipse, Path };

    // The MIME type of a colour dragged from the palette: a colour as the document keeps it.
    static constexpr const char* ColourMime = "application/x-kestodraw-colour";

    Canvas(Document& document, QUndoStack& undo, QWidget* parent = nullptr);
    ~Canvas() override;

    ToolHost& Host() { return m_host; }
    Mode GetMode() const { return m_mode; }
    void SetMode(Mode mode);
    // Whether the tools edit the selection's transparency rather than its fill.
    bool EditsTransparency() const { return m_host.EditsTransparency(); }
    void SetEditTransparency(bool transparency) { m_host.SetEditTransparency(transparency); }
    int Selected() const { return m_host.Selected(); }
    void Select(int index) { m_host.Select(index); }

    // The running tool; null without a selection or for a kind without a tool.
    KestoTool::FillTool* Tool() const { return m_host.Tool(); }
    KestoPlatform::CXTPCommandBars* ContextBars() { return m_host.ContextBars(); }
    // The tool's session, which the context toolbar's commands go through.
    KestoTool::ToolSession& Session() { return m_host.Session(); }

    // Document pixels per unit on screen, and where the page's origin lies on the widget.
    double Zoom() const { return m_zoom; }
    void SetZoom(double pixelsPerUnit);
    // About the middle of the canvas, or about a point of it (the wheel's: under the pointer).
    void ZoomBy(double factor);
    void ZoomAbout(double factor, QPointF device);
    void FitPage();
    QTransform View() const;

    int Grid() const { return m_host.Grid(); }
    int AngleStep() const { return m_host.AngleStep(); }
    // Grid in document units (0: no snap); angle step in hundredths of a degree (0: free).
    void SetPreferences(int grid, int angleStep) { m_host.SetPreferences(grid, angleStep); }

    // The document was replaced or changed outside the canvas (open, new): selection cleared,
    // tool rebuilt.
    void DocumentReplaced() { m_host.DocumentReplaced(); }
    void DeleteSelected() { m_host.DeleteSelected(); }
    // The selection's fill or transparency as type number, as the type combos offer them.
    void SetKind(int fillType) { m_host.SetKind(fillType); }
    // Whether a repaint waits until the page is painted: for screenshots that must show it
    // whole (tests, scripts, benchmarks). Otherwise a repaint waits a frame at most, and shows
    // the page as it was until the rest is ready.
    void SetWaitForPage(bool wait) { m_waitForPage = wait; }
    // The hint line: the tool's, or the canvas's own for what a press does now. Words between
    // vertical bars are keys and mouse words.
    QString HintLine() const;
    // The rebuild a kind change asked for, done now (it normally waits for the event loop, so
    // that a tool is never destroyed inside its own handler).
    void FlushPendingRebuild() { m_host.FlushPendingRebuild(); }

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
    void keyReleaseEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; } // Tab cycles handles here
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    enum class Press { None, Tool, PendingCreate, Shape, Move, Pan };

    KestoPlatform::CPoint ToDocument(const QPointF& device) const;
    // The tool's handle nearest the point within reach of a press (see kGrabPixels); -1: none.
    int HandleNear(QPointF device) const;
    // Where a colour dropped at the point lands: a handle's centre within reach of it.
    KestoPlatform::CPoint DropPoint(QPointF device) const;
    // What a press at the point would do, as a cursor.
    Qt::CursorShape CursorAt(QPointF device);
    // The pointer is at the point with no button down: its cursor and the handle it would grab.
    void Hover(QPointF device);
    // Tells the tool which handle a press would grab (-1: none), for its ring and hint line;
    // answers whether that changed.
    bool SetHover(int handle);
    PageLayers::Scene Scene() const;
    // Has the selection's picture rendered: its shape with its fills, or the tool's working fill
    // while a gesture lasts. Waits at most wait for it (for ever when nullopt).
    void PrepareSelection(const PageLayers::Scene& scene, std::optional<std::chrono::milliseconds> wait);
    // While the scene's layers are being built: the ones before, and the shape they left out.
    void PaintEarlierLayers(QPainter& painter, const PageLayers::Scene& scene, const QRect& dirty);
    // How far the page's painting has come, over the canvas's bottom left.
    void PaintProgress(QPainter& painter);
    // The tool's handles and lines over the canvas.
    void DrawOverlay(KestoGDI::IRenderTarget& target) const;
    // What the selection covers on the canvas: its shape and the tool's overlay.
    QRect SelectionBounds() const;
    // Repaints what changed: when only the selection did, the part of the canvas it covered and
    // covers now; otherwise everything.
    void Refresh();
    std::unique_ptr<KestoGDI::CColour> DroppedColour(const QMimeData* mime) const;
    static unsigned DragFlags(Qt::KeyboardModifiers modifiers);

    Document& m_document;
    ToolHost m_host;
    PageLayers m_layers;
    SelectionLayer m_selection;
    bool m_waitForPage = false;
    QTimer* m_paintingTick; // repaints the progress of a page being painted
    QRect m_shownSelection; // SelectionBounds at the last paint
    Mode m_mode = Mode::Select;

    double m_zoom = 0.2;
    QPointF m_pan{20, 20};
    bool m_fitOnResize = true; // until the user zooms or pans, the page fits the window

    bool m_spaceHeld = false; // Space held down: a drag pans

    // The press under way.
    Press m_press = Press::None;
    QPointF m_grabShift; // from the press to the handle it grabbed beside it, kept while it drags
    QPointF m_pressDevice;
    KestoPlatform::CPoint m_pressPoint;
    KestoPlatform::CPoint m_lastPoint;
    std::vector<Shape> m_before; // the shapes when a shape move began
    std::vector<KestoPlatform::CPoint> m_pathPoints;
    QPointF m_panFrom;
};

} // namespace KestoDraw
