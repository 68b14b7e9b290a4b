#include "QtCanvas.h"

#include <kestotool/gdi/CFill.h>
#include <kestotool/gdi/CFillSolid.h>
#include <kestotool/gdi/CRGBColour.h>
#include <kestotool/gdi/FillPaint.h>
#include <kestotool/gdi/FillType.h>
#include <kestotool/qt/QtConvert.h>
#include <kestotool/qt/QtRenderTarget.h>

#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QUndoCommand>

#include <cmath>

using KestoKernel::RefPtr;
using KestoPlatform::CPoint;
using KestoPlatform::CRect;

QtCanvas::QtCanvas(QToolBar& contextBar, std::function<void(const QString&)> hint)
    : m_contextBar(contextBar), m_hint(std::move(hint))
{
    setMouseTracking(true);
    setMinimumSize(800, 600);
    // One rectangle of each kind of gradient (fill types 4 to 11), from a colour to white.
    const KestoPlatform::COLORREF colours[] = {0x2050E0, 0x30A0F0, 0x60B040, 0xC04080};
    for (int i = 0; i < 8; ++i) {
        const CRect box(200 + i % 4 * 950, 300 + i / 4 * 1350, 1000 + i % 4 * 950, 1400 + i / 4 * 1350);
        KestoGDI::CFillSolid colour;
        colour.SetColour(KestoGDI::CRGBColour(colours[i % 4]));
        const auto kind = KestoGDI::CFill::GetRuntimeClassFromType(KestoGDI::FillType::Linear + i);
        m_shapes.push_back({box, KestoTool::ToolSession::Convert(&colour, kind, box)});
    }
    // A new tool (another kind chosen in the toolbar's combo) is made from the event loop, once
    // the combo's own signal has returned: the toolbar then shows the new tool's controls.
    m_session.SetPost([this](std::function<void()> rebuild) {
        QMetaObject::invokeMethod(this, std::move(rebuild), Qt::QueuedConnection);
    });
    m_session.SetToolAboutToChange([this] { m_contextBar.Clear(); });
    m_session.SetToolChanged([this] {
        if (m_session.Tool())
            m_contextBar.Show(m_session.Bars(), m_session);
        ShowHint();
        update();
    });
}

void QtCanvas::Select(int index)
{
    m_selected = index >= 0 && index < static_cast<int>(m_shapes.size()) ? index : -1;
    m_session.Start(m_selected >= 0 ? m_shapes[m_selected].fill.get() : nullptr);
    m_session.Flush(); // not inside a tool's call: the new tool comes at once
}

CPoint QtCanvas::ToDocument(QPointF widget) const
{
    return {static_cast<int>(std::lround(widget.x() / kScale)), static_cast<int>(std::lround(widget.y() / kScale))};
}

unsigned QtCanvas::Flags(Qt::KeyboardModifiers modifiers)
{
    return (modifiers & Qt::ShiftModifier ? KestoTool::DragFlagShift : 0u) |
           (modifiers & Qt::ControlModifier ? KestoTool::DragFlagCtrl : 0u);
}

void QtCanvas::ClientToPaper(KestoPlatform::SIZE* size)
{
    size->cx = static_cast<int>(std::lround(size->cx / kScale));
    size->cy = static_cast<int>(std::lround(size->cy / kScale));
}

CRect QtCanvas::GetObjectBBox()
{
    return m_selected >= 0 ? m_shapes[m_selected].box : CRect();
}

void QtCanvas::AddContextItem(int hostCommand)
{
    m_session.Bars().CreateControl(
        hostCommand, true,
        [this](KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) { return m_session.Tool()->OnCreateControl(cc); },
        [this](KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) { m_session.Tool()->OnAfterCreateControl(cc); });
}

namespace {

// One undo step: the fill of one shape, before and after.
class FillStep : public QUndoCommand {
public:
    FillStep(const QString& name, std::function<void(const RefPtr<const KestoGDI::CFill>&)> apply,
             RefPtr<const KestoGDI::CFill> before, RefPtr<const KestoGDI::CFill> after)
        : QUndoCommand(name), m_apply(std::move(apply)), m_before(std::move(before)), m_after(std::move(after))
    {
    }
    void undo() override { m_apply(m_before); }
    void redo() override { m_apply(m_after); }

private:
    std::function<void(const RefPtr<const KestoGDI::CFill>&)> m_apply;
    RefPtr<const KestoGDI::CFill> m_before, m_after;
};

} // namespace

void QtCanvas::PushStep(const QString& name, RefPtr<const KestoGDI::CFill> before,
                        RefPtr<const KestoGDI::CFill> after)
{
    const int shape = m_selected;
    m_undo.push(new FillStep(
        name,
        [this, shape](const RefPtr<const KestoGDI::CFill>& fill) {
            m_shapes[shape].fill = fill;
            if (shape == m_selected)
                m_session.Follow(fill.get());
            update();
        },
        std::move(before), std::move(after)));
}

void QtCanvas::UpdateFill(const KestoGDI::CFill* fill, const wchar_t* undoName)
{
    if (m_selected < 0 || !fill)
        return;
    // Kept by reference: a committed fill never changes.
    const RefPtr<const KestoGDI::CFill> committed(fill);
    if (m_session.Gesture().Absorb(undoName)) {
        m_shapes[m_selected].fill = committed; // shown now; the gesture's end makes the step
        m_session.Follow(fill);
        update();
        return;
    }
    PushStep(undoName ? QString::fromWCharArray(undoName) : QStringLiteral("Edit Fill"), m_shapes[m_selected].fill,
             committed);
}

void QtCanvas::UpdateTransparency(const KestoGDI::CFill* fill, const wchar_t* undoName, bool)
{
    UpdateFill(fill, undoName); // the shapes here have fills only
}

void QtCanvas::ShowHint()
{
    KestoPlatform::CString hint;
    if (m_session.Tool() && m_session.Tool()->GetHintLine(&hint))
        m_hint(KestoToolQt::ToQString(hint));
    else
        m_hint(QStringLiteral("|Click| a rectangle to edit its fill."));
}

void QtCanvas::paintEvent(QPaintEvent*)
{
    QImage page(size(), QImage::Format_ARGB32_Premultiplied);
    page.fill(Qt::white);
    const KestoRaster::Target target{page.bits(), page.width(), page.height(), page.bytesPerLine(),
                                     KestoRaster::Output::Argb32};
    for (std::size_t i = 0; i < m_shapes.size(); ++i) {
        const Shape& shape = m_shapes[i];
        // While a gesture lasts, the tool's working fill (its own object, reshaped in place).
        const bool live = static_cast<int>(i) == m_selected && IsInDrag() && m_session.Tool();
        const KestoGDI::CFill& fill = live ? *m_session.Tool()->GetFill() : *shape.fill;
        const auto px = [](int units) { return static_cast<int>(units * kScale); };
        KestoGDI::FillPaint::PaintOver(fill, {kScale, 0, 0, kScale, 0, 0}, kScale, target,
                                       {px(shape.box.left), px(shape.box.top), px(shape.box.right), px(shape.box.bottom)});
    }
    QPainter painter(this);
    painter.drawImage(0, 0, page);
    painter.setPen(QColor(60, 60, 60));
    for (const Shape& shape : m_shapes)
        painter.drawRect(QRectF(shape.box.left * kScale, shape.box.top * kScale, shape.box.Width() * kScale,
                                shape.box.Height() * kScale));
    if (KestoTool::FillTool* tool = m_session.Tool()) {
        painter.setRenderHint(QPainter::Antialiasing);
        KestoToolQt::QtRenderTarget overlay(painter, 1 / devicePixelRatioF());
        tool->Draw(&overlay, false, Kesto2D::K2DLtGeneral(kScale, 0, 0, kScale, 0, 0));
    }
}

void QtCanvas::mousePressEvent(QMouseEvent* event)
{
    const CPoint p = ToDocument(event->position());
    KestoTool::FillTool* tool = m_session.Tool();
    KestoPlatform::SIZE reach{4, 4}; // screen pixels around a control line
    ClientToPaper(&reach);
    if (tool && (tool->IndexFromPoint(p) != -1 || tool->IsPointOnLine(p, reach.cx))) {
        m_session.Press(p, Flags(event->modifiers()), false);
        return;
    }
    for (int i = static_cast<int>(m_shapes.size()); i-- > 0;) {
        if (m_shapes[i].box.PtInRect(p)) {
            if (i == m_selected && tool)
                m_session.Press(p, Flags(event->modifiers()), true); // a drag draws a new fill
            else
                Select(i);
            return;
        }
    }
    Select(-1);
}

void QtCanvas::mouseMoveEvent(QMouseEvent* event)
{
    const CPoint p = ToDocument(event->position());
    if (IsInDrag()) {
        m_session.Move(p, Flags(event->modifiers()));
        update();
    } else if (m_session.Tool() && m_session.Tool()->OnMouseHover(p)) {
        ShowHint();
        update();
    }
}

void QtCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (!IsInDrag())
        return;
    if (const auto step = m_session.Release(ToDocument(event->position()), Flags(event->modifiers())))
        PushStep(step->undoName.empty() ? QStringLiteral("Edit Fill") : QString::fromStdWString(step->undoName),
                 step->before, step->after);
    ShowHint();
    update();
}

void QtCanvas::leaveEvent(QEvent*)
{
    if (m_session.Tool() && m_session.Tool()->OnMouseLeave()) {
        ShowHint();
        update();
    }
}
