#include "gdi/WadManager.h"

#include "platform/CString.h"

#include <png.h>
#include <zip.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace KestoGDI {
namespace {

// Archives are opened without libzip's strict consistency check, which some valid writers'
// archives (CMake's among them) fail; every entry is still checked against its CRC as it is read.
struct ArchiveCloser {
    void operator()(zip_t* z) const { zip_discard(z); }
};
using Archive = std::unique_ptr<zip_t, ArchiveCloser>;

struct EntryCloser {
    void operator()(zip_file_t* f) const { zip_fclose(f); }
};

Kernel::RefPtr<CLtBitmap> ReadEntry(zip_t* archive, const wchar_t* entryName)
{
    if (!archive || !entryName)
        return {};
    const std::string key = WadManager::EntryKey(entryName);
    zip_stat_t stat;
    zip_stat_init(&stat);
    if (zip_stat(archive, key.c_str(), 0, &stat) != 0 || !(stat.valid & ZIP_STAT_SIZE) ||
        stat.size > WadManager::MaxEntryBytes)
        return {};
    std::unique_ptr<zip_file_t, EntryCloser> file(zip_fopen(archive, key.c_str(), 0));
    if (!file)
        return {};
    std::vector<unsigned char> bytes(static_cast<std::size_t>(stat.size));
    if (zip_fread(file.get(), bytes.data(), bytes.size()) != static_cast<zip_int64_t>(bytes.size()))
        return {};
    return WadManager::DecodePng(bytes.data(), bytes.size());
}

} // namespace

std::string WadManager::EntryKey(const wchar_t* entryName)
{
    std::string key = Platform::CString(entryName).ToUtf8();
    std::replace(key.begin(), key.end(), '\\', '/');
    return key;
}

Kernel::RefPtr<CLtBitmap> WadManager::LoadBitmapW(const wchar_t* archivePath, const wchar_t* entryName) const
{
    if (!archivePath)
        return {};
    int error = 0;
    Archive archive(zip_open(Platform::CString(archivePath).ToUtf8().c_str(), ZIP_RDONLY, &error));
    return ReadEntry(archive.get(), entryName);
}

Kernel::RefPtr<CLtBitmap> WadManager::LoadFromMemory(const void* data, std::size_t size, const wchar_t* entryName)
{
    if (!data || size == 0)
        return {};
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source = zip_source_buffer_create(data, size, 0, &error);
    if (!source) {
        zip_error_fini(&error);
        return {};
    }
    Archive archive(zip_open_from_source(source, ZIP_RDONLY, &error));
    if (!archive)
        zip_source_free(source);
    zip_error_fini(&error);
    return ReadEntry(archive.get(), entryName);
}

Kernel::RefPtr<CLtBitmap> WadManager::DecodePng(const void* data, std::size_t size)
{
    if (!data || size == 0)
        return {};
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_memory(&image, data, size))
        return {};
    const bool sane = image.width >= 1 && image.height >= 1 && image.width <= MaxImageSide &&
                      image.height <= MaxImageSide &&
                      static_cast<std::size_t>(image.width) * image.height <= MaxImagePixels;
    if (!sane) {
        png_image_free(&image);
        return {};
    }
    // 8-bit BGRA in memory is 0xAARRGGBB as a little-endian word, with straight alpha.
    image.format = PNG_FORMAT_BGRA;
    auto bitmap = Kernel::MakeRef<CLtBitmap>(static_cast<int>(image.width), static_cast<int>(image.height));
    if (!png_image_finish_read(&image, nullptr, bitmap->GetBits(), 0, nullptr)) {
        png_image_free(&image);
        return {};
    }
    return bitmap;
}

} // namespace KestoGDI
