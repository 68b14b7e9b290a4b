#pragma once

#include "kestotool/dialogs/ExpandingFillPreviewDlg.h"
#include "kestotool/platform/CEdit.h"
#include "kestotool/platform/CStatic.h"
#include "kestotool/platform/Export.h"

#include <array>

namespace KestoTool {

// The three/four-colour editors: a row per corner of the fill, with a colour button (its swatch
// the corner's colour; a click opens the colour chooser) for a fill, or a box of the corner's
// transparency in percent for a transparency. An edit is a commit to the preview's tool, as a
// drop on its handle would be.
class KESTO_API CornerColourDlgBase : public ExpandingFillPreviewDlg {
public:
    static constexpr int MaxCorners = 4;
    KestoPlatform::CButton& GetColourButton(int corner) { return m_colours[static_cast<std::size_t>(corner)]; }
    KestoPlatform::CEdit& GetLevelEdit(int corner) { return m_levels[static_cast<std::size_t>(corner)]; }

protected:
    using ExpandingFillPreviewDlg::ExpandingFillPreviewDlg;

    bool OnInitDialog() override;
    void DoDataExchange(KestoPlatform::CDataExchange* pDX) override;
    bool OnCommand(unsigned param, KestoPlatform::CWnd* control) override;
    void OnEditedFillChanged() override;

private:
    int CornerCount() const;
    void OnColour(int corner);
    void OnLevelEntered(int corner);
    // Commits the current fill with one corner's colour replaced.
    void Recolour(int corner, const KestoGDI::CColour& colour);

    std::array<KestoPlatform::CStatic, MaxCorners> m_labels;
    std::array<KestoPlatform::CButton, MaxCorners> m_colours;
    std::array<KestoPlatform::CEdit, MaxCorners> m_levels;
};

} // namespace KestoTool
