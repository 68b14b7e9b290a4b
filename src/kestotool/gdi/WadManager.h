#pragma once

#include "kestotool/gdi/CLtBitmap.h"
#include "kestotool/kernel/RefPtr.h"
#include "kestotool/platform/Export.h"

#include <cstddef>
#include <string>

namespace KestoGDI {

// Reads images from an image archive: a ZIP file of PNG images. Entry names may be written with
// backslashes ("Icons\96\Edit Fill.png"); they are matched with forward slashes, as ZIP stores
// them. Anything missing, truncated, corrupt or absurdly large gives no bitmap.
class KESTO_API WadManager {
public:
    // The file extension of image archives.
    static constexpr const wchar_t* c_szWad = L".wad";
    // Limits past which an entry is refused rather than read.
    static constexpr std::size_t MaxEntryBytes = 64u << 20;
    static constexpr int MaxImageSide = CLtBitmap::MaxSide;
    static constexpr std::size_t MaxImagePixels = 1u << 26;

    virtual ~WadManager() = default;

    KestoKernel::RefPtr<CLtBitmap> LoadBitmapW(const wchar_t* archivePath, const wchar_t* entryName) const;
    // The same from an archive held in memory.
    static KestoKernel::RefPtr<CLtBitmap> LoadFromMemory(const void* archive, std::size_t size,
                                                         const wchar_t* entryName);
    // Decodes PNG bytes into a straight-alpha ARGB bitmap.
    static KestoKernel::RefPtr<CLtBitmap> DecodePng(const void* data, std::size_t size);

    // "a\b/c" -> "a/b/c", UTF-8.
    static std::string EntryKey(const wchar_t* entryName);
};

} // namespace KestoGDI
