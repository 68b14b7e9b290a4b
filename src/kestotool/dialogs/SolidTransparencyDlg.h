#pragma once

#include "kestotool/gdi/CTransparencyFlat.h"
#include "kestotool/platform/CEdit.h"
#include "kestotool/platform/CSliderCtrl.h"
#include "kestotool/platform/CSpinButtonCtrl.h"
#include "kestotool/platform/Export.h"
#include "kestotool/tool/KestoToolImports.h"
#include "kestotool/ui/FillPreview.h"
#include "kestotool/ui/KCResourceDialog.h"

namespace KestoTool {

// Edits a flat transparency as a percentage (0 opaque .. 100 clear) through a slider, an edit
// box and a spin button, with a preview. The dialog works on its own copy; GetTrans hands out
// copies of it.
class KESTO_API CSolidTransparencyDlg : public KestoUI::KCResourceDialog {
public:
    // Keeps a copy of transparency; without one, starts fully transparent (value 255).
    CSolidTransparencyDlg(const KestoGDI::CTransparencyFlat* transparency, KestoPlatform::CWnd* parent);

    RefPtr<KestoGDI::CFill> GetTrans() const;
    // Holds a copy of transparency; the preview is not told.
    void SetTrans(const KestoGDI::CTransparencyFlat* transparency);
    // Holds a copy of transparency and shows it in the preview.
    void UpdateTrans(const KestoGDI::CTransparencyFlat* transparency);
    CRect GetBBox() const { return m_bounds; }

    // Value 0..255 as a percentage and back, rounding halves up.
    static int ToPercentage(int value);
    static int FromPercentage(int percent);

    const KestoUI::FillPreview& GetPreview() const { return m_preview; }
    KestoUI::FillPreview& GetPreview() { return m_preview; }
    KestoPlatform::CSliderCtrl& GetSlider() { return m_slider; }
    KestoPlatform::CEdit& GetEdit() { return m_edit; }
    KestoPlatform::CSpinButtonCtrl& GetSpin() { return m_spin; }

protected:
    bool OnInitDialog() override;
    void DoDataExchange(KestoPlatform::CDataExchange* pDX) override;
    const KestoPlatform::AFX_MSGMAP* GetMessageMap() const override;
    void OnHScroll(int code, int pos, KestoPlatform::CWnd* bar) override;
    void OnVScroll(int code, int pos, KestoPlatform::CWnd* bar) override;
    void OnEditKillFocus();

private:
    // Gives the held transparency the current percent and shows it.
    void ApplyPercent();

    KestoUI::FillPreview m_preview;
    KestoPlatform::CEdit m_edit;
    KestoPlatform::CSliderCtrl m_slider;
    int m_percent = 0;
    KestoPlatform::CSpinButtonCtrl m_spin;
    RefPtr<KestoGDI::CTransparencyFlat> m_trans;
    const CRect m_bounds{0, 0, 1000, 1000};
};

} // namespace KestoTool
