#include "Canvas.h"

#include "FillJson.h"
#include "JsonRead.h"

#include <kestotool/gdi/BoundsRenderTarget.h>
#include <kestotool/gdi/CFillSolid.h>
#include <kestotool/gdi/CRGBColour.h>
#include <kestotool/geometry/CoordinateRange.h>
#include <kestotool/qt/QtConvert.h>
#include <kestotool/qt/QtRenderTarget.h>

#include <QCursor>
#include <QJsonDocument>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <climits>
#include <cmath>

namespace KestoDraw {

using KestoKernel::RefPtr;
using KestoGDI::CFill;
using KestoPlatform::CPoint;

namespace {

// A press must move this far (screen pixels) before it draws a new fill or moves a shape.
constexpr double kDragThreshold = 4;
// Handles and the fill line are hit within this many screen pixels.
constexpr int kLineTolerance = 4;
// A press this near a handle's centre (screen pixels at 96 dpi, more on denser screens) grabs
// the handle, even off its drawn disc: a hand is seldom more exact.
constexpr double kGrabPixels = 8;
constexpr double kMinZoom = 0.005;
constexpr double kMaxZoom = 20;

} // namespace

Canvas::Canvas(Document& document, QUndoStack& undo, QWidget* parent)
    : QWidget(parent), m_document(document), m_host(document, undo, *this), m_layers(this, [this] { update(); }),
      m_selection(this, [this] { update(m_shownSelection | SelectionBounds()); }), m_paintingTick(new QTimer(this))
{
    m_paintingTick->setInterval(100);
    connect(m_paintingTick, &QTimer::timeout, this, qOverload<>(&Canvas::update));
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    setMouseTracking(true);
    setMinimumSize(320, 240);
    setAttribute(Qt::WA_OpaquePaintEvent); // every pixel is painted: Qt need not clear first
    m_host.SetZoom(m_zoom);
    connect(&m_host, &ToolHost::ToolAboutToChange, this, &Canvas::ToolAboutToChange);
    connect(&m_host, &ToolHost::ToolChanged, this, &Canvas::ToolChanged);
    connect(&m_host, &ToolHost::SelectionChanged, this, &Canvas::SelectionChanged);
    connect(&m_host, &ToolHost::HintChanged, this, &Canvas::HintChanged);
    connect(&m_host, &ToolHost::Changed, this, &Canvas::Refresh);
}

Canvas::~Canvas() = default;

void Canvas::SetMode(Mode mode)
{
    m_mode = mode;
    emit HintChanged();
}

void Canvas::SetZoom(double pixelsPerUnit)
{
    m_fitOnResize = false;
    m_zoom = std::clamp(pixelsPerUnit, kMinZoom, kMaxZoom);
    m_host.SetZoom(m_zoom);
    emit ZoomChanged();
    update();
}

void Canvas::ZoomBy(double factor)
{
    ZoomAbout(factor, QPointF(width() / 2.0, height() / 2.0));
}

void Canvas::ZoomAbout(double factor, QPointF device)
{
    // What is at the device point stays there.
    const QPointF at = (device - m_pan) / m_zoom;
    SetZoom(m_zoom * factor);
    m_pan = device - at * m_zoom;
    update();
}

void Canvas::resizeEvent(QResizeEvent* event)
{
    if (m_fitOnResize)
        FitPage();
    else if (event->oldSize().isValid())
        m_pan += QPointF(event->size().width() - event->oldSize().width(),
                         event->size().height() - event->oldSize().height()) /
                 2; // the centre stays put
}

void Canvas::FitPage()
{
    const double margin = 20;
    const double zx = (width() - 2 * margin) / m_document.width;
    const double zy = (height() - 2 * margin) / m_document.height;
    SetZoom(std::min(zx, zy));
    m_pan = QPointF((width() - m_document.width * m_zoom) / 2, (height() - m_document.height * m_zoom) / 2);
    m_fitOnResize = true;
}

QTransform Canvas::View() const
{
    return QTransform(m_zoom, 0, 0, m_zoom, m_pan.x(), m_pan.y());
}

QString Canvas::HintLine() const
{
    if (Tool()) {
        KestoPlatform::CString hint;
        if (Tool()->GetHintLine(&hint))
            return KestoToolQt::ToQString(hint);
    }
    switch (m_mode) {
    case Mode::Rectangle: return tr("|Drag| to draw a rectangle.");
    case Mode::Ellipse: return tr("|Drag| to draw an ellipse.");
    case Mode::Path: return tr("|Drag| to draw a closed path.");
    case Mode::Select: break;
    }
    if (Selected() < 0)
        return tr("|Click| a shape to select it, |drag| a shape to move it.");
    return tr("%1|Drag| over the shape to give it a linear %2, or choose a kind in the type box.")
        .arg(m_document.shapes[Selected()].Description(),
             EditsTransparency() ? tr("transparency") : tr("fill"));
}

// --- input ---

CPoint Canvas::ToDocument(const QPointF& device) const
{
    const QPointF p = (device - m_pan) / m_zoom;
    return Kesto2D::RoundToRange({p.x(), p.y()});
}

unsigned Canvas::DragFlags(Qt::KeyboardModifiers modifiers)
{
    return (modifiers & Qt::ShiftModifier ? KestoTool::DragFlagShift : 0u) |
           (modifiers & Qt::ControlModifier ? KestoTool::DragFlagCtrl : 0u);
}

void Canvas::mousePressEvent(QMouseEvent* event)
{
    setFocus();
    if (m_press != Press::None)
        return;
    m_pressDevice = event->position();
    m_pressPoint = m_lastPoint = ToDocument(event->position());
    if (event->button() == Qt::MiddleButton || (event->button() == Qt::LeftButton && m_spaceHeld)) {
        m_press = Press::Pan;
        m_panFrom = m_pan;
        setCursor(Qt::ClosedHandCursor);
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    switch (m_mode) {
    case Mode::Rectangle:
    case Mode::Ellipse: m_press = Press::Shape; return;
    case Mode::Path:
        m_press = Press::Shape;
        m_pathPoints = {m_pressPoint};
        return;
    case Mode::Select: break;
    }
    KestoPlatform::SIZE tolerance{kLineTolerance, kLineTolerance};
    m_host.ClientToPaper(&tolerance);
    KestoTool::FillTool* tool = Tool();
    // Beside a handle, the press is taken to its centre and the drag keeps that shift.
    m_grabShift = {};
    if (tool && tool->IndexFromPoint(m_pressPoint) == -1) {
        if (const int near = HandleNear(m_pressDevice); near >= 0) {
            Kesto2D::K2DArrayPoint handles;
            tool->GetHandles(&handles);
            const CPoint at = handles.GetAt(near);
            m_grabShift = View().map(QPointF(at.x, at.y)) - m_pressDevice;
        }
    }
    const CPoint grabbed = ToDocument(m_pressDevice + m_grabShift);
    if (tool && (tool->IndexFromPoint(grabbed) != -1 || tool->IsPointOnLine(grabbed, tolerance.cx))) {
        m_host.StartGesture(grabbed, DragFlags(event->modifiers()), false);
        m_press = Press::Tool;
        Refresh();
        return;
    }
    const int under = m_document.ShapeAt(m_pressPoint);
    if (under != -1 && under != Selected()) {
        Select(under);
        m_before = m_document.shapes;
        m_press = Press::Move;
        return;
    }
    m_press = Press::PendingCreate;
}

void Canvas::mouseMoveEvent(QMouseEvent* event)
{
    CPoint p = ToDocument(event->position());
    const unsigned flags = DragFlags(event->modifiers());
    const bool moved = (event->position() - m_pressDevice).manhattanLength() >= kDragThreshold;
    switch (m_press) {
    case Press::None: Hover(event->position()); return;
    case Press::Pan:
        m_pan = m_panFrom + (event->position() - m_pressDevice);
        m_fitOnResize = false;
        break;
    case Press::Tool: m_host.MoveGesture(ToDocument(event->position() + m_grabShift), flags); break;
    case Press::PendingCreate:
        if (!moved)
            return;
        // A drag off the handles draws a new fill (on a shape whose fill has no tool, a linear one).
        if (!m_host.StartGesture(m_pressPoint, flags, true)) {
            m_press = Press::None;
            return;
        }
        m_press = Press::Tool;
        m_host.MoveGesture(p, flags);
        break;
    case Press::Move:
        if (!moved)
            return;
        m_document.shapes = m_before;
        m_document.shapes[Selected()].Offset(
            static_cast<int>(std::clamp<long long>(static_cast<long long>(p.x) - m_pressPoint.x, INT_MIN, INT_MAX)),
            static_cast<int>(std::clamp<long long>(static_cast<long long>(p.y) - m_pressPoint.y, INT_MIN, INT_MAX)));
        m_host.SyncTool();
        break;
    case Press::Shape:
        if (m_mode == Mode::Path && (event->position() - m_pressDevice).manhattanLength() >= 1 &&
            std::abs(p.x - m_pathPoints.back().x) + std::abs(p.y - m_pathPoints.back().y) >= 3 / m_zoom)
            m_pathPoints.push_back(p);
        break;
    }
    m_lastPoint = p;
    emit HintChanged();
    if (m_press == Press::Shape || m_press == Press::Pan)
        update();
    else
        Refresh();
}

void Canvas::mouseReleaseEvent(QMouseEvent* event)
{
    CPoint p = ToDocument(event->position());
    const Press press = m_press;
    m_press = Press::None;
    switch (press) {
    case Press::None:
    case Press::Pan: break;
    case Press::Tool:
        m_host.EndGesture(ToDocument(event->position() + m_grabShift), DragFlags(event->modifiers()));
        break;
    case Press::PendingCreate:
        // A click off the handles selects what is under it.
        Select(m_document.ShapeAt(p));
        break;
    case Press::Move:
        if (m_document.shapes[Selected()].box != m_before[Selected()].box)
            m_host.PushStep(tr("Move Shape"), std::move(m_before));
        break;
    case Press::Shape: {
        Shape shape;
        shape.box = KestoPlatform::CRect(m_pressPoint, p).Normalized();
        shape.fill = RefPtr<const CFill>(
            new KestoGDI::CFillSolid(KestoGDI::CRGBColour(KestoPlatform::RGB(120, 170, 230)), false));
        if (m_mode == Mode::Path) {
            shape.kind = Shape::Kind::Path;
            shape.points = m_pathPoints;
            if (shape.points.size() < 3)
                break;
            QRect bounds = shape.Outline().boundingRect().toAlignedRect();
            shape.box = KestoPlatform::CRect(bounds.left(), bounds.top(), bounds.right() + 1, bounds.bottom() + 1);
        } else {
            shape.kind = m_mode == Mode::Ellipse ? Shape::Kind::Ellipse : Shape::Kind::Rectangle;
        }
        if (shape.box.Width() * m_zoom < 2 || shape.box.Height() * m_zoom < 2)
            break;
        m_host.AddShape(std::move(shape), m_mode == Mode::Path      ? tr("Add Path")
                                          : m_mode == Mode::Ellipse ? tr("Add Ellipse")
                                                                    : tr("Add Rectangle"));
        break;
    }
    }
    m_pathPoints.clear();
    emit HintChanged();
    update();
    Hover(event->position());
}

void Canvas::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers() & Qt::ControlModifier) {
        ZoomAbout(event->angleDelta().y() > 0 ? 1.25 : 0.8, event->position());
    } else {
        m_pan += QPointF(event->angleDelta()) / 4;
        m_fitOnResize = false;
        update();
    }
}

void Canvas::keyPressEvent(QKeyEvent* event)
{
    if (m_press != Press::None) {
        event->ignore();
        return;
    }
    if (event->key() == Qt::Key_Space) {
        if (!event->isAutoRepeat()) {
            m_spaceHeld = true;
            setCursor(Qt::OpenHandCursor);
        }
        return;
    }
    const int step = event->modifiers() & Qt::ShiftModifier ? 10 : 1;
    KestoPlatform::SIZE pixel{step, step};
    m_host.ClientToPaper(&pixel);
    switch (event->key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab: m_host.CycleHandle(event->key() == Qt::Key_Tab ? 1 : -1); return;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down: {
        const int dx = event->key() == Qt::Key_Left ? -pixel.cx : event->key() == Qt::Key_Right ? pixel.cx : 0;
        const int dy = event->key() == Qt::Key_Up ? -pixel.cy : event->key() == Qt::Key_Down ? pixel.cy : 0;
        m_host.Nudge(dx, dy);
        update();
        return;
    }
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        if (Tool() && Tool()->CanDeleteNode())
            Tool()->OnKeyDown(KestoTool::KeyDelete, 1, 0);
        else
            DeleteSelected();
        update();
        return;
    default: break;
    }
    if (Tool()) {
        const unsigned key = KestoToolQt::ToVirtualKey(event->key());
        if (key != 0) {
            Tool()->OnKeyDown(key, 1, 0);
            update();
            return;
        }
    }
    QWidget::keyPressEvent(event);
}

void Canvas::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space || event->isAutoRepeat()) {
        QWidget::keyReleaseEvent(event);
        return;
    }
    m_spaceHeld = false;
    if (m_press != Press::Pan)
        Hover(mapFromGlobal(QCursor::pos()));
}

void Canvas::leaveEvent(QEvent*)
{
    if (Tool() && Tool()->OnMouseLeave()) {
        emit HintChanged();
        Refresh();
    }
}

int Canvas::HandleNear(QPointF device) const
{
    if (!Tool())
        return -1;
    Kesto2D::K2DArrayPoint handles;
    Tool()->GetHandles(&handles);
    const double reach = kGrabPixels * logicalDpiX() / 96.0;
    int nearest = -1;
    double best = reach * reach;
    for (int i = 0; i < handles.GetSize(); ++i) {
        const CPoint h = handles.GetAt(i);
        const QPointF d = View().map(QPointF(h.x, h.y)) - device;
        if (const double distance = d.x() * d.x() + d.y() * d.y(); distance <= best) {
            best = distance; // a tie goes to the later handle, which is drawn on top
            nearest = i;
        }
    }
    return nearest;
}

Qt::CursorShape Canvas::CursorAt(QPointF device)
{
    if (m_press == Press::Pan)
        return Qt::ClosedHandCursor;
    if (m_spaceHeld)
        return Qt::OpenHandCursor;
    if (m_mode != Mode::Select)
        return Qt::CrossCursor;
    if (m_press == Press::Tool || HandleNear(device) >= 0)
        return Qt::SizeAllCursor; // moves the handle
    const CPoint p = ToDocument(device);
    KestoPlatform::SIZE tolerance{kLineTolerance, kLineTolerance};
    m_host.ClientToPaper(&tolerance);
    if (Tool() && Tool()->IsPointOnLine(p, tolerance.cx))
        return Qt::DragCopyCursor; // adds a stop, or moves the line
    const int under = m_document.ShapeAt(p);
    if (under != -1 && under == Selected())
        return Qt::CrossCursor;                                    // draws a new fill line
    return under != -1 ? Qt::PointingHandCursor : Qt::ArrowCursor; // selects
}

void Canvas::Hover(QPointF device)
{
    setCursor(CursorAt(device));
    if (SetHover(m_mode == Mode::Select && !m_spaceHeld ? HandleNear(device) : -1))
        Refresh();
}

std::unique_ptr<KestoGDI::CColour> Canvas::DroppedColour(const QMimeData* mime) const
{
    if (!mime || !mime->hasFormat(ColourMime))
        return nullptr;
    try {
        return FillJson::ReadColour(QJsonDocument::fromJson(mime->data(ColourMime)).object());
    } catch (const FormatError&) {
        return nullptr; // another program's data under our type: not a colour we can drop
    }
}

void Canvas::dragEnterEvent(QDragEnterEvent* event)
{
    if (DroppedColour(event->mimeData()))
        event->acceptProposedAction();
}

void Canvas::dragMoveEvent(QDragMoveEvent* event)
{
    const std::unique_ptr<KestoGDI::CColour> colour = DroppedColour(event->mimeData());
    if (!colour)
        return;
    if (Tool()) {
        // The page shows what the drop would make; the handle it would colour is ringed, the
        // line it would add a stop to widens.
        CPoint p = DropPoint(event->position());
        m_host.PreviewDrop(p, *colour);
        Tool()->SetGhostNode(p, colour.get());
        SetHover(HandleNear(event->position()));
        Refresh();
    }
    event->acceptProposedAction();
}

void Canvas::dragLeaveEvent(QDragLeaveEvent*)
{
    m_host.EndPreview();
    if (Tool()) {
        Tool()->ClearGhostNode();
        Tool()->OnMouseLeave();
    }
    Refresh();
}

CPoint Canvas::DropPoint(QPointF device) const
{
    // Near a handle, at the handle: as a press grabs it.
    if (const int near = HandleNear(device); near >= 0) {
        Kesto2D::K2DArrayPoint handles;
        Tool()->GetHandles(&handles);
        return handles.GetAt(near);
    }
    return ToDocument(device);
}

void Canvas::dropEvent(QDropEvent* event)
{
    const std::unique_ptr<KestoGDI::CColour> colour = DroppedColour(event->mimeData());
    if (!colour)
        return;
    CPoint p = DropPoint(event->position());
    event->acceptProposedAction();
    if (Tool())
        Tool()->OnMouseLeave();
    m_host.EndPreview();
    if (KestoTool::FillTool* tool = Tool()) {
        tool->ClearGhostNode();
        if (tool->OnFillCellDrop(p, colour.get())) {
            update();
            return;
        }
    }
    // On another shape, or one whose fill has no tool, the shape takes the colour as a plain
    // fill; a drop that misses the running tool's line leaves its fill alone.
    const int under = m_document.ShapeAt(p);
    if (under == -1 || EditsTransparency() || (Tool() && under == Selected()))
        return;
    std::vector<Shape> before = m_document.shapes;
    m_document.shapes[under].fill = RefPtr<const CFill>(new KestoGDI::CFillSolid(*colour, false));
    Select(under);
    m_host.SyncTool();
    m_host.PushStep(tr("Drop Colour"), std::move(before)); // undo and redo show the shape selected
    update();
}

// --- painting ---

PageLayers::Scene Canvas::Scene() const
{
    const double ratio = devicePixelRatioF();
    return {&m_document, Selected(), View() * QTransform::fromScale(ratio, ratio), (QSizeF(size()) * ratio).toSize(),
            ratio,       Grid()};
}

void Canvas::DrawOverlay(KestoGDI::IRenderTarget& target) const
{
    if (!Tool())
        return;
    // The handle a press would grab (the tool's hot one) is ringed.
    Tool()->Draw(&target, false, Kesto2D::K2DLtGeneral(m_zoom, 0, 0, m_zoom, m_pan.x(), m_pan.y()));
}

bool Canvas::SetHover(int handle)
{
    if (!Tool() || !Tool()->SetHotNode(handle))
        return false;
    emit HintChanged();
    return true;
}

QRect Canvas::SelectionBounds() const
{
    KestoGDI::BoundsRenderTarget overlay;
    DrawOverlay(overlay);
    const KestoPlatform::CRect& marked = overlay.Bounds();
    QRect bounds = marked.IsRectEmpty() ? QRect() : QRect(marked.left, marked.top, marked.Width(), marked.Height());
    if (Selected() >= 0)
        bounds |= View()
                      .mapRect(m_document.shapes[Selected()].Outline().boundingRect())
                      .toAlignedRect()
                      .adjusted(-2, -2, 2, 2);
    return bounds;
}

void Canvas::Refresh()
{
    // The handles may have moved under a still pointer (undo, a key): it rings what is under it.
    if (m_press == Press::None && underMouse() && !m_spaceHeld && m_mode == Mode::Select)
        SetHover(HandleNear(mapFromGlobal(QCursor::pos())));
    if (!m_layers.Shows(Scene())) {
        update();
        return;
    }
    update(m_shownSelection | SelectionBounds());
}

void Canvas::PrepareSelection(const PageLayers::Scene& scene, std::optional<std::chrono::milliseconds> wait)
{
    const int selected = Selected();
    if (selected < 0)
        return;
    const Shape& shape = m_document.shapes[selected];
    const KestoGDI::CFill* live = m_host.LiveFill();
    const bool transparency = EditsTransparency();
    m_selection.Prepare({&shape, selected, live && !transparency ? live : shape.fill.get(),
                         live && transparency ? live : shape.transparency.get(), scene.view, scene.deviceSize},
                        wait);
}

void Canvas::PaintEarlierLayers(QPainter& painter, const PageLayers::Scene& scene, const QRect& dirty)
{
    // The layers of the scene before, placed as the view now places the page, until this
    // scene's are ready; between them the shape they leave out, as it is now if it is still
    // the selection. Before the first, the page alone.
    painter.fillRect(dirty, QColor(PageLayers::Backdrop));
    if (m_layers.Empty()) {
        PageLayers::PaintBlankPage(painter, scene.view, m_document.width, m_document.height, scene.pixelRatio);
        return;
    }
    const QTransform now = painter.worldTransform();
    const QTransform then = m_layers.View().inverted() * scene.view * now;
    painter.setWorldTransform(then);
    painter.drawImage(0, 0, m_layers.Below());
    painter.setWorldTransform(now);
    m_selection.Paint(painter, m_layers.Selected(), scene.view, dirty);
    if (const QImage* above = m_layers.Above()) {
        painter.setWorldTransform(then);
        painter.drawImage(0, 0, *above);
        painter.setWorldTransform(now);
    }
}

void Canvas::PaintProgress(QPainter& painter)
{
    const std::optional<double> done = m_layers.Progress();
    if (!done)
        return;
    const QString text = tr("Painting the page...");
    const QRect bar(12, height() - 20, 120, 6);
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 220));
    painter.drawRect(bar.adjusted(-6, -8, fontMetrics().horizontalAdvance(text) + 16, 6));
    painter.setBrush(QColor(200, 200, 200));
    painter.drawRect(bar);
    painter.setBrush(QColor(QRgb(ToolHost::kToolColour)));
    painter.drawRect(QRectF(bar.x(), bar.y(), bar.width() * std::clamp(*done, 0.0, 1.0), bar.height()));
    painter.setPen(QColor(40, 40, 40));
    painter.drawText(QPoint(bar.right() + 8, bar.bottom() + 1), text);
    painter.restore();
}

void Canvas::paintEvent(QPaintEvent* event)
{
    // A frame's worth of waiting at most, so that a page slow to paint never holds up the window.
    // The selection's picture and the page's layers are rendered side by side.
    using namespace std::chrono;
    constexpr milliseconds kFrame{16};
    const auto start = steady_clock::now();
    const auto wait = [&]() -> std::optional<milliseconds> {
        if (m_waitForPage)
            return std::nullopt;
        return std::max(milliseconds(0), kFrame - duration_cast<milliseconds>(steady_clock::now() - start));
    };
    const PageLayers::Scene scene = Scene();
    PrepareSelection(scene, milliseconds(0));
    const bool current = m_layers.Prepare(scene, wait());
    PrepareSelection(scene, wait());
    QPainter painter(this);
    {
        // The page in device pixels: what does not change from the layers, the selection's fill
        // (as the tool shapes it while a gesture lasts) rendered for the part repainted.
        const QRect dirty =
            QRectF(QRectF(event->rect()).topLeft() * scene.pixelRatio, QRectF(event->rect()).size() * scene.pixelRatio)
                .toAlignedRect() &
            QRect(QPoint(0, 0), scene.deviceSize);
        painter.save();
        painter.setWorldTransform(QTransform::fromScale(1 / scene.pixelRatio, 1 / scene.pixelRatio));
        if (current) {
            painter.drawImage(dirty.topLeft(), m_layers.Below(), dirty);
            m_selection.Paint(painter, Selected(), scene.view, dirty);
            if (const QImage* above = m_layers.Above(); above && m_layers.AboveBounds().intersects(dirty))
                painter.drawImage(dirty.topLeft(), *above, dirty);
        } else
            PaintEarlierLayers(painter, scene, dirty);
        painter.restore();
    }
    if (Selected() >= 0) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        // A hairline of one device pixel: Qt dashes wider lines far more slowly.
        painter.setPen(QPen(QColor(40, 40, 40), 0, Qt::DashLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(View().map(m_document.shapes[Selected()].Outline()));
        painter.restore();
    }
    {
        KestoToolQt::QtRenderTarget overlay(painter);
        DrawOverlay(overlay);
    }
    m_shownSelection = SelectionBounds();
    if (m_press == Press::Shape) {
        painter.setPen(QPen(QColor(0, 90, 200), 1, Qt::DashLine));
        painter.setBrush(Qt::NoBrush);
        const QTransform view = View();
        const QRectF band = view.mapRect(
            QRectF(QPointF(m_pressPoint.x, m_pressPoint.y), QPointF(m_lastPoint.x, m_lastPoint.y)).normalized());
        if (m_mode == Mode::Ellipse)
            painter.drawEllipse(band);
        else if (m_mode == Mode::Rectangle)
            painter.drawRect(band);
        else {
            QPolygonF line;
            for (const CPoint& q : m_pathPoints)
                line << view.map(QPointF(q.x, q.y));
            painter.drawPolyline(line);
        }
    }
    if (current)
        m_paintingTick->stop();
    else {
        PaintProgress(painter);
        if (!m_paintingTick->isActive())
            m_paintingTick->start();
    }
}

} // namespace KestoDraw
