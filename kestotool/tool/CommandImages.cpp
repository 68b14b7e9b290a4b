#include "tool/CommandImages.h"

#include "tool/ToolIdMap.h"
#include "tool/WadManager.h"

namespace KestoTool {

const wchar_t* const FillToolKey = L"KestoTool::FillTool";

namespace {

struct CommandImage {
    int offset;          // the command's number within the fill tools' range
    const wchar_t* file; // null: the command has no image
    int hintId;          // its prompt in the string table
};

// The colour commands share the edit-fill image; lock ratio and reset handles share the
// maximum-fit image.
constexpr CommandImage kCommandImages[] = {
    {1, L"Edit Fill.png", 116},
    {3, L"Edit Fill.png", 119},
    {4, L"Edit Fill.png", 120},
    {5, L"Edit Fill.png", 118},
    {6, L"Rotate Anticlockwise.png", 122},
    {7, L"Rotate Clockwise.png", 121},
    {8, L"Edit Transparency.png", 130},
    {10, nullptr, 125},
    {9, nullptr, 128},
    {12, nullptr, 126},
    {11, nullptr, 129},
    {14, nullptr, 124},
    {13, nullptr, 127},
    {15, L"Maximum Fit To Shape.png", 132},
    {17, L"Maximum Fit To Shape.png", 135},
    {16, L"Fit To Shape.png", 134},
    {18, L"Fit To Shape.png", 133},
    {19, L"Maximum Fit To Shape.png", 136},
    {20, L"Scale Mode.png", 25493},
    {21, L"Space Mode.png", 25494},
};

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
    for (const CommandImage& row : kCommandImages) {
        if (!row.file)
            continue;
        for (const int folder : WadManager::Folders) {
            wad.SetDpi(folder);
            const Platform::CSize size = Platform::CXTPImageManager::GetPreferredIconSizeforDPI(folder);
            if (const RefPtr<CLtBitmap> bitmap = wad.LoadImage(row.file)) {
                const int id = start + row.offset;
                images.SetIcons(ToImage(*bitmap), &id, 1, size, Platform::XTPImageState::Normal);
            }
        }
    }
    wad.SetDpi(screenDpi);
}

void RegisterFillToolImagesOnce(Platform::CXTPCommandBars* bars)
{
    static bool registered = false;
    if (registered || !bars)
        return;
    registered = true;
    const int start = ToolIdMap::GetInstance().AllocateRange(FillToolKey, FillToolCommandCount);
    if (start == -1)
        return;
    RegisterFillToolImages(*bars->GetImageManager(), start);
}

} // namespace KestoTool
