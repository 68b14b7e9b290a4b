#include "tool/CommandImages.h"

#include "tool/FillCommandTable.h"
#include "tool/ToolIdMap.h"
#include "tool/WadManager.h"

namespace KestoTool {

const wchar_t* const FillToolKey = L"KestoTool::FillTool";

namespace {

Platform::XTPImage ToImage(const CLtBitmap& bitmap)
{
    const auto n = static_cast<std::size_t>(bitmap.GetWidth()) * static_cast<std::size_t>(bitmap.GetHeight());
    return {bitmap.GetWidth(), bitmap.GetHeight(), {bitmap.GetBits(), bitmap.GetBits() + n}};
}

} // namespace

void RegisterFillToolImages(Platform::CXTPImageManager& images, int start)
{
    WadManager& wad = WadManager::GetInstance();
    const int screenDpi = wad.GetDpi();
    for (const FillCommandRow& row : FillCommandTable()) {
        if (!row.icon)
            continue;
        for (const int folder : WadManager::Folders) {
            wad.SetDpi(folder);
            const Platform::CSize size = Platform::CXTPImageManager::GetPreferredIconSizeforDPI(folder);
            if (const RefPtr<CLtBitmap> bitmap = wad.LoadImage(row.icon)) {
                const int id = start + row.number;
                images.SetIcons(ToImage(*bitmap), &id, 1, size, Platform::XTPImageState::Normal);
            }
        }
    }
    wad.SetDpi(screenDpi);
}

void RegisterFillToolImagesOnce(Platform::CXTPCommandBars* bars)
{
    static bool registered = false;
    if (registered)
        return;
    registered = true;
    const int start = ToolIdMap::GetInstance().AllocateRange(FillToolKey, FillToolCommandCount);
    if (start != -1 && bars)
        RegisterFillToolImages(*bars->GetImageManager(), start);
}

} // namespace KestoTool
