// A scripted session with the linear fill tool on a small headless host: each step prints the
// hint line, the handles and what was committed, and the end result is drawn as an SVG picture
// of the object, its gradient and the tool's handles and lines.
#include "DemoHost.h"
#include "SvgRenderTarget.h"

#include "filltool/FillCommands.h"
#include "filltool/FillToolFactory.h"
#include "gdi/CFillLinear.h"
#include "gdi/FillPaint.h"
#include "gdi/PngFile.h"
#include "gdi/CRGBColour.h"
#include "platform/CCmdTarget.h"
#include "raster/Composite.h"
#include "raster/PreparedPaint.h"
#include "platform/WindowTypes.h"
#include "tool/Module.h"
#include "tool/ToolIdMap.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

using namespace KestoTool;
using Platform::CPoint;

namespace {

std::string Utf8(const CString& s)
{
    return s.ToUtf8();
}

std::string Point(CPoint p)
{
    return "(" + std::to_string(p.x) + "," + std::to_string(p.y) + ")";
}

std::string Describe(const KestoGDI::CFill& fill)
{
    const auto& linear = dynamic_cast<const KestoGDI::CFillLinear&>(fill);
    std::string s = "linear " + Point(linear.GetStart().Round()) + " -> " + Point(linear.GetEnd().Round()) + ", stops";
    for (const auto& stop : linear.GetColourIntPairs()) {
        char text[48];
        std::snprintf(text, sizeof text, " %d:%s", stop.GetValue(), SvgColour(stop.GetColour().GetRGB()).c_str());
        s += text;
        if (stop.GetColour().GetAlpha() != 255)
            s += "/alpha " + std::to_string(stop.GetColour().GetAlpha());
    }
    return s;
}

void Report(const char* step, DemoHost& host, FillTool& tool, int commitsBefore)
{
    CString hint;
    tool.GetHintLine(&hint);
    K2DArrayPoint handles;
    tool.GetHandles(&handles);
    std::cout << "\n== " << step << "\n   hint:    " << Utf8(hint) << "\n   handles:";
    for (const CPoint& p : handles)
        std::cout << ' ' << Point(p);
    std::cout << "  (current " << tool.GetCurrentNode() << ")\n";
    if (host.commits > commitsBefore)
        std::cout << "   commit:  \"" << Utf8(CString(host.lastUndoName)) << "\" " << Describe(*host.fill) << '\n';
    else
        std::cout << "   commit:  none\n";
}

// The point at a stop position along the tool's line.
CPoint Along(const FillTool& tool, int position)
{
    const auto& line = dynamic_cast<const KestoGDI::CFillLinear&>(*tool.GetFill());
    const KestoGDI::CColourIntPair probe(KestoGDI::CRGBColour(0), position);
    return probe.GetValue(line.GetStart().Round(), line.GetEnd().Round());
}

std::string Picture(const DemoHost& host, const FillTool& tool)
{
    constexpr int margin = 90;
    const CRect r = host.Object();
    const auto& line = dynamic_cast<const KestoGDI::CFillLinear&>(*host.fill);
    std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + std::to_string(r.Width() + 2 * margin) +
                      "\" height=\"" + std::to_string(r.Height() + 2 * margin + 30) + "\">\n";
    svg += "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n";
    svg += "<defs><pattern id=\"checks\" width=\"20\" height=\"20\" patternUnits=\"userSpaceOnUse\">"
           "<rect width=\"20\" height=\"20\" fill=\"#ffffff\"/><rect width=\"10\" height=\"10\" fill=\"#d0d0d0\"/>"
           "<rect x=\"10\" y=\"10\" width=\"10\" height=\"10\" fill=\"#d0d0d0\"/></pattern>\n";
    char head[200];
    std::snprintf(head, sizeof head,
                  "<linearGradient id=\"fill\" gradientUnits=\"userSpaceOnUse\" x1=\"%g\" y1=\"%g\" x2=\"%g\" y2=\"%g\">\n",
                  line.GetStart().x + margin, line.GetStart().y + margin, line.GetEnd().x + margin,
                  line.GetEnd().y + margin);
    svg += head;
    for (const auto& stop : line.GetColourIntPairs()) {
        char text[120];
        std::snprintf(text, sizeof text, "<stop offset=\"%g\" stop-color=\"%s\" stop-opacity=\"%.3f\"/>\n",
                      stop.GetValue() / 10000.0, SvgColour(stop.GetColour().GetRGB()).c_str(),
                      stop.GetColour().GetAlpha() / 255.0);
        svg += text;
    }
    svg += "</linearGradient></defs>\n";
    const std::string box = "x=\"" + std::to_string(r.left + margin) + "\" y=\"" + std::to_string(r.top + margin) +
                            "\" width=\"" + std::to_string(r.Width()) + "\" height=\"" + std::to_string(r.Height()) + "\"";
    svg += "<rect " + box + " fill=\"url(#checks)\"/>\n<rect " + box + " fill=\"url(#fill)\" stroke=\"#333333\"/>\n";
    SvgRenderTarget target;
    K2DLtGeneral view;
    view += Kesto2D::K2DLtTranslate(margin, margin);
    tool.Draw(&target, false, view);
    svg += target.Elements();
    svg += "<text x=\"" + std::to_string(margin) + "\" y=\"" + std::to_string(r.Height() + 2 * margin + 15) +
           "\" font-family=\"sans-serif\" font-size=\"13\">Linear fill after the scripted session</text>\n</svg>\n";
    return svg;
}

// The same picture as pixels: the object's fill painted by the renderer over a checkerboard,
// the control line and a box per handle in its stop's colour.
bool WritePng(const std::string& path, const DemoHost& host, const FillTool& tool)
{
    constexpr int margin = 90;
    const CRect r = host.Object();
    const int width = r.Width() + 2 * margin;
    const int height = r.Height() + 2 * margin;
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * height, 0xFFFFFFFF);
    const auto put = [&](int x, int y, std::uint32_t argb) {
        if (x >= 0 && y >= 0 && x < width && y < height)
            pixels[static_cast<std::size_t>(y) * width + x] = argb;
    };
    const KestoRaster::Clip object{r.left + margin, r.top + margin, r.right + margin, r.bottom + margin};
    for (int y = object.y0; y < object.y1; ++y)
        for (int x = object.x0; x < object.x1; ++x)
            put(x, y, ((x / 10 + y / 10) % 2) ? 0xFFD0D0D0 : 0xFFFFFFFF);
    const KestoRaster::Target canvas{pixels.data(), width, height, width * 4, KestoRaster::Output::Argb32};
    if (const auto paint = KestoGDI::FillPaint::From(*host.fill)) {
        std::vector<std::uint32_t> layer(pixels.size(), 0);
        const KestoRaster::Target fillLayer{layer.data(), width, height, width * 4, KestoRaster::Output::Argb32};
        const KestoRaster::Affine place{1, 0, 0, 1, margin, margin};
        KestoRaster::Render(KestoRaster::PreparedPaint(*paint, place, KestoRaster::Output::Argb32), fillLayer, object);
        KestoRaster::CompositeOver(canvas, fillLayer, nullptr, object);
    }
    K2DArrayPoint handles;
    tool.GetHandles(&handles);
    if (handles.GetSize() >= 2) {
        const CPoint a = handles.GetAt(0), b = handles.GetAt(handles.GetSize() - 1);
        const int steps = std::max(std::abs(b.x - a.x), std::abs(b.y - a.y)) + 1;
        for (int i = 0; i <= steps; ++i)
            put(margin + a.x + (b.x - a.x) * i / steps, margin + a.y + (b.y - a.y) * i / steps, 0xFF0078D7);
    }
    const auto& stops = dynamic_cast<const KestoGDI::CFillWithStops&>(*tool.GetFill()).GetColourIntPairs();
    for (int i = 0; i < handles.GetSize(); ++i) {
        const CPoint h = handles.GetAt(i);
        const Platform::COLORREF c = stops.GetAt(std::min(i, stops.GetSize() - 1))->GetColour().GetRGB();
        const std::uint32_t fill = 0xFF000000u | (Platform::GetRValue(c) << 16) | (Platform::GetGValue(c) << 8) | Platform::GetBValue(c);
        for (int dy = -4; dy <= 4; ++dy)
            for (int dx = -4; dx <= 4; ++dx)
                put(margin + h.x + dx, margin + h.y + dy, (std::abs(dx) == 4 || std::abs(dy) == 4) ? 0xFF0078D7 : fill);
    }
    return KestoGDI::PngFile::WritePremultiplied(path, pixels.data(), width, height, width * 4);
}

} // namespace

int main(int argc, char** argv)
{
    const std::string output = argc > 1 ? argv[1] : "linear-session.svg";

    KestoTool::Init(1000, 1100);
    DemoHost host(CRect(0, 0, 400, 200));
    KestoGDI::CFillLinear start;
    start.SetDefaultControls(host.Object());
    host.fill = start.Clone();
    // The host asks the factory for the tool that edits the selection's fill.
    const std::unique_ptr<FillTool> made = FillToolFactory::Create(host.fill.get(), &host);
    FillTool& tool = *made;
    host.tool = &tool;

    Platform::CXTPCommandBars bars;
    tool.InitContextButtons(&bars);
    std::cout << "KestoTool linear fill session on a 400 x 200 rectangle\n"
              << "context toolbar: " << bars.GetImageManager()->GetImageCount() << " command images registered\n";
    int before = host.commits;
    Report("start: the rectangle's linear fill", host, tool, before);

    before = host.commits;
    host.create = true;
    CString hint;
    tool.GetHintLine(&hint);
    std::cout << "\n   (while creating) hint: " << Utf8(hint) << '\n';
    host.Drag({40, 170}, {330, 43}, DragFlagCtrl);
    Report("drag out a new line with Ctrl: it starts at the centre", host, tool, before);

    before = host.commits;
    host.Drag({330, 40}, {380, 20}, DragFlagShift);
    Report("drag the end handle with Shift: the angle snaps to 15-degree steps", host, tool, before);

    before = host.commits;
    CPoint drop = Along(tool, 3000);
    tool.OnFillCellDrop(drop, std::make_unique<KestoGDI::CRGBColour>(Platform::RGB(255, 140, 0)).get());
    drop = Along(tool, 6000);
    tool.OnFillCellDrop(drop, std::make_unique<KestoGDI::CRGBColour>(Platform::RGB(0, 150, 160)).get());
    Report("drop orange at 30% and teal at 60% of the line", host, tool, before);

    before = host.commits;
    host.Drag(Along(tool, 3000), Along(tool, 8500), 0);
    Report("drag the orange stop past the teal one", host, tool, before);

    before = host.commits;
    host.Click(Along(tool, 8500));
    tool.OnKeyDown(KeyDelete, 1, 0);
    Report("select the orange stop and press Delete", host, tool, before);

    before = host.commits;
    const int rotateRight = ToolIdMap::GetInstance().MapIDToApp(FillToolKey, FillCmdRotateRight);
    tool.OnCmdMsg(rotateRight, Platform::CN_COMMAND, nullptr, nullptr);
    Report("Rotate Right from the context toolbar", host, tool, before);

    before = host.commits;
    K2DArrayPoint handles;
    tool.GetHandles(&handles);
    host.Click(handles.GetAt(handles.GetSize() - 1));
    tool.OnAlphaCellChanged(96);
    Report("make the end handle partly transparent (alpha 96)", host, tool, before);

    std::ofstream(output) << Picture(host, tool);
    std::cout << "\npicture written to " << output << "\n";
    const std::string png = output.substr(0, output.rfind('.')) + ".png";
    if (!WritePng(png, host, tool)) {
        std::cerr << "cannot write " << png << '\n';
        return 1;
    }
    std::cout << "painted by the renderer: " << png << "\n";
    return 0;
}
