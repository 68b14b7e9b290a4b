#pragma once

// Codes of the window framework: show commands, position flags, scroll codes, virtual keys,
// command notifications and dialog results, with their classic values.
namespace KestoPlatform {

constexpr int SW_HIDE = 0;
constexpr int SW_SHOW = 5;

constexpr unsigned SWP_NOSIZE = 0x0001;
constexpr unsigned SWP_NOMOVE = 0x0002;
constexpr unsigned SWP_NOZORDER = 0x0004;
constexpr unsigned SWP_NOACTIVATE = 0x0010;

constexpr int SB_LINEUP = 0;
constexpr int SB_LINEDOWN = 1;
constexpr int SB_THUMBPOSITION = 4;
constexpr int SB_THUMBTRACK = 5;
constexpr int SB_ENDSCROLL = 8;

constexpr unsigned VK_BACK = 8;
constexpr unsigned VK_RETURN = 13;
constexpr unsigned VK_DELETE = 46;

// Keys held during a mouse message.
constexpr unsigned MK_LBUTTON = 0x0001;
constexpr unsigned MK_SHIFT = 0x0004;
constexpr unsigned MK_CONTROL = 0x0008;

constexpr int BN_CLICKED = 0;
constexpr int CBN_SELCHANGE = 1;
constexpr int EN_SETFOCUS = 0x0100;
constexpr int EN_KILLFOCUS = 0x0200;
constexpr int EN_CHANGE = 0x0300;

constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;

// The first parameter of a command message: notification code high, control id low.
constexpr unsigned MakeCommandParam(int id, int code)
{
    return (static_cast<unsigned>(code & 0xFFFF) << 16) | static_cast<unsigned>(id & 0xFFFF);
}
constexpr int CommandId(unsigned param)
{
    return static_cast<int>(param & 0xFFFF);
}
constexpr int CommandCode(unsigned param)
{
    return static_cast<int>(param >> 16);
}

// A position change on its way, which the window may inspect before it happens.
struct WINDOWPOS {
    int x = 0;
    int y = 0;
    int cx = 0;
    int cy = 0;
    unsigned flags = 0;
};

} // namespace KestoPlatform
