#include "kestotool/exchange/SvgReader.h"

#include "kestotool/exchange/SvgWriter.h"
#include "kestotool/gdi/CFillEllipse.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CFillSquare.h"
#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/CTransparencyFlat.h"
#include "kestotool/gdi/CTransparencyLinear.h"
#include "kestotool/gdi/CTransparencySquare.h"
#include "kestotool/gdi/FillType.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <sstream>

using namespace KestoGDI;
using KestoRaster::Path;
using KestoTool::SvgReader;

namespace {

std::string FileText(const std::string& name)
{
    std::ifstream in(std::string(KESTO_SVG_FILES) + "/" + name);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

// The bounds of the outline's curve.
std::array<double, 4> Bounds(const Path& path)
{
    std::array<double, 4> box{1e300, 1e300, -1e300, -1e300};
    for (const auto& piece : path.Flatten({}, 1e-3))
        for (const KestoRaster::Point p : piece)
            box = {std::min(box[0], p.x), std::min(box[1], p.y), std::max(box[2], p.x), std::max(box[3], p.y)};
    return box;
}

// The messages in English, each checked to be one of the patterns a host translates.
std::vector<std::string> Texts(const std::vector<SvgReader::Message>& messages)
{
    std::vector<std::string> texts;
    for (const SvgReader::Message& m : messages) {
        const auto patterns = SvgReader::Patterns();
        EXPECT_NE(std::find(patterns.begin(), patterns.end(), m.pattern), patterns.end()) << m.pattern;
        texts.push_back(m.Text());
    }
    return texts;
}

bool Mentions(const std::vector<SvgReader::Message>& skipped, const std::string& what)
{
    const std::vector<std::string> texts = Texts(skipped);
    return std::any_of(texts.begin(), texts.end(), [&](const std::string& s) { return s.find(what) != s.npos; });
}

} // namespace

// Hand-written files of the kinds a designer brings: what each gives, and what it skips.
TEST(SvgReader, ReadsTheFilesADesignerBrings)
{
    const double mm = 96 / 25.4; // the arc's file is 100 mm on 100 user units
    const struct {
        const char* file;
        FillType::Type type;
        std::vector<K2DDblPoint> controls;
        std::array<double, 4> bounds;
        std::vector<std::string> skipped;
    } cases[] = {
        {"href-chain.svg", FillType::Linear, {{10, 20}, {110, 20}}, {10, 10, 110, 60}, {}},
        // Box (0, 0)..(200, 100), diagonal axis: the end is the axis end's projection square to
        // the stripes, (80, 160) in the box, then turned and moved.
        {"bbox-rotated.svg", FillType::Linear, {{300, 0}, {140, 80}}, {200, 0, 300, 200}, {}},
        {"arc.svg", FillType::Solid, {}, {10 * mm, 10 * mm, 90 * mm, 50 * mm}, {}},
        {"filter.svg", FillType::Solid, {}, {10, 10, 70, 50}, {"filter", "stroke", "<text>"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.file);
        const SvgReader::Result result = SvgReader::Read(FileText(c.file));
        ASSERT_TRUE(result.drawing) << result.error.Text();
        ASSERT_EQ(result.drawing->shapes.size(), 1u);
        const SvgReader::Shape& shape = result.drawing->shapes[0];
        EXPECT_EQ(shape.fill->GetFillType(), c.type);
        ASSERT_EQ(shape.fill->GetControlCount(), static_cast<int>(c.controls.size()));
        for (std::size_t i = 0; i < c.controls.size(); ++i) {
            EXPECT_NEAR(shape.fill->GetControlPoint(static_cast<int>(i)).x, c.controls[i].x, 1e-9);
            EXPECT_NEAR(shape.fill->GetControlPoint(static_cast<int>(i)).y, c.controls[i].y, 1e-9);
        }
        const std::array<double, 4> box = Bounds(shape.outline);
        for (int i = 0; i < 4; ++i)
            EXPECT_NEAR(box[i], c.bounds[i], 0.01) << i;
        for (const std::string& s : c.skipped)
            EXPECT_TRUE(Mentions(result.drawing->skipped, s)) << s;
        EXPECT_EQ(result.drawing->skipped.size(), c.skipped.size());
    }

    // The chain's stops, with the middle one's style; the arc's opacity and the group's.
    const SvgReader::Result chain = SvgReader::Read(FileText("href-chain.svg"));
    const auto& linear = static_cast<const CFillLinear&>(*chain.drawing->shapes[0].fill);
    const ColourIntPairs& stops = linear.GetColourIntPairs();
    ASSERT_EQ(stops.GetSize(), 3);
    EXPECT_EQ(stops.GetAt(1)->GetValue(), 5000);
    EXPECT_EQ(stops.GetAt(1)->GetColour().GetRGB(), KestoPlatform::RGB(0, 128, 0));
    EXPECT_EQ(stops.GetAt(1)->GetColour().GetAlpha(), 128);
    EXPECT_EQ(stops.GetAt(2)->GetColour().GetRGB(), KestoPlatform::RGB(0, 0, 255));
    for (const auto& [file, alpha] : {std::pair{"arc.svg", 128}, std::pair{"filter.svg", 128}}) {
        const SvgReader::Result read = SvgReader::Read(FileText(file));
        EXPECT_EQ(static_cast<const CFillSolid&>(*read.drawing->shapes[0].fill).GetColour().GetAlpha(), alpha) << file;
    }
}

// Damaged and hostile files are refused with a reason, quickly; out-of-range shapes are left out.
TEST(SvgReader, RefusesDamagedAndHostileFiles)
{
    const std::string arc = FileText("arc.svg");
    std::string commands = "<svg xmlns='http://www.w3.org/2000/svg'><path d='M0 0";
    for (int i = 0; i < 1000000; ++i)
        commands += " L1 1";
    commands += "'/></svg>";
    const std::string laughs = "<?xml version='1.0'?><!DOCTYPE svg [<!ENTITY a 'aaaaaaaaaa'>"
                               "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'><!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'>]>"
                               "<svg xmlns='http://www.w3.org/2000/svg'><text>&c;</text></svg>";
    const struct {
        std::string text;
        const char* reason;
    } cases[] = {
        {arc.substr(0, arc.size() / 2), "well-formed"},
        {laughs, "entities"},
        {commands, "segments"},
        {"<svg xmlns='http://www.w3.org/2000/svg' width='1e308' height='10'/>", "the page is"},
        {"<html><body/></html>", "not SVG"},
        {"", "well-formed"},
    };
    for (const auto& c : cases) {
        const auto start = std::chrono::steady_clock::now();
        const SvgReader::Result result = SvgReader::Read(c.text);
        EXPECT_FALSE(result.drawing);
        const std::string error = Texts({result.error}).front();
        EXPECT_NE(error.find(c.reason), std::string::npos) << error;
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10)) << c.reason;
    }

    const SvgReader::Result huge = SvgReader::Read("<svg xmlns='http://www.w3.org/2000/svg'>"
                                                   "<rect width='1e300' height='5' fill='red'/>"
                                                   "<path d='M0 0L1e18 0 0 1e18z'/><circle r='5' cx='9' cy='9'/></svg>");
    ASSERT_TRUE(huge.drawing) << huge.error.Text();
    EXPECT_EQ(huge.drawing->shapes.size(), 1u); // the circle
    EXPECT_TRUE(Mentions(huge.drawing->skipped, "coordinate range"));

    // Many different things to skip, and a gradient of many stops that many shapes use: the
    // list and the reading stay bounded.
    std::string many = "<svg xmlns='http://www.w3.org/2000/svg'><linearGradient id='g'>";
    for (int i = 0; i < 1100; ++i)
        many += "<stop offset='" + std::to_string(i / 1100.0) + "' stop-color='#102030'/>";
    many += "</linearGradient>";
    for (int i = 0; i < 300; ++i)
        many += "<rect width='5' height='5' fill='url(#g)'/><g transform='bad" + std::to_string(i) + "'/>";
    many += "</svg>";
    const auto start = std::chrono::steady_clock::now();
    const SvgReader::Result bounded = SvgReader::Read(many);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
    ASSERT_TRUE(bounded.drawing) << bounded.error.Text();
    EXPECT_EQ(bounded.drawing->shapes.size(), 300u);
    EXPECT_EQ(bounded.drawing->skipped.size(), 65u);
    EXPECT_EQ(bounded.drawing->skipped.back().Text(), "more");
    EXPECT_TRUE(Mentions(bounded.drawing->skipped, "stops past 1024"));

    std::string deep = "<svg xmlns='http://www.w3.org/2000/svg'>";
    for (int i = 0; i < 100000; ++i)
        deep += "<g>";
    deep += "<rect width='5' height='5'/>";
    for (int i = 0; i < 100000; ++i)
        deep += "</g>";
    deep += "<rect width='5' height='5'/></svg>";
    const SvgReader::Result nested = SvgReader::Read(deep);
    ASSERT_TRUE(nested.drawing) << nested.error.Text();
    EXPECT_EQ(nested.drawing->shapes.size(), 1u);
    EXPECT_TRUE(Mentions(nested.drawing->skipped, "nested deeper"));
}

// What SvgWriter writes for the kinds SVG has a paint for reads back as equal fills and
// transparencies, and writing them again gives the same document.
TEST(SvgReader, ReadsBackWhatTheWriterWrote)
{
    const auto stops = [](bool levels) {
        ColourIntPairs s;
        if (levels) {
            s.Add(CMonoColour(0), 0);
            s.Add(CColourIntPair(CMonoColour(200), 10000, CSpline(0.1, 0.9)));
        } else {
            s.Add(CRGBColour(0x2040C0), 0);
            s.Add(CColourIntPair(CRGBColour(0x40E0F0, nullptr, 0, 128), 3000, CSpline(0.2, 0.7)));
            s.Add(CRGBColour(0xF04020), 10000);
        }
        return s;
    };
    const auto made = [&](RefPtr<CFillGradient> fill, std::vector<K2DDblPoint> points) {
        fill->SetControlPoints(points);
        fill->SetColourIntPairs(stops(fill->IsTransparency()));
        return RefPtr<const CFill>(fill);
    };
    auto flat = KestoKernel::MakeRef<CTransparencyFlat>();
    flat->SetColour(CMonoColour(90));
    struct Shape {
        Path outline;
        RefPtr<const CFill> fill, transparency;
    };
    const std::vector<Shape> shapes{
        {Path::Rectangle({0, 0}, {300, 200}), KestoKernel::MakeRef<CFillSolid>(CRGBColour(0x336699, nullptr, 0, 200), true),
         nullptr},
        {Path::Ellipse({100, 80}, 60, 40), made(KestoKernel::MakeRef<CFillLinear>(), {{40, 80}, {160.5, 95}}),
         made(KestoKernel::MakeRef<CTransparencySquare>(), {{100, 80}, {140, 90}, {95, 110}})},
        {Path::Rectangle({150, 20}, {290, 180}), made(KestoKernel::MakeRef<CFillRadial>(), {{220, 100}, {260, 130}}),
         flat},
        {Path::Ellipse({200, 150}, 70, 30), made(KestoKernel::MakeRef<CFillEllipse>(), {{200, 150}, {260, 140}, {210, 180}}),
         made(KestoKernel::MakeRef<CTransparencyLinear>(), {{130, 150}, {270, 150}})},
        {Path::Rectangle({20, 120}, {120, 190}), made(KestoKernel::MakeRef<CFillSquare>(), {{70, 155}, {110, 160}, {65, 185}}),
         nullptr},
    };
    const auto document = [](const auto& list) {
        KestoTool::SvgWriter writer(300, 200);
        writer.SetPageColour(KestoRaster::Rgba{255, 255, 255, 255});
        for (const auto& s : list)
            writer.AddShape(s.outline, *s.fill, s.transparency.get(), KestoRaster::Rgba{70, 70, 70, 255});
        return writer.Document();
    };
    const std::string written = document(shapes);
    const SvgReader::Result read = SvgReader::Read(written);
    ASSERT_TRUE(read.drawing) << read.error.Text();
    EXPECT_EQ(read.drawing->page, (KestoRaster::Rgba{255, 255, 255, 255}));
    EXPECT_EQ(Texts(read.drawing->skipped), std::vector<std::string>{"stroke"});
    ASSERT_EQ(read.drawing->shapes.size(), shapes.size());
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        SCOPED_TRACE(i);
        const SvgReader::Shape& back = read.drawing->shapes[i];
        EXPECT_EQ(back.outline.Points().size(), shapes[i].outline.Points().size());
        EXPECT_EQ(back.fill->GetFillType(), shapes[i].fill->GetFillType());
        ASSERT_EQ(!back.transparency, !shapes[i].transparency);
        if (back.transparency) {
            EXPECT_EQ(back.transparency->GetFillType(), shapes[i].transparency->GetFillType());
        }
        // The curved blends come back as the stops that sample them, so the ramps are compared
        // through the document they write.
        if (shapes[i].fill->GetFillType() == FillType::Solid) {
            EXPECT_TRUE(back.fill->IsEqual(*shapes[i].fill));
        }
        // SVG's radial gradient has a radius but no rim direction: the rim comes back to the
        // right of the centre.
        if (shapes[i].fill->GetFillType() == FillType::Radial) {
            const K2DVector rim = shapes[i].fill->GetControlPoint(1) - shapes[i].fill->GetControlPoint(0);
            EXPECT_EQ(back.fill->GetControlPoint(1), shapes[i].fill->GetControlPoint(0) + K2DVector(rim.Length(), 0));
            continue;
        }
        for (int p = 0; p < shapes[i].fill->GetControlCount(); ++p) {
            EXPECT_DOUBLE_EQ(back.fill->GetControlPoint(p).x, shapes[i].fill->GetControlPoint(p).x);
            EXPECT_DOUBLE_EQ(back.fill->GetControlPoint(p).y, shapes[i].fill->GetControlPoint(p).y);
        }
    }
    EXPECT_EQ(document(read.drawing->shapes), written);
}
