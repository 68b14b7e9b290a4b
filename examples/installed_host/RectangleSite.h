#pragma once

#include <kestotool/filltool/FillTool.h>
#include <kestotool/gdi/CFill.h>
#include <kestotool/platform/CXTPCommandBars.h>
#include <kestotool/tool/NullToolSite.h>

// The host's side of one selected rectangle: it keeps the fill the tool commits and makes a
// control on its context toolbar for each item the tool asks for.
class RectangleSite : public KestoTool::NullToolSite {
public:
    Platform::CRect object{0, 0, 1000, 500};
    Kernel::RefPtr<KestoGDI::CFill> fill;
    bool inDrag = false;
    KestoTool::FillTool* tool = nullptr;
    Platform::CXTPCommandBars bars;

    void AddContextItem(int hostCommand) override
    {
        bars.CreateControl(
            hostCommand, true, [this](Platform::XTP_COMMANDBARS_CREATECONTROL* cc) { return tool->OnCreateControl(cc); },
            [this](Platform::XTP_COMMANDBARS_CREATECONTROL* cc) { tool->OnAfterCreateControl(cc); });
    }

    Platform::CRect GetObjectBBox() override { return object; }
    Platform::CRect GetTransformedObjectBBox() override { return object; }
    bool IsInDrag() override { return inDrag; }
    void UpdateFill(const KestoGDI::CFill* committed, const wchar_t*) override { fill = committed->Clone(); }
};
