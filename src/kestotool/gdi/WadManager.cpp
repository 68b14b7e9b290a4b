#include "kestotool/gdi/WadManager.h"

#include "kestotool/gdi/WadArchive.h"
#include "kestotool/platform/CString.h"

#include <png.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

namespace KestoGDI {

namespace {

// Whether every chunk of a PNG held in memory fits in the bytes there are. The decoder
// allocates a chunk's declared length before it reads the chunk (a text chunk of 1.9 GB in an
// 80-byte file), so a length the data cannot hold is refused first. Data that is not a PNG, or
// ends early, is left to the decoder.
bool ChunksFit(const unsigned char* data, std::size_t size)
{
    // A chunk is its length and type (the header the decoder reads first), the data, a CRC.
    constexpr std::size_t signature = 8, header = 8, crc = 4;
    for (std::size_t at = signature; at + header <= size;) {
        const std::uint32_t length = static_cast<std::uint32_t>(data[at]) << 24 |
                                     static_cast<std::uint32_t>(data[at + 1]) << 16 |
                                     static_cast<std::uint32_t>(data[at + 2]) << 8 | data[at + 3];
        if (length > size - at - header)
            return false;
        if (std::equal(data + at + 4, data + at + 8, "IEND"))
            return true;
        at += header + length + crc;
    }
    return true;
}

} // namespace

std::string WadManager::EntryKey(const wchar_t* entryName)
{
    std::string key = KestoPlatform::CString(entryName).ToUtf8();
    std::replace(key.begin(), key.end(), '\\', '/');
    return key;
}

KestoKernel::RefPtr<CLtBitmap> WadManager::LoadBitmapW(const wchar_t* archivePath, const wchar_t* entryName) const
{
    return WadArchive::Open(archivePath).Load(entryName);
}

KestoKernel::RefPtr<CLtBitmap> WadManager::LoadFromMemory(const void* data, std::size_t size, const wchar_t* entryName)
{
    return WadArchive::FromMemory(data, size).Load(entryName);
}

KestoKernel::RefPtr<CLtBitmap> WadManager::DecodePng(const void* data, std::size_t size)
{
    if (!data || size == 0)
        return {};
    if (!ChunksFit(static_cast<const unsigned char*>(data), size))
        return {};
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_memory(&image, data, size))
        return {};
    // Deflate shrinks data at most 1032 times, and a PNG row holds at least a filter byte and
    // one bit per pixel: a header that declares more pixels than its bytes can hold is a lie,
    // refused before the pixels are allocated.
    const std::uint64_t leastDataBytes = static_cast<std::uint64_t>(image.height) * (1 + (image.width + 7u) / 8);
    const bool sane = image.width >= 1 && image.height >= 1 && image.width <= MaxImageSide &&
                      image.height <= MaxImageSide &&
                      static_cast<std::size_t>(image.width) * image.height <= MaxImagePixels &&
                      leastDataBytes <= static_cast<std::uint64_t>(size) * 1032;
    if (!sane) {
        png_image_free(&image);
        return {};
    }
    // 8-bit BGRA in memory is 0xAARRGGBB as a little-endian word, with straight alpha.
    image.format = PNG_FORMAT_BGRA;
    auto bitmap = KestoKernel::MakeRef<CLtBitmap>(static_cast<int>(image.width), static_cast<int>(image.height));
    if (!png_image_finish_read(&image, nullptr, bitmap->GetBits(), 0, nullptr)) {
        png_image_free(&image);
        return {};
    }
    return bitmap;
}

} // namespace KestoGDI
