#pragma once

#include "kestotool/gdi/CLtBitmap.h"
#include "kestotool/kernel/RefPtr.h"
#include "kestotool/platform/Export.h"

#include <cstddef>
#include <memory>

struct zip;

namespace KestoGDI {

// An image archive (a ZIP file of PNG images) opened once, from which any number of images are
// read without opening the file again. A default or failed archive is closed and answers no
// bitmap for every entry.
class KESTO_API WadArchive {
public:
    WadArchive() = default;
    // The archive at path; closed when it is missing or not a ZIP file.
    static WadArchive Open(const wchar_t* path);
    // An archive held in memory; the bytes must outlive the archive.
    static WadArchive FromMemory(const void* data, std::size_t size);

    bool IsOpen() const { return m_zip != nullptr; }
    // The image of an entry ("Icons\96\Edit Fill.png"; backslashes are taken as ZIP's slashes);
    // null when the entry is missing, too large, corrupt or no PNG.
    KestoKernel::RefPtr<CLtBitmap> Load(const wchar_t* entryName) const;

private:
    struct Closer {
        void operator()(zip* archive) const;
    };
    std::unique_ptr<zip, Closer> m_zip;
};

} // namespace KestoGDI
