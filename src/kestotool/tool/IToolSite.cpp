#include "kestotool/tool/IToolSite.h"

namespace KestoTool {

void IToolSite::ConstrainAngleNoTransform(CPoint origin, CPoint& point, bool flag)
{
    ConstrainAngle(origin, point, flag);
}

void IToolSite::SnapNoTransform(const CPoint& in, CPoint& out)
{
    Snap(in, out);
}

CPoint IToolSite::GetCreateCentre(const CPoint& point)
{
    const CRect box = GetObjectBBox();
    if (box.IsRectEmpty())
        return point;
    return box.CenterPoint();
}

} // namespace KestoTool
