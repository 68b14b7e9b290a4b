// Paints every fill kind twice, as a fill over a checkerboard and as a transparency that fades a
// dark blue fill over the checkerboard, and writes the gallery as a PNG. It shows a host engineer
// the whole rendering path: a fill becomes a paint (FillPaint), the paint is prepared for its
// placement and rendered (KestoRaster), fill and mask are composited over the destination.
#include "SampleMotif.h"

#include <kestotool/gdi/CFillBitmap.h>
#include <kestotool/gdi/CFillVector.h>
#include <kestotool/gdi/CFillWithStops.h>
#include <kestotool/gdi/CMonoColour.h>
#include <kestotool/gdi/CRGBColour.h>
#include <kestotool/gdi/FillKinds.h>
#include <kestotool/gdi/FillPaint.h>
#include <kestotool/gdi/PngFile.h>
#include <kestotool/platform/CString.h>
#include <kestotool/raster/Composite.h>
#include <kestotool/raster/PreparedPaint.h>

#include <cctype>
#include <cstdint>
#include <iostream>
#include <string>
#include <vector>

using namespace KestoRaster;
using Kesto2D::K2DDblPoint;

namespace {

constexpr int kCell = 120;
constexpr int kCellHeight = 90;
constexpr int kGap = 10;
constexpr int kLabel = 20;
constexpr int kBlockWidth = 2 * kCell + kGap + 2 * kGap;
constexpr int kBlockHeight = kLabel + kCellHeight + 2 * kGap;
constexpr int kColumns = 4;

// A 5 x 7 pixel font for the labels: capitals and a few signs.
const std::uint8_t* Glyph(char c)
{
    static const std::uint8_t space[7] = {};
    static const struct {
        char c;
        std::uint8_t rows[7];
    } font[] = {
        {'A', {14, 17, 17, 31, 17, 17, 17}}, {'B', {30, 17, 17, 30, 17, 17, 30}}, {'C', {14, 17, 16, 16, 16, 17, 14}},
        {'D', {30, 17, 17, 17, 17, 17, 30}}, {'E', {31, 16, 16, 30, 16, 16, 31}}, {'F', {31, 16, 16, 30, 16, 16, 16}},
        {'G', {14, 17, 16, 23, 17, 17, 15}}, {'H', {17, 17, 17, 31, 17, 17, 17}}, {'I', {14, 4, 4, 4, 4, 4, 14}},
        {'K', {17, 18, 20, 24, 20, 18, 17}}, {'L', {16, 16, 16, 16, 16, 16, 31}}, {'M', {17, 27, 21, 21, 17, 17, 17}},
        {'N', {17, 25, 21, 19, 17, 17, 17}}, {'O', {14, 17, 17, 17, 17, 17, 14}}, {'P', {30, 17, 17, 30, 16, 16, 16}},
        {'Q', {14, 17, 17, 17, 21, 18, 13}}, {'R', {30, 17, 17, 30, 20, 18, 17}}, {'S', {15, 16, 16, 14, 1, 1, 30}},
        {'T', {31, 4, 4, 4, 4, 4, 4}},       {'U', {17, 17, 17, 17, 17, 17, 14}}, {'V', {17, 17, 17, 17, 17, 10, 4}},
        {'W', {17, 17, 17, 21, 21, 21, 10}}, {'X', {17, 17, 10, 4, 10, 17, 17}},  {'Y', {17, 17, 10, 4, 4, 4, 4}},
        {'(', {2, 4, 8, 8, 8, 4, 2}},        {')', {8, 4, 2, 2, 2, 4, 8}},        {'/', {1, 1, 2, 4, 8, 16, 16}},
    };
    for (const auto& g : font) {
        if (g.c == std::toupper(static_cast<unsigned char>(c)))
            return g.rows;
    }
    return space;
}

class Canvas {
public:
    Canvas(int width, int height)
        : m_width(width), m_height(height), m_pixels(static_cast<std::size_t>(width) * height, 0xFFFFFFFF)
    {
    }

    Target Argb() { return {m_pixels.data(), m_width, m_height, m_width * 4, Output::Argb32}; }
    int Width() const { return m_width; }
    int Height() const { return m_height; }

    void Checkerboard(const Clip& c)
    {
        for (int y = c.y0; y < c.y1; ++y)
            for (int x = c.x0; x < c.x1; ++x)
                At(x, y) = (((x - c.x0) / 8 + (y - c.y0) / 8) % 2) ? 0xFFCCCCCC : 0xFFFFFFFF;
    }
    void Text(int x, int y, const std::string& text)
    {
        for (const char ch : text) {
            const std::uint8_t* rows = Glyph(ch);
            for (int r = 0; r < 7; ++r)
                for (int col = 0; col < 5; ++col)
                    if (rows[r] & (16 >> col))
                        Fill({x + col * 2, y + r * 2, x + col * 2 + 2, y + r * 2 + 2}, 0xFF202020);
            x += 12;
        }
    }
    void Fill(const Clip& c, std::uint32_t argb)
    {
        for (int y = c.y0; y < c.y1; ++y)
            for (int x = c.x0; x < c.x1; ++x)
                At(x, y) = argb;
    }
    const std::vector<std::uint32_t>& Pixels() const { return m_pixels; }

private:
    std::uint32_t& At(int x, int y) { return m_pixels[static_cast<std::size_t>(y) * m_width + x]; }

    int m_width, m_height;
    std::vector<std::uint32_t> m_pixels;
};

// A few stops to show the ramps: a fill from red through orange and teal to deep blue, a
// transparency from opaque to clear with a step.
void ShowcaseStops(KestoGDI::CFill& fill)
{
    auto* withStops = dynamic_cast<KestoGDI::CFillWithStops*>(&fill);
    if (!withStops || withStops->GetMaxStops() >= 0)
        return;
    KestoGDI::ColourIntPairs stops;
    if (fill.IsTransparency()) {
        stops.Add(KestoGDI::CMonoColour(0), 0);
        stops.Add(KestoGDI::CMonoColour(90), 5000);
        stops.Add(KestoGDI::CMonoColour(255), 10000);
    } else {
        stops.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(220, 30, 40)), 0);
        stops.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(255, 170, 0)), 3000);
        stops.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(0, 160, 150)), 6500);
        stops.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(30, 40, 150)), 10000);
    }
    withStops->SetColourIntPairs(stops);
}

// A small tile for the bitmap kinds: a ring of colour on a soft background.
KestoKernel::RefPtr<const KestoGDI::CLtBitmap> SampleTile()
{
    auto tile = KestoKernel::MakeRef<KestoGDI::CLtBitmap>(24, 24);
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 24; ++x) {
            const int d2 = (x - 12) * (x - 12) + (y - 12) * (y - 12);
            const bool ring = d2 > 36 && d2 < 100;
            tile->SetPixel(x, y, ring ? 0xFFE07020u : 0xFF2080C0u + static_cast<std::uint32_t>(x * 4) * 0x10000u);
        }
    }
    return tile;
}

// Paints one fill into its cell; false for a kind the renderer does not paint yet.
bool PaintCell(Canvas& canvas, const KestoPlatform::CRuntimeClass* kind, const Clip& cell)
{
    canvas.Checkerboard(cell);
    KestoKernel::RefPtr<KestoGDI::CFill> fill = KestoGDI::CFill::CreateFromClass(kind);
    const KestoPlatform::CRect box(cell.x0 + 10, cell.y0 + 10, cell.x1 - 10, cell.y1 - 10);
    fill->SetDefaultControls(box);
    ShowcaseStops(*fill);
    // A vector fill needs a drawing to show: the demo's motif, a few instances across the cell
    // (its box runs from the bottom-left corner: origin, x end, y end).
    if (auto* vector = dynamic_cast<KestoGDI::CFillVector*>(fill.get())) {
        vector->SetMetaInstance(SampleMotif());
        const double side = 40;
        vector->SetRawBox({K2DDblPoint(box.left, box.top + side), K2DDblPoint(box.left + side, box.top + side),
                           K2DDblPoint(box.left, box.top)},
                          true);
    }
    if (auto* bitmap = dynamic_cast<KestoGDI::CFillBitmap*>(fill.get())) {
        bitmap->SetBitmap(SampleTile());
        // A few tiles across the cell rather than one stretched over it.
        bitmap->SetControls(K2DDblPoint(box.left, box.top), K2DDblPoint(box.left + 30, box.top),
                            K2DDblPoint(box.left, box.top + 30));
    }
    if (!KestoGDI::FillPaint::PaintOver(*fill, {}, 1, canvas.Argb(), cell)) {
        canvas.Text(cell.x0 + 18, cell.y0 + 30, "NOT YET");
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string output = argc > 1 ? argv[1] : "fills.png";
    const auto kinds = KestoGDI::FillKinds::All();
    const int rows = static_cast<int>((kinds.size() + kColumns - 1) / kColumns);
    Canvas canvas(kColumns * kBlockWidth, rows * kBlockHeight + kLabel);
    canvas.Text(kGap, 4, "FILL / TRANSPARENCY");
    std::cout << "Fill gallery: each kind as a fill (left) and a transparency over dark blue (right)\n";
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        const KestoGDI::FillKind& kind = kinds[i];
        const int x = static_cast<int>(i % kColumns) * kBlockWidth + kGap;
        const int y = static_cast<int>(i / kColumns) * kBlockHeight + kLabel + kGap;
        const std::string name = KestoPlatform::CString(kind.fillName).ToUtf8();
        canvas.Text(x, y, name);
        const Clip fillCell{x, y + kLabel, x + kCell, y + kLabel + kCellHeight};
        const Clip transparencyCell{x + kCell + kGap, y + kLabel, x + 2 * kCell + kGap, y + kLabel + kCellHeight};
        const bool painted = PaintCell(canvas, kind.fillClass, fillCell);
        if (kind.transparencyClass)
            PaintCell(canvas, kind.transparencyClass, transparencyCell);
        std::cout << "  " << (painted ? "painted  " : "not yet  ") << name << '\n';
    }
    if (!KestoGDI::PngFile::WritePremultiplied(output, canvas.Pixels().data(), canvas.Width(), canvas.Height(),
                                               canvas.Width() * 4)) {
        std::cerr << "cannot write " << output << '\n';
        return 1;
    }
    std::cout << "gallery written to " << output << '\n';
    return 0;
}
