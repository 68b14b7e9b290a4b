#pragma once

#include <kestotool/filltool/FillTool.h>
#include <kestotool/filltool/FillToolFactory.h>
#include <kestotool/filltool/ToolGesture.h>
#include <kestotool/gdi/CFillLinear.h>
#include <kestotool/platform/CXTPCommandBars.h>
#include <kestotool/tool/NullToolSite.h>

#include <memory>

// The host's side of one selected rectangle: it keeps the fill the tool commits and makes a
// control on its context toolbar for each item the tool asks for.
class RectangleSite : public KestoTool::NullToolSite {
public:
    KestoPlatform::CRect object{0, 0, 1000, 500};
    KestoKernel::RefPtr<const KestoGDI::CFill> fill;
    KestoTool::ToolGesture gesture;
    KestoTool::FillTool* tool = nullptr;
    KestoPlatform::CXTPCommandBars bars;

    // Gives the rectangle a linear fill and makes the tool that edits it, with its context
    // toolbar in bars; null if the library has no tool for the kind.
    std::unique_ptr<KestoTool::FillTool> SelectWithLinearFill()
    {
        KestoGDI::CFillLinear linear;
        linear.SetDefaultControls(object);
        fill = linear.Clone();
        std::unique_ptr<KestoTool::FillTool> made = KestoTool::FillToolFactory::Create(fill.get(), this);
        tool = made.get();
        if (tool)
            tool->InitContextButtons(&bars);
        return made;
    }

    void AddContextItem(int hostCommand) override
    {
        bars.CreateControl(
            hostCommand, true,
            [this](KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) { return tool->OnCreateControl(cc); },
            [this](KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) { tool->OnAfterCreateControl(cc); });
    }

    KestoPlatform::CRect GetObjectBBox() override { return object; }
    KestoPlatform::CRect GetTransformedObjectBBox() override { return object; }
    bool IsInDrag() override { return gesture.InDrag(); }
    // A commit shows at once; outside a gesture it would also be an undo step of its own.
    void UpdateFill(const KestoGDI::CFill* committed, const wchar_t* undoName) override
    {
        gesture.Absorb(undoName);
        fill = KestoKernel::RefPtr<const KestoGDI::CFill>(committed); // kept by reference: fills never change
    }
};
