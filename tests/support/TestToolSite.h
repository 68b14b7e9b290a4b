#pragma once

#include "kestotool/filltool/FillTool.h"
#include "kestotool/tool/IToolSite.h"

#include <string>
#include <vector>

namespace KestoTest {

using KestoGDI::CFill;
using KestoPlatform::CPoint;
using KestoPlatform::CRect;

// A tool site for tests: settable scale, grid, angle step and flags; records every commit and,
// like a real host, can hand the committed fill back to the tool.
class TestToolSite : public KestoTool::IToolSite {
public:
    struct Commit {
        KestoKernel::RefPtr<CFill> fill; // a copy of what the tool committed
        bool hasName = false;
        std::wstring name;
        bool transparency = false;
        bool flag = false;
        bool gesture = false; // recorded by the host at the end of a drag, not sent by the tool
    };

    double pixelToPaper = 1.0;       // paper units per screen pixel
    int grid = 0;                    // snap to multiples of this; 0 for no grid
    int angleStep = 0;               // hundredths of a degree; 0 for no angle constraint
    double angleSnapTolerance = 5.0; // screen pixels
    std::vector<bool> angleFlags;    // the flag of each ConstrainAngle, in order
    bool create = false;
    bool inDrag = false;
    CRect objectBox;
    Kesto2D::K2DLtGeneral objectToSpread;
    unsigned long toolColour = 0xFF0000;
    KestoTool::IDocumentEx* document = nullptr;
    // When set, each commit is given back to the tool with SetFill, and context items become
    // controls of the bars made through the tool, as a host's toolbar makes them.
    KestoTool::FillTool* tool = nullptr;
    KestoPlatform::CXTPCommandBars* bars = nullptr;

    std::vector<Commit> commits;

    // Plays a drag as a host does: start, each move, end, with the flags (Shift 4, Ctrl 8), and
    // then records the geometry the tool holds as the gesture's commit.
    void Drag(KestoTool::FillTool& dragged, CPoint from, std::initializer_list<CPoint> moves, unsigned flags = 0);
    std::vector<int> contextItems;
    int handlesResets = 0;
    std::vector<const KestoPlatform::CRuntimeClass*> typeRequests;

    unsigned long GetToolColour() override { return toolColour; }
    Kesto2D::K2DLtGeneral GetObjectToSpreadTransform() override { return objectToSpread; }
    Kesto2D::K2DLtGeneral GetAppObjectToSpreadTransform() override { return objectToSpread; }
    void ClientToPaper(KestoPlatform::SIZE* size) override;
    CRect GetObjectBBox() override { return objectBox; }
    CRect GetTransformedObjectBBox() override;
    bool IsCreate() override { return create; }
    bool IsInDrag() override { return inDrag; }
    void ConstrainAngle(CPoint origin, CPoint& point, bool flag) override;
    void ConstrainAnglePolar(CPoint origin, CPoint& point) override { ConstrainAngle(origin, point, false); }
    void Snap(const CPoint& in, CPoint& out) override;
    KestoPlatform::CString GetCurrentSelectionDescription() override { return L"Rectangle: "; }
    void AddContextItem(int hostCommand) override;
    KestoTool::IDocumentEx* GetDocument() override { return document; }
    void UpdateFill(const CFill* fill, const wchar_t* undoName) override { Record(fill, undoName, false, false); }
    void UpdateTransparency(const CFill* fill, const wchar_t* undoName, bool flag) override
    {
        Record(fill, undoName, true, flag);
    }
    void SetFillType(const KestoPlatform::CRuntimeClass* c) override { typeRequests.push_back(c); }
    void SetTransparencyType(const KestoPlatform::CRuntimeClass* c) override { typeRequests.push_back(c); }
    void NotifyHandlesReset() override { ++handlesResets; }
    double GetAngleSnapTolerance() override { return angleSnapTolerance; }

private:
    void Record(const CFill* fill, const wchar_t* undoName, bool transparency, bool flag);
};

} // namespace KestoTest
