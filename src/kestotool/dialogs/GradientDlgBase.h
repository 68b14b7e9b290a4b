#pragma once

#include "kestotool/dialogs/StopListEditorDlg.h"
#include "kestotool/platform/CComboBox.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// The gradient editors (fill and transparency): the stop list, and a kind box (linear, radial,
// elliptical, conical, square) whose choice places a gradient of that kind over the object with
// the same stops.
class KESTO_API GradientDlgBase : public StopListEditorDlg {
public:
    KestoPlatform::CComboBox& GetKindCombo() { return m_kind; }

protected:
    using StopListEditorDlg::StopListEditorDlg;

    bool OnInitDialog() override;
    void DoDataExchange(KestoPlatform::CDataExchange* pDX) override;
    const KestoPlatform::AFX_MSGMAP* GetMessageMap() const override;
    void OnEditedFillChanged() override;

private:
    void OnKindSelected();

    KestoPlatform::CComboBox m_kind;
};

} // namespace KestoTool
