#pragma once

#include "kestotool/dialogs/StopListEditorDlg.h"
#include "kestotool/gdi/CFillFractal.h"
#include "kestotool/platform/CButton.h"
#include "kestotool/platform/CSliderCtrl.h"
#include "kestotool/platform/Export.h"
#include "kestotool/resources/ResourceIds.h"

#include <functional>

namespace KestoTool {

// The editor of plasma fills, and of plasma transparencies too: the stop list that colours the
// pattern, and the pattern itself (seed, with a button for a new one, grain, resolution, tile
// inversion).
class KESTO_API CPlasmaFillDlg : public StopListEditorDlg {
public:
    CPlasmaFillDlg(IDocumentEx* document, const KestoGDI::CFillFractal* fill, const CRect& objectRect,
                   KestoPlatform::CWnd* parent);

    // Where New Seed takes its seeds from (a random device unless set).
    void SetSeedSource(std::function<unsigned()> source) { m_seedSource = std::move(source); }
    KestoPlatform::CEdit& GetSeedEdit() { return m_seed; }
    KestoPlatform::CEdit& GetResolutionEdit() { return m_resolution; }
    KestoPlatform::CSliderCtrl& GetGrainSlider() { return m_grain; }
    KestoPlatform::CCheckBox& GetInvertBox() { return m_invert; }

protected:
    bool OnInitDialog() override;
    void DoDataExchange(KestoPlatform::CDataExchange* pDX) override;
    const KestoPlatform::AFX_MSGMAP* GetMessageMap() const override;
    void OnEditedFillChanged() override;
    void OnHScroll(int code, int pos, KestoPlatform::CWnd* bar) override;

private:
    // Applies a change to a copy of the plasma.
    void Change(const std::function<void(KestoGDI::CFillFractal&)>& change);
    void OnNewSeed();
    void OnSeedEntered();
    void OnResolutionEntered();
    void OnInvert();

    std::function<unsigned()> m_seedSource;
    KestoPlatform::CEdit m_seed;
    KestoPlatform::CEdit m_resolution;
    KestoPlatform::CSliderCtrl m_grain;
    KestoPlatform::CCheckBox m_invert;
};

} // namespace KestoTool
