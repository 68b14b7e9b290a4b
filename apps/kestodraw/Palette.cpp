#include "Palette.h"

#include "Canvas.h"
#include "FillJson.h"

#include <kestotool/gdi/CMonoColour.h>
#include <kestotool/gdi/CRGBColour.h>
#include <kestotool/qt/QtConvert.h>

#include <QApplication>
#include <QDrag>
#include <QHelpEvent>
#include <QJsonDocument>
#include <QLocale>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace KestoDraw {

namespace {

constexpr int kSide = 26;
constexpr int kGap = 4;

} // namespace

Palette::Palette(QWidget* parent) : QWidget(parent)
{
    // A colour keeps its name in the user's language: the swatch's tooltip and the saved stop say it.
    static constexpr struct {
        int r, g, b;
        const char* name;
    } colours[] = {
        {0, 0, 0, QT_TR_NOOP("Black")},       {255, 255, 255, QT_TR_NOOP("White")},
        {200, 30, 40, QT_TR_NOOP("Red")},     {245, 130, 30, QT_TR_NOOP("Orange")},
        {250, 215, 40, QT_TR_NOOP("Yellow")}, {60, 170, 70, QT_TR_NOOP("Green")},
        {30, 160, 170, QT_TR_NOOP("Teal")},   {40, 90, 200, QT_TR_NOOP("Blue")},
        {110, 60, 170, QT_TR_NOOP("Violet")}, {220, 80, 160, QT_TR_NOOP("Pink")},
        {130, 85, 50, QT_TR_NOOP("Brown")},   {128, 128, 128, QT_TR_NOOP("Grey")},
    };
    for (const auto& c : colours)
        m_swatches.push_back(std::make_unique<KestoGDI::CRGBColour>(KestoPlatform::RGB(c.r, c.g, c.b),
                                                                    tr(c.name).toStdWString().c_str()));
    // Transparency levels, opaque to clear.
    for (const int level : {0, 64, 128, 192, 255})
        m_swatches.push_back(std::make_unique<KestoGDI::CMonoColour>(level));
    setToolTip(tr("Drag a colour onto a fill's line or handle; click one to recolour the current handle"));
}

QByteArray Palette::MimeData(int index) const
{
    return QJsonDocument(FillJson::WriteColour(*m_swatches.at(index))).toJson(QJsonDocument::Compact);
}

std::unique_ptr<KestoGDI::CColour> Palette::Colour(int index) const
{
    return m_swatches.at(index)->Clone();
}

QString Palette::Name(int index) const
{
    const KestoGDI::CColour& colour = *m_swatches.at(index);
    if (const auto* mono = dynamic_cast<const KestoGDI::CMonoColour*>(&colour))
        return tr("%1% transparent").arg(QLocale().toString(qRound(mono->GetLevel() * 100 / 255.0)));
    return QString::fromStdWString(static_cast<const KestoGDI::CRGBColour&>(colour).GetName());
}

bool Palette::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const int swatch = SwatchAt(help->pos());
        // A swatch says its name above the strip's general tip.
        QToolTip::showText(help->globalPos(), swatch < 0 ? toolTip() : Name(swatch) + "\n" + toolTip(), this,
                           swatch < 0 ? rect() : SwatchRect(swatch));
        return true;
    }
    return QWidget::event(event);
}

QSize Palette::sizeHint() const
{
    return {Count() * (kSide + kGap) + kGap + kSide, kSide + 2 * kGap};
}

QRect Palette::SwatchRect(int index) const
{
    // The transparency levels stand apart from the colours.
    const int levels = 5;
    const int extra = index >= Count() - levels ? kSide : 0;
    return {kGap + index * (kSide + kGap) + extra, kGap, kSide, kSide};
}

int Palette::SwatchAt(const QPoint& point) const
{
    for (int i = 0; i < Count(); ++i) {
        if (SwatchRect(i).contains(point))
            return i;
    }
    return -1;
}

void Palette::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (int i = 0; i < Count(); ++i) {
        const QRect r = SwatchRect(i);
        const KestoGDI::CColour& colour = *m_swatches[i];
        if (dynamic_cast<const KestoGDI::CMonoColour*>(&colour)) {
            // A level shows as the dark blue it lets through over a checkerboard.
            const int level = static_cast<const KestoGDI::CMonoColour&>(colour).GetLevel();
            for (int y = 0; y < 2; ++y)
                for (int x = 0; x < 2; ++x)
                    painter.fillRect(r.x() + x * kSide / 2, r.y() + y * kSide / 2, kSide / 2, kSide / 2,
                                     (x + y) % 2 ? QColor(200, 200, 200) : Qt::white);
            painter.fillRect(r, QColor(30, 60, 160, 255 - level));
        } else {
            painter.fillRect(r, KestoToolQt::ToQColor(colour.GetRGB()));
        }
        painter.setPen(QColor(60, 60, 60));
        painter.drawRect(r.adjusted(0, 0, -1, -1));
    }
}

void Palette::mousePressEvent(QMouseEvent* event)
{
    m_pressed = event->button() == Qt::LeftButton ? SwatchAt(event->position().toPoint()) : -1;
    m_pressAt = event->position().toPoint();
}

void Palette::mouseMoveEvent(QMouseEvent* event)
{
    if (m_pressed < 0 ||
        (event->position().toPoint() - m_pressAt).manhattanLength() < QApplication::startDragDistance())
        return;
    auto* drag = new QDrag(this);
    auto* mime = new QMimeData;
    mime->setData(Canvas::ColourMime, MimeData(m_pressed));
    drag->setMimeData(mime);
    QPixmap swatch(kSide, kSide);
    swatch.fill(KestoToolQt::ToQColor(m_swatches[m_pressed]->GetRGB()));
    drag->setPixmap(swatch);
    m_pressed = -1;
    drag->exec(Qt::CopyAction);
}

void Palette::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_pressed >= 0 && SwatchAt(event->position().toPoint()) == m_pressed)
        emit Clicked(m_pressed);
    m_pressed = -1;
}

} // namespace KestoDraw
