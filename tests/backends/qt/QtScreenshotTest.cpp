// Pictures of the Qt back end compared with references: a real dialog window grabbed from the
// X display, and tools drawing their handles over their fills into a QImage through both
// render paths.
#include "kestotool/dialogs/SolidTransparencyDlg.h"
#include "kestotool/filltool/FillToolFactory.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillSquare.h"
#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/ColourIntPairs.h"
#include "kestotool/gdi/FillPaint.h"
#include "kestotool/qt/QtBackend.h"
#include "kestotool/qt/QtRenderContext.h"
#include "kestotool/qt/QtRenderTarget.h"
#include "support/ReferenceImage.h"
#include "support/TestToolSite.h"
#include "support/UserInput.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

using namespace KestoTool;
using KestoToolQt::QtBackend;

namespace {

void ExpectMatchesReference(const QImage& picture, const QString& name)
{
    KestoTest::ExpectMatchesReference(picture, QStringLiteral(KESTO_REFERENCE_DIR), QStringLiteral(KESTO_DIFFERENCE_DIR), name);
}

class QtScreenshots : public testing::Test {
protected:
    void SetUp() override { input.Install(); }
    void TearDown() override { input.Uninstall(); }
    KestoTest::UserInput& input = KestoTest::QtUserInput();
};

} // namespace

TEST_F(QtScreenshots, SolidTransparencyDialogInARealWindow)
{
    ASSERT_EQ(QGuiApplication::platformName(), QStringLiteral("xcb")) << "run under xvfb-run with QT_QPA_PLATFORM=xcb";
    KestoGDI::CTransparencyFlat flat;
    flat.SetColour(KestoGDI::CMonoColour(128));
    CSolidTransparencyDlg dialog(&flat, nullptr);
    QImage shot;
    input.SetModalScript([&](Platform::CDialog& d) {
        auto& dlg = static_cast<CSolidTransparencyDlg&>(d);
        input.DragSlider(dlg.GetSlider(), 30);
        QWidget* window = QtBackend::WidgetOf(dlg);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
        window->repaint();
        shot = window->screen()->grabWindow(window->winId()).toImage();
        input.ClickButton(dlg, Platform::IDOK);
    });
    ASSERT_EQ(dialog.DoModal(), Platform::IDOK);
    ExpectMatchesReference(shot, "solid-transparency-dialog");
}

TEST_F(QtScreenshots, ToolHandlesOverTheirFillsThroughBothRenderPaths)
{
    // Two objects of 1000 units drawn at a fifth of a pixel each: a linear fill with a middle
    // stop (drawn through the render target) and a square fill (through the render context).
    const Platform::CRect object(0, 0, 1000, 1000);
    auto linear = Kernel::MakeRef<KestoGDI::CFillLinear>();
    linear->SetDefaultControls(object);
    KestoGDI::ColourIntPairs stops;
    stops.Add(KestoGDI::CRGBColour(Platform::RGB(220, 30, 40)), 0);
    stops.Add(KestoGDI::CRGBColour(Platform::RGB(255, 170, 0)), 4000);
    stops.Add(KestoGDI::CRGBColour(Platform::RGB(30, 40, 150)), 10000);
    linear->SetColourIntPairs(stops);
    auto square = Kernel::MakeRef<KestoGDI::CFillSquare>();
    square->SetDefaultControls(object);
    square->SetColourIntPairs(stops);

    KestoTest::TestToolSite site;
    site.objectBox = object;
    site.pixelToPaper = 5;
    QImage picture(460, 220, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    const double scale = 0.2;
    const auto place = [&](const KestoGDI::CFill& fill, int left) {
        const KestoRaster::Target canvas{picture.bits(), picture.width(), picture.height(), picture.bytesPerLine(),
                                         KestoRaster::Output::Argb32};
        KestoGDI::FillPaint::PaintOver(fill, {scale, 0, 0, scale, static_cast<double>(left), 10}, scale, canvas,
                                       {left, 10, left + 200, 210});
    };
    place(*linear, 10);
    place(*square, 250);
    QPainter painter(&picture);
    const std::unique_ptr<FillTool> linearTool = FillToolFactory::Create(linear.get(), &site);
    ASSERT_NE(linearTool, nullptr);
    KestoToolQt::QtRenderTarget target(painter);
    Kesto2D::K2DLtGeneral view;
    view += Kesto2D::K2DLtScale(scale, scale);
    view += Kesto2D::K2DLtTranslate(10, 10);
    linearTool->Draw(&target, false, view);

    const std::unique_ptr<FillTool> squareTool = FillToolFactory::Create(square.get(), &site);
    ASSERT_NE(squareTool, nullptr);
    painter.setTransform(QTransform(scale, 0, 0, scale, 250, 10));
    KestoToolQt::QtRenderContext context(painter, 1 / scale);
    squareTool->Draw(&context);
    painter.end();
    ExpectMatchesReference(picture, "tool-handles");
}
