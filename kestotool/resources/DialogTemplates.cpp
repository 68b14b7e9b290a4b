#include "resources/DialogTemplates.h"

#include "platform/WindowTypes.h"
#include "resources/ResourceIds.h"

namespace KestoTool {
namespace {

using Platform::CRect;
using Platform::DialogTemplate;

// Layouts in dialog units of 96-dpi pixels. The order of the items is the window order: a spin
// button follows the edit box it steps.
const DialogTemplate kSolidTransparency{
    IDD_SOLID_TRANSPARENCY,
    L"Transparency",
    CRect(0, 0, 220, 150),
    {
        {"FillPreview", IDC_SOLID_PREVIEW, CRect(10, 10, 90, 90), L""},
        {"Slider", IDC_SOLID_SLIDER, CRect(100, 20, 210, 40), L""},
        {"Edit", IDC_SOLID_EDIT, CRect(100, 55, 150, 75), L""},
        {"Spin", IDC_SOLID_SPIN, CRect(150, 55, 165, 75), L""},
        {"Static", -1, CRect(170, 58, 210, 75), L"%"},
        {"Button", Platform::IDOK, CRect(60, 115, 130, 140), L"OK"},
        {"Button", Platform::IDCANCEL, CRect(140, 115, 210, 140), L"Cancel"},
    },
};

} // namespace

const DialogTemplate* FindBuiltInDialogTemplate(int id)
{
    return id == IDD_SOLID_TRANSPARENCY ? &kSolidTransparency : nullptr;
}

} // namespace KestoTool
