#include "kestotool/resources/DialogTemplates.h"

#include "kestotool/platform/WindowTypes.h"
#include "kestotool/resources/ResourceIds.h"

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

// The fill editors share a layout: the preview with its pane of three buttons (zoom in, zoom
// out, show or hide the preview), then OK and Cancel.
DialogTemplate EditorTemplate(int id, const wchar_t* caption)
{
    return {id,
            caption,
            CRect(0, 0, 360, 260),
            {
                {"FillPreview", IDC_EDITOR_PREVIEW, CRect(10, 10, 250, 200), L""},
                {"Button", IDC_PREVIEW_ZOOM_IN, CRect(260, 10, 284, 34), L""},
                {"Button", IDC_PREVIEW_ZOOM_OUT, CRect(288, 10, 312, 34), L""},
                {"Button", IDC_PREVIEW_EXPAND, CRect(316, 10, 340, 34), L""},
                {"Button", Platform::IDOK, CRect(190, 220, 270, 245), L"OK"},
                {"Button", Platform::IDCANCEL, CRect(275, 220, 350, 245), L"Cancel"},
            }};
}

const DialogTemplate kEditors[] = {
    EditorTemplate(IDD_GRADIENT_FILL, L"Gradient Fill"),
    EditorTemplate(IDD_GRADIENT_TRANSPARENCY, L"Gradient Transparency"),
    EditorTemplate(IDD_PLASMA_FILL, L"Plasma Fill"),
    EditorTemplate(IDD_THREE_FOUR_COLOUR_FILL, L"Multi-Colour Fill"),
    EditorTemplate(IDD_THREE_FOUR_COLOUR_TRANSPARENCY, L"Multi-Point Transparency"),
    EditorTemplate(IDD_VECTOR_FILL, L"Vector Fill"),
};

} // namespace

const DialogTemplate* FindBuiltInDialogTemplate(int id)
{
    if (id == IDD_SOLID_TRANSPARENCY)
        return &kSolidTransparency;
    for (const DialogTemplate& t : kEditors) {
        if (t.id == id)
            return &t;
    }
    return nullptr;
}

} // namespace KestoTool
