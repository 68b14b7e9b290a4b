#pragma once

#include "kestotool/gdi/CLtBitmap.h"
#include "kestotool/kernel/RefPtr.h"
#include "kestotool/platform/Export.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace KestoGDI {

// Reads and writes pictures as PNG files through libpng.
class KESTO_API PngFile {
public:
    PngFile() = delete;

    // Writes premultiplied 0xAARRGGBB words (the renderer's Argb32) as an 8-bit RGBA PNG with
    // straight alpha; false, and no file left behind, when it cannot be written.
    static bool WritePremultiplied(const std::string& path, const std::uint32_t* pixels, int width, int height,
                                   std::ptrdiff_t strideBytes);
    // The same PNG in memory; empty when it cannot be encoded.
    static std::vector<std::uint8_t> EncodePremultiplied(const std::uint32_t* pixels, int width, int height,
                                                         std::ptrdiff_t strideBytes);
    // The picture in a PNG file as a bitmap (straight-alpha 0xAARRGGBB words), decoded as the
    // image archive's entries are, with their size limits. Null, with the reason in error (when
    // given) in plain words, for a file that cannot be read, is not a PNG or cannot be decoded.
    static KestoKernel::RefPtr<CLtBitmap> Read(const std::string& path, std::string* error = nullptr);
};

} // namespace KestoGDI
