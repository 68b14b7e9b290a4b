#pragma once

#include "kestotool/dialogs/ExpandingFillPreviewDlg.h"
#include "kestotool/dialogs/GradientBar.h"
#include "kestotool/platform/CEdit.h"
#include "kestotool/platform/CStatic.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// The editors of fills with a stop list (gradients and plasma): the stops on a bar, the selected
// stop's position (percent), colour and level (a fill's opacity or a transparency's clearness,
// percent), a Delete button, and the angle of the fill's first axis (degrees, anticlockwise on
// screen). Boxes take what was typed when they lose the focus.
class KESTO_API StopListEditorDlg : public ExpandingFillPreviewDlg {
public:
    GradientBar& GetBar() { return m_bar; }
    KestoPlatform::CEdit& GetPositionEdit() { return m_position; }
    KestoPlatform::CEdit& GetLevelEdit() { return m_level; }
    KestoPlatform::CEdit& GetAngleEdit() { return m_angle; }

    // The angle of the direction from control point 0 to control point 1, in degrees.
    static double AngleOf(const KestoGDI::CFill& fill);
    // The fill turned about control point 0 so that AngleOf answers degrees.
    static RefPtr<KestoGDI::CFill> WithAngle(const KestoGDI::CFill& fill, double degrees);

protected:
    StopListEditorDlg(int templateId, IDocumentEx* document, const KestoGDI::CFill* fill, const CRect& objectRect,
                      KestoPlatform::CWnd* parent);

    bool OnInitDialog() override;
    void DoDataExchange(KestoPlatform::CDataExchange* pDX) override;
    const KestoPlatform::AFX_MSGMAP* GetMessageMap() const override;
    void OnEditedFillChanged() override;
    // Makes the fill the edited one, with its stops sorted.
    void Apply(const KestoGDI::CFill& fill);

private:
    void ApplyStops(const KestoGDI::ColourIntPairs& stops);
    void ShowSelectedStop();
    bool IsTransparency() const;
    void OnDelete();
    void OnColour();
    void OnPositionEntered();
    void OnLevelEntered();
    void OnAngleEntered();

    GradientBar m_bar;
    KestoPlatform::CEdit m_position;
    KestoPlatform::CEdit m_level;
    KestoPlatform::CEdit m_angle;
    KestoPlatform::CButton m_delete;
    KestoPlatform::CButton m_colour;
    KestoPlatform::CStatic m_levelLabel;
};

} // namespace KestoTool
