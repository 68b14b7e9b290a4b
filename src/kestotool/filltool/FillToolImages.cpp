#include "kestotool/filltool/FillToolImages.h"

#include "kestotool/filltool/FillCommands.h"
#include "kestotool/tool/ToolIdMap.h"
#include "kestotool/tool/WadManager.h"

#include <algorithm>

namespace KestoTool {

KestoPlatform::XTPImage ToXTPImage(const CLtBitmap& bitmap)
{
    const auto n = static_cast<std::size_t>(bitmap.GetWidth()) * static_cast<std::size_t>(bitmap.GetHeight());
    return {bitmap.GetWidth(), bitmap.GetHeight(), {bitmap.GetBits(), bitmap.GetBits() + n}};
}

KestoPlatform::XTPImage LoadXTPImage(const wchar_t* name)
{
    const RefPtr<CLtBitmap> bitmap = WadManager::GetInstance().LoadImage(name);
    return bitmap ? ToXTPImage(*bitmap) : KestoPlatform::XTPImage{};
}

KestoPlatform::XTPImage SwatchImage(KestoPlatform::COLORREF colour, int side)
{
    const std::uint32_t argb = 0xFF000000u | (static_cast<std::uint32_t>(KestoPlatform::GetRValue(colour)) << 16) |
                               (static_cast<std::uint32_t>(KestoPlatform::GetGValue(colour)) << 8) |
                               static_cast<std::uint32_t>(KestoPlatform::GetBValue(colour));
    const int n = std::max(0, side);
    return {n, n, std::vector<std::uint32_t>(static_cast<std::size_t>(n) * static_cast<std::size_t>(n), argb)};
}

void RegisterFillToolImages(KestoPlatform::CXTPImageManager& images, int start)
{
    const KestoGDI::WadArchive archive = WadManager::GetInstance().OpenArchive();
    for (const FillCommandRow& row : FillCommands::All()) {
        if (!row.icon)
            continue;
        const int id = start + row.number;
        for (const int folder : WadManager::Folders) {
            if (const RefPtr<CLtBitmap> bitmap = archive.Load(WadManager::EntryName(folder, row.icon).c_str())) {
                const KestoPlatform::CSize size = KestoPlatform::CXTPImageManager::GetPreferredIconSizeforDPI(folder);
                images.SetIcons(ToXTPImage(*bitmap), &id, 1, size, KestoPlatform::XTPImageState::Normal);
            }
        }
    }
}

void RegisterFillToolImagesOnce(KestoPlatform::CXTPCommandBars* bars)
{
    static bool registered = false;
    if (registered)
        return;
    registered = true;
    const int start = ToolIdMap::GetInstance().AllocateRange(FillToolKey, FillCommands::Count());
    if (start != -1 && bars)
        RegisterFillToolImages(*bars->GetImageManager(), start);
}

} // namespace KestoTool
