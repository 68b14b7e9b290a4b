#include "kestotool/gdi/CLtBitmap.h"

#include <algorithm>

namespace KestoGDI {

CLtBitmap::CLtBitmap(int width, int height)
{
    if (width < 1 || height < 1 || width > MaxSide || height > MaxSide)
        return;
    m_width = width;
    m_height = height;
    m_pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
}

std::uint32_t CLtBitmap::GetPixel(int x, int y) const
{
    return Contains(x, y) ? m_pixels[IndexOf(x, y)] : 0;
}

void CLtBitmap::SetPixel(int x, int y, std::uint32_t argb)
{
    if (Contains(x, y))
        m_pixels[IndexOf(x, y)] = argb;
}

void CLtBitmap::Fill(std::uint32_t argb)
{
    std::fill(m_pixels.begin(), m_pixels.end(), argb);
}

bool operator==(const CLtBitmap& a, const CLtBitmap& b)
{
    return a.m_width == b.m_width && a.m_height == b.m_height && a.m_pixels == b.m_pixels;
}

} // namespace KestoGDI
