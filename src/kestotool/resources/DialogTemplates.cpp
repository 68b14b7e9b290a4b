#include "kestotool/resources/DialogTemplates_p.h"

#include "kestotool/platform/WindowTypes.h"
#include "kestotool/resources/ResourceIds.h"

namespace KestoTool {
namespace {

using KestoPlatform::CRect;
using KestoPlatform::DialogTemplate;

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
        {"Button", KestoPlatform::IDOK, CRect(60, 115, 130, 140), L"OK"},
        {"Button", KestoPlatform::IDCANCEL, CRect(140, 115, 210, 140), L"Cancel"},
    },
};

using Items = std::vector<KestoPlatform::DialogItemTemplate>;

// The fill editors share a frame: their own controls in the left column, the preview pane on
// the right (the preview, zoom in and out, the zoom box), and along the bottom the button that
// shows or hides the pane, OK and Cancel. The pane's left edge is the width of the contracted
// dialog.
DialogTemplate EditorTemplate(int id, const wchar_t* caption, Items own)
{
    Items items = std::move(own);
    const Items frame{
        {"FillControl", IDC_EDITOR_PREVIEW, CRect(300, 10, 570, 280), L""},
        {"Button", IDC_PREVIEW_ZOOM_IN, CRect(300, 288, 328, 316), L""},
        {"Button", IDC_PREVIEW_ZOOM_OUT, CRect(332, 288, 360, 316), L""},
        {"ComboBox", IDC_PREVIEW_ZOOM_COMBO, CRect(366, 290, 480, 314), L""},
        {"Button", IDC_PREVIEW_EXPAND, CRect(10, 288, 38, 316), L""},
        {"Button", KestoPlatform::IDOK, CRect(130, 290, 205, 316), L"OK"},
        {"Button", KestoPlatform::IDCANCEL, CRect(212, 290, 287, 316), L"Cancel"},
    };
    items.insert(items.end(), frame.begin(), frame.end());
    return {id, caption, CRect(0, 0, 580, 326), std::move(items)};
}

// The stop list: the bar, the selected stop's position, colour and level (the editor names the
// level for a transparency), and the angle.
Items StopItems()
{
    return {
        {"FillControl", IDC_GRADIENT_BAR, CRect(10, 44, 290, 84), L""},
        {"Static", -1, CRect(10, 98, 80, 116), L"Position"},
        {"Edit", IDC_STOP_POSITION, CRect(84, 94, 150, 118), L""},
        {"Static", -1, CRect(154, 98, 170, 116), L"%"},
        {"Button", IDC_STOP_DELETE, CRect(200, 94, 290, 118), L"Delete"},
        {"Button", IDC_STOP_COLOUR, CRect(10, 126, 100, 150), L"Colour..."},
        {"Static", IDC_STOP_LEVEL_LABEL, CRect(110, 130, 200, 148), L"Opacity"},
        {"Edit", IDC_STOP_LEVEL, CRect(204, 126, 260, 150), L""},
        {"Static", -1, CRect(264, 130, 280, 148), L"%"},
        {"Static", -1, CRect(10, 162, 80, 180), L"Angle"},
        {"Edit", IDC_FILL_ANGLE, CRect(84, 158, 150, 182), L""},
        {"Static", -1, CRect(154, 162, 190, 180), L"deg"},
    };
}

Items GradientItems()
{
    Items items{
        {"Static", -1, CRect(10, 14, 60, 32), L"Type"},
        {"ComboBox", IDC_GRADIENT_KIND, CRect(64, 10, 220, 34), L""},
    };
    const Items stops = StopItems();
    items.insert(items.end(), stops.begin(), stops.end());
    return items;
}

Items PlasmaItems()
{
    Items items = StopItems();
    const Items pattern{
        {"Static", -1, CRect(10, 198, 80, 216), L"Seed"},
        {"Edit", IDC_PLASMA_SEED, CRect(84, 194, 170, 218), L""},
        {"Button", IDC_PLASMA_NEW_SEED, CRect(180, 194, 290, 218), L"New Seed"},
        {"Static", -1, CRect(10, 228, 80, 246), L"Grain"},
        {"Slider", IDC_PLASMA_GRAIN, CRect(84, 224, 290, 248), L""},
        {"Static", -1, CRect(10, 258, 80, 276), L"Resolution"},
        {"Edit", IDC_PLASMA_RESOLUTION, CRect(84, 254, 150, 278), L""},
        {"CheckBox", IDC_PLASMA_INVERT, CRect(160, 254, 290, 278), L"Invert tile"},
    };
    items.insert(items.end(), pattern.begin(), pattern.end());
    return items;
}

// One row per corner: its name and its colour button and level box (the editor shows the one
// its kind uses).
Items CornerItems()
{
    static constexpr const wchar_t* names[] = {L"Corner 1", L"Corner 2", L"Corner 3", L"Corner 4"};
    Items items;
    for (int i = 0; i < 4; ++i) {
        const int top = 14 + i * 34;
        items.push_back({"Static", IDC_CORNER_LABEL_FIRST + i, CRect(10, top + 4, 90, top + 22), names[i]});
        items.push_back({"Button", IDC_CORNER_COLOUR_FIRST + i, CRect(94, top, 200, top + 26), L"Colour..."});
        items.push_back({"Edit", IDC_CORNER_LEVEL_FIRST + i, CRect(94, top, 150, top + 26), L""});
    }
    return items;
}

Items VectorItems()
{
    return {
        {"Button", IDC_VECTOR_MODE, CRect(10, 10, 160, 36), L""},
        {"Button", IDC_VECTOR_RESET, CRect(170, 10, 290, 36), L"Reset"},
        {"CheckBox", IDC_VECTOR_TRANSFORM, CRect(10, 46, 290, 70), L"Transform with object"},
    };
}

const DialogTemplate kEditors[] = {
    EditorTemplate(IDD_GRADIENT_FILL, L"Gradient Fill", GradientItems()),
    EditorTemplate(IDD_GRADIENT_TRANSPARENCY, L"Gradient Transparency", GradientItems()),
    EditorTemplate(IDD_PLASMA_FILL, L"Plasma Fill", PlasmaItems()),
    EditorTemplate(IDD_THREE_FOUR_COLOUR_FILL, L"Multi-Colour Fill", CornerItems()),
    EditorTemplate(IDD_THREE_FOUR_COLOUR_TRANSPARENCY, L"Multi-Point Transparency", CornerItems()),
    EditorTemplate(IDD_VECTOR_FILL, L"Vector Fill", VectorItems()),
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
