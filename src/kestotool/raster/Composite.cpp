#include "kestotool/raster/Composite.h"

#include <algorithm>

namespace KestoRaster {

namespace {

// Each channel of a premultiplied word scaled by an 8-bit factor: c * factor / 255, rounded.
// Two channels at a time, each in 16 bits: c * factor + 128 + (that >> 8) stays below 65,536.
std::uint32_t Scale(std::uint32_t argb, std::uint32_t factor)
{
    const auto half = [factor](std::uint32_t lanes) {
        std::uint32_t t = lanes * factor + 0x00800080u;
        t += (t >> 8) & 0x00FF00FFu;
        return (t >> 8) & 0x00FF00FFu;
    };
    return half(argb & 0x00FF00FFu) | half((argb >> 8) & 0x00FF00FFu) << 8;
}

// One row, without branches so that the compiler can process several pixels at once.
void OverRow(std::uint32_t* __restrict dst, const std::uint32_t* __restrict src, const unsigned char* __restrict cover,
             int count)
{
    for (int x = 0; x < count; ++x) {
        const std::uint32_t s = Scale(src[x], cover[x]);
        dst[x] = s + Scale(dst[x], 255 - (s >> 24));
    }
}

void OverRow(std::uint32_t* __restrict dst, const std::uint32_t* __restrict src, int count)
{
    for (int x = 0; x < count; ++x)
        dst[x] = src[x] + Scale(dst[x], 255 - (src[x] >> 24));
}

const unsigned char* Row(const Target& t, int y)
{
    return static_cast<const unsigned char*>(t.pixels) + y * t.stride;
}

} // namespace

void CompositeOver(const Target& destination, const Target& fill, const Target* mask, const Clip& clip)
{
    const int x1 = std::min({clip.x1, destination.width, fill.width, mask ? mask->width : fill.width});
    const int y1 = std::min({clip.y1, destination.height, fill.height, mask ? mask->height : fill.height});
    for (int y = std::max(clip.y0, 0); y < y1; ++y) {
        auto* dst =
            reinterpret_cast<std::uint32_t*>(static_cast<unsigned char*>(destination.pixels) + y * destination.stride);
        const auto* src = reinterpret_cast<const std::uint32_t*>(Row(fill, y));
        const unsigned char* cover = mask ? Row(*mask, y) : nullptr;
        const int x0 = std::max(clip.x0, 0);
        if (x0 >= x1)
            continue;
        if (cover)
            OverRow(dst + x0, src + x0, cover + x0, x1 - x0);
        else
            OverRow(dst + x0, src + x0, x1 - x0);
    }
}

std::uint32_t Straight(std::uint32_t p)
{
    const std::uint32_t a = p >> 24;
    const auto channel = [a](std::uint32_t c) {
        return a == 0 ? 0u : std::min<std::uint32_t>(255, (c * 255 + a / 2) / a);
    };
    return a << 24 | channel(p >> 16 & 0xFF) << 16 | channel(p >> 8 & 0xFF) << 8 | channel(p & 0xFF);
}

} // namespace KestoRaster
