#include "tool/WadManager.h"

#include "platform/ScreenMetrics.h"
#include "tool/Module.h"

#include <filesystem>

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
    return KestoGDI::WadArchive::Open(ArchivePath().c_str());
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
