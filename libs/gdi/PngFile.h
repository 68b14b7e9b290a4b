#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace KestoGDI {

// Writes pictures as PNG files through libpng.
class PngFile {
public:
    PngFile() = delete;

    // Writes premultiplied 0xAARRGGBB words (the renderer's Argb32) as an 8-bit RGBA PNG with
    // straight alpha; false, and no file left behind, when it cannot be written.
    static bool WritePremultiplied(const std::string& path, const std::uint32_t* pixels, int width, int height,
                                   std::ptrdiff_t strideBytes);
};

} // namespace KestoGDI
