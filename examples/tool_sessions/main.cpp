// Scripted sessions with the radial, elliptical, conical, square, three-colour, four-colour,
// plasma and bitmap fill tools on the small headless host: each creates a fill (with Ctrl, from
// the object's centre), drags its handles with and without a modifier and drops colours, and
// prints every step. Each result is written as a picture painted by the renderer with the
// tool's own lines and handles over it.
#include "DemoHost.h"
#include "SampleMotif.h"
#include "SessionLog.h"
#include "SessionPicture.h"

#include <kestotool/filltool/FillToolFactory.h>
#include <kestotool/filltool/FillToolVector.h>
#include <kestotool/gdi/CFillBitmap.h>
#include <kestotool/gdi/CFillConical.h>
#include <kestotool/gdi/CFillEllipse.h>
#include <kestotool/gdi/CFillFourColour.h>
#include <kestotool/gdi/CFillFractal.h>
#include <kestotool/gdi/CFillLinear.h>
#include <kestotool/gdi/CFillRadial.h>
#include <kestotool/gdi/CFillSolid.h>
#include <kestotool/gdi/CFillSquare.h>
#include <kestotool/gdi/CFillThreeColour.h>
#include <kestotool/gdi/CFillVector.h>
#include <kestotool/gdi/CRGBColour.h>
#include <kestotool/gdi/PngFile.h>
#include <kestotool/geometry/K2DLtRotate.h>
#include <kestotool/tool/ToolIdMap.h>

#include <functional>
#include <iostream>
#include <memory>
#include <string>

using namespace KestoTool;
using KestoGDI::CFill;
using KestoPlatform::CPoint;

namespace {

const KestoPlatform::CRect kObject(0, 0, 400, 240);

// One session's host and tool, and the steps a script plays on them.
class Player {
public:
    explicit Player(KestoKernel::RefPtr<CFill> fill, const KestoPlatform::CRect& object = kObject,
                    double unitsPerPixel = 1)
        : m_host(object), m_unitsPerPixel(unitsPerPixel)
    {
        m_host.fill = std::move(fill);
        m_tool = FillToolFactory::Create(m_host.fill.get(), &m_host);
        m_host.tool = m_tool.get();
        ReportStep("start: the rectangle's fill", m_host, *m_tool, m_host.commits);
    }

    CPoint Handle(int index) const
    {
        K2DArrayPoint handles;
        m_tool->GetHandles(&handles);
        return handles.GetAt(index);
    }
    int HandleCount() const
    {
        K2DArrayPoint handles;
        m_tool->GetHandles(&handles);
        return handles.GetSize();
    }
    const CFill& Fill() const { return *m_host.fill; }
    FillTool& Tool() { return *m_tool; }

    void Create(const char* what)
    {
        const int before = m_host.commits;
        m_host.create = true;
        m_host.Drag({60, 50}, {300, 100}, DragFlagCtrl);
        ReportStep(what, m_host, *m_tool, before);
    }
    void Drag(const char* what, CPoint from, CPoint to, unsigned flags = 0)
    {
        const int before = m_host.commits;
        m_host.Drag(from, to, flags);
        ReportStep(what, m_host, *m_tool, before);
    }
    void DragHandle(const char* what, int handle, int dx, int dy, unsigned flags = 0)
    {
        const CPoint from = Handle(handle);
        Drag(what, from, {from.x + dx, from.y + dy}, flags);
    }
    void Drop(const char* what, CPoint at, KestoPlatform::COLORREF colour)
    {
        const int before = m_host.commits;
        const KestoGDI::CRGBColour dropped(colour);
        m_tool->OnFillCellDrop(at, &dropped);
        ReportStep(what, m_host, *m_tool, before);
    }
    void Delete(const char* what, CPoint at)
    {
        const int before = m_host.commits;
        m_host.Click(at);
        m_tool->OnKeyDown(KeyDelete, 1, 0);
        ReportStep(what, m_host, *m_tool, before);
    }
    bool Picture(const std::string& path) const
    {
        if (!WriteSessionPicture(path, m_host.Object(), *m_host.fill, *m_tool, 90, m_unitsPerPixel)) {
            std::cerr << "cannot write " << path << '\n';
            return false;
        }
        std::cout << "\npainted by the renderer: " << path << '\n';
        return true;
    }

private:
    DemoHost m_host;
    double m_unitsPerPixel;
    std::unique_ptr<FillTool> m_tool;
};

constexpr KestoPlatform::COLORREF kNavy = KestoPlatform::RGB(20, 40, 120);
constexpr KestoPlatform::COLORREF kGold = KestoPlatform::RGB(250, 210, 60);
constexpr KestoPlatform::COLORREF kOrange = KestoPlatform::RGB(230, 90, 30);
constexpr KestoPlatform::COLORREF kTeal = KestoPlatform::RGB(0, 150, 160);

template <class Fill>
KestoKernel::RefPtr<CFill> Starting(std::initializer_list<KestoPlatform::COLORREF> colours)
{
    Fill fill;
    fill.SetDefaultControls(kObject);
    KestoGDI::ColourIntPairs stops;
    int i = 0;
    for (KestoPlatform::COLORREF c : colours)
        stops.Add(KestoGDI::CRGBColour(c), colours.size() == 2 ? 10000 * i++ : 0);
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
    const Kesto2D::K2DLtGeneral turn = Kesto2D::K2DLtGeneral::About(
        fill.GetControlPoint(0), Kesto2D::K2DLtRotate(Kesto2D::KCAngle(static_cast<int>(f * 18000))));
    return turn.ApplyTo(fill.GetControlPoint(1)).Round();
}

// The stop kinds: create, drag the first handle, the last stop's with Shift and any extra one
// with Ctrl, drop two colours on the line, slide one stop and delete the other.
void PlayStops(Player& p, const std::function<CPoint(const CFill&, double)>& along)
{
    p.Create("drag out a new fill with Ctrl: it starts at the object's centre");
    p.DragHandle("drag the first handle by (24, 16)", 0, 24, 16);
    p.DragHandle("drag the last stop's handle with Shift: the angle snaps to 15-degree steps", 1, -30, 50,
                 DragFlagShift);
    if (p.HandleCount() > 2)
        p.DragHandle("drag the extra handle with Ctrl", 2, 10, -25, DragFlagCtrl);
    p.Drop("drop orange at 40% of the line", along(p.Fill(), 0.4), kOrange);
    p.Drop("drop teal at 70% of the line", along(p.Fill(), 0.7), kTeal);
    p.Drag("slide the orange stop to 55%", along(p.Fill(), 0.4), along(p.Fill(), 0.55));
    p.Delete("select the teal stop and press Delete", along(p.Fill(), 0.7));
}

// The corner kinds: create, move the whole figure, turn an arm with Shift, drag the third
// handle with Ctrl, recolour two corners.
void PlayCorners(Player& p)
{
    p.Create("drag out a new fill with Ctrl: it starts at the object's centre");
    p.DragHandle("drag the first corner by (-40, 20): the whole figure moves", 0, -40, 20);
    p.DragHandle("drag corner 1 with Shift: its angle snaps", 1, 20, 60, DragFlagShift);
    p.DragHandle("drag corner 2 with Ctrl", 2, 30, 30, DragFlagCtrl);
    p.Drop("drop orange on corner 1", p.Handle(1), kOrange);
    p.Drop("drop teal on corner 2", p.Handle(2), kTeal);
}

bool Run(const char* name, KestoKernel::RefPtr<CFill> fill, const std::function<void(Player&)>& script,
         const std::string& directory)
{
    std::cout << "\n#### " << name << " fill session on a 400 x 240 rectangle\n";
    Player player(std::move(fill));
    script(player);
    return player.Picture(directory + "/" + name + "-session.png");
}

// The vector fill in both modes on a 200000 x 120000 rectangle, drawn at 500 units a pixel.
bool RunVector(const std::string& directory)
{
    std::cout << "\n#### vector fill session on a 200000 x 120000 rectangle (500 units a pixel)\n";
    KestoGDI::CFillVector start{SampleMotif()};
    start.SetRawBox({{10000, 50000}, {50000, 50000}, {10000, 10000}}, true);
    Player p(start.Clone(), KestoPlatform::CRect(0, 0, 200000, 120000), 500);
    auto& tool = dynamic_cast<FillToolVector&>(p.Tool());
    p.DragHandle("scaling mode: drag the x-axis end by (8000, 6000): the tile turns and grows", 1, 8000, 6000);
    p.DragHandle("drag the origin by (12000, 16000): the tile moves", 0, 12000, 16000);
    p.DragHandle("drag the y-axis end with Ctrl by (6000, 0): the tile skews", 2, 6000, 0, DragFlagCtrl);
    if (!p.Picture(directory + "/vector-scaling-session.png"))
        return false;
    tool.OnFillControlBoxModeClicked();
    std::cout << "\n- press the mode button: spacing mode\n";
    p.DragHandle("drag tile handle A by (9000, 2000): a gap opens along the x axis", 1, 9000, 2000, DragFlagShift);
    p.DragHandle("drag tile handle B by (-6000, -5000) with Shift: no snapping", 0, -6000, -5000, DragFlagShift);
    p.DragHandle("drag A's rotation handle with Ctrl: every second column turns in 15-degree steps", 3, 12000, 9000,
                 DragFlagCtrl);
    return p.Picture(directory + "/vector-session.png");
}

} // namespace

int main(int argc, char** argv)
{
    const std::string directory = argc > 1 ? argv[1] : ".";
    const std::string tilePath = argc > 2 ? argv[2] : KESTO_SAMPLE_TILE;
    KestoTool::Init(1000, 1100);

    std::string error;
    const KestoKernel::RefPtr<KestoGDI::CLtBitmap> tile = KestoGDI::PngFile::Read(tilePath, &error);
    if (!tile) {
        std::cerr << error << '\n';
        return 1;
    }
    KestoGDI::CFillBitmap bricks{KestoKernel::RefPtr<const KestoGDI::CLtBitmap>(tile)};
    bricks.SetControls({40, 40}, {104, 40}, {40, 104});

    const auto stops = [](auto along) { return [along](Player& p) { PlayStops(p, along); }; };
    const bool ok =
        Run("radial", Starting<KestoGDI::CFillRadial>({kNavy, kGold}), stops(AlongAxis), directory) &&
        Run("elliptical", Starting<KestoGDI::CFillEllipse>({kNavy, kGold}), stops(AlongAxis), directory) &&
        Run("conical", Starting<KestoGDI::CFillConical>({kNavy, kGold}), stops(AroundHalfCircle), directory) &&
        Run("square", Starting<KestoGDI::CFillSquare>({kNavy, kGold}), stops(AlongAxis), directory) &&
        Run("three-colour", Starting<KestoGDI::CFillThreeColour>({kNavy, kGold, KestoPlatform::RGB(200, 40, 90)}),
            PlayCorners, directory) &&
        Run("four-colour",
            Starting<KestoGDI::CFillFourColour>(
                {kNavy, kGold, KestoPlatform::RGB(200, 40, 90), KestoPlatform::RGB(40, 170, 90)}),
            PlayCorners, directory) &&
        Run(
            "plasma", Starting<KestoGDI::CFillFractal>({kNavy, kGold}),
            [](Player& p) {
                p.Create("drag out a new plasma with Ctrl: it starts at the object's centre");
                const int p1 = p.HandleCount() - 2;
                p.DragHandle("drag P1 with Shift: the angle snaps and P2 turns with it", p1, 40, 30, DragFlagShift);
                p.DragHandle("drag P2 alone: the stop line stays", p1 + 1, -30, 20);
                p.DragHandle("drag P2 with Shift: the stop line turns with it", p1 + 1, 30, 10, DragFlagShift);
                p.Drop("drop orange at half the stop line", AlongAxis(p.Fill(), 0.5), kOrange);
                p.Drag("slide it to a quarter", AlongAxis(p.Fill(), 0.5), AlongAxis(p.Fill(), 0.25));
            },
            directory) &&
        Run(
            "bitmap", bricks.Clone(),
            [](Player& p) {
                p.DragHandle("drag P1 by (40, 30): the tile turns and grows, P2 turns with it", 1, 40, 30);
                p.DragHandle("drag P1 with Shift alone: no constraint, as if Shift were not held", 1, 7, 3,
                             DragFlagShift);
                p.DragHandle("drag P2 with Ctrl: P1 moves by the perpendicular offset", 2, -20, 10, DragFlagCtrl);
                p.DragHandle("drag P0 by (60, 40): the tile moves", 0, 60, 40);
            },
            directory) &&
        RunVector(directory);
    return ok ? 0 : 1;
}
