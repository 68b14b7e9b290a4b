#include "kestotool/platform/CXTPImageManager.h"

#include <algorithm>
#include <tuple>

namespace KestoPlatform {

CSize CXTPImageManager::GetPreferredIconSizeforDPI(int dpi)
{
    const int side = std::max(16, (16 * std::max(dpi, 0) + 48) / 96);
    return {side, side};
}

void CXTPImageManager::SetIcons(const XTPImage& image, const int* ids, int count, CSize size, XTPImageState state)
{
    if (!ids || count <= 0)
        return;
    const auto shared = std::make_shared<const XTPImage>(image);
    for (int i = 0; i < count; ++i)
        m_images[Key{ids[i], size.cx, size.cy, state}] = shared;
}

const XTPImage* CXTPImageManager::GetImage(int id, CSize size, XTPImageState state) const
{
    const auto it = m_images.find(Key{id, size.cx, size.cy, state});
    return it == m_images.end() ? nullptr : it->second.get();
}

} // namespace KestoPlatform
