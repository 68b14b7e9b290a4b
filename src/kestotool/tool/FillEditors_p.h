#pragma once

#include "kestotool/gdi/CFill.h"
#include "kestotool/geometry/K2DLtGeneral.h"
#include "kestotool/tool/KestoToolImports.h"

namespace KestoPlatform {
class CWnd;
}

namespace KestoTool {

class IDocumentEx;

// The editor dialogs sit above the tools, since their previews run the tools, so a tool's Edit
// command opens them through this table. The dialogs fill it in when the library loads; an empty
// entry opens nothing.
struct FillEditors {
    using EditFill = RefPtr<KestoGDI::CFill> (*)(IDocumentEx*, const KestoGDI::CFill*, const CRect&,
                                                 KestoPlatform::CWnd*, const Kesto2D::K2DLtGeneral&);
    using EditTransparency = RefPtr<KestoGDI::CFill> (*)(IDocumentEx*, const KestoGDI::CFill*, const CRect&,
                                                         KestoPlatform::CWnd*);

    EditFill editFill = nullptr;
    EditTransparency editTransparency = nullptr;

    static FillEditors& Installed();
};

} // namespace KestoTool
