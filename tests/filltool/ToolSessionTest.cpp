#include "kestotool/filltool/ToolSession.h"

#include "kestotool/filltool/FillCommands.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CFillWithStops.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/platform/CXTPControlComboBox.h"
#include "kestotool/tool/NullToolSite.h"
#include "kestotool/tool/ToolIdMap.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace KestoTool;

namespace {

// A host as the guide has one write it: its site alone, the session doing the rest.
class Host : public NullToolSite {
public:
    ToolSession session{*this};
    RefPtr<const CFill> fill;
    std::vector<std::wstring> steps;
    FillTool* toolAfterCommit = nullptr; // the tool running when a commit has been followed

    CRect GetObjectBBox() override { return {0, 0, 1000, 500}; }
    bool IsInDrag() override { return session.Gesture().InDrag(); }
    bool IsCreate() override { return session.Gesture().IsCreate(); }
    void AddContextItem(int id) override
    {
        session.Bars().CreateControl(
            id, true, [this](KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) { return session.Tool()->OnCreateControl(cc); },
            [this](KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) { session.Tool()->OnAfterCreateControl(cc); });
    }
    void UpdateFill(const CFill* committed, const wchar_t* name) override
    {
        fill = RefPtr<const CFill>(committed);
        if (!session.Gesture().Absorb(name))
            steps.push_back(name ? name : L"Edit Fill");
        session.Follow(committed);
        toolAfterCommit = session.Tool();
    }
    void SetFillType(const KestoPlatform::CRuntimeClass* kind) override { session.ChangeKind(kind); }
};

RefPtr<const CFill> Linear(KestoPlatform::COLORREF start)
{
    auto linear = KestoKernel::MakeRef<KestoGDI::CFillLinear>();
    linear->SetDefaultControls(CRect(0, 0, 1000, 500));
    KestoGDI::ColourIntPairs stops;
    stops.Add(KestoGDI::CRGBColour(start), 0);
    stops.Add(KestoGDI::CRGBColour(0x0000FF), 10000);
    linear->SetColourIntPairs(stops);
    return linear;
}

} // namespace

TEST(ToolSession, AKindChosenInTheComboBecomesAFillOfThatKindAndItsToolOnceTheComboHasReturned)
{
    KestoTool::Init(50000, 50100);
    Host host;
    int aboutToChange = 0, changed = 0;
    host.session.SetToolAboutToChange([&] { ++aboutToChange; });
    host.session.SetToolChanged([&] { ++changed; });
    host.fill = Linear(0x00FF00);
    host.session.Follow(host.fill.get());
    FillTool* linearTool = host.session.Tool();
    ASSERT_NE(linearTool, nullptr);
    EXPECT_EQ(changed, 1);
    // Another fill of the same kind: the same tool goes on with it.
    host.fill = Linear(0x00FFFF);
    host.session.Follow(host.fill.get());
    EXPECT_EQ(host.session.Tool(), linearTool);
    EXPECT_EQ(host.session.Tool()->GetFill(), host.fill.get());

    // Radial chosen in the tool's own combo, routed through the session.
    auto* combo = dynamic_cast<KestoPlatform::CXTPControlComboBox*>(
        host.session.Bars().FindControl(FillCommands::HostId(FillCmdEditType)));
    ASSERT_NE(combo, nullptr);
    for (int i = 0; i < combo->GetCount(); ++i)
        if (combo->GetItemData(i) == KestoGDI::FillType::Radial)
            combo->SetCurSel(i);
    KestoPlatform::NMXTPCONTROL notify;
    notify.pControl = combo;
    long result = 0;
    KestoPlatform::AFX_NOTIFY extra{&result, &notify};
    EXPECT_TRUE(host.session.OnCmdMsg(FillCommands::HostId(FillCmdEditType), KestoPlatform::CN_NOTIFY(100), &extra,
                                      nullptr));
    EXPECT_EQ(host.steps, std::vector<std::wstring>{L"Fill Type"});
    // The linear tool ran until its own call had returned; then the radial one came.
    EXPECT_EQ(host.toolAfterCommit, linearTool);
    const auto* radial = dynamic_cast<const KestoGDI::CFillRadial*>(host.fill.get());
    ASSERT_NE(radial, nullptr);
    EXPECT_EQ(radial->GetColourIntPairs().GetAt(0)->GetColour().GetRGB(), 0x00FFFFu); // the colours carried over
    EXPECT_EQ(host.session.Tool()->GetFill(), host.fill.get());
    EXPECT_EQ(dynamic_cast<const KestoGDI::CFillRadial*>(host.session.Tool()->GetFill()), radial);
    EXPECT_EQ(aboutToChange, 2);
    EXPECT_EQ(changed, 2);

    // A drag on the new tool is one step.
    const CPoint centre = radial->GetControlPoint(0).Round();
    ASSERT_TRUE(host.session.Press(centre, 0, false));
    host.session.Move({centre.x + 100, centre.y}, 0);
    host.session.Move({centre.x + 200, centre.y}, 0);
    const auto step = host.session.Release({centre.x + 200, centre.y}, 0);
    ASSERT_TRUE(step.has_value());
    EXPECT_EQ(step->after->GetControlPoint(0).Round(), (CPoint{centre.x + 200, centre.y}));

    // No fill: no tool, and the toolbar is empty.
    host.session.Follow(nullptr);
    EXPECT_EQ(host.session.Tool(), nullptr);
    EXPECT_EQ(host.session.Bars().GetCount(), 0);
}

TEST(ToolSession, APlainColourBecomesAGradientFromItToWhite)
{
    KestoGDI::CFillSolid solid;
    solid.SetColour(KestoGDI::CRGBColour(0x123456));
    const RefPtr<CFill> linear =
        ToolSession::Convert(&solid, KestoGDI::CFillLinear::GetThisClass(), CRect(0, 0, 200, 100));
    const auto* stops = dynamic_cast<const KestoGDI::CFillWithStops*>(linear.get());
    ASSERT_NE(stops, nullptr);
    ASSERT_EQ(stops->GetColourIntPairs().GetSize(), 2);
    EXPECT_EQ(stops->GetColourIntPairs().GetAt(0)->GetColour().GetRGB(), 0x123456u);
    EXPECT_EQ(stops->GetColourIntPairs().GetAt(1)->GetColour().GetRGB(), 0xFFFFFFu);
    EXPECT_EQ(ToolSession::Convert(&solid, nullptr, CRect(0, 0, 200, 100)), nullptr);
}
