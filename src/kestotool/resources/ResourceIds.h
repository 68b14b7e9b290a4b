#pragma once

// Ids of the library's resources: dialog templates, their controls and string-table entries.
namespace KestoTool {

constexpr int IDD_SOLID_TRANSPARENCY = 10464;
constexpr int IDC_SOLID_PREVIEW = 11804;
constexpr int IDC_SOLID_EDIT = 14883;
constexpr int IDC_SOLID_SLIDER = 14887;
constexpr int IDC_SOLID_SPIN = 14890;

// The fill editors and the controls of their preview pane.
constexpr int IDD_GRADIENT_FILL = 25480;
constexpr int IDD_GRADIENT_TRANSPARENCY = 25481;
constexpr int IDD_PLASMA_FILL = 25482;
constexpr int IDD_THREE_FOUR_COLOUR_FILL = 25483;
constexpr int IDD_THREE_FOUR_COLOUR_TRANSPARENCY = 25484;
constexpr int IDD_VECTOR_FILL = 25485;
constexpr int IDC_EDITOR_PREVIEW = 14901;
constexpr int IDC_PREVIEW_ZOOM_IN = 14902;
constexpr int IDC_PREVIEW_ZOOM_OUT = 14903;
constexpr int IDC_PREVIEW_EXPAND = 14904;
constexpr int IDC_PREVIEW_ZOOM_COMBO = 14905;
constexpr int IDS_PREVIEW_ZOOM_IN = 171;
constexpr int IDS_PREVIEW_ZOOM_OUT = 172;
constexpr int IDS_PREVIEW_SHOW_HIDE = 173;
constexpr int IDS_PREVIEW_ZOOM_TO_FIT = 174;

// The stop list of the gradient and plasma editors, and the gradient's kind and angle.
constexpr int IDC_GRADIENT_KIND = 14910;
constexpr int IDC_GRADIENT_BAR = 14911;
constexpr int IDC_STOP_POSITION = 14912;
constexpr int IDC_STOP_DELETE = 14913;
constexpr int IDC_STOP_COLOUR = 14914;
constexpr int IDC_STOP_LEVEL = 14915;
constexpr int IDC_STOP_LEVEL_LABEL = 14916;
constexpr int IDC_FILL_ANGLE = 14917;

// The plasma editor's pattern.
constexpr int IDC_PLASMA_SEED = 14920;
constexpr int IDC_PLASMA_NEW_SEED = 14921;
constexpr int IDC_PLASMA_GRAIN = 14922;
constexpr int IDC_PLASMA_RESOLUTION = 14923;
constexpr int IDC_PLASMA_INVERT = 14924;

// The three/four-colour editors: a name, and a colour button (fills) or a level box
// (transparencies) per corner, corners 1 to 4 at consecutive ids.
constexpr int IDC_CORNER_COLOUR_FIRST = 14930;
constexpr int IDC_CORNER_LEVEL_FIRST = 14934;
constexpr int IDC_CORNER_LABEL_FIRST = 14938;

// The vector editor.
constexpr int IDC_VECTOR_MODE = 14950;
constexpr int IDC_VECTOR_RESET = 14951;
constexpr int IDC_VECTOR_TRANSFORM = 14952;

constexpr int IDS_TINT_ORIGINAL = 117;

// Undo-step names.
constexpr int IDS_UNDO_ROTATE_FILL = 123;
constexpr int IDS_UNDO_ROTATE_TRANSPARENCY = 131;

// Hint lines of the linear tool, for a fill and for a transparency.
constexpr int IDS_HINT_LINEAR_CREATE_FILL = 147;
constexpr int IDS_HINT_LINEAR_NO_NODE_FILL = 148;
constexpr int IDS_HINT_LINEAR_END_DRAGGING_FILL = 149;
constexpr int IDS_HINT_LINEAR_CREATE_TRANSPARENCY = 160;
constexpr int IDS_HINT_LINEAR_NO_NODE_TRANSPARENCY = 161;
constexpr int IDS_HINT_LINEAR_END_DRAGGING_TRANSPARENCY = 162;
constexpr int IDS_HINT_LINEAR_INNER_DRAGGING_TRANSPARENCY = 163;
constexpr int IDS_HINT_LINEAR_END_OVER_TRANSPARENCY = 164;
constexpr int IDS_HINT_LINEAR_INNER_OVER_TRANSPARENCY = 165;
constexpr int IDS_HINT_LINEAR_INNER_DRAGGING_FILL = 167;
constexpr int IDS_HINT_LINEAR_END_OVER_FILL = 168;
constexpr int IDS_HINT_LINEAR_INNER_OVER_FILL = 169;

// Hint lines of the conical tool, for a fill and a transparency.
constexpr int IDS_HINT_CONICAL_CREATE_FILL = 100;
constexpr int IDS_HINT_CONICAL_NO_NODE_FILL = 101;
constexpr int IDS_HINT_CONICAL_CENTRE_DRAGGING_FILL = 102;
constexpr int IDS_HINT_CONICAL_STEP_DRAGGING_FILL = 103;
constexpr int IDS_HINT_CONICAL_FIRST_DRAGGING_FILL = 104;
constexpr int IDS_HINT_CONICAL_STEP_OVER_TRANSPARENCY = 105;
constexpr int IDS_HINT_CONICAL_FIRST_OVER_TRANSPARENCY = 106;
constexpr int IDS_HINT_CONICAL_CENTRE_OVER_TRANSPARENCY = 107;
constexpr int IDS_HINT_CONICAL_STEP_DRAGGING_TRANSPARENCY = 108;
constexpr int IDS_HINT_CONICAL_FIRST_DRAGGING_TRANSPARENCY = 109;
constexpr int IDS_HINT_CONICAL_CREATE_TRANSPARENCY = 110;
constexpr int IDS_HINT_CONICAL_NO_NODE_TRANSPARENCY = 111;
constexpr int IDS_HINT_CONICAL_CENTRE_DRAGGING_TRANSPARENCY = 112;
constexpr int IDS_HINT_CONICAL_CENTRE_OVER_FILL = 113;
constexpr int IDS_HINT_CONICAL_FIRST_OVER_FILL = 114;
constexpr int IDS_HINT_CONICAL_STEP_OVER_FILL = 115;

// Hint lines of the radial and elliptical tools (one table), for a fill and a transparency.
constexpr int IDS_HINT_ROUND_CREATE_FILL = 137;
constexpr int IDS_HINT_ROUND_NO_NODE_FILL = 138;
constexpr int IDS_HINT_ROUND_CENTRE_DRAGGING_FILL = 139;
constexpr int IDS_HINT_ROUND_INNER_DRAGGING_FILL = 140;
constexpr int IDS_HINT_ROUND_RIM_DRAGGING_FILL = 141;
constexpr int IDS_HINT_ROUND_SHAPE_DRAGGING_FILL = 142;
constexpr int IDS_HINT_ROUND_CENTRE_OVER_FILL = 143;
constexpr int IDS_HINT_ROUND_INNER_OVER_FILL = 144;
constexpr int IDS_HINT_ROUND_RIM_OVER_FILL = 145;
constexpr int IDS_HINT_ROUND_SHAPE_OVER_FILL = 146;
constexpr int IDS_HINT_ROUND_CREATE_TRANSPARENCY = 150;
constexpr int IDS_HINT_ROUND_NO_NODE_TRANSPARENCY = 151;
constexpr int IDS_HINT_ROUND_CENTRE_DRAGGING_TRANSPARENCY = 152;
constexpr int IDS_HINT_ROUND_INNER_DRAGGING_TRANSPARENCY = 153;
constexpr int IDS_HINT_ROUND_RIM_DRAGGING_TRANSPARENCY = 154;
constexpr int IDS_HINT_ROUND_SHAPE_DRAGGING_TRANSPARENCY = 155;
constexpr int IDS_HINT_ROUND_CENTRE_OVER_TRANSPARENCY = 156;
constexpr int IDS_HINT_ROUND_INNER_OVER_TRANSPARENCY = 157;
constexpr int IDS_HINT_ROUND_RIM_OVER_TRANSPARENCY = 158;
constexpr int IDS_HINT_ROUND_SHAPE_OVER_TRANSPARENCY = 159;

} // namespace KestoTool
