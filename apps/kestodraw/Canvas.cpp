#include "Canvas.h"

#include "FillJson.h"
#include "JsonRead.h"
#include "ShapesEdit.h"

#include <kestotool/filltool/FillToolFactory.h>
#include <kestotool/gdi/CFillLinear.h>
#include <kestotool/gdi/CFillSolid.h>
#include <kestotool/gdi/CFillWithStops.h>
#include <kestotool/gdi/CRGBColour.h>
#include <kestotool/gdi/CTransparency.h>
#include <kestotool/gdi/CTransparencyLinear.h>
#include <kestotool/geometry/CoordinateRange.h>
#include <kestotool/geometry/Rounding.h>
#include <kestotool/platform/CXTPControlPopupColor.h>
#include <kestotool/qt/QtConvert.h>
#include <kestotool/qt/QtRenderTarget.h>
#include <kestotool/tool/SiteGeometry.h>

#include <QColorDialog>
#include <QJsonDocument>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QUndoStack>
#include <QWheelEvent>

#include <algorithm>
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
constexpr double kMinZoom = 0.005;
constexpr double kMaxZoom = 20;

RefPtr<const CFill>& FieldOf(Shape& shape, bool transparency)
{
    return transparency ? shape.transparency : shape.fill;
}

// The fill a drag on a shape whose fill has no tool starts from: a linear fill from the shape's
// colour to white, or a linear transparency from opaque to clear.
RefPtr<CFill> StarterFill(const CFill* current, bool transparency, const KestoPlatform::CRect& box)
{
    RefPtr<CFill> fill =
        transparency ? RefPtr<CFill>(new KestoGDI::CTransparencyLinear) : RefPtr<CFill>(new KestoGDI::CFillLinear);
    fill->SetDefaultControls(box);
    if (const auto* solid = dynamic_cast<const KestoGDI::CFillSolid*>(current); solid && !transparency) {
        KestoGDI::ColourIntPairs stops;
        stops.Add(solid->GetColour(), 0);
        stops.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(255, 255, 255)), 10000);
        static_cast<KestoGDI::CFillWithStops&>(*fill).SetColourIntPairs(stops);
    }
    return fill;
}

} // namespace

Canvas::Canvas(Document& document, QUndoStack& undo, QWidget* parent)
    : QWidget(parent), m_document(document), m_undo(undo), m_bars(std::make_unique<KestoPlatform::CXTPCommandBars>())
{
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    setMouseTracking(true);
    setMinimumSize(320, 240);
}

Canvas::~Canvas()
{
    m_tool.reset();
}

void Canvas::SetMode(Mode mode)
{
    m_mode = mode;
    emit HintChanged();
}

void Canvas::SetEditTransparency(bool transparency)
{
    if (m_editTransparency == transparency)
        return;
    m_editTransparency = transparency;
    RebuildTool();
}

void Canvas::Select(int index)
{
    if (index < -1 || index >= static_cast<int>(m_document.shapes.size()))
        index = -1;
    if (index == m_selected)
        return;
    m_selected = index;
    RebuildTool();
    emit SelectionChanged();
}

void Canvas::SetZoom(double pixelsPerUnit)
{
    m_fitOnResize = false;
    m_zoom = std::clamp(pixelsPerUnit, kMinZoom, kMaxZoom);
    emit ZoomChanged();
    update();
}

void Canvas::ZoomBy(double factor)
{
    // About the middle of the widget: what is there stays there.
    const QPointF middle(width() / 2.0, height() / 2.0);
    const QPointF at = (middle - m_pan) / m_zoom;
    SetZoom(m_zoom * factor);
    m_pan = middle - at * m_zoom;
    update();
}

void Canvas::resizeEvent(QResizeEvent*)
{
    if (m_fitOnResize)
        FitPage();
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

void Canvas::SetPreferences(int grid, int angleStep)
{
    m_grid = std::max(0, grid);
    m_angleStep = std::max(0, angleStep);
    update();
}

void Canvas::DocumentReplaced()
{
    m_selected = -1;
    RebuildTool();
    emit SelectionChanged();
}

void Canvas::ApplyShapes(const std::vector<Shape>& shapes)
{
    m_document.shapes = shapes;
    if (m_selected >= static_cast<int>(shapes.size())) {
        m_selected = -1;
        emit SelectionChanged();
    }
    SyncTool();
    update();
}

void Canvas::AddShape(Shape shape, const QString& stepName)
{
    std::vector<Shape> before = m_document.shapes;
    m_document.shapes.push_back(std::move(shape));
    PushStep(stepName, std::move(before));
    Select(static_cast<int>(m_document.shapes.size()) - 1);
}

void Canvas::DeleteSelected()
{
    if (m_selected < 0)
        return;
    std::vector<Shape> before = m_document.shapes;
    m_document.shapes.erase(m_document.shapes.begin() + m_selected);
    m_selected = -1;
    PushStep(tr("Delete Shape"), std::move(before));
    RebuildTool();
    emit SelectionChanged();
}

void Canvas::SetKind(int fillType)
{
    const KestoPlatform::CRuntimeClass* c = m_editTransparency
                                                ? KestoGDI::CTransparency::GetRuntimeClassFromType(fillType)
                                                : CFill::GetRuntimeClassFromType(fillType);
    if (c)
        m_editTransparency ? SetTransparencyType(c) : SetFillType(c);
}

QImage Canvas::RenderPage(double pixelsPerUnit)
{
    QImage image(std::max(1, static_cast<int>(std::lround(m_document.width * pixelsPerUnit))),
                 std::max(1, static_cast<int>(std::lround(m_document.height * pixelsPerUnit))),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    m_painter.Paint(painter, m_document, QTransform::fromScale(pixelsPerUnit, pixelsPerUnit), image.rect());
    return image;
}

QString Canvas::HintLine() const
{
    if (m_tool) {
        KestoPlatform::CString hint;
        if (m_tool->GetHintLine(&hint))
            return KestoToolQt::ToQString(hint);
    }
    switch (m_mode) {
    case Mode::Rectangle: return tr("|Drag| to draw a rectangle.");
    case Mode::Ellipse: return tr("|Drag| to draw an ellipse.");
    case Mode::Path: return tr("|Drag| to draw a closed path.");
    case Mode::Select: break;
    }
    if (m_selected < 0)
        return tr("|Click| a shape to select it, |drag| a shape to move it.");
    return tr("%1|Drag| over the shape to give it a linear %2, or choose a kind in the type box.")
        .arg(QString::fromWCharArray(m_document.shapes[m_selected].Description()),
             m_editTransparency ? tr("transparency") : tr("fill"));
}

void Canvas::FlushPendingRebuild()
{
    if (m_rebuildPending)
        RebuildTool();
}

// --- the tool and the document ---

Shape* Canvas::SelectedShape()
{
    return m_selected >= 0 ? &m_document.shapes[m_selected] : nullptr;
}

RefPtr<const CFill> Canvas::EditedFill() const
{
    if (m_selected < 0)
        return {};
    const Shape& shape = m_document.shapes[m_selected];
    return m_editTransparency ? shape.transparency : shape.fill;
}

void Canvas::RebuildTool()
{
    m_rebuildPending = false;
    emit ToolAboutToChange();
    m_gesture.Cancel();
    m_tool.reset();
    // One set of bars for the canvas's life: the tools register their images with it once.
    m_bars->RemoveAll();
    if (const RefPtr<const CFill> fill = EditedFill())
        m_tool = KestoTool::FillToolFactory::Create(fill.get(), this);
    if (m_tool)
        m_tool->InitContextButtons(m_bars.get());
    emit ToolChanged();
    emit HintChanged();
    update();
}

void Canvas::ScheduleRebuild()
{
    if (m_rebuildPending)
        return;
    m_rebuildPending = true;
    QMetaObject::invokeMethod(this, &Canvas::FlushPendingRebuild, Qt::QueuedConnection);
}

void Canvas::SyncTool()
{
    const RefPtr<const CFill> fill = EditedFill();
    const CFill* held = m_tool ? m_tool->GetFill() : nullptr;
    if (fill && held && fill->GetRuntimeClass() == held->GetRuntimeClass()) {
        if (held != fill.get())
            m_tool->SetFill(fill.get());
        emit HintChanged();
        return;
    }
    // Another kind (or none): the tool goes, but never inside one of its own calls.
    if (m_tool || (fill && KestoTool::FillToolFactory::Create(fill.get(), this)))
        ScheduleRebuild();
}

QString Canvas::DefaultStepName() const
{
    return m_editTransparency ? tr("Edit Transparency") : tr("Edit Fill");
}

void Canvas::PushStep(const QString& name, std::vector<Shape> before)
{
    m_undo.push(new ShapesEdit(name, std::move(before), m_document.shapes,
                               [this](const std::vector<Shape>& shapes) { ApplyShapes(shapes); }));
}

void Canvas::Commit(const CFill* fill, const wchar_t* undoName, bool transparency)
{
    Shape* shape = SelectedShape();
    if (!shape || !fill)
        return;
    if (m_gesture.Absorb(undoName)) {
        // A commit while the mouse moves shows at once; the gesture's end makes the step.
        FieldOf(*shape, transparency) = RefPtr<const CFill>(fill);
        SyncTool();
        update();
        return;
    }
    RecordCommit(fill, undoName, transparency);
}

void Canvas::RecordCommit(const CFill* fill, const wchar_t* undoName, bool transparency)
{
    Shape* shape = SelectedShape();
    if (!shape || !fill)
        return;
    std::vector<Shape> before = m_document.shapes;
    FieldOf(*shape, transparency) = RefPtr<const CFill>(fill);
    PushStep(undoName ? QString::fromWCharArray(undoName) : DefaultStepName(), std::move(before));
}

void Canvas::StartGesture(CPoint at, unsigned flags, bool create)
{
    m_before = m_document.shapes;
    m_press = Press::Tool;
    m_gesture.Press(*m_tool, at, flags, create);
}

void Canvas::EndGesture(CPoint at, unsigned flags)
{
    const std::optional<KestoTool::ToolGesture::Step> step = m_gesture.Release(at, flags);
    m_press = Press::None;
    Shape* shape = SelectedShape();
    if (!shape || !step) {
        m_document.shapes = m_before; // nothing changed: no step
        SyncTool();
        return;
    }
    FieldOf(*shape, m_editTransparency) = step->after;
    PushStep(step->undoName.empty() ? DefaultStepName() : QString::fromStdWString(step->undoName), std::move(m_before));
    emit HintChanged();
}

void Canvas::Nudge(int dx, int dy)
{
    Kesto2D::K2DArrayPoint handles;
    m_tool->GetHandles(&handles);
    if (handles.GetSize() == 0)
        return;
    const int node = std::clamp(m_tool->GetCurrentNode(), 0, handles.GetSize() - 1);
    const CPoint from = handles.GetAt(node);
    CPoint to = Kesto2D::OffsetPoint(from, dx, dy);
    StartGesture(from, 0, false);
    m_gesture.Move(to, 0);
    EndGesture(to, 0);
    m_tool->SetCurrentNode(node);
}

void Canvas::CycleHandle(int step)
{
    Kesto2D::K2DArrayPoint handles;
    m_tool->GetHandles(&handles);
    const int count = handles.GetSize();
    if (count == 0)
        return;
    const int current = std::max(m_tool->GetCurrentNode(), step > 0 ? -1 : 0);
    m_tool->SetCurrentNode(((current + step) % count + count) % count);
    emit HintChanged();
    update();
}

// --- IToolSite and IToolHelper ---

void Canvas::ClientToPaper(KestoPlatform::SIZE* size)
{
    size->cx = Kesto2D::RoundHalfAwayFromZero(size->cx / m_zoom);
    size->cy = Kesto2D::RoundHalfAwayFromZero(size->cy / m_zoom);
}

KestoPlatform::CRect Canvas::GetObjectBBox()
{
    return m_selected >= 0 ? m_document.shapes[m_selected].box : KestoPlatform::CRect();
}

void Canvas::ConstrainAngle(CPoint origin, CPoint& point, bool)
{
    point = KestoTool::SiteGeometry::ConstrainToAngleStep(origin, point, m_angleStep);
}

void Canvas::Snap(const CPoint& in, CPoint& out)
{
    out = KestoTool::SiteGeometry::SnapToGrid(in, m_grid);
}

KestoPlatform::CString Canvas::GetCurrentSelectionDescription()
{
    return m_selected >= 0 ? KestoPlatform::CString(m_document.shapes[m_selected].Description())
                           : KestoPlatform::CString();
}

void Canvas::AddContextItem(int hostCommand)
{
    m_bars->CreateControl(
        hostCommand, true,
        [this](KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) { return m_tool->OnCreateControl(cc); },
        [this](KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) { m_tool->OnAfterCreateControl(cc); });
}

void Canvas::UpdateFill(const CFill* fill, const wchar_t* undoName)
{
    Commit(fill, undoName, false);
}

void Canvas::UpdateTransparency(const CFill* fill, const wchar_t* undoName, bool)
{
    Commit(fill, undoName, true);
}

void Canvas::SetFillType(const KestoPlatform::CRuntimeClass* fillClass)
{
    Shape* shape = SelectedShape();
    RefPtr<CFill> fresh = CFill::CreateFromClass(fillClass);
    if (!shape || !fresh)
        return;
    fresh->SetDefaultControls(shape->box);
    // Colours carry over where the new kind can take the old stops.
    const RefPtr<const CFill>& old = FieldOf(*shape, fresh->IsTransparency());
    const auto* oldStops = dynamic_cast<const KestoGDI::CFillWithStops*>(old.get());
    if (auto* stops = dynamic_cast<KestoGDI::CFillWithStops*>(fresh.get()); stops && oldStops)
        stops->SetColourIntPairs(oldStops->GetColourIntPairs());
    // A step of its own, also when it comes during a drag.
    RecordCommit(fresh.get(), fresh->IsTransparency() ? L"Transparency Type" : L"Fill Type", fresh->IsTransparency());
}

void Canvas::SetTransparencyType(const KestoPlatform::CRuntimeClass* transparencyClass)
{
    SetFillType(transparencyClass);
}

int Canvas::CreateColourControl(KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc)
{
    if (!cc)
        return 0;
    cc->pControl = std::make_unique<KestoPlatform::CXTPControlPopupColor>(cc->nID);
    return 1;
}

KestoGDI::CColour* Canvas::ColourPicker(const KestoGDI::CColour* current, KestoPlatform::CWnd*)
{
    const QColor start = current ? KestoToolQt::ToQColor(current->GetRGB(), current->GetAlpha()) : QColor(Qt::black);
    const QColor chosen = QColorDialog::getColor(start, this, tr("Colour"), QColorDialog::ShowAlphaChannel);
    if (!chosen.isValid())
        return nullptr;
    return new KestoGDI::CRGBColour(KestoPlatform::RGB(chosen.red(), chosen.green(), chosen.blue()), nullptr, 0,
                                    static_cast<short>(chosen.alpha()));
}

bool Canvas::ColourPicker(const KestoGDI::CColour* current, KestoGDI::CColour*& result, KestoPlatform::CWnd* owner)
{
    result = ColourPicker(current, owner);
    return result != nullptr;
}

KestoGDI::CColour* Canvas::AskUserForNewColour(const KestoGDI::CColour* current, CPoint, KestoPlatform::CWnd* owner)
{
    return ColourPicker(current, owner);
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
    if (event->button() == Qt::MiddleButton) {
        m_press = Press::Pan;
        m_panFrom = m_pan;
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
    ClientToPaper(&tolerance);
    if (m_tool && (m_tool->IndexFromPoint(m_pressPoint) != -1 || m_tool->IsPointOnLine(m_pressPoint, tolerance.cx))) {
        StartGesture(m_pressPoint, DragFlags(event->modifiers()), false);
        update();
        return;
    }
    const int under = m_document.ShapeAt(m_pressPoint);
    if (under != -1 && under != m_selected) {
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
    case Press::None: return;
    case Press::Pan:
        m_pan = m_panFrom + (event->position() - m_pressDevice);
        m_fitOnResize = false;
        break;
    case Press::Tool: m_gesture.Move(p, flags); break;
    case Press::PendingCreate:
        if (!moved)
            return;
        if (m_selected < 0) {
            m_press = Press::None;
            return;
        }
        if (!m_tool) {
            // A drag on a shape whose fill has no tool gives it a linear one to shape; the step
            // goes back to the fill it had.
            std::vector<Shape> original = m_document.shapes;
            Shape& shape = m_document.shapes[m_selected];
            FieldOf(shape, m_editTransparency) = StarterFill(EditedFill().get(), m_editTransparency, shape.box);
            RebuildTool();
            StartGesture(m_pressPoint, flags, true);
            m_before = std::move(original);
        } else {
            StartGesture(m_pressPoint, flags, true);
        }
        m_gesture.Move(p, flags);
        break;
    case Press::Move:
        if (!moved)
            return;
        m_document.shapes = m_before;
        m_document.shapes[m_selected].Offset(
            static_cast<int>(std::clamp<long long>(static_cast<long long>(p.x) - m_pressPoint.x, INT_MIN, INT_MAX)),
            static_cast<int>(std::clamp<long long>(static_cast<long long>(p.y) - m_pressPoint.y, INT_MIN, INT_MAX)));
        SyncTool();
        break;
    case Press::Shape:
        if (m_mode == Mode::Path && (event->position() - m_pressDevice).manhattanLength() >= 1 &&
            std::abs(p.x - m_pathPoints.back().x) + std::abs(p.y - m_pathPoints.back().y) >= 3 / m_zoom)
            m_pathPoints.push_back(p);
        break;
    }
    m_lastPoint = p;
    emit HintChanged();
    update();
}

void Canvas::mouseReleaseEvent(QMouseEvent* event)
{
    CPoint p = ToDocument(event->position());
    const Press press = m_press;
    m_press = Press::None;
    switch (press) {
    case Press::None:
    case Press::Pan: break;
    case Press::Tool: EndGesture(p, DragFlags(event->modifiers())); break;
    case Press::PendingCreate:
        // A click off the handles selects what is under it.
        Select(m_document.ShapeAt(p));
        break;
    case Press::Move:
        if (m_document.shapes[m_selected].box != m_before[m_selected].box)
            PushStep(tr("Move Shape"), std::move(m_before));
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
        AddShape(std::move(shape), m_mode == Mode::Path      ? tr("Add Path")
                                   : m_mode == Mode::Ellipse ? tr("Add Ellipse")
                                                             : tr("Add Rectangle"));
        break;
    }
    }
    m_pathPoints.clear();
    emit HintChanged();
    update();
}

void Canvas::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers() & Qt::ControlModifier) {
        ZoomBy(event->angleDelta().y() > 0 ? 1.25 : 0.8);
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
    const int step = event->modifiers() & Qt::ShiftModifier ? 10 : 1;
    KestoPlatform::SIZE pixel{step, step};
    ClientToPaper(&pixel);
    switch (event->key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        if (m_tool)
            CycleHandle(event->key() == Qt::Key_Tab ? 1 : -1);
        return;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down: {
        const int dx = event->key() == Qt::Key_Left ? -pixel.cx : event->key() == Qt::Key_Right ? pixel.cx : 0;
        const int dy = event->key() == Qt::Key_Up ? -pixel.cy : event->key() == Qt::Key_Down ? pixel.cy : 0;
        if (m_tool)
            Nudge(dx, dy);
        update();
        return;
    }
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        if (m_tool && m_tool->CanDeleteNode())
            m_tool->OnKeyDown(KestoTool::KeyDelete, 1, 0);
        else
            DeleteSelected();
        update();
        return;
    default: break;
    }
    if (m_tool) {
        const unsigned key = KestoToolQt::ToVirtualKey(event->key());
        if (key != 0) {
            m_tool->OnKeyDown(key, 1, 0);
            update();
            return;
        }
    }
    QWidget::keyPressEvent(event);
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
    if (m_tool) {
        CPoint p = ToDocument(event->position());
        m_tool->SetGhostNode(p, colour.get());
        update();
    }
    event->acceptProposedAction();
}

void Canvas::dragLeaveEvent(QDragLeaveEvent*)
{
    if (m_tool && m_tool->ClearGhostNode())
        update();
}

void Canvas::dropEvent(QDropEvent* event)
{
    const std::unique_ptr<KestoGDI::CColour> colour = DroppedColour(event->mimeData());
    if (!colour)
        return;
    CPoint p = ToDocument(event->position());
    event->acceptProposedAction();
    if (m_tool) {
        m_tool->ClearGhostNode();
        if (m_tool->OnFillCellDrop(p, colour.get())) {
            update();
            return;
        }
    }
    // On another shape, or one whose fill has no tool, the shape takes the colour as a plain
    // fill; a drop that misses the running tool's line leaves its fill alone.
    const int under = m_document.ShapeAt(p);
    if (under == -1 || m_editTransparency || (m_tool && under == m_selected))
        return;
    std::vector<Shape> before = m_document.shapes;
    m_document.shapes[under].fill = RefPtr<const CFill>(new KestoGDI::CFillSolid(*colour, false));
    PushStep(tr("Drop Colour"), std::move(before));
    Select(under);
    SyncTool();
    update();
}

// --- painting ---

void Canvas::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(150, 150, 150));
    const QTransform view = View();
    const QRectF page = view.mapRect(QRectF(0, 0, m_document.width, m_document.height));
    painter.fillRect(page.translated(3, 3), QColor(90, 90, 90));
    painter.fillRect(page, Qt::white);
    if (m_grid > 0 && m_grid * m_zoom >= 6) {
        painter.setPen(QColor(225, 225, 235));
        for (double x = 0; x <= m_document.width; x += m_grid)
            painter.drawLine(view.map(QLineF(x, 0, x, m_document.height)));
        for (double y = 0; y <= m_document.height; y += m_grid)
            painter.drawLine(view.map(QLineF(0, y, m_document.width, y)));
    }
    m_painter.Paint(painter, m_document, view, rect());
    if (m_selected >= 0) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(40, 40, 40), 1, Qt::DashLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(view.map(m_document.shapes[m_selected].Outline()));
    }
    if (m_tool) {
        KestoToolQt::QtRenderTarget target(painter);
        m_tool->Draw(&target, false, Kesto2D::K2DLtGeneral(m_zoom, 0, 0, m_zoom, m_pan.x(), m_pan.y()));
    }
    if (m_press == Press::Shape) {
        painter.setPen(QPen(QColor(0, 90, 200), 1, Qt::DashLine));
        painter.setBrush(Qt::NoBrush);
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
}

} // namespace KestoDraw
