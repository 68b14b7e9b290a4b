#pragma once

#include "kestotool/gdi/CFill.h"
#include "kestotool/geometry/K2DLtGeneral.h"
#include "kestotool/platform/Export.h"
#include "kestotool/tool/KestoToolImports.h"
#include "kestotool/tool/TypeCombos.h"

#include <functional>

namespace KestoPlatform {
class CWnd;
}

namespace KestoTool {

class IDocumentEx;
class IToolHelper;

// Opens the editor that suits the fill, modally, and answers the edited fill as a new object,
// or nothing on Cancel or for a fill no editor takes (bitmap, discrete mesh). None and solid
// fills go to the host's colour chooser instead. The fill passed in is never changed; the
// document must not be null.
KESTO_API RefPtr<KestoGDI::CFill> EditFill(IDocumentEx* document, const KestoGDI::CFill* fill, const CRect& objectRect,
                                           KestoPlatform::CWnd* parent, const Kesto2D::K2DLtGeneral& objectTransform);

// The same for a transparency; the document may be null. The string is neither read nor
// written; it stays for callers that pass one.
KESTO_API RefPtr<KestoGDI::CFill> EditTransparency(IDocumentEx* document, const KestoGDI::CFill* transparency,
                                                   CString& unused, const CRect& objectRect,
                                                   KestoPlatform::CWnd* parent);
KESTO_API RefPtr<KestoGDI::CFill> EditTransparency(IDocumentEx* document, const KestoGDI::CFill* transparency,
                                                   const CRect& objectRect, KestoPlatform::CWnd* parent);

// While an editor that EditFill or EditTransparency opened is up, show is called with the fill
// as the user has made it so far, each time it changes (the editor's own copy: copy it to keep
// it), and with null as the editor closes, before the result is handed back. A host paints that
// fill on the page in place of the document's, so that edits show as they are made and Cancel
// puts the page back; OK's result then comes as one commit. Null (the default) shows nothing.
using EditorShowNow = std::function<void(const KestoGDI::CFill* editing)>;
KESTO_API void SetEditorShowNow(EditorShowNow show);

} // namespace KestoTool
