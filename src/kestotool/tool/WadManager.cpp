#include "kestotool/tool/WadManager.h"

#include "kestotool/kernel/VerifyReporter.h"
#include "kestotool/platform/ScreenMetrics.h"
#include "kestotool/tool/Module.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace KestoTool {

WadManager& WadManager::GetInstance()
{
    static WadManager instance;
    return instance;
}

WadManager::WadManager()
{
    SetDpi(KestoPlatform::ScreenMetrics::GetLogPixelsX());
}

void WadManager::SetDpi(int dpi)
{
    m_dpi = Folders.front();
    for (const int folder : Folders) {
        if (folder <= dpi)
            m_dpi = folder;
    }
}

RefPtr<CLtBitmap> WadManager::LoadImage(const wchar_t* name) const
{
    if (!name)
        return {};
    return OpenArchive().Load(EntryName(m_dpi, name).c_str());
}

KestoGDI::WadArchive WadManager::OpenArchive() const
{
    return OpenArchiveAt(ArchivePath());
}

KestoGDI::WadArchive WadManager::OpenArchiveAt(const std::wstring& path) const
{
    KestoGDI::WadArchive archive = KestoGDI::WadArchive::Open(path.c_str());
    if (!archive.IsOpen() && !std::exchange(m_missingReported, true)) {
        KestoKernel::VerifyFailed(
            "KestoTool", "WadManager", 1,
            "the image archive " + CString(path).ToUtf8() +
                " is missing or unreadable: install it beside the library; toolbar icons stay empty");
    }
    return archive;
}

std::wstring WadManager::EntryName(int folder, const wchar_t* name)
{
    CString entry;
    entry.Format(L"Icons\\%d\\%s", folder, name);
    return entry.Str();
}

std::wstring WadManager::ArchivePath() const
{
    return ArchivePathFor(Module::GetLibraryPath());
}

namespace {

bool IsVersionNumber(const std::wstring& extension)
{
    return extension.size() > 1 &&
           std::all_of(extension.begin() + 1, extension.end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; });
}

} // namespace

std::wstring WadManager::ArchivePathFor(const std::wstring& libraryPath)
{
    std::filesystem::path path(libraryPath);
    // An installed library is a versioned file (libKestoTool.so.0.1.0): its version numbers
    // come after the extension and are not part of the title.
    while (path.has_extension() && IsVersionNumber(path.extension().wstring()))
        path.replace_extension();
    std::wstring title = path.stem().wstring();
    if (!title.empty() && (title.back() == L'D' || title.back() == L'N'))
        title.pop_back();
    return (path.parent_path() / (title + c_szWad)).wstring();
}

} // namespace KestoTool
