// Pictures of the Qt back end compared with references: a real dialog window grabbed from the
// X display, and tools drawing their handles over their fills into a QImage through both
// render paths.
#include "kestotool/dialogs/GradientFillDlg.h"
#include "kestotool/dialogs/GradientTranspDlg.h"
#include "kestotool/dialogs/PlasmaFillDlg.h"
#include "kestotool/dialogs/SolidTransparencyDlg.h"
#include "kestotool/dialogs/ThreeAndFourColourFillDlg.h"
#include "kestotool/dialogs/ThreeAndFourColourTranspDlg.h"
#include "kestotool/dialogs/VectorFillDlgBase.h"
#include "kestotool/filltool/FillToolFactory.h"
#include "kestotool/gdi/CFillFourColour.h"
#include "kestotool/gdi/CFillFractal.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CFillSquare.h"
#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/CTransparencyLinear.h"
#include "kestotool/gdi/CTransparencyThreePoint.h"
#include "kestotool/gdi/ColourIntPairs.h"
#include "kestotool/gdi/FillPaint.h"
#include "kestotool/gdi/VectorDrawing.h"
#include "kestotool/qt/QtBackend.h"
#include "kestotool/qt/QtRenderContext.h"
#include "kestotool/qt/QtRenderTarget.h"
#include "kestotool/resources/ResourceIds.h"
#include "support/ReferenceImage.h"
#include "support/TestDocument.h"
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
    KestoTest::ExpectMatchesReference(picture, QStringLiteral(KESTO_REFERENCE_DIR),
                                      QStringLiteral(KESTO_DIFFERENCE_DIR), name);
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
    input.SetModalScript([&](KestoPlatform::CDialog& d) {
        auto& dlg = static_cast<CSolidTransparencyDlg&>(d);
        input.DragSlider(dlg.GetSlider(), 30);
        QWidget* window = QtBackend::WidgetOf(dlg);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
        window->repaint();
        shot = window->screen()->grabWindow(window->winId()).toImage();
        input.ClickButton(dlg, KestoPlatform::IDOK);
    });
    ASSERT_EQ(dialog.DoModal(), KestoPlatform::IDOK);
    ExpectMatchesReference(shot, "solid-transparency-dialog");
}

namespace {

KestoGDI::ColourIntPairs Stops(std::initializer_list<KestoPlatform::COLORREF> colours)
{
    KestoGDI::ColourIntPairs stops;
    int at = 0;
    for (const KestoPlatform::COLORREF c : colours) {
        stops.Add(KestoGDI::CRGBColour(c), colours.size() > 1 ? at * 10000 / static_cast<int>(colours.size() - 1) : 0);
        ++at;
    }
    return stops;
}

KestoGDI::ColourIntPairs Levels(std::initializer_list<int> levels)
{
    KestoGDI::ColourIntPairs stops;
    int at = 0;
    for (const int level : levels) {
        stops.Add(KestoGDI::CMonoColour(level),
                  levels.size() > 1 ? at * 10000 / static_cast<int>(levels.size() - 1) : 0);
        ++at;
    }
    return stops;
}

template <class Fill>
KestoKernel::RefPtr<Fill> Placed(const KestoGDI::ColourIntPairs& stops)
{
    auto fill = KestoKernel::MakeRef<Fill>();
    fill->SetDefaultControls(KestoPlatform::CRect(0, 0, 1000, 1000));
    fill->SetColourIntPairs(stops);
    return fill;
}

// A drawing of a red disc-like diamond and a blue bar, for the vector editor.
KestoKernel::RefPtr<const KestoGDI::VectorDrawing> Motif()
{
    auto drawing = KestoKernel::MakeRef<KestoGDI::VectorDrawing>(400, 400);
    KestoRaster::Path diamond;
    diamond.MoveTo({200, 20});
    diamond.LineTo({380, 200});
    diamond.LineTo({200, 380});
    diamond.LineTo({20, 200});
    diamond.Close();
    drawing->AddShape(diamond, KestoKernel::MakeRef<KestoGDI::CFillSolid>(
                                   KestoGDI::CRGBColour(KestoPlatform::RGB(220, 40, 40)), true));
    KestoRaster::Path bar;
    bar.MoveTo({0, 180});
    bar.LineTo({400, 180});
    bar.LineTo({400, 220});
    bar.LineTo({0, 220});
    bar.Close();
    drawing->AddShape(
        bar, KestoKernel::MakeRef<KestoGDI::CFillSolid>(KestoGDI::CRGBColour(KestoPlatform::RGB(30, 60, 200)), true));
    return drawing;
}

} // namespace

// Each editor in a real window, as the user first sees it (the gradient editor after a stop was
// added on its bar and a handle dragged in its preview).
TEST_F(QtScreenshots, EditorsInRealWindows)
{
    ASSERT_EQ(QGuiApplication::platformName(), QStringLiteral("xcb")) << "run under xvfb-run with QT_QPA_PLATFORM=xcb";
    using KestoPlatform::RGB;
    KestoTest::TestDocument document;
    const KestoPlatform::CRect object(0, 0, 1000, 1000);
    const auto radial = Placed<KestoGDI::CFillRadial>(Stops({RGB(250, 220, 60), RGB(230, 80, 30), RGB(90, 20, 90)}));
    const auto transparency = Placed<KestoGDI::CTransparencyLinear>(Levels({0, 255}));
    const auto plasma = Placed<KestoGDI::CFillFractal>(Stops({RGB(10, 30, 90), RGB(60, 160, 220), RGB(250, 250, 255)}));
    const auto four = Placed<KestoGDI::CFillFourColour>(
        Stops({RGB(230, 40, 40), RGB(240, 220, 40), RGB(40, 120, 230), RGB(40, 200, 90)}));
    const auto three = Placed<KestoGDI::CTransparencyThreePoint>(Levels({0, 128, 255}));
    auto vector = KestoKernel::MakeRef<KestoGDI::CFillVector>(Motif());
    vector->SetDefaultControls(object);
    vector->UpdateBBox(object, {}); // as the tool's Edit Fill hands it over

    CGradientFillDlg gradient(&document, radial.get(), object, nullptr);
    CGradientTranspDlg gradientTransparency(&document, transparency.get(), object, nullptr);
    CPlasmaFillDlg plasmaDialog(&document, plasma.get(), object, nullptr);
    CThreeAndFourColourFillDlg fourDialog(&document, four.get(), object, nullptr);
    CThreeAndFourColourTranspDlg threeDialog(&document, three.get(), object, nullptr);
    CVectorFillDlgBase vectorDialog(&document, vector.get(), object, nullptr, IDD_VECTOR_FILL, {});
    const std::pair<ExpandingFillPreviewDlg*, const char*> editors[] = {
        {&gradient, "editor-gradient"},       {&gradientTransparency, "editor-gradient-transparency"},
        {&plasmaDialog, "editor-plasma"},     {&fourDialog, "editor-four-colour"},
        {&threeDialog, "editor-three-point"}, {&vectorDialog, "editor-vector"},
    };
    for (const auto& [editor, name] : editors) {
        QImage shot;
        input.SetModalScript([&, editorName = std::string(name)](KestoPlatform::CDialog& d) {
            if (editorName == "editor-gradient") {
                GradientBar& bar = gradient.GetBar();
                const KestoPlatform::CPoint at = bar.GetViewTransform().ApplyTo(KestoPlatform::CPoint(2500, 500));
                input.DragMouse(bar, at, at);
                KestoUI::FillControl& preview = gradient.GetPreview();
                const KestoPlatform::CPoint rim =
                    preview.GetViewTransform().ApplyTo(gradient.GetFill()->GetControlPoint(1).Round());
                input.DragMouse(preview, rim, KestoPlatform::CPoint(rim.x + 15, rim.y - 25));
            }
            QWidget* window = QtBackend::WidgetOf(d);
            ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
            window->repaint();
            shot = window->screen()->grabWindow(window->winId()).toImage();
            input.ClickButton(d, KestoPlatform::IDOK);
        });
        ASSERT_EQ(editor->DoModal(), KestoPlatform::IDOK) << name;
        ExpectMatchesReference(shot, name);
    }
}

TEST_F(QtScreenshots, ToolHandlesOverTheirFillsThroughBothRenderPaths)
{
    // Two objects of 1000 units drawn at a fifth of a pixel each: a linear fill with a middle
    // stop (drawn through the render target) and a square fill (through the render context).
    const KestoPlatform::CRect object(0, 0, 1000, 1000);
    auto linear = KestoKernel::MakeRef<KestoGDI::CFillLinear>();
    linear->SetDefaultControls(object);
    KestoGDI::ColourIntPairs stops;
    stops.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(220, 30, 40)), 0);
    stops.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(255, 170, 0)), 4000);
    stops.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(30, 40, 150)), 10000);
    linear->SetColourIntPairs(stops);
    auto square = KestoKernel::MakeRef<KestoGDI::CFillSquare>();
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
