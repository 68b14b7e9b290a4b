// Prepare and Render with every choice from the input bytes: the kind, its points (degenerate
// ones and the coordinate range's ends among them), stops, corner colours, plasma settings, a
// small bitmap, the placement, the output and clips inside and outside the target. The
// renderer must stay inside its clip and never touch memory it was not given.
#include "kestotool/raster/PreparedPaint.h"

#include <cstdint>
#include <cstring>
#include <vector>

namespace {

class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}
    std::uint32_t Next()
    {
        std::uint32_t v = 0;
        for (int i = 0; i < 4; ++i)
            v = (v << 8) | (m_used < m_size ? m_data[m_used++] : 0u);
        return v;
    }
    int Int(int lo, int hi) { return lo + static_cast<int>(Next() % static_cast<std::uint32_t>(hi - lo + 1)); }
    double Coordinate()
    {
        static const double special[] = {0, 1, -1, 0.5, 1 << 30, -(1 << 30), 1e-9, 64, 32};
        return Int(0, 3) == 0 ? special[Int(0, 8)] : static_cast<double>(static_cast<std::int32_t>(Next())) / 65536.0;
    }
    std::uint8_t Byte() { return static_cast<std::uint8_t>(Next()); }

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
    std::size_t m_used = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace KestoRaster;
    Bytes in(data, size);
    Paint paint;
    paint.kind = static_cast<Paint::Kind>(in.Int(0, 9));
    for (int i = in.Int(0, 5); i > 0; --i)
        paint.points.push_back({in.Coordinate(), in.Coordinate()});
    double position = 0;
    for (int i = in.Int(0, 6); i > 0; --i) {
        position += in.Int(0, 4000);
        paint.stops.push_back(
            {position, {in.Byte(), in.Byte(), in.Byte(), in.Byte()}, in.Int(0, 100) / 100.0, in.Int(0, 100) / 100.0});
    }
    for (int i = in.Int(0, 4); i > 0; --i)
        paint.colours.push_back({in.Byte(), in.Byte(), in.Byte(), in.Byte()});
    paint.plasma = {in.Next(), in.Int(-10, 110), in.Int(-5, 64)};
    paint.mirroredTiles = in.Int(0, 1);
    paint.nearest = in.Int(0, 1);
    paint.recolour = in.Int(0, 1);
    paint.transparency = in.Int(0, 1);
    if (in.Int(0, 1)) {
        auto image = std::make_shared<Paint::Image>();
        image->width = in.Int(0, 5);
        image->height = in.Int(0, 5);
        for (int i = in.Int(0, 30); i > 0; --i)
            image->argb.push_back(in.Next());
        paint.image = image;
    }
    const Affine placement{in.Coordinate(), in.Coordinate(), in.Coordinate(),
                           in.Coordinate(), in.Coordinate(), in.Coordinate()};
    const Output out = in.Int(0, 1) ? Output::Mask8 : Output::Argb32;

    constexpr int W = 19, H = 7;
    std::vector<std::uint32_t> pixels(W * H, 0xA5A5A5A5u);
    const Target target{pixels.data(), W, H, out == Output::Argb32 ? W * 4 : W, out};
    const Clip clip{in.Int(-30, 30), in.Int(-30, 30), in.Int(-30, 30), in.Int(-30, 30)};
    Render(PreparedPaint(paint, placement, out), target, clip);
    RenderReference(paint, placement, target, clip);
    return 0;
}
