// A scripted session with the linear fill tool on a small headless host: each step prints the
// hint line, the handles and what was committed, and the end result is drawn as an SVG picture
// of the object, its gradient and the tool's handles and lines.
#include "DemoHost.h"
#include "SessionLog.h"
#include "SessionPicture.h"
#include "SvgRenderTarget.h"

#include <kestotool/filltool/FillCommands.h>
#include <kestotool/filltool/FillToolFactory.h>
#include <kestotool/gdi/CFillLinear.h>
#include <kestotool/gdi/CRGBColour.h>
#include <kestotool/platform/CCmdTarget.h>
#include <kestotool/platform/WindowTypes.h>
#include <kestotool/tool/Module.h>
#include <kestotool/tool/ToolIdMap.h>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

using namespace KestoTool;
using KestoPlatform::CPoint;

namespace {

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
    std::snprintf(
        head, sizeof head,
        "<linearGradient id=\"fill\" gradientUnits=\"userSpaceOnUse\" x1=\"%g\" y1=\"%g\" x2=\"%g\" y2=\"%g\">\n",
        line.GetStart().x + margin, line.GetStart().y + margin, line.GetEnd().x + margin, line.GetEnd().y + margin);
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
                            "\" width=\"" + std::to_string(r.Width()) + "\" height=\"" + std::to_string(r.Height()) +
                            "\"";
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

    KestoPlatform::CXTPCommandBars bars;
    tool.InitContextButtons(&bars);
    std::cout << "KestoTool linear fill session on a 400 x 200 rectangle\n"
              << "context toolbar: " << bars.GetImageManager()->GetImageCount() << " command images registered\n";
    int before = host.commits;
    ReportStep("start: the rectangle's linear fill", host, tool, before);

    before = host.commits;
    host.create = true;
    CString hint;
    tool.GetHintLine(&hint);
    std::cout << "\n   (while creating) hint: " << hint.ToUtf8() << '\n';
    host.Drag({40, 170}, {330, 43}, DragFlagCtrl);
    ReportStep("drag out a new line with Ctrl: it starts at the centre", host, tool, before);

    before = host.commits;
    host.Drag({330, 40}, {380, 20}, DragFlagShift);
    ReportStep("drag the end handle with Shift: the angle snaps to 15-degree steps", host, tool, before);

    before = host.commits;
    CPoint drop = Along(tool, 3000);
    tool.OnFillCellDrop(drop, std::make_unique<KestoGDI::CRGBColour>(KestoPlatform::RGB(255, 140, 0)).get());
    drop = Along(tool, 6000);
    tool.OnFillCellDrop(drop, std::make_unique<KestoGDI::CRGBColour>(KestoPlatform::RGB(0, 150, 160)).get());
    ReportStep("drop orange at 30% and teal at 60% of the line", host, tool, before);

    before = host.commits;
    host.Drag(Along(tool, 3000), Along(tool, 8500), 0);
    ReportStep("drag the orange stop past the teal one", host, tool, before);

    before = host.commits;
    host.Click(Along(tool, 8500));
    tool.OnKeyDown(KeyDelete, 1, 0);
    ReportStep("select the orange stop and press Delete", host, tool, before);

    before = host.commits;
    const int rotateRight = FillCommands::HostId(FillCmdRotateRight);
    tool.OnCmdMsg(rotateRight, KestoPlatform::CN_COMMAND, nullptr, nullptr);
    ReportStep("Rotate Right from the context toolbar", host, tool, before);

    before = host.commits;
    K2DArrayPoint handles;
    tool.GetHandles(&handles);
    host.Click(handles.GetAt(handles.GetSize() - 1));
    tool.OnAlphaCellChanged(96);
    ReportStep("make the end handle partly transparent (alpha 96)", host, tool, before);

    std::ofstream(output) << Picture(host, tool);
    std::cout << "\npicture written to " << output << "\n";
    const std::string png = output.substr(0, output.rfind('.')) + ".png";
    if (!WriteSessionPicture(png, host.Object(), *host.fill, tool)) {
        std::cerr << "cannot write " << png << '\n';
        return 1;
    }
    std::cout << "painted by the renderer: " << png << "\n";
    return 0;
}
