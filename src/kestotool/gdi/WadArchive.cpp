#include "kestotool/gdi/WadArchive.h"

#include "kestotool/gdi/WadManager.h"
#include "kestotool/platform/CString.h"

#include <zip.h>

#include <vector>

namespace KestoGDI {

namespace {

struct EntryCloser {
    void operator()(zip_file_t* f) const { zip_fclose(f); }
};

} // namespace

void WadArchive::Closer::operator()(zip* archive) const
{
    zip_discard(archive);
}

// Archives are opened without libzip's strict consistency check, which some valid writers'
// archives (CMake's among them) fail; every entry is still checked against its CRC as it is read.
WadArchive WadArchive::Open(const wchar_t* path)
{
    WadArchive archive;
    if (!path)
        return archive;
    int error = 0;
    archive.m_zip.reset(zip_open(KestoPlatform::CString(path).ToUtf8().c_str(), ZIP_RDONLY, &error));
    return archive;
}

WadArchive WadArchive::FromMemory(const void* data, std::size_t size)
{
    WadArchive archive;
    if (!data || size == 0)
        return archive;
    zip_error_t error;
    zip_error_init(&error);
    if (zip_source_t* source = zip_source_buffer_create(data, size, 0, &error)) {
        archive.m_zip.reset(zip_open_from_source(source, ZIP_RDONLY, &error));
        if (!archive.m_zip)
            zip_source_free(source);
    }
    zip_error_fini(&error);
    return archive;
}

KestoKernel::RefPtr<CLtBitmap> WadArchive::Load(const wchar_t* entryName) const
{
    if (!m_zip || !entryName)
        return {};
    const std::string key = WadManager::EntryKey(entryName);
    zip_stat_t stat;
    zip_stat_init(&stat);
    // The entry's declared size is checked against its compressed size the same way before its
    // bytes are allocated.
    if (zip_stat(m_zip.get(), key.c_str(), 0, &stat) != 0 || !(stat.valid & ZIP_STAT_SIZE) ||
        !(stat.valid & ZIP_STAT_COMP_SIZE) || stat.size > WadManager::MaxEntryBytes ||
        stat.size > stat.comp_size * 1032 + 64)
        return {};
    std::unique_ptr<zip_file_t, EntryCloser> file(zip_fopen(m_zip.get(), key.c_str(), 0));
    if (!file)
        return {};
    std::vector<unsigned char> bytes(static_cast<std::size_t>(stat.size));
    if (zip_fread(file.get(), bytes.data(), bytes.size()) != static_cast<zip_int64_t>(bytes.size()))
        return {};
    return WadManager::DecodePng(bytes.data(), bytes.size());
}

} // namespace KestoGDI
