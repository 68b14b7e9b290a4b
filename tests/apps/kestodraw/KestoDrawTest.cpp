// kestodraw driven as a user drives it: gestures, drops, keys and the type box on the canvas of
// the real window (offscreen), undo and redo, files saved, reopened and refused.
#include "DocumentFile.h"
#include "KestoDrawWindow.h"
#include "DrawingPainter.h"
#include "FillJson.h"
#include "JsonRead.h"
#include "MainWindow.h"
#include "PageLayers.h"
#include "Palette.h"
#include "ScriptPlayer.h"

#include "kestotool/dialogs/GradientFillDlg.h"
#include "kestotool/filltool/FillCommands.h"
#include "kestotool/filltool/FillToolLinear.h"
#include "kestotool/filltool/FillToolRadial.h"
#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CFillWithStops.h"
#include "kestotool/gdi/FillType.h"
#include "kestotool/tool/ToolIdMap.h"
#include "support/ReferenceImage.h"
#include "support/UserInput.h"

#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <QUndoStack>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <numeric>

#include <sys/stat.h>

using KestoDraw::MainWindow;
using KestoDrawTesting::KestoDrawWindow;
using KestoDrawTesting::kSample;
using KestoPlatform::CPoint;

namespace {

const KestoGDI::CFill& FillOf(const MainWindow& window, int shape)
{
    return *window.GetDocument().shapes.at(shape).fill;
}

std::vector<int> StopPositions(const KestoGDI::CFill& fill)
{
    std::vector<int> at;
    for (const auto& stop : dynamic_cast<const KestoGDI::CFillWithStops&>(fill).GetColourIntPairs())
        at.push_back(stop.GetValue());
    return at;
}


// The sample's first shape is a rectangle (150, 150)-(950, 900) with a four-stop linear fill.
TEST_F(KestoDrawWindow, GesturesDropsKeysAndTheTypeBoxEachMakeOneUndoStep)
{
    const KestoGDI::CFill& original = FillOf(*window, 0);
    KestoKernel::RefPtr<const KestoGDI::CFill> sampleFill(&original);
    QUndoStack& undo = window->Undo();
    Step("click 550 525");
    ASSERT_EQ(window->GetCanvas().Selected(), 0);
    ASSERT_NE(dynamic_cast<KestoTool::FillToolLinear*>(window->GetCanvas().Tool()), nullptr);

    // A drag that misses the handles draws a new fill line.
    Step("drag 200 300 900 700");
    ASSERT_EQ(undo.count(), 1);
    EXPECT_EQ(undo.text(0), "Edit Fill");
    EXPECT_EQ(FillOf(*window, 0).GetControlPoint(0), Kesto2D::K2DDblPoint(200, 300));
    EXPECT_EQ(FillOf(*window, 0).GetControlPoint(1), Kesto2D::K2DDblPoint(900, 700));
    KestoKernel::RefPtr<const KestoGDI::CFill> drawn(&FillOf(*window, 0));

    // The stop at 30% dragged to the middle: many commits while it moves, one step.
    Step("drag 410 420 550 500");
    ASSERT_EQ(undo.count(), 2);
    EXPECT_EQ(StopPositions(FillOf(*window, 0)), (std::vector<int>{0, 5000, 6500, 10000}));

    // Yellow dropped on the line at 80% adds a stop there.
    Step("drop 4 760 620");
    ASSERT_EQ(undo.count(), 3);
    EXPECT_EQ(StopPositions(FillOf(*window, 0)), (std::vector<int>{0, 5000, 6500, 8000, 10000}));
    KestoKernel::RefPtr<const KestoGDI::CFill> dropped(&FillOf(*window, 0));

    for (int i = 0; i < 3; ++i)
        undo.undo();
    EXPECT_TRUE(FillOf(*window, 0).IsEqual(*sampleFill));
    undo.redo();
    EXPECT_TRUE(FillOf(*window, 0).IsEqual(*drawn));
    undo.redo();
    undo.redo();
    EXPECT_TRUE(FillOf(*window, 0).IsEqual(*dropped));

    // Tab makes the next handle current; an arrow moves it one screen pixel, as one step.
    const int before = window->GetCanvas().Tool()->GetCurrentNode();
    Step("key Tab");
    const int current = window->GetCanvas().Tool()->GetCurrentNode();
    EXPECT_NE(current, before);
    Kesto2D::K2DArrayPoint handles;
    window->GetCanvas().Tool()->GetHandles(&handles);
    const CPoint handle = handles.GetAt(current);
    Step("key Left");
    EXPECT_EQ(undo.count(), 4);
    Kesto2D::K2DArrayPoint moved;
    window->GetCanvas().Tool()->GetHandles(&moved);
    EXPECT_LT(moved.GetAt(current).x, handle.x);

    // The tool's type combo turns the fill radial, keeping its stops.
    Step("kind 5");
    EXPECT_EQ(undo.text(undo.count() - 1), "Fill Type");
    ASSERT_NE(dynamic_cast<const KestoGDI::CFillRadial*>(&FillOf(*window, 0)), nullptr);
    EXPECT_NE(dynamic_cast<KestoTool::FillToolRadial*>(window->GetCanvas().Tool()), nullptr);
    EXPECT_EQ(StopPositions(FillOf(*window, 0)).size(), 5u);
    EXPECT_TRUE(window->HintLabel().text().contains("<b>")) << window->HintLabel().text().toStdString();
    EXPECT_TRUE(window->isWindowModified());

    KestoTest::ExpectMatchesReference(window->grab().toImage(), QStringLiteral(KESTO_REFERENCE_DIR),
                                      QStringLiteral(KESTO_DIFFERENCE_DIR), "kestodraw-gestures");
}

// Edit Fill opens the gradient editor on the selected shape's fill: OK with a stop deleted is
// one step; Cancel leaves the drawing as it was.
TEST_F(KestoDrawWindow, TheFillFollowsTheHandWhileAHandleIsDragged)
{
    Step("click 1500 525"); // the sample's second shape: a radial fill
    KestoDraw::Canvas& canvas = window->GetCanvas();
    Kesto2D::K2DArrayPoint handles;
    canvas.Tool()->GetHandles(&handles);
    const CPoint start = handles.GetAt(0), end = handles.GetAt(handles.GetSize() - 1);
    const CPoint half((start.x + end.x) / 2, (start.y + end.y) / 2);
    const auto send = [&](QEvent::Type type, CPoint at, Qt::MouseButton button, Qt::MouseButtons buttons) {
        const QPointF local = canvas.View().map(QPointF(at.x, at.y));
        QMouseEvent event(type, local, canvas.mapToGlobal(local), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(&canvas, &event);
    };
    const QImage before = canvas.grab().toImage();
    send(QEvent::MouseButtonPress, end, Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseMove, half, Qt::NoButton, Qt::LeftButton);
    const QImage during = canvas.grab().toImage();
    send(QEvent::MouseButtonRelease, half, Qt::LeftButton, Qt::NoButton);
    send(QEvent::MouseMove, CPoint(0, 0), Qt::NoButton, Qt::NoButton); // off the handle it would ring
    const QImage after = canvas.grab().toImage();
    // Halfway through the drag the page already shows what the release leaves.
    EXPECT_NE(during, before);
    EXPECT_EQ(during, after);
    EXPECT_EQ(window->Undo().count(), 1);
    KestoTest::ExpectMatchesReference(during, QStringLiteral(KESTO_REFERENCE_DIR), QStringLiteral(KESTO_DIFFERENCE_DIR),
                                      QStringLiteral("kestodraw-radial-mid-drag"));
}

TEST_F(KestoDrawWindow, RepaintingOnlyWhatADragChangesLeavesThePictureAFullRepaintWould)
{
    Step("click 550 525");
    KestoDraw::Canvas& canvas = window->GetCanvas();
    Kesto2D::K2DArrayPoint handles;
    canvas.Tool()->GetHandles(&handles);
    const CPoint end = handles.GetAt(handles.GetSize() - 1);
    const QPointF from = canvas.View().map(QPointF(end.x, end.y));
    const auto send = [&](QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons buttons) {
        QMouseEvent event(type, at, canvas.mapToGlobal(at), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(&canvas, &event);
        QApplication::processEvents(); // the repaint the move asked for, of what it changed
    };
    // What the window shows (its backing store) against the canvas painted whole.
    const auto onScreen = [&] {
        const QPoint at = canvas.mapTo(window.get(), QPoint(0, 0));
        return window->screen()->grabWindow(window->winId(), at.x(), at.y(), canvas.width(), canvas.height()).toImage();
    };
    send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    // Out past the shape and back in, so that handles and fill leave places they covered.
    for (const QPointF step : {QPointF(90, 40), QPointF(160, 120), QPointF(40, -60), QPointF(-50, -30)})
        send(QEvent::MouseMove, from + step, Qt::NoButton, Qt::LeftButton);
    EXPECT_EQ(onScreen().convertToFormat(QImage::Format_RGB32),
              canvas.grab().toImage().convertToFormat(QImage::Format_RGB32));
    send(QEvent::MouseButtonRelease, from + QPointF(-50, -30), Qt::LeftButton, Qt::NoButton);
    EXPECT_EQ(onScreen().convertToFormat(QImage::Format_RGB32),
              canvas.grab().toImage().convertToFormat(QImage::Format_RGB32));
}

// The sample's first shape: a linear fill whose line runs across the middle, four stop handles.
class KestoDrawHand : public KestoDrawWindow {
protected:
    void SetUp() override
    {
        KestoDrawWindow::SetUp();
        Step("click 550 525");
    }
    KestoDraw::Canvas& Canvas() { return window->GetCanvas(); }
    QPointF Handle(int index)
    {
        Kesto2D::K2DArrayPoint handles;
        Canvas().Tool()->GetHandles(&handles);
        const CPoint at = handles.GetAt(index < 0 ? handles.GetSize() + index : index);
        return Canvas().View().map(QPointF(at.x, at.y));
    }
    void Send(QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, at, Canvas().mapToGlobal(at), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(&Canvas(), &event);
    }
};

TEST_F(KestoDrawHand, APressBesideAHandleDragsThatHandleAndUndoKeepsTheShapeSelected)
{
    // 3 px from the handle's centre, and 6 px (off its disc, where a press used to start a new
    // line).
    for (const QPointF beside : {QPointF(3, 0), QPointF(5, 3)}) {
        const QPointF start = Handle(0), end = Handle(-1);
        Send(QEvent::MouseButtonPress, end + beside, Qt::LeftButton, Qt::LeftButton);
        Send(QEvent::MouseMove, end + beside + QPointF(40, 30), Qt::NoButton, Qt::LeftButton);
        Send(QEvent::MouseButtonRelease, end + beside + QPointF(40, 30), Qt::LeftButton, Qt::NoButton);
        // The handle moved as the hand did, and no new line was drawn from the press.
        EXPECT_NEAR(Handle(-1).x(), end.x() + 40, 1);
        EXPECT_NEAR(Handle(-1).y(), end.y() + 30, 1);
        EXPECT_NEAR(Handle(0).x(), start.x(), 1);
        EXPECT_NEAR(Handle(0).y(), start.y(), 1);
    }
    ASSERT_EQ(window->Undo().count(), 2);

    Canvas().Select(3);
    window->Undo().undo();
    EXPECT_EQ(Canvas().Selected(), 0);
    Canvas().Select(-1);
    window->Undo().redo();
    EXPECT_EQ(Canvas().Selected(), 0);
}

TEST_F(KestoDrawHand, AColourDraggedOverAHandleShowsOnThePageUntilItIsDroppedOrLeaves)
{
    // Swatch 2 is red; the end handle is dark blue.
    QMimeData mime;
    mime.setData(KestoDraw::Canvas::ColourMime, window->GetPalette().MimeData(2));
    const QPoint beside = (Handle(-1) + QPointF(5, 3)).toPoint();
    const auto drag = [&](QEvent::Type type) {
        QDragMoveEvent event(beside, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier, type);
        QApplication::sendEvent(&Canvas(), &event);
    };
    const auto endColour = [](const KestoGDI::CFill& fill) {
        const auto& stops = dynamic_cast<const KestoGDI::CFillWithStops&>(fill).GetColourIntPairs();
        return stops.GetAt(stops.GetSize() - 1)->GetColour().GetRGB();
    };
    const unsigned long red = window->GetPalette().Colour(2)->GetRGB();
    for (const bool drop : {false, true}) {
        drag(QEvent::DragEnter);
        drag(QEvent::DragMove);
        ASSERT_NE(Canvas().Host().LiveFill(), nullptr);
        EXPECT_EQ(endColour(*Canvas().Host().LiveFill()), red);
        EXPECT_NE(endColour(FillOf(*window, 0)), red); // nothing committed yet
        if (drop) {
            QDropEvent event(beside, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&Canvas(), &event);
        } else {
            QDragLeaveEvent event;
            QApplication::sendEvent(&Canvas(), &event);
        }
        EXPECT_EQ(Canvas().Host().LiveFill(), nullptr);
        EXPECT_EQ(endColour(FillOf(*window, 0)) == red, drop);
        EXPECT_EQ(window->Undo().count(), drop ? 1 : 0);
    }
}

TEST_F(KestoDrawHand, ThePointerShowsWhatAPressWouldDo)
{
    const QPointF onLine = (Handle(0) + Handle(1)) / 2;
    const QPointF onShape = onLine + QPointF(0, 40);
    const QPointF onAnother = Canvas().View().map(QPointF(1500, 525)); // the second shape's middle
    const struct {
        QPointF at;
        Qt::CursorShape cursor;
    } cases[] = {{Handle(-1) + QPointF(2, -3), Qt::SizeAllCursor},
                 {onLine, Qt::DragCopyCursor},
                 {onShape, Qt::CrossCursor},
                 {onAnother, Qt::PointingHandCursor},
                 {QPointF(3, 3), Qt::ArrowCursor}};
    for (const auto& c : cases) {
        Send(QEvent::MouseMove, c.at, Qt::NoButton, Qt::NoButton);
        EXPECT_EQ(Canvas().cursor().shape(), c.cursor) << c.at.x() << "," << c.at.y();
    }
}

TEST_F(KestoDrawWindow, EnterInALevelBoxGivesTheKeysBackToTheCanvasAndCtrlZRevertsTheEdit)
{
    // The sample's eleventh shape has a linear transparency.
    window->activateWindow();
    KestoDraw::Canvas& canvas = window->GetCanvas();
    canvas.Select(10);
    canvas.SetEditTransparency(true);
    canvas.FlushPendingRebuild();
    QApplication::processEvents();
    const KestoKernel::RefPtr<const KestoGDI::CFill> original = window->GetDocument().shapes[10].transparency;
    QDoubleSpinBox* level = nullptr;
    for (QDoubleSpinBox* box : window->ContextToolBar().findChildren<QDoubleSpinBox*>())
        if (box->isVisible() && box->isEnabled())
            level = box;
    ASSERT_NE(level, nullptr);
    for (const Qt::Key end : {Qt::Key_Escape, Qt::Key_Return}) {
        level->setFocus();
        level->selectAll();
        QTest::keyClicks(level, QString::number(static_cast<int>(level->value()) == 30 ? 40 : 30));
        QTest::keyClick(level, end);
        EXPECT_EQ(QApplication::focusWidget(), &canvas);
    }
    // Escape put the value back; Enter made one step.
    ASSERT_EQ(window->Undo().count(), 1);
    EXPECT_FALSE(window->GetDocument().shapes[10].transparency->IsEqual(*original));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(window->GetDocument().shapes[10].transparency->IsEqual(*original));
    EXPECT_EQ(canvas.Selected(), 10);
}

TEST_F(KestoDrawWindow, TheTypeBoxOffersPaintableKindsWithPicturesAndAGradientKeepsThePlainColour)
{
    // The sample's last shape is plain purple; it has no tool, so kestodraw's own box shows.
    KestoDraw::Canvas& canvas = window->GetCanvas();
    const int last = static_cast<int>(window->GetDocument().shapes.size()) - 1;
    canvas.Select(last);
    const auto& solid = dynamic_cast<const KestoGDI::CFillSolid&>(FillOf(*window, last));
    QComboBox& box = window->KindBox();
    EXPECT_EQ(box.findData(KestoGDI::FillType::DiscreteMesh), -1);
    EXPECT_NE(box.findData(KestoGDI::FillType::Radial), -1);
    for (int i = 0; i < box.count(); ++i)
        EXPECT_FALSE(box.itemIcon(i).isNull()) << box.itemText(i).toStdString();

    Step("kind 5");
    const auto& radial = dynamic_cast<const KestoGDI::CFillWithStops&>(FillOf(*window, last));
    EXPECT_EQ(radial.GetFillType(), KestoGDI::FillType::Radial);
    EXPECT_TRUE(radial.GetColourIntPairs().GetAt(0)->GetColour().IsEqual(solid.GetColour()));

    // The tool's own box, now that the radial fill has a tool, offers the same kinds with pictures.
    canvas.FlushPendingRebuild();
    window->ContextBar().UpdateControls();
    const int id = KestoTool::ToolIdMap::GetInstance().MapIDToApp(KestoTool::FillToolKey, KestoTool::FillCmdEditType);
    const auto* types = qobject_cast<QComboBox*>(window->ContextBar().WidgetOf(id));
    ASSERT_NE(types, nullptr);
    EXPECT_EQ(types->count(), box.count());
    for (int i = 0; i < types->count(); ++i)
        EXPECT_FALSE(types->itemIcon(i).isNull()) << types->itemText(i).toStdString();
}

TEST_F(KestoDrawWindow, LockRatioResetHandlesAndMaxFitEachHaveTheirOwnPicture)
{
    Step("click 550 525");
    const auto picture = [&](int command) {
        const int id = KestoTool::ToolIdMap::GetInstance().MapIDToApp(KestoTool::FillToolKey, command);
        const KestoPlatform::XTPImage* image =
            window->GetCanvas().ContextBars()->GetImageManager()->GetImage(id, KestoPlatform::CSize(16, 16));
        return image ? image->argb : std::vector<std::uint32_t>{};
    };
    const auto lock = picture(KestoTool::FillCmdLockRatio), reset = picture(KestoTool::FillCmdResetHandles),
               maxFit = picture(KestoTool::FillCmdMaxFit);
    ASSERT_FALSE(lock.empty());
    ASSERT_FALSE(reset.empty());
    EXPECT_NE(lock, reset);
    EXPECT_NE(lock, maxFit);
    EXPECT_NE(reset, maxFit);
}

TEST_F(KestoDrawWindow, AfterAKillTheNextStartRecoversTheUnsavedDrawing)
{
    // Two runs of the program with their own data folder: the first edits, autosaves and is
    // killed; the second takes up what it kept and saves it.
    QTemporaryDir data;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_DATA_HOME", data.path());
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    const auto script = [&](const QString& name, const QByteArray& steps) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(steps);
        return file.fileName();
    };
    const QByteArray edit = "click 550 525\ndrag 200 300 900 700\n";
    QProcess first;
    first.setProcessEnvironment(environment);
    first.start(KESTODRAW_PROGRAM, {kSample, "--script", script("first.txt", edit + "command autosave\nhold\n"),
                                    "--out", folder.filePath("first")});
    ASSERT_TRUE(first.waitForStarted());
    while (!first.readAllStandardOutput().contains("holding"))
        ASSERT_TRUE(first.waitForReadyRead(30000)) << first.readAllStandardError().toStdString();
    first.kill(); // SIGKILL: no clean exit
    first.waitForFinished();

    QProcess second;
    second.setProcessEnvironment(environment);
    second.start(KESTODRAW_PROGRAM, {"--recover", "--script", script("second.txt", "save recovered.kdraw\n"), "--out",
                                     folder.filePath("second")});
    ASSERT_TRUE(second.waitForFinished(60000));
    ASSERT_EQ(second.exitCode(), 0) << second.readAllStandardError().toStdString();
    QFile recovered(folder.filePath("second/recovered.kdraw"));
    ASSERT_TRUE(recovered.open(QIODevice::ReadOnly));

    // The same edit here gives the same drawing.
    for (const QByteArray& line : edit.split('\n'))
        Step(QString::fromUtf8(line));
    EXPECT_EQ(recovered.readAll(), KestoDraw::DocumentFile::Write(window->GetDocument()));
    // The second run closed cleanly: nothing is left to recover.
    EXPECT_TRUE(QDir(data.filePath("kestodraw/autosave")).entryList({"*.kdraw"}).isEmpty());
}

TEST_F(KestoDrawWindow, TheScriptPlayerRefusesWhatWouldHangOrFloodAndSaysSoBriefly)
{
    // A menu key would open a dialog that waits for a person.
    EXPECT_FALSE(player->PlayStep("key O ctrl"));
    EXPECT_TRUE(player->Error().contains("opens a dialog")) << player->Error().toStdString();
    // A refused line is quoted as an excerpt.
    EXPECT_FALSE(player->PlayStep("frobnicate " + QString(100000, 'x')));
    EXPECT_LT(player->Error().size(), 200);
    // Too many steps, refused before any is played.
    EXPECT_FALSE(player->Play(QStringList(KestoDraw::ScriptPlayer::kMaxSteps + 1, "command fit")));
    EXPECT_EQ(player->Shots(), 0);
    // A screenshot that cannot be written fails its step and is not counted.
    KestoDraw::ScriptPlayer nowhere(*window, QDir(folder.filePath("missing/folder")));
    EXPECT_FALSE(nowhere.PlayStep("command fit"));
    EXPECT_TRUE(nowhere.Error().contains("could not be written"));
    EXPECT_EQ(nowhere.Shots(), 0);
}

// Shapes hidden under opaque ones above them cost nothing, and the picture is the same as when
// every shape is painted in turn.
TEST(DrawingPainter, WhatShapesAboveHideOrVeilIsNotPaintedAndThePictureIsTheSame)
{
    const KestoDraw::Document sample = KestoDraw::DocumentFile::Read([] {
        QFile file(kSample);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }());
    // A solid colour at half opacity: nine of them let less than half a level through.
    const QByteArray halfRed = R"({"type": 1, "alpha": 255, "blend": 0, "controls": [], "overprint": false,
        "transparency": false, "colour": {"alpha": 128, "rgb": "#c81e28", "tint": 0}})";
    struct Case {
        const char* name;
        KestoKernel::RefPtr<const KestoGDI::CFill> fill;
        int paintedPages; // at most
    };
    for (const auto& [name, fill, paintedPages] :
         {Case{"opaque radial", sample.shapes[1].fill, 3},
          Case{"half-opaque solid", KestoDraw::FillJson::Read(QJsonDocument::fromJson(halfRed).object()), 12}}) {
        SCOPED_TRACE(name);
        // Thirty page-sized rectangles, then an ellipse and a rectangle of the sample's on top
        // (the ellipse's corners show what lies beneath).
        KestoDraw::Document document = sample;
        document.shapes.clear();
        for (int i = 0; i < 30; ++i) {
            KestoDraw::Shape page = sample.shapes[1];
            page.box = KestoPlatform::CRect(0, 0, document.width, document.height);
            page.fill = fill;
            document.shapes.push_back(page);
        }
        document.shapes.push_back(sample.shapes[3]);
        document.shapes.push_back(sample.shapes[0]);
        // An opaque triangle of curves (an imported shape) hides only what its outline covers.
        KestoDraw::Shape triangle = sample.shapes[1];
        triangle.kind = KestoDraw::Shape::Kind::Curves;
        triangle.curves.MoveTo({2000, 1000});
        triangle.curves.LineTo({3000, 2000});
        triangle.curves.LineTo({2000, 2000});
        triangle.curves.Close();
        triangle.box = KestoPlatform::CRect(2000, 1000, 3000, 2000);
        document.shapes.push_back(triangle);
        const QTransform view = QTransform::fromScale(0.1, 0.1);
        const auto picture = [&](bool allAtOnce, std::int64_t* work) {
            QImage image(400, 300, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::white);
            QPainter painter(&image);
            KestoDraw::DrawingPainter drawing;
            if (allAtOnce)
                drawing.Paint(painter, document, view, image.rect());
            else
                for (const KestoDraw::Shape& shape : document.shapes)
                    drawing.PaintShape(painter, shape, view, image.rect(), *shape.fill, shape.transparency.get());
            *work = drawing.RenderedPixels();
            return image;
        };
        std::int64_t hidden = 0, every = 0;
        const QImage pieces = picture(true, &hidden), whole = picture(false, &every);
        // A fill rendered in pieces may differ from one rendered whole by a few levels where a
        // ramp's steps round the other way; nothing more.
        int worst = 0;
        for (int y = 0; y < whole.height(); ++y)
            for (int x = 0; x < whole.width(); ++x)
                for (const int shift : {0, 8, 16, 24})
                    worst = std::max(worst, std::abs(static_cast<int>(pieces.pixel(x, y) >> shift & 0xFF) -
                                                     static_cast<int>(whole.pixel(x, y) >> shift & 0xFF)));
        EXPECT_LE(worst, 4);
        const std::int64_t page = 400 * 300;
        EXPECT_GT(every, 30 * page);
        EXPECT_LT(hidden, paintedPages * page); // the top pages, the two shapes and thin rims of the rest
    }
}

// The page's layers are painted on a worker: a frame that cannot wait keeps the layers it had
// and sees progress, and a build no longer wanted stops at its next shape.
TEST(PageLayers, AFrameKeepsTheLayersItHadWhileASlowPageIsPaintedAndABuildNoLongerWantedStops)
{
    KestoTest::QtUserInput().Install(); // the application, whose loop delivers the layers' calls
    KestoDraw::Document light = KestoDraw::DocumentFile::Read([] {
        QFile file(kSample);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }());
    // Two thousand translucent page-sized ellipses: none hides another, so each costs the page.
    KestoDraw::Document heavy = light;
    KestoDraw::Shape veil = light.shapes.at(10);
    ASSERT_TRUE(veil.transparency);
    veil.box = KestoPlatform::CRect(0, 0, light.width, light.height);
    heavy.shapes.assign(2000, veil);
    const auto scene = [](const KestoDraw::Document& document, double scale) {
        return KestoDraw::PageLayers::Scene{&document, -1, QTransform::fromScale(scale, scale), QSize(400, 300), 1, 0};
    };
    QObject owner;
    int ready = 0;
    KestoDraw::PageLayers layers(&owner, [&] { ++ready; });

    ASSERT_TRUE(layers.Prepare(scene(light, 0.1), std::nullopt));
    const QImage before = layers.Below();
    EXPECT_FALSE(layers.Progress());
    EXPECT_FALSE(layers.Prepare(scene(heavy, 0.1), std::chrono::milliseconds(0)));
    EXPECT_EQ(layers.Below(), before);
    EXPECT_TRUE(layers.Progress());

    const std::int64_t page = 400 * 300;
    ASSERT_TRUE(layers.Prepare(scene(light, 0.05), std::nullopt));
    EXPECT_TRUE(layers.Shows(scene(light, 0.05)));
    EXPECT_FALSE(layers.Shows(scene(heavy, 0.1)));
    EXPECT_NE(layers.Below(), before);
    EXPECT_LT(layers.RenderedPixels(), 200 * page); // not the heavy page's 2000
    QCoreApplication::processEvents();
    EXPECT_GE(ready, 2); // each build that finished said so
}

// A document's pictures: the same one in many fills is decoded once, and together they stay
// within a budget of decoded pixels.
TEST(FillJson, IdenticalPicturesAreSharedAndAllOfThemStayWithinTheBudget)
{
    QFile file(kSample);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonObject bitmapFill =
        QJsonDocument::fromJson(file.readAll()).object()["shapes"].toArray()[8].toObject()["fill"].toObject();
    const auto bitmapOf = [](const KestoGDI::CFill& fill) {
        return dynamic_cast<const KestoGDI::CFillBitmap&>(fill).GetBitmapForFill();
    };
    KestoDraw::FillJson::Pictures pictures(24 * 24); // the sample's picture is 24 x 24
    const auto first = KestoDraw::FillJson::Read(bitmapFill, &pictures);
    const auto second = KestoDraw::FillJson::Read(bitmapFill, &pictures);
    EXPECT_EQ(bitmapOf(*first), bitmapOf(*second));

    QImage other(2, 2, QImage::Format_ARGB32);
    other.fill(Qt::red);
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    other.save(&png, "PNG");
    QJsonObject otherFill = bitmapFill;
    otherFill["bitmap"] = QString::fromLatin1(png.data().toBase64());
    try {
        KestoDraw::FillJson::Read(otherFill, &pictures);
        ADD_FAILURE() << "a picture past the budget was read";
    } catch (const KestoDraw::FormatError& e) {
        EXPECT_TRUE(e.Message().contains("more than 576 pixels")) << e.Message().toStdString();
    }
}

TEST_F(KestoDrawWindow, TheCanvasStaysWhereItIsWhateverTheSelectionPutsOnTheContextRow)
{
    // The sample's first shape has a linear fill, its last a plain colour.
    const auto canvasTop = [&] {
        QApplication::processEvents();
        return window->GetCanvas().mapTo(window.get(), QPoint(0, 0)).y();
    };
    const int nothing = canvasTop();
    Step("click 550 525");
    const int gradient = canvasTop();
    window->GetCanvas().Select(static_cast<int>(window->GetDocument().shapes.size()) - 1);
    const int solid = canvasTop();
    EXPECT_EQ(gradient, nothing);
    EXPECT_EQ(solid, nothing);
}

TEST_F(KestoDrawWindow, AWheelZoomKeepsThePointUnderThePointer)
{
    KestoDraw::Canvas& canvas = window->GetCanvas();
    const QPointF pointer(200, 150);
    const QPointF under = canvas.View().inverted().map(pointer);
    const double zoom = canvas.Zoom();
    QWheelEvent wheel(pointer, canvas.mapToGlobal(pointer), {}, QPoint(0, 120), Qt::NoButton, Qt::ControlModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&canvas, &wheel);
    EXPECT_DOUBLE_EQ(canvas.Zoom(), zoom * 1.25);
    const QPointF after = canvas.View().inverted().map(pointer);
    EXPECT_NEAR(after.x(), under.x(), 0.01);
    EXPECT_NEAR(after.y(), under.y(), 0.01);
}

TEST_F(KestoDrawWindow, EditFillOpensTheEditorItsEditsShowOnThePageAndOnlyOKChangesTheDrawing)
{
    Step("click 550 525");
    KestoDraw::Canvas& canvas = window->GetCanvas();
    const QImage page = canvas.grab().toImage();
    KestoTest::UserInput& input = KestoTest::QtUserInput();
    for (const int button : {KestoPlatform::IDCANCEL, KestoPlatform::IDOK}) {
        input.SetModalScript([&](KestoPlatform::CDialog& dialog) {
            auto* editor = dynamic_cast<KestoTool::CGradientFillDlg*>(&dialog);
            ASSERT_NE(editor, nullptr);
            editor->GetBar().Select(1);
            input.ClickButton(dialog, KestoTool::IDC_STOP_DELETE);
            // The page shows the edit before OK; the document does not have it yet.
            ASSERT_NE(canvas.Host().LiveFill(), nullptr);
            EXPECT_EQ(StopPositions(*canvas.Host().LiveFill()).size(), 3u);
            EXPECT_NE(canvas.grab().toImage(), page);
            EXPECT_EQ(StopPositions(FillOf(*window, 0)).size(), 4u);
            input.ClickButton(dialog, button);
        });
        window->EditFill(false);
        if (button == KestoPlatform::IDCANCEL) {
            EXPECT_EQ(canvas.Host().LiveFill(), nullptr);
            EXPECT_EQ(canvas.grab().toImage(), page); // Cancel put the page back
        }
    }
    ASSERT_EQ(window->Undo().count(), 1);
    EXPECT_EQ(StopPositions(FillOf(*window, 0)).size(), 3u);
}

TEST_F(KestoDrawWindow, ShapesAreDrawnAndAShapeWithoutAToolGetsALinearFillFromADrag)
{
    Step("mode rectangle");
    Step("drag 3000 2950 3600 2600");
    ASSERT_EQ(window->GetDocument().shapes.size(), 13u);
    EXPECT_EQ(window->GetDocument().shapes.back().box, KestoPlatform::CRect(3000, 2600, 3600, 2950));
    EXPECT_EQ(window->GetCanvas().Tool(), nullptr); // a plain colour has no tool
    Step("mode select");
    Step("drag 3050 2700 3550 2700");
    EXPECT_NE(dynamic_cast<const KestoGDI::CFillLinear*>(window->GetDocument().shapes.back().fill.get()), nullptr);
    EXPECT_EQ(window->Undo().count(), 2);
    window->Undo().undo();
    EXPECT_TRUE(window->GetDocument().shapes.back().fill->IsSolid());
}

TEST_F(KestoDrawWindow, SavedDrawingsReopenByteForByte)
{
    const QString first = folder.filePath("first.kdraw");
    const QString second = folder.filePath("second.kdraw");
    Step("click 550 525");
    Step("drag 200 300 900 700");
    ASSERT_TRUE(window->SaveAs(first));
    EXPECT_FALSE(window->isWindowModified());
    const std::vector<KestoDraw::Shape> saved = window->GetDocument().shapes;
    ASSERT_TRUE(window->Open(first));
    ASSERT_EQ(window->GetDocument().shapes.size(), saved.size());
    for (std::size_t i = 0; i < saved.size(); ++i) {
        // Compared by value: a reopened vector fill holds an equal drawing, not the same one.
        const KestoDraw::Shape& reopened = window->GetDocument().shapes[i];
        EXPECT_EQ(KestoDraw::FillJson::Write(*reopened.fill), KestoDraw::FillJson::Write(*saved[i].fill)) << i;
        EXPECT_EQ(reopened.transparency != nullptr, saved[i].transparency != nullptr) << i;
    }
    ASSERT_TRUE(window->SaveAs(second));
    QFile a(first), b(second);
    ASSERT_TRUE(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
    EXPECT_EQ(a.readAll(), b.readAll());
}

// A drawing of one rectangle with a linear fill, its box and stops given as JSON text.
QByteArray Small(const char* box, const char* stops)
{
    return QByteArray(R"({"format": "kestodraw", "version": 1, "page": [100, 100], "shapes": [{"kind": "rectangle",
        "box": )") +
           box + R"(, "fill": {"type": 4, "alpha": 255, "blend": 0, "overprint": false,
        "transparency": false, "controls": [[0, 5], [10, 5]], "stops": [)" +
           stops + "]}}]}";
}

// A drawing of count plain paths, each through the corners given as JSON text.
QByteArray Many(int count, const QByteArray& corners)
{
    const QByteArray shape = R"({"kind": "path", "box": [0, 0, 5, 5], "points": )" + corners +
                             R"(, "fill": {"type": 1, "alpha": 255, "blend": 0, "overprint": false,
        "transparency": false, "controls": [], "colour": {"alpha": 255, "rgb": "#000000", "tint": 0}}})";
    QByteArrayList shapes(count, shape);
    return R"({"format": "kestodraw", "version": 1, "page": [100, 100], "shapes": [)" + shapes.join(',') + "]}";
}

QByteArray Corners(int count)
{
    QByteArrayList corners;
    for (int i = 0; i < count; ++i)
        corners << QByteArray::number(i % 100) + ", " + QByteArray::number(i / 100);
    return "[[" + corners.join("], [") + "]]";
}

TEST_F(KestoDrawWindow, DamagedOrUnknownFilesAreRefusedWithAReasonAndTheDrawingIsKept)
{
    QByteArray sample;
    {
        QFile file(kSample);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        sample = file.readAll();
    }
    const auto edited = [&](const char* from, const char* to) { return QByteArray(sample).replace(from, to); };
    const struct {
        QByteArray content;
        const char* reason;
    } cases[] = {
        {sample.left(sample.size() / 2), "not a JSON document"},
        {R"({"format": "pictures", "version": 1})", "not a kestodraw drawing"},
        {edited("\"version\": 1", "\"version\": 7"), "newer kestodraw"},
        {edited("\"type\": 4\n", "\"type\": 99\n"), "no fill of type 99"},
        {edited("\"kind\": \"rectangle\"", "\"kind\": \"star\""), "rectangle, ellipse, path or curves"},
        {edited("\"rgb\": \"#", "\"rgb\": \"x"), "#rrggbb"},
        {edited("\"at\": 10000", "\"at\": 10001"), "\"at\""},
        // What the messages say: numbers as whole numbers, long texts cut, the real reason.
        {Small("[0, 0, 10, 2e9]", R"({"at": 0, "colour": {"alpha": 255, "rgb": "#000000", "tint": 0}},
                                    {"at": 10000, "colour": {"alpha": 255, "rgb": "#ffffff", "tint": 0}})"),
         "from -1073741824 to 1073741824"},
        {Small("[0, 0, 10, 10]", R"({"at": 0, "colour": {"alpha": 255, "rgb": "#000000", "tint": 0}})"),
         "stops, not 1"},
        {edited("\"kind\": \"rectangle\"", "\"kind\": \"" + QByteArray(100000, 'x') + "\""), "xxx…\""},
        {edited("\"page\": [\n        4000", "\"page\": [\n        4000.5"), "page width should be a whole number"},
        {edited("\"bitmap\": \"iVBOR", "\"bitmap\": \"iVBXR"), "no PNG image that can be read"},
        // Limits a person never meets and a hostile file does.
        {Many(10001, "[[0, 0], [5, 0], [0, 5]]"), "at most 10000"},
        {Many(1, Corners(20001)), "3 to 20000 corners"},
    };
    const std::size_t shapes = window->GetDocument().shapes.size();
    for (const auto& c : cases) {
        const QString path = folder.filePath("damaged.kdraw");
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(c.content);
        file.close();
        errors.clear();
        EXPECT_FALSE(window->Open(path)) << c.reason;
        ASSERT_EQ(errors.size(), 1) << c.reason;
        EXPECT_TRUE(errors[0].contains(c.reason)) << errors[0].left(300).toStdString();
        EXPECT_LT(errors[0].size(), 300);
        EXPECT_EQ(window->GetDocument().shapes.size(), shapes);
        EXPECT_EQ(window->Path(), kSample);
    }
    // A path's box is taken from its corners, whatever the file says.
    {
        const QString path = folder.filePath("path.kdraw");
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(
            QByteArray(Small("[0, 0, 1, 1]", R"({"at": 0, "colour": {"alpha": 255, "rgb": "#000000", "tint": 0}},
            {"at": 10000, "colour": {"alpha": 255, "rgb": "#ffffff", "tint": 0}})"))
                .replace(R"("kind": "rectangle")", R"("kind": "path", "points": [[10, 10], [50, 10], [30, 40]])"));
        file.close();
        ASSERT_TRUE(window->Open(path)) << errors.join('\n').toStdString();
        EXPECT_EQ(window->GetDocument().shapes.at(0).box, KestoPlatform::CRect(10, 10, 50, 40));
        ASSERT_TRUE(window->Open(kSample));
    }
    // What is no regular file is refused before it is read: a device never ends, a pipe would
    // wait for a writer for ever.
    const QString pipe = folder.filePath("pipe.kdraw");
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const struct {
        QString path;
        const char* reason;
    } others[] = {{folder.filePath("missing.kdraw"), "no such file"},
                  {folder.path(), "folder"},
                  {"/dev/zero", "not a regular file"},
                  {pipe, "not a regular file"}};
    for (const auto& other : others) {
        errors.clear();
        EXPECT_FALSE(window->Open(other.path));
        ASSERT_EQ(errors.size(), 1) << other.reason;
        EXPECT_TRUE(errors[0].contains(other.reason)) << errors[0].toStdString();
    }
}

} // namespace
