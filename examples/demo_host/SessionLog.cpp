#include "SessionLog.h"

#include "SvgRenderTarget.h"

#include <kestotool/gdi/CFillWithStops.h>

#include <cstdio>
#include <iostream>

namespace {

std::string Point(KestoPlatform::CPoint p)
{
    return "(" + std::to_string(p.x) + "," + std::to_string(p.y) + ")";
}

} // namespace

std::string DescribeFill(const KestoGDI::CFill& fill)
{
    std::string s = KestoPlatform::CString(fill.GetTypeAsString()).ToUtf8();
    for (int i = 0; i < fill.GetControlCount(); ++i)
        s += (i ? " " : " at ") + Point(fill.GetControlPoint(i).Round());
    if (const auto* withStops = dynamic_cast<const KestoGDI::CFillWithStops*>(&fill)) {
        s += ", stops";
        for (const auto& stop : withStops->GetColourIntPairs()) {
            char text[48];
            std::snprintf(text, sizeof text, " %d:%s", stop.GetValue(), SvgColour(stop.GetColour().GetRGB()).c_str());
            s += text;
            if (stop.GetColour().GetAlpha() != 255)
                s += "/alpha " + std::to_string(stop.GetColour().GetAlpha());
        }
    }
    return s;
}

void ReportStep(const char* step, DemoHost& host, KestoTool::FillTool& tool, int commitsBefore)
{
    KestoPlatform::CString hint;
    tool.GetHintLine(&hint);
    Kesto2D::K2DArrayPoint handles;
    tool.GetHandles(&handles);
    std::cout << "\n== " << step << "\n   hint:    " << hint.ToUtf8() << "\n   handles:";
    for (const KestoPlatform::CPoint& p : handles)
        std::cout << ' ' << Point(p);
    std::cout << "  (current " << tool.GetCurrentNode() << ")\n";
    if (host.commits > commitsBefore)
        std::cout << "   commit:  \"" << KestoPlatform::CString(host.lastUndoName).ToUtf8() << "\" "
                  << DescribeFill(*host.fill) << '\n';
    else
        std::cout << "   commit:  none\n";
}
