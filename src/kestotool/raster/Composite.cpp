#include "kestotool/raster/Composite.h"

#include <algorithm>

namespace KestoRaster {

namespace {

// x * y / 255, rounded, for 8-bit x and y.
std::uint32_t Mul255(std::uint32_t x, std::uint32_t y)
{
    const std::uint32_t t = x * y + 128;
    return (t + (t >> 8)) >> 8;
}

// Each channel of a premultiplied word scaled by an 8-bit factor.
std::uint32_t Scale(std::uint32_t argb, std::uint32_t factor)
{
    std::uint32_t out = 0;
    for (int shift = 0; shift < 32; shift += 8)
        out |= Mul255((argb >> shift) & 0xFF, factor) << shift;
    return out;
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
        for (int x = std::max(clip.x0, 0); x < x1; ++x) {
            const std::uint32_t s = cover ? Scale(src[x], cover[x]) : src[x];
            dst[x] = s + Scale(dst[x], 255 - (s >> 24));
        }
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
