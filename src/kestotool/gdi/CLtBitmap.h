#pragma once

#include "kestotool/kernel/CRefCount.h"
#include "kestotool/platform/Export.h"

#include <cstdint>
#include <vector>

namespace KestoGDI {

// A 32-bit raster image, shared through its reference count: pixels are 0xAARRGGBB with
// straight (not premultiplied) alpha, rows top to bottom, no padding between rows.
class KESTO_API CLtBitmap : public KestoKernel::CRefCount {
public:
    // Larger sides are refused: the bitmap is then empty.
    static constexpr int MaxSide = 1 << 15;

    CLtBitmap() = default;
    // A transparent bitmap of the given size; a side outside 1..MaxSide gives an empty bitmap.
    CLtBitmap(int width, int height);

    int GetWidth() const { return m_width; }
    int GetHeight() const { return m_height; }
    bool IsEmpty() const { return m_pixels.empty(); }

    // Outside the bitmap: 0 (transparent) for reads, nothing for writes.
    std::uint32_t GetPixel(int x, int y) const;
    void SetPixel(int x, int y, std::uint32_t argb);
    void Fill(std::uint32_t argb);
    std::uint32_t* GetBits() { return m_pixels.data(); }
    const std::uint32_t* GetBits() const { return m_pixels.data(); }

    std::size_t Measure() const override { return sizeof(*this) + m_pixels.capacity() * sizeof(std::uint32_t); }
    friend bool operator==(const CLtBitmap& a, const CLtBitmap& b);

private:
    bool Contains(int x, int y) const { return x >= 0 && y >= 0 && x < m_width && y < m_height; }
    std::size_t IndexOf(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x);
    }

    int m_width = 0;
    int m_height = 0;
    std::vector<std::uint32_t> m_pixels;
};

} // namespace KestoGDI
