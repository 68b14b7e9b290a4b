#pragma once

#include "kestotool/platform/Export.h"
#include "kestotool/tool/IToolHelper.h"
#include "kestotool/tool/IToolSite.h"
#include "kestotool/tool/SiteGeometry.h"

namespace KestoTool {

// A site that answers the empty result of most questions and keeps every commit to itself: no
// transform, no snapping, no document. Shift constrains angles to steps of DefaultAngleStep, as
// the tools' hints promise. A tool made without a site talks to one, and does nothing; a host
// derives from it to write only the operations it needs. A kind chosen in the type combo reaches
// SetFillType or SetTransparencyType, which this site can only report (once): a host that shows
// the combo overrides them.
class KESTO_API NullToolSite : public IToolSite {
public:
    // 15 degrees, in hundredths.
    static constexpr int DefaultAngleStep = 1500;

    unsigned long GetToolColour() override { return 0; }
    Kesto2D::K2DLtGeneral GetObjectToSpreadTransform() override { return {}; }
    Kesto2D::K2DLtGeneral GetAppObjectToSpreadTransform() override { return {}; }
    void ClientToPaper(KestoPlatform::SIZE*) override {}
    CRect GetObjectBBox() override { return {}; }
    CRect GetTransformedObjectBBox() override { return {}; }
    bool IsCreate() override { return false; }
    bool IsInDrag() override { return false; }
    void ConstrainAngle(CPoint origin, CPoint& point, bool) override
    {
        point = SiteGeometry::ConstrainToAngleStep(origin, point, DefaultAngleStep);
    }
    void ConstrainAnglePolar(CPoint origin, CPoint& point) override { ConstrainAngle(origin, point, false); }
    void Snap(const CPoint& in, CPoint& out) override { out = in; }
    CString GetCurrentSelectionDescription() override { return {}; }
    void AddContextItem(int) override {}
    IDocumentEx* GetDocument() override { return nullptr; }
    void UpdateFill(const KestoGDI::CFill*, const wchar_t*) override {}
    void UpdateTransparency(const KestoGDI::CFill*, const wchar_t*, bool) override {}
    void SetFillType(const KestoPlatform::CRuntimeClass*) override;
    void SetTransparencyType(const KestoPlatform::CRuntimeClass*) override;
    void NotifyHandlesReset() override {}
    // With nothing to snap to, a constrained angle is always taken, however far it moves the point.
    double GetAngleSnapTolerance() override { return 1 << 20; }
};

// A tool helper whose pickers answer nothing, which offers every kind in the type combos and no
// lock ratio.
class KESTO_API NullToolHelper : public IToolHelper {
public:
    int CreateColourControl(KestoPlatform::XTP_COMMANDBARS_CREATECONTROL*) override { return 0; }
    bool ColourPicker(const KestoGDI::CColour*, KestoGDI::CColour*& result, KestoPlatform::CWnd*) override
    {
        result = nullptr;
        return false;
    }
    KestoGDI::CColour* ColourPicker(const KestoGDI::CColour*, KestoPlatform::CWnd*) override { return nullptr; }
    KestoGDI::CColour* AskUserForNewColour(const KestoGDI::CColour*, CPoint, KestoPlatform::CWnd*) override
    {
        return nullptr;
    }
    bool IsFillTypeAvailable(KestoGDI::CFill*) override { return true; }
    bool IsTransparencyTypeAvailable(KestoGDI::CFill*) override { return true; }
    bool GetDialogSetting() override { return false; }
    bool IsLockRatioAvailable() override { return false; }
};

} // namespace KestoTool
