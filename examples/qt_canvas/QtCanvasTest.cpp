// The canvas as a hand uses it, offscreen: a handle dragged (the fill on screen changes before
// the release, and the drag is one undo step), another kind chosen in the toolbar's combo.
#include "QtCanvas.h"

#include <kestotool/filltool/FillCommands.h>
#include <kestotool/filltool/FillToolRadial.h>
#include <kestotool/tool/ToolIdMap.h>

#include <QComboBox>
#include <QMouseEvent>
#include <QTest>
#include <QToolBar>

namespace {

void Mouse(QWidget& widget, QEvent::Type type, QPointF at, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

class QtCanvasTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { KestoTool::Init(20000, 21000); }

    void aDraggedHandleShowsAtOnceAndIsOneStep()
    {
        QToolBar bar;
        QString hint;
        QtCanvas canvas(bar, [&](const QString& line) { hint = line; });
        canvas.resize(800, 600);
        canvas.Select(0); // the linear fill
        KestoTool::FillTool* tool = canvas.Session().Tool();
        QVERIFY(tool);
        Kesto2D::K2DArrayPoint handles;
        tool->GetHandles(&handles);
        const KestoPlatform::CPoint end = handles.GetAt(handles.GetSize() - 1);
        const QPointF from(end.x * QtCanvas::kScale, end.y * QtCanvas::kScale);
        // A pixel of the fill away from its line: the gradient there turns with the line.
        const QPoint corner(static_cast<int>(canvas.Shapes()[0].box.left * QtCanvas::kScale) + 6,
                            static_cast<int>(canvas.Shapes()[0].box.top * QtCanvas::kScale) + 6);
        const auto at = [&] { return canvas.grab().toImage().pixel(corner); };
        const QRgb before = at();

        Mouse(canvas, QEvent::MouseMove, from, Qt::NoButton);
        QVERIFY(!hint.isEmpty()); // the hint speaks of the handle under the pointer
        Mouse(canvas, QEvent::MouseButtonPress, from, Qt::LeftButton);
        for (int step = 1; step <= 5; ++step)
            Mouse(canvas, QEvent::MouseMove, from + QPointF(0, 12 * step), Qt::LeftButton);
        const QRgb during = at();
        QVERIFY(during != before);                     // the fill follows the hand
        QCOMPARE(canvas.Undo().count(), 0);             // nothing recorded yet
        Mouse(canvas, QEvent::MouseButtonRelease, from + QPointF(0, 60), Qt::NoButton);
        QCOMPARE(canvas.Undo().count(), 1);
        QCOMPARE(at(), during);                         // the release keeps what the drag showed
        canvas.Undo().undo();
        QCOMPARE(at(), before);
    }

    void aKindChosenInTheToolbarGivesATool()
    {
        QToolBar bar;
        QtCanvas canvas(bar, [](const QString&) {});
        canvas.Select(0);
        auto* combo = qobject_cast<QComboBox*>(
            canvas.ContextBar().WidgetOf(KestoTool::FillCommands::HostId(KestoTool::FillCmdEditType)));
        QVERIFY(combo);
        const int radial = combo->findText(QStringLiteral("Radial"));
        QVERIFY(radial >= 0);
        combo->setCurrentIndex(radial);
        emit combo->activated(radial); // as a user's choice does
        QCoreApplication::processEvents(); // the new tool comes from the event loop
        QVERIFY(dynamic_cast<KestoTool::FillToolRadial*>(canvas.Session().Tool()));
        QCOMPARE(canvas.Shapes()[0].fill->GetFillType(), static_cast<int>(KestoGDI::FillType::Radial));
        QCOMPARE(canvas.Undo().count(), 1);
        QVERIFY(qobject_cast<QComboBox*>(
            canvas.ContextBar().WidgetOf(KestoTool::FillCommands::HostId(KestoTool::FillCmdEditType))));
    }
};

QTEST_MAIN(QtCanvasTest)
#include "QtCanvasTest.moc"
