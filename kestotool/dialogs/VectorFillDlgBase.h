#pragma once

#include "dialogs/FillEditorDlg.h"
#include "gdi/CFillVector.h"
#include "geometry/K2DLtGeneral.h"

namespace KestoTool {

// The editor of vector fills; it also knows the object's transform, to place the tiles.
class CVectorFillDlgBase : public CFillEditorDlg {
public:
    CVectorFillDlgBase(IDocumentEx* document, const KestoGDI::CFillVector* fill, const CRect& objectRect,
                       Platform::CWnd* parent, int templateId, const Kesto2D::K2DLtGeneral& objectTransform)
        : CFillEditorDlg(templateId, document, fill, objectRect, parent), m_objectTransform(objectTransform)
    {
    }
    const Kesto2D::K2DLtGeneral& GetObjectTransform() const { return m_objectTransform; }

private:
    Kesto2D::K2DLtGeneral m_objectTransform;
};

} // namespace KestoTool
