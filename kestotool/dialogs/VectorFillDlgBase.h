#pragma once

#include "kestotool/dialogs/ExpandingFillPreviewDlg.h"
#include "kestotool/gdi/CFillVector.h"
#include "kestotool/geometry/K2DLtGeneral.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// The editor of vector fills; it also knows the object's transform, to place the tiles.
class KESTO_API CVectorFillDlgBase : public ExpandingFillPreviewDlg {
public:
    CVectorFillDlgBase(IDocumentEx* document, const KestoGDI::CFillVector* fill, const CRect& objectRect,
                       Platform::CWnd* parent, int templateId, const Kesto2D::K2DLtGeneral& objectTransform)
        : ExpandingFillPreviewDlg(templateId, document, fill, objectRect, parent, CommitRule::ToolOnly), m_objectTransform(objectTransform)
    {
    }
    const Kesto2D::K2DLtGeneral& GetObjectTransform() const { return m_objectTransform; }

private:
    Kesto2D::K2DLtGeneral m_objectTransform;
};

} // namespace KestoTool
