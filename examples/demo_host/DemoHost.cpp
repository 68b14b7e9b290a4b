#include "DemoHost.h"

#include <kestotool/tool/SiteGeometry.h>

void DemoHost::Drag(KestoPlatform::CPoint from, KestoPlatform::CPoint to, unsigned flags)
{
    gesture.Press(*tool, from, flags, create);
    gesture.Move(to, flags);
    // The gesture's one undo step, named by the tool or by the host.
    if (const auto step = gesture.Release(to, flags))
        Record(step->after.get(), step->undoName.empty() ? L"Move Fill Handle" : step->undoName.c_str());
    create = false;
}

void DemoHost::Click(KestoPlatform::CPoint at)
{
    gesture.Press(*tool, at, 0);
    if (const auto step = gesture.Release(at, 0))
        Record(step->after.get(), step->undoName.empty() ? nullptr : step->undoName.c_str());
}

void DemoHost::ConstrainAngle(KestoPlatform::CPoint origin, KestoPlatform::CPoint& point, bool)
{
    point = KestoTool::SiteGeometry::ConstrainToAngleStep(origin, point, 1500);
}

void DemoHost::Snap(const KestoPlatform::CPoint& in, KestoPlatform::CPoint& out)
{
    out = KestoTool::SiteGeometry::SnapToGrid(in, 10);
}

void DemoHost::UpdateFill(const KestoGDI::CFill* committed, const wchar_t* undoName)
{
    if (gesture.Absorb(undoName)) {
        // Part of a gesture: shown now, recorded once at its end.
        fill = KestoKernel::RefPtr<const KestoGDI::CFill>(committed);
        if (tool && tool->GetFill() != committed)
            tool->SetFill(committed);
        return;
    }
    Record(committed, undoName);
}

void DemoHost::Record(const KestoGDI::CFill* committed, const wchar_t* undoName)
{
    fill = KestoKernel::RefPtr<const KestoGDI::CFill>(committed); // kept by reference: fills never change
    ++commits;
    lastUndoName = undoName ? undoName : L"Edit Fill";
    if (tool && tool->GetFill() != committed)
        tool->SetFill(committed);
}
