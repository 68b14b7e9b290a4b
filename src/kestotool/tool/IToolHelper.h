#pragma once

#include "kestotool/gdi/CColour.h"
#include "kestotool/gdi/CFill.h"
#include "kestotool/platform/CXTPCommandBars.h"
#include "kestotool/platform/Export.h"
#include "kestotool/tool/KestoToolImports.h"

namespace KestoPlatform {
class CWnd;
}

namespace KestoTool {

// The host's services: colour pickers, toolbar controls, type filters. Colours it returns are
// new objects owned by the caller.
class KESTO_API IToolHelper {
public:
    virtual ~IToolHelper() = default;

    // Creates the toolbar control of a node-colour command; non-zero when it did.
    virtual int CreateColourControl(KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) = 0;
    // Modal colour choice: true, with a new colour in result, when the user confirmed.
    virtual bool ColourPicker(const KestoGDI::CColour* current, KestoGDI::CColour*& result,
                              KestoPlatform::CWnd* owner) = 0;
    // Modal colour choice: a new colour, or null when cancelled.
    virtual KestoGDI::CColour* ColourPicker(const KestoGDI::CColour* current, KestoPlatform::CWnd* owner) = 0;
    // The same, opened at a screen point.
    virtual KestoGDI::CColour* AskUserForNewColour(const KestoGDI::CColour* current, CPoint where,
                                                   KestoPlatform::CWnd* owner) = 0;
    // Whether a fill type may be offered in the type combo.
    virtual bool IsFillTypeAvailable(KestoGDI::CFill* sample) = 0;
    // Whether a transparency type may be offered in the transparency-type combo.
    virtual bool IsTransparencyTypeAvailable(KestoGDI::CFill* sample) = 0;
    // A yes/no setting handed to the editor dialogs before they are shown; the host's to define.
    virtual bool GetDialogSetting() = 0;
    // Whether the host offers the lock-ratio command on the gradient tools' toolbar.
    virtual bool IsLockRatioAvailable() = 0;
};

} // namespace KestoTool
