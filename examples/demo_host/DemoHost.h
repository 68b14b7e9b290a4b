#pragma once

#include <kestotool/filltool/FillTool.h>
#include <kestotool/filltool/ToolGesture.h>
#include <kestotool/tool/IDocumentEx.h>
#include <kestotool/tool/IToolHelper.h>
#include <kestotool/tool/IToolSite.h>

#include <string>

// A tiny host: one rectangle with a fill, a 10-unit grid, 15-degree angle steps and an undo
// list of names. It applies every fill a tool commits and hands it back to the tool; a mouse
// gesture is one step, however many commits it brings.
class DemoHost : public KestoTool::IToolSite, public KestoTool::IDocumentEx, public KestoTool::IToolHelper {
public:
    explicit DemoHost(const KestoPlatform::CRect& object) : m_object(object) {}

    KestoTool::FillTool* tool = nullptr;
    KestoKernel::RefPtr<const KestoGDI::CFill> fill; // the document's fill of the rectangle
    KestoTool::ToolGesture gesture;
    bool create = false; // the next Drag draws a new fill
    int commits = 0;     // undo steps recorded
    std::wstring lastUndoName;

    // Plays one mouse gesture on the tool; the geometry it leaves is applied at the end.
    void Drag(KestoPlatform::CPoint from, KestoPlatform::CPoint to, unsigned flags);
    // A press and release without a move: selects the handle under the point.
    void Click(KestoPlatform::CPoint at);
    const KestoPlatform::CRect& Object() const { return m_object; }

    unsigned long GetToolColour() override { return 0xD77800; } // a blue
    Kesto2D::K2DLtGeneral GetObjectToSpreadTransform() override { return {}; }
    Kesto2D::K2DLtGeneral GetAppObjectToSpreadTransform() override { return {}; }
    void ClientToPaper(KestoPlatform::SIZE*) override {}
    KestoPlatform::CRect GetObjectBBox() override { return m_object; }
    KestoPlatform::CRect GetTransformedObjectBBox() override { return m_object; }
    bool IsCreate() override { return gesture.IsCreate(); }
    bool IsInDrag() override { return gesture.InDrag(); }
    void ConstrainAngle(KestoPlatform::CPoint origin, KestoPlatform::CPoint& point, bool flag) override;
    void ConstrainAnglePolar(KestoPlatform::CPoint origin, KestoPlatform::CPoint& point) override
    {
        ConstrainAngle(origin, point, false);
    }
    void Snap(const KestoPlatform::CPoint& in, KestoPlatform::CPoint& out) override;
    KestoPlatform::CString GetCurrentSelectionDescription() override { return L"Rectangle: "; }
    void AddContextItem(int) override {}
    KestoTool::IDocumentEx* GetDocument() override { return this; }
    void UpdateFill(const KestoGDI::CFill* committed, const wchar_t* undoName) override;
    void UpdateTransparency(const KestoGDI::CFill* committed, const wchar_t* undoName, bool) override
    {
        UpdateFill(committed, undoName);
    }
    void SetFillType(const KestoPlatform::CRuntimeClass*) override {}
    void SetTransparencyType(const KestoPlatform::CRuntimeClass*) override {}
    void NotifyHandlesReset() override {}
    double GetAngleSnapTolerance() override { return 20; }

    KestoTool::IToolHelper* GetToolHelper() override { return this; }

    int CreateColourControl(KestoPlatform::XTP_COMMANDBARS_CREATECONTROL*) override { return 0; }
    bool ColourPicker(const KestoGDI::CColour*, KestoGDI::CColour*& result, KestoPlatform::CWnd*) override
    {
        result = nullptr;
        return false;
    }
    KestoGDI::CColour* ColourPicker(const KestoGDI::CColour*, KestoPlatform::CWnd*) override { return nullptr; }
    KestoGDI::CColour* AskUserForNewColour(const KestoGDI::CColour*, KestoPlatform::CPoint,
                                           KestoPlatform::CWnd*) override
    {
        return nullptr;
    }
    bool IsFillTypeAvailable(KestoGDI::CFill*) override { return true; }
    bool IsTransparencyTypeAvailable(KestoGDI::CFill*) override { return true; }
    bool GetDialogSetting() override { return true; }
    bool IsLockRatioAvailable() override { return true; }

private:
    // Records a step: the document takes the fill and hands it back to the tool.
    void Record(const KestoGDI::CFill* committed, const wchar_t* undoName);

    KestoPlatform::CRect m_object;
};
