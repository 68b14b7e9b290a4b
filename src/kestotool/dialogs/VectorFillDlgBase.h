#pragma once

#include "kestotool/dialogs/ExpandingFillPreviewDlg.h"
#include "kestotool/gdi/CFillVector.h"
#include "kestotool/geometry/K2DLtGeneral.h"
#include "kestotool/platform/CButton.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

class FillToolVector;

// The editor of vector fills; it also knows the object's transform, to place the tiles. Its
// buttons are the vector tool's own: the handle mode (scaling or spacing; the button names the
// mode the handles are in), Reset, and whether the tiles turn and scale with their object.
class KESTO_API CVectorFillDlgBase : public ExpandingFillPreviewDlg {
public:
    CVectorFillDlgBase(IDocumentEx* document, const KestoGDI::CFillVector* fill, const CRect& objectRect,
                       KestoPlatform::CWnd* parent, int templateId, const Kesto2D::K2DLtGeneral& objectTransform);
    const Kesto2D::K2DLtGeneral& GetObjectTransform() const { return m_objectTransform; }
    KestoPlatform::CButton& GetModeButton() { return m_mode; }
    KestoPlatform::CCheckBox& GetTransformBox() { return m_transform; }

protected:
    bool OnInitDialog() override;
    void DoDataExchange(KestoPlatform::CDataExchange* pDX) override;
    const KestoPlatform::AFX_MSGMAP* GetMessageMap() const override;
    void OnEditedFillChanged() override;

private:
    FillToolVector* VectorTool() const;
    // Shows what the tool did to its fill.
    void ShowToolFill();
    void OnMode();
    void OnReset();
    void OnTransform();

    Kesto2D::K2DLtGeneral m_objectTransform;
    KestoPlatform::CButton m_mode;
    KestoPlatform::CCheckBox m_transform;
};

} // namespace KestoTool
