#include "tool/WadManager.h"

#include "kernel/VerifyReporter.h"
#include "platform/ScreenMetrics.h"
#include "tool/Module.h"

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
    SetDpi(Platform::ScreenMetrics::GetLogPixelsX());
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
        Kernel::VerifyFailed("KestoTool", "WadManager", 1,
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

std::wstring WadManager::ArchivePathFor(const std::wstring& libraryPath)
{
    const std::filesystem::path path(libraryPath);
    std::wstring title = path.stem().wstring();
    if (!title.empty() && (title.back() == L'D' || title.back() == L'N'))
        title.pop_back();
    return (path.parent_path() / (title + c_szWad)).wstring();
}

} // namespace KestoTool
