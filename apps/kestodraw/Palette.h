#pragma once

#include <kestotool/gdi/CColour.h>

#include <QByteArray>
#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

namespace KestoDraw {

// A strip of colour swatches and transparency levels. Dragging a swatch carries its colour
// (Canvas::ColourMime) to the canvas, where the fill tools take it as a stop; clicking one
// recolours the tool's current handle.
class Palette : public QWidget {
    Q_OBJECT
public:
    explicit Palette(QWidget* parent = nullptr);

    int Count() const { return static_cast<int>(m_swatches.size()); }
    // What dragging swatch i carries: its colour as the document keeps colours.
    QByteArray MimeData(int index) const;
    std::unique_ptr<KestoGDI::CColour> Colour(int index) const;
    // What swatch i is called in the user's language: a colour's name or a level's transparency.
    QString Name(int index) const;
    QSize sizeHint() const override;

signals:
    void Clicked(int index);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int SwatchAt(const QPoint& point) const;
    QRect SwatchRect(int index) const;

    std::vector<std::unique_ptr<KestoGDI::CColour>> m_swatches;
    int m_pressed = -1;
    QPoint m_pressAt;
};

} // namespace KestoDraw
