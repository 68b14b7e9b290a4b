#include "kestotool/platform/CCmdTarget.h"

#include "kestotool/platform/CCmdUI.h"

namespace KestoPlatform {

KESTO_IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP map{nullptr, {}};
    return &map;
}

namespace {

bool Matches(const AFX_MSGMAP_ENTRY& e, int id, int code)
{
    if (id < e.id || id > e.idLast)
        return false;
    switch (e.kind) {
    case MsgKind::Command: return code == CN_COMMAND;
    case MsgKind::Update: return code == CN_UPDATE_COMMAND_UI;
    case MsgKind::Notify: return code == CN_NOTIFY(e.notifyCode);
    case MsgKind::Control: return code == e.notifyCode;
    }
    return false;
}

} // namespace

bool CCmdTarget::OnCmdMsg(int id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    for (const AFX_MSGMAP* map = GetMessageMap(); map; map = map->pBaseMap) {
        for (const AFX_MSGMAP_ENTRY& e : map->entries) {
            if (!Matches(e, id, code))
                continue;
            if (info) {
                info->pTarget = this;
                return true;
            }
            e.invoke(this, id, extra);
            return true;
        }
    }
    return false;
}

} // namespace KestoPlatform
