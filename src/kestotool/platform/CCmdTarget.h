#pragma once

#include "kestotool/platform/CObject.h"
#include "kestotool/platform/CXTPCommandBars.h"
#include "kestotool/platform/Export.h"

#include <span>
#include <type_traits>

namespace KestoPlatform {

class CCmdTarget;
class CCmdUI;

// Routing codes of OnCmdMsg: a command (also a button click), an update request, a control's
// command notification (its own code, such as EN_KILLFOCUS), or a toolbar control's notification.
constexpr int CN_COMMAND = 0;
constexpr int CN_UPDATE_COMMAND_UI = -1;
// A notification's routing code carries its notification code in the low 16 bits.
constexpr int CN_NOTIFY(int notifyCode)
{
    return (0x4E << 16) | (notifyCode & 0xFFFF);
}

// What accompanies a notification: the control's record and where the handler puts its result.
struct AFX_NOTIFY {
    long* pResult = nullptr;
    NMXTPCONTROL* pNMHDR = nullptr;
};

// Filled in instead of calling the handler when a caller only asks whether one exists.
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget = nullptr;
};

enum class MsgKind { Command, Update, Notify, Control };

// One row of a class's message map: which message it takes and how to call the handler.
struct AFX_MSGMAP_ENTRY {
    MsgKind kind;
    int id;
    int idLast;
    int notifyCode;
    void (*invoke)(CCmdTarget* target, int id, void* extra);
};

struct AFX_MSGMAP {
    const AFX_MSGMAP* pBaseMap;
    std::span<const AFX_MSGMAP_ENTRY> entries;
};

// An object that receives commands through a table-driven message map, each class's map
// chained to its base's. The derived class's rows are searched first.
class KESTO_API CCmdTarget : public CObject {
    KESTO_DECLARE_DYNAMIC(CCmdTarget)
public:
    // Dispatches a command (CN_COMMAND), an update request (CN_UPDATE_COMMAND_UI, extra is the
    // CCmdUI) or a notification (CN_NOTIFY(code), extra is the AFX_NOTIFY). With info, only
    // tells whether a handler exists. Answers whether a handler was found.
    virtual bool OnCmdMsg(int id, int code, void* extra, AFX_CMDHANDLERINFO* info);

    static const AFX_MSGMAP* GetThisMessageMap();

protected:
    virtual const AFX_MSGMAP* GetMessageMap() const { return GetThisMessageMap(); }
};

namespace MessageMap {
namespace Detail {
template <class M>
struct MemberOf;
template <class T, class R, class... A>
struct MemberOf<R (T::*)(A...)> {
    using type = T;
};
template <auto Handler>
using Class = typename MemberOf<decltype(Handler)>::type;
} // namespace Detail

// Rows for a map, each calling a member function of the class that owns the map:
//   void OnX();                            Command(id) / CommandRange(first, last) with void OnX(int id)
//   void OnUpdateX(CCmdUI*);               Update(id)
//   void OnX(NMXTPCONTROL*, long* result); Notify(id, code)
template <auto Handler>
constexpr AFX_MSGMAP_ENTRY Command(int id)
{
    return {MsgKind::Command, id, id, 0,
            [](CCmdTarget* t, int, void*) { (static_cast<Detail::Class<Handler>*>(t)->*Handler)(); }};
}

template <auto Handler>
constexpr AFX_MSGMAP_ENTRY CommandRange(int first, int last)
{
    return {MsgKind::Command, first, last, 0,
            [](CCmdTarget* t, int id, void*) { (static_cast<Detail::Class<Handler>*>(t)->*Handler)(id); }};
}

template <auto Handler>
constexpr AFX_MSGMAP_ENTRY Update(int id)
{
    return {MsgKind::Update, id, id, 0, [](CCmdTarget* t, int, void* extra) {
                (static_cast<Detail::Class<Handler>*>(t)->*Handler)(static_cast<CCmdUI*>(extra));
            }};
}

// A control's command notification (an edit box losing focus, a value changed): void OnX().
template <auto Handler>
constexpr AFX_MSGMAP_ENTRY Control(int id, int notifyCode)
{
    return {MsgKind::Control, id, id, notifyCode,
            [](CCmdTarget* t, int, void*) { (static_cast<Detail::Class<Handler>*>(t)->*Handler)(); }};
}

template <auto Handler>
constexpr AFX_MSGMAP_ENTRY Notify(int id, int notifyCode)
{
    return {MsgKind::Notify, id, id, notifyCode, [](CCmdTarget* t, int, void* extra) {
                auto* n = static_cast<AFX_NOTIFY*>(extra);
                (static_cast<Detail::Class<Handler>*>(t)->*Handler)(n ? n->pNMHDR : nullptr, n ? n->pResult : nullptr);
            }};
}

} // namespace MessageMap

} // namespace KestoPlatform
