#include "kestotool/platform/CRect.h"

#include <algorithm>
#include <utility>

namespace KestoPlatform {

void CRect::NormalizeRect()
{
    if (left > right)
        std::swap(left, right);
    if (top > bottom)
        std::swap(top, bottom);
}

bool CRect::UnionRect(const CRect& a, const CRect& b)
{
    if (a.IsRectEmpty()) {
        *this = b;
    } else if (b.IsRectEmpty()) {
        *this = a;
    } else {
        SetRect(std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
                std::max(a.bottom, b.bottom));
    }
    return !IsRectEmpty();
}

bool CRect::IntersectRect(const CRect& a, const CRect& b)
{
    const CRect overlap(std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                        std::min(a.bottom, b.bottom));
    if (a.IsRectEmpty() || b.IsRectEmpty() || overlap.IsRectEmpty()) {
        SetRectEmpty();
        return false;
    }
    *this = overlap;
    return true;
}

} // namespace KestoPlatform
