#include "kestotool/gdi/PngFile.h"

#include "kestotool/gdi/WadManager.h"
#include "kestotool/raster/Composite.h"

#include <png.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <vector>

namespace KestoGDI {

std::vector<std::uint8_t> PngFile::EncodePremultiplied(const std::uint32_t* pixels, int width, int height,
                                                       std::ptrdiff_t strideBytes)
{
    if (!pixels || width <= 0 || height <= 0)
        return {};
    // Straight alpha, as PNG stores it: 0xAARRGGBB in little-endian memory is B, G, R, A.
    std::vector<std::uint32_t> straight(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        const auto* row =
            reinterpret_cast<const std::uint32_t*>(reinterpret_cast<const unsigned char*>(pixels) + y * strideBytes);
        for (int x = 0; x < width; ++x)
            straight[static_cast<std::size_t>(y) * width + x] = KestoRaster::Straight(row[x]);
    }
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = PNG_FORMAT_BGRA;
    png_alloc_size_t size = 0;
    if (!png_image_write_to_memory(&image, nullptr, &size, 0, straight.data(), 0, nullptr))
        return {};
    std::vector<std::uint8_t> bytes(size);
    if (!png_image_write_to_memory(&image, bytes.data(), &size, 0, straight.data(), 0, nullptr))
        return {};
    bytes.resize(size);
    return bytes;
}

bool PngFile::WritePremultiplied(const std::string& path, const std::uint32_t* pixels, int width, int height,
                                 std::ptrdiff_t strideBytes)
{
    const std::vector<std::uint8_t> bytes = EncodePremultiplied(pixels, width, height, strideBytes);
    if (bytes.empty())
        return false;
    std::ofstream file(path, std::ios::binary);
    if (file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size())) &&
        file.flush())
        return true;
    file.close();
    std::remove(path.c_str());
    return false;
}

KestoKernel::RefPtr<CLtBitmap> PngFile::Read(const std::string& path, std::string* error)
{
    const auto fail = [&](const std::string& why) {
        if (error)
            *error = path + ": " + why;
        return KestoKernel::RefPtr<CLtBitmap>();
    };
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return fail("cannot be opened");
    std::vector<unsigned char> bytes;
    char chunk[65536];
    while (file.read(chunk, sizeof chunk) || file.gcount() > 0) {
        bytes.insert(bytes.end(), chunk, chunk + file.gcount());
        if (bytes.size() > WadManager::MaxEntryBytes)
            return fail("larger than " + std::to_string(WadManager::MaxEntryBytes >> 20) + " MiB");
    }
    static constexpr unsigned char kSignature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    if (bytes.size() < sizeof kSignature || std::memcmp(bytes.data(), kSignature, sizeof kSignature) != 0)
        return fail("not a PNG file");
    KestoKernel::RefPtr<CLtBitmap> bitmap = WadManager::DecodePng(bytes.data(), bytes.size());
    if (!bitmap)
        return fail("damaged, or more than " + std::to_string(WadManager::MaxImageSide) + " pixels on a side");
    return bitmap;
}

} // namespace KestoGDI
