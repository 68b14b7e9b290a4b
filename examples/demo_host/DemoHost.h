#pragma once

#include <kestotool/filltool/FillTool.h>
#include <kestotool/tool/IDocumentEx.h>
#include <kestotool/tool/IToolHelper.h>
#include <kestotool/tool/IToolSite.h>

#include <string>

// A tiny host: one rectangle with a fill, a 10-unit grid, 15-degree angle steps and an undo
// list of names. It applies every fill a tool commits and hands it back to the tool.
class DemoHost : public KestoTool::IToolSite, public KestoTool::IDocumentEx, public KestoTool::IToolHelper {
public:
    explicit DemoHost(const Platform::CRect& object) : m_object(object) {}

    KestoTool::FillTool* tool = nullptr;
    Kernel::RefPtr<KestoGDI::CFill> fill;   // the document's fill of the rectangle
    bool create = false;
    bool inDrag = false;
    int commits = 0;
    std::wstring lastUndoName;

    // Plays one mouse gesture on the tool; the geometry it leaves is applied at the end.
    void Drag(Platform::CPoint from, Platform::CPoint to, unsigned flags);
    // A press and release without a move: selects the handle under the point.
    void Click(Platform::CPoint at);
    const Platform::CRect& Object() const { return m_object; }

    unsigned long GetToolColour() override { return 0xD77800; }  // a blue
    Kesto2D::K2DLtGeneral GetObjectToSpreadTransform() override { return {}; }
    Kesto2D::K2DLtGeneral GetAppObjectToSpreadTransform() override { return {}; }
    void ClientToPaper(Platform::SIZE*) override {}
    Platform::CRect GetObjectBBox() override { return m_object; }
    Platform::CRect GetTransformedObjectBBox() override { return m_object; }
    bool IsCreate() override { return create; }
    bool IsInDrag() override { return inDrag; }
    void ConstrainAngle(Platform::CPoint origin, Platform::CPoint& point, bool flag) override;
    void ConstrainAnglePolar(Platform::CPoint origin, Platform::CPoint& point) override { ConstrainAngle(origin, point, false); }
    void Snap(const Platform::CPoint& in, Platform::CPoint& out) override;
    Platform::CString GetCurrentSelectionDescription() override { return L"Rectangle: "; }
    void AddContextItem(int) override {}
    KestoTool::IDocumentEx* GetDocument() override { return this; }
    void UpdateFill(const KestoGDI::CFill* committed, const wchar_t* undoName) override;
    void UpdateTransparency(const KestoGDI::CFill* committed, const wchar_t* undoName, bool) override
    {
        UpdateFill(committed, undoName);
    }
    void SetFillType(const Platform::CRuntimeClass*) override {}
    void SetTransparencyType(const Platform::CRuntimeClass*) override {}
    void NotifyHandlesReset() override {}
    double GetAngleSnapTolerance() override { return 20; }

    KestoTool::IToolHelper* GetToolHelper() override { return this; }

    int CreateColourControl(Platform::XTP_COMMANDBARS_CREATECONTROL*) override { return 0; }
    bool ColourPicker(const KestoGDI::CColour*, KestoGDI::CColour*& result, Platform::CWnd*) override
    {
        result = nullptr;
        return false;
    }
    KestoGDI::CColour* ColourPicker(const KestoGDI::CColour*, Platform::CWnd*) override { return nullptr; }
    KestoGDI::CColour* AskUserForNewColour(const KestoGDI::CColour*, Platform::CPoint, Platform::CWnd*) override
    {
        return nullptr;
    }
    bool IsFillTypeAvailable(KestoGDI::CFill*) override { return true; }
    bool IsTransparencyTypeAvailable(KestoGDI::CFill*) override { return true; }
    bool GetDialogSetting() override { return true; }
    bool IsLockRatioAvailable() override { return true; }

private:
    Platform::CRect m_object;
};
