#include "kestotool/exchange/PdfWriter.h"
#include "kestotool/exchange/SvgWriter.h"

#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillConical.h"
#include "kestotool/gdi/CFillEllipse.h"
#include "kestotool/gdi/CFillFourColour.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/gdi/CFillSquare.h"
#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/gdi/CLtBitmap.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/CTransparencyLinear.h"
#include "kestotool/gdi/CTransparencyRadial.h"
#include "kestotool/gdi/FillPaint.h"
#include "kestotool/gdi/PngFile.h"
#include "kestotool/raster/Composite.h"
#include "kestotool/raster/PreparedPaint.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <numeric>
#include <vector>

using namespace KestoGDI;
using KestoRaster::Path;

namespace {

constexpr int W = 200, H = 150;

template <class Fill>
RefPtr<CFill> Made(KestoPlatform::CRect box, KestoPlatform::COLORREF start)
{
    auto fill = KestoKernel::MakeRef<Fill>();
    fill->SetDefaultControls(box);
    ColourIntPairs stops;
    stops.Add(CRGBColour(start), 0);
    stops.Add(CRGBColour(0x40E0F0), 10000);
    fill->SetColourIntPairs(stops);
    return fill;
}

struct Shape {
    Path outline;
    RefPtr<CFill> fill;
    RefPtr<CFill> transparency;
};


// Renders the shapes as our renderer composites them on white; marks in edge the pixels within 2
// of any outline's anti-aliased edge, which renderers smooth each their own way.
std::vector<std::uint32_t> Ours(const std::vector<Shape>& shapes, std::vector<bool>& edge)
{
    std::vector<std::uint32_t> ours(W * H, 0xFFFFFFFFu), colours(W * H);
    std::vector<std::uint8_t> coverage(W * H), mask(W * H);
    edge.assign(W * H, false);
    const KestoRaster::Clip all{0, 0, W, H};
    for (const Shape& s : shapes) {
        KestoRaster::Render(KestoRaster::PreparedPaint(*FillPaint::From(*s.fill), {}, KestoRaster::Output::Argb32),
                            {colours.data(), W, H, W * 4, KestoRaster::Output::Argb32}, all);
        KestoRaster::RenderCoverage(s.outline, {}, {coverage.data(), W, H, W, KestoRaster::Output::Mask8}, all);
        for (int i = 0; i < W * H; ++i)
            if (coverage[i] != 0 && coverage[i] != 255)
                for (int dy = -2; dy <= 2; ++dy)
                    for (int dx = -2; dx <= 2; ++dx)
                        if (const int x = i % W + dx, y = i / W + dy; x >= 0 && x < W && y >= 0 && y < H)
                            edge[y * W + x] = true;
        if (s.transparency) {
            KestoRaster::Render(
                KestoRaster::PreparedPaint(*FillPaint::From(*s.transparency), {}, KestoRaster::Output::Mask8),
                {mask.data(), W, H, W, KestoRaster::Output::Mask8}, all);
            for (int i = 0; i < W * H; ++i)
                coverage[i] = static_cast<std::uint8_t>((coverage[i] * mask[i] + 127) / 255);
        }
        const KestoRaster::Target covered{coverage.data(), W, H, W, KestoRaster::Output::Mask8};
        KestoRaster::CompositeOver({ours.data(), W, H, W * 4, KestoRaster::Output::Argb32},
                                   {colours.data(), W, H, W * 4, KestoRaster::Output::Argb32}, &covered, all);
    }
    return ours;
}

// Runs command, which writes a W x H picture to shown, and expects it to look as ours away from
// the outlines: mean difference within 2 levels a channel, the 99th percentile within 8.
void ExpectShownAsOurs(const std::vector<Shape>& shapes, const std::string& command, const std::string& shown)
{
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
    const RefPtr<CLtBitmap> picture = PngFile::Read(shown);
    ASSERT_TRUE(picture);
    ASSERT_EQ(picture->GetWidth(), W);
    ASSERT_EQ(picture->GetHeight(), H);
    std::vector<bool> edge;
    const std::vector<std::uint32_t> ours = Ours(shapes, edge);
    std::vector<int> differences;
    for (int i = 0; i < W * H; ++i)
        if (!edge[i])
            for (const int shift : {0, 8, 16})
                differences.push_back(std::abs(static_cast<int>(picture->GetBits()[i] >> shift & 0xFF) -
                                               static_cast<int>(ours[i] >> shift & 0xFF)));
    std::sort(differences.begin(), differences.end());
    const double mean = std::accumulate(differences.begin(), differences.end(), 0.0) / static_cast<double>(differences.size());
    EXPECT_LE(mean, 2.0);
    EXPECT_LE(differences[differences.size() * 99 / 100], 8);
}

} // namespace

// A drawing of a native gradient, a kind SVG has not (an embedded picture), a turned bitmap
// of mirrored tiles (a pattern) and a gradient through a gradient transparency (a mask),
// shown by a real SVG renderer as our renderer composites it, away from the outlines'
// anti-aliased edges.
TEST(SvgWriter, ARealRendererShowsTheDrawingAsOursDoes)
{
    auto levels = KestoKernel::MakeRef<CTransparencyLinear>();
    levels->SetDefaultControls(KestoPlatform::CRect(40, 60, 180, 140));
    auto bitmap = KestoKernel::MakeRef<CLtBitmap>(8, 6);
    for (int i = 0; i < 8 * 6; ++i)
        bitmap->GetBits()[i] = (i % 8 + i / 8) % 3 ? 0xFF2050C0u : 0xFFF0C020u;
    auto tiles = KestoKernel::MakeRef<CFillBitmap>();
    tiles->SetBitmap(bitmap);
    tiles->SetControls({120, 20}, {150, 35}, {110, 45});
    tiles->SetWantInvertedTiling(true);
    const std::vector<Shape> shapes{
        {Path::Rectangle({100, 5}, {195, 60}), tiles, nullptr},
        {Path::Rectangle({10, 10}, {110, 80}), Made<CFillLinear>({10, 10, 110, 80}, 0x2020C0), nullptr},
        {Path::Ellipse({130, 70}, 45, 45), Made<CFillConical>({85, 25, 175, 115}, 0x20A040), nullptr},
        {Path::Rectangle({40, 60}, {180, 140}), Made<CFillRadial>({40, 60, 180, 140}, 0xC02080), levels},
    };
    KestoTool::SvgWriter writer(W, H);
    writer.SetRasterScale(2);
    for (const Shape& s : shapes)
        writer.AddShape(s.outline, *s.fill, s.transparency.get(), std::nullopt);
    const std::string dir = testing::TempDir();
    std::ofstream(dir + "/drawing.svg") << writer.Document();
    ExpectShownAsOurs(shapes, "rsvg-convert -b white -o '" + dir + "/drawing.png' '" + dir + "/drawing.svg'",
                      dir + "/drawing.png");
}

// Corner colours as patch meshes (a three-colour field whose fourth corner stays in range, a
// four-colour figure that holds its shape), a diamond's wedges through a radial soft mask and
// an elliptical gradient: shown by poppler as our renderer composites them.
TEST(PdfWriter, ARealRendererShowsTheDrawingAsOursDoes)
{
    auto three = KestoKernel::MakeRef<CFillThreeColour>();
    three->SetControlPoints(std::vector<K2DDblPoint>{{20, 20}, {90, 30}, {30, 90}});
    ColourIntPairs corners;
    for (const KestoPlatform::COLORREF c : {0x646464u, 0x5032C8u, 0x78B43Cu})
        corners.Add(CRGBColour(c), 0);
    three->SetColourIntPairs(corners);
    auto four = KestoKernel::MakeRef<CFillFourColour>();
    four->SetControlPoints(std::vector<K2DDblPoint>{{100, 10}, {195, 5}, {105, 80}, {190, 75}});
    corners.Add(CRGBColour(0x20E0F0), 0);
    four->SetColourIntPairs(corners);
    auto levels = KestoKernel::MakeRef<CTransparencyRadial>();
    levels->SetDefaultControls(KestoPlatform::CRect(10, 90, 100, 145));
    const std::vector<Shape> shapes{
        {Path::Rectangle({10, 10}, {95, 95}), three, nullptr},
        {Path::Ellipse({148, 42}, 38, 28), four, nullptr},
        {Path::Rectangle({10, 90}, {100, 145}), Made<CFillSquare>({10, 90, 100, 145}, 0xC02080), levels},
        {Path::Ellipse({150, 115}, 45, 30), Made<CFillEllipse>({105, 85, 195, 145}, 0x2060C0), nullptr},
    };
    // A point a pixel: shown at 72 dpi, the page is the picture.
    KestoTool::PdfWriter writer(W, H, 1, 72);
    writer.SetPageColour({255, 255, 255, 255});
    for (const Shape& s : shapes)
        writer.AddShape(s.outline, *s.fill, s.transparency.get(), std::nullopt);
    const std::string pdf = writer.Document();
    const auto count = [&pdf](const std::string& what) {
        int n = 0;
        for (std::size_t at = pdf.find(what); at != std::string::npos; at = pdf.find(what, at + 1))
            ++n;
        return n;
    };
    EXPECT_EQ(count("/ShadingType 6") + count("/ShadingType 7"), 2); // the two meshes
    EXPECT_EQ(count("/Subtype /Image"), 0);
    const std::string dir = testing::TempDir();
    std::ofstream(dir + "/drawing.pdf", std::ios::binary) << pdf;
    ExpectShownAsOurs(shapes, "pdftoppm -png -singlefile -r 72 '" + dir + "/drawing.pdf' '" + dir + "/shown'",
                      dir + "/shown.png");
}

// A shape reaching far past the page costs a picture of the page, not of the shape.
TEST(Writers, APictureCoversOnlyWhatThePageShows)
{
    const RefPtr<CFill> conical = Made<CFillConical>({0, 0, W, H}, 0x20A040);
    const Path far = Path::Rectangle({-1e6, -1e6}, {1e6, 1e6});
    KestoTool::SvgWriter svg(W, H);
    svg.AddShape(far, *conical, nullptr, std::nullopt);
    const std::string document = svg.Document();
    EXPECT_NE(document.find("<image x=\"0\" y=\"0\" width=\"200\" height=\"150\""), std::string::npos);
    EXPECT_LT(document.size(), 200'000u);
    KestoTool::PdfWriter pdf(W, H, 1, 72);
    pdf.AddShape(far, *conical, nullptr, std::nullopt);
    const std::string pdfDocument = pdf.Document();
    EXPECT_NE(pdfDocument.find("/Width 200"), std::string::npos);
    EXPECT_LT(pdfDocument.size(), 200'000u);
}
