// A host in a page: a rectangle with a linear fill, the tool that edits it, its context
// toolbar, and one drag of the end handle that the host records as its new fill. It checks what
// a host relies on after installing the library: the headers and the library agree on the
// version, the icon archive is found beside the library, and a drag commits a new fill.
#include "RectangleSite.h"

#include <kestotool/Version.h>
#include <kestotool/gdi/CFillLinear.h>
#include <kestotool/tool/ToolIdMap.h>

#include <cstdio>
#include <cstring>

namespace {

int Fail(const char* what)
{
    std::fprintf(stderr, "InstalledHost: %s\n", what);
    return 1;
}

} // namespace

int main()
{
    std::printf("KestoTool %s (headers %s)\n", KestoTool::Version(), KESTOTOOL_VERSION_STRING);
    if (std::strcmp(KestoTool::Version(), KESTOTOOL_VERSION_STRING) != 0)
        return Fail("the library is not the version of its headers");

    KestoTool::Init(20000, 20100);
    RectangleSite site;
    const auto tool = site.SelectWithLinearFill();
    if (!tool)
        return Fail("no tool for a linear fill");
    const int images = site.bars.GetImageManager()->GetImageCount();
    std::printf("context toolbar: %d controls, %d command images\n", site.bars.GetCount(), images);
    if (site.bars.GetCount() == 0)
        return Fail("the tool put nothing on its context toolbar");
    if (images == 0)
        return Fail("no icons: the image archive beside the library was not found");

    // Drag the end handle down to the bottom right corner: one gesture, one undo step.
    const auto& before = dynamic_cast<const KestoGDI::CFillLinear&>(*tool->GetFill());
    const KestoPlatform::CPoint end = before.GetEnd().Round();
    const Kesto2D::K2DDblPoint start = before.GetStart();
    site.gesture.Press(*tool, end, 0);
    site.gesture.Move({1000, 500}, 0);
    const auto step = site.gesture.Release({1000, 500}, 0);
    if (!step)
        return Fail("the drag changed nothing");
    site.fill = step->after;

    const auto& after = dynamic_cast<const KestoGDI::CFillLinear&>(*site.fill);
    std::printf("end handle: (%d, %d) -> (%g, %g)\n", end.x, end.y, after.GetEnd().x, after.GetEnd().y);
    if (after.GetEnd().Round() != KestoPlatform::CPoint(1000, 500) || after.GetStart() != start)
        return Fail("the drag did not move the end handle");
    return 0;
}
