#pragma once

#include "kestotool/gdi/WadArchive.h"
#include "kestotool/gdi/WadManager.h"
#include "kestotool/platform/Export.h"
#include "kestotool/tool/KestoToolImports.h"

#include <array>
#include <string>

namespace KestoTool {

// The icon manager: loads command images for the screen's resolution from the image archive
// that lies beside the library ("Icons\<dpi>\<name>" entries).
class KESTO_API WadManager : public KestoGDI::WadManager {
public:
    // The image folders, one per screen resolution the icons are drawn for.
    static constexpr std::array<int, 4> Folders = {96, 120, 144, 192};

    // Made on first use for the screen's horizontal resolution.
    static WadManager& GetInstance();

    int GetDpi() const { return m_dpi; }
    // The largest folder not above dpi; 96 for anything below.
    void SetDpi(int dpi);
    // An image of the current folder; opens the archive for this one image.
    RefPtr<CLtBitmap> LoadImage(const wchar_t* name) const;
    // The archive beside the library, opened once for many images. A missing or unreadable
    // archive is reported once, with its path.
    KestoGDI::WadArchive OpenArchive() const;
    KestoGDI::WadArchive OpenArchiveAt(const std::wstring& path) const;
    // "Icons\<folder>\<name>".
    static std::wstring EntryName(int folder, const wchar_t* name);

    // The archive beside the library: its directory and file title (without the shared-object
    // version numbers), less one trailing "D" or "N", with the archive extension.
    std::wstring ArchivePath() const;
    static std::wstring ArchivePathFor(const std::wstring& libraryPath);

private:
    WadManager();

    int m_dpi = 96;
    mutable bool m_missingReported = false;
};

} // namespace KestoTool
