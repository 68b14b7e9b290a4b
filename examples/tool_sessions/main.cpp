// Scripted sessions with the radial, elliptical, conical and square fill tools on the small
// headless host: each creates a fill with Ctrl, drags its handles with and without a modifier,
// drops colours on its line, slides and deletes a stop, printing every step. Each result is
// written as a picture painted by the renderer with the tool's own lines and handles over it.
#include "DemoHost.h"
#include "SessionLog.h"
#include "SessionPicture.h"

#include "filltool/FillToolFactory.h"
#include "gdi/CFillConical.h"
#include "gdi/CFillEllipse.h"
#include "gdi/CFillRadial.h"
#include "gdi/CFillSquare.h"
#include "gdi/CRGBColour.h"
#include "geometry/K2DLtRotate.h"
#include "tool/ToolIdMap.h"

#include <functional>
#include <iostream>
#include <memory>
#include <string>

using namespace KestoTool;
using KestoGDI::CFill;
using Platform::CPoint;

namespace {

struct Session {
    const char* name;
    std::function<Kernel::RefPtr<CFill>()> make;
    // The point at fraction f of the fill's line: along the radius or axis C-E, or round the
    // conical half circle from R.
    std::function<CPoint(const CFill&, double)> along;
};

template <class Fill>
Kernel::RefPtr<CFill> Starting(const Platform::CRect& object)
{
    Fill fill;
    fill.SetDefaultControls(object);
    KestoGDI::ColourIntPairs stops;
    stops.Add(KestoGDI::CRGBColour(Platform::RGB(20, 40, 120)), 0);
    stops.Add(KestoGDI::CRGBColour(Platform::RGB(250, 210, 60)), 10000);
    fill.SetColourIntPairs(stops);
    return fill.Clone();
}

CPoint AlongAxis(const CFill& fill, double f)
{
    const Kesto2D::K2DDblPoint c = fill.GetControlPoint(0), e = fill.GetControlPoint(1);
    return Kesto2D::K2DDblPoint(c.x + f * (e.x - c.x), c.y + f * (e.y - c.y)).Round();
}

CPoint AroundHalfCircle(const CFill& fill, double f)
{
    const Kesto2D::K2DDblPoint c = fill.GetControlPoint(0);
    const Kesto2D::K2DLtGeneral turn =
        Kesto2D::K2DLtGeneral::About(c, Kesto2D::K2DLtRotate(Kesto2D::KCAngle(static_cast<int>(f * 18000))));
    return turn.ApplyTo(fill.GetControlPoint(1)).Round();
}

CPoint Moved(CPoint p, int dx, int dy)
{
    return {p.x + dx, p.y + dy};
}

bool Play(const Session& session, const std::string& directory)
{
    DemoHost host(CRect(0, 0, 400, 240));
    host.fill = session.make();
    const std::unique_ptr<FillTool> made = FillToolFactory::Create(host.fill.get(), &host);
    FillTool& tool = *made;
    host.tool = &tool;
    std::cout << "\n#### " << session.name << " fill session on a 400 x 240 rectangle\n";
    int before = host.commits;
    ReportStep("start: the rectangle's fill", host, tool, before);

    before = host.commits;
    host.create = true;
    host.Drag({60, 50}, {300, 100}, DragFlagCtrl);
    ReportStep("drag out a new fill with Ctrl: it starts at the object's centre", host, tool, before);

    K2DArrayPoint handles;
    tool.GetHandles(&handles);
    before = host.commits;
    host.Drag(handles.GetAt(0), Moved(handles.GetAt(0), 24, 16), 0);
    ReportStep("drag the first handle by (24, 16)", host, tool, before);

    handles.RemoveAll();
    tool.GetHandles(&handles);
    const int stops = 2;
    before = host.commits;
    host.Drag(handles.GetAt(stops - 1), Moved(handles.GetAt(stops - 1), -30, 50), DragFlagShift);
    ReportStep("drag the last stop's handle with Shift: the angle snaps to 15-degree steps", host, tool, before);

    handles.RemoveAll();
    tool.GetHandles(&handles);
    if (handles.GetSize() > stops) {
        before = host.commits;
        host.Drag(handles.GetAt(stops), Moved(handles.GetAt(stops), 10, -25), DragFlagCtrl);
        ReportStep("drag the extra handle with Ctrl", host, tool, before);
    }

    before = host.commits;
    CPoint drop = session.along(*host.fill, 0.4);
    tool.OnFillCellDrop(drop, std::make_unique<KestoGDI::CRGBColour>(Platform::RGB(230, 90, 30)).get());
    drop = session.along(*host.fill, 0.7);
    tool.OnFillCellDrop(drop, std::make_unique<KestoGDI::CRGBColour>(Platform::RGB(0, 150, 160)).get());
    ReportStep("drop orange at 40% and teal at 70% of the line", host, tool, before);

    before = host.commits;
    host.Drag(session.along(*host.fill, 0.4), session.along(*host.fill, 0.55), 0);
    ReportStep("slide the orange stop to 55%", host, tool, before);

    before = host.commits;
    host.Click(session.along(*host.fill, 0.7));
    tool.OnKeyDown(KeyDelete, 1, 0);
    ReportStep("select the teal stop and press Delete", host, tool, before);

    const std::string path = directory + "/" + session.name + "-session.png";
    if (!WriteSessionPicture(path, host.Object(), *host.fill, tool)) {
        std::cerr << "cannot write " << path << '\n';
        return false;
    }
    std::cout << "\npainted by the renderer: " << path << '\n';
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string directory = argc > 1 ? argv[1] : ".";
    KestoTool::Init(1000, 1100);
    const Platform::CRect object(0, 0, 400, 240);
    const Session sessions[] = {
        {"radial", [&] { return Starting<KestoGDI::CFillRadial>(object); }, AlongAxis},
        {"elliptical", [&] { return Starting<KestoGDI::CFillEllipse>(object); }, AlongAxis},
        {"conical", [&] { return Starting<KestoGDI::CFillConical>(object); }, AroundHalfCircle},
        {"square", [&] { return Starting<KestoGDI::CFillSquare>(object); }, AlongAxis},
    };
    for (const Session& session : sessions)
        if (!Play(session, directory))
            return 1;
    return 0;
}
