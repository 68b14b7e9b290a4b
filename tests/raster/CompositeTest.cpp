#include "kestotool/raster/Composite.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

using namespace KestoRaster;

namespace {

// Premultiplied source-over, one channel at a time, each product rounded to nearest.
std::uint32_t Over(std::uint32_t dst, std::uint32_t src, unsigned cover)
{
    const auto mul = [](unsigned x, unsigned y) { return (x * y + 127) / 255; };
    std::uint32_t scaled = 0;
    for (int shift = 0; shift < 32; shift += 8)
        scaled |= mul(src >> shift & 0xFF, cover) << shift;
    std::uint32_t out = 0;
    for (int shift = 0; shift < 32; shift += 8)
        out |= ((scaled >> shift & 0xFF) + mul(dst >> shift & 0xFF, 255 - (scaled >> 24))) << shift;
    return out;
}

} // namespace

TEST(Composite, EveryPixelIsSourceOverWithTheMaskExactlyAndOnlyInsideTheClip)
{
    constexpr int W = 67, H = 5; // an odd width leaves a tail after any vector of pixels
    std::mt19937 engine(7);
    const auto random = [&] { return static_cast<std::uint32_t>(engine()); };
    std::vector<std::uint32_t> dst(W * H), src(W * H);
    std::vector<std::uint8_t> mask(W * H);
    for (int i = 0; i < W * H; ++i) {
        const std::uint32_t alpha = i % 7 == 0 ? 0 : i % 7 == 1 ? 255 : random() & 0xFF;
        src[i] = alpha << 24 | (random() & 0xFF) * alpha / 255 << 16 | (random() & 0xFF) * alpha / 255 << 8 |
                 (random() & 0xFF) * alpha / 255;
        dst[i] = random();
        mask[i] = i % 5 == 0 ? 0 : i % 5 == 1 ? 255 : static_cast<std::uint8_t>(random());
    }
    for (const bool masked : {true, false}) {
        std::vector<std::uint32_t> out = dst;
        const Target fill{src.data(), W, H, W * 4, Output::Argb32};
        const Target cover{mask.data(), W, H, W, Output::Mask8};
        CompositeOver({out.data(), W, H, W * 4, Output::Argb32}, fill, masked ? &cover : nullptr, {3, 1, W, 4});
        for (int y = 0; y < H; ++y)
            for (int x = 0; x < W; ++x) {
                const int i = y * W + x;
                const bool inside = x >= 3 && y >= 1 && y < 4;
                ASSERT_EQ(out[i], inside ? Over(dst[i], src[i], masked ? mask[i] : 255) : dst[i])
                    << x << "," << y << (masked ? " masked" : "");
            }
    }
}
