#include "kestotool/filltool/FillToolFactory.h"

#include "kestotool/tool/NullToolSite.h"

#include "kestotool/filltool/FillToolBitmap.h"
#include "kestotool/filltool/FillToolConical.h"
#include "kestotool/filltool/FillToolElliptical.h"
#include "kestotool/filltool/FillToolFourColour.h"
#include "kestotool/filltool/FillToolLinear.h"
#include "kestotool/filltool/FillToolPlasma.h"
#include "kestotool/filltool/FillToolRadial.h"
#include "kestotool/filltool/FillToolSquare.h"
#include "kestotool/filltool/FillToolThreeColour.h"
#include "kestotool/filltool/FillToolVector.h"
#include "kestotool/filltool/FillToolWrapper.h"
#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillConical.h"
#include "kestotool/gdi/CFillEllipse.h"
#include "kestotool/gdi/CFillFourColour.h"
#include "kestotool/gdi/CFillFractal.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/gdi/CFillSquare.h"
#include "kestotool/gdi/CFillThreeColour.h"

namespace KestoTool {

namespace {

using namespace KestoGDI;

// The tool of each fill kind. Kinds whose tool is not built yet answer none, as kinds without a
// tool do.
class ToolChoice final : public ConstFillVisitor {
public:
    ToolChoice(IToolSite* site, bool wrapped) : m_site(site), m_wrapped(wrapped) {}

    std::unique_ptr<FillTool> tool;

    void Visit(const CFillNone&) override {}
    void Visit(const CFillSolid&) override {}
    void Visit(const CFillLinear& fill) override { Make<FillToolLinear>(fill); }
    void Visit(const CFillRadial& fill) override { Make<FillToolRadial>(fill); }
    void Visit(const CFillEllipse& fill) override { Make<FillToolElliptical>(fill); }
    void Visit(const CFillConical& fill) override { Make<FillToolConical>(fill); }
    void Visit(const CFillSquare& fill) override { Make<FillToolSquare>(fill); }
    void Visit(const CFillThreeColour& fill) override { Make<FillToolThreeColour>(fill); }
    void Visit(const CFillFourColour& fill) override { Make<FillToolFourColour>(fill); }
    void Visit(const CFillFractal& fill) override { Make<FillToolPlasma>(fill); }
    void Visit(const CFillBitmap& fill) override { Make<FillToolBitmap>(fill); }
    void Visit(const CFillDiscreteMesh&) override {}
    void Visit(const CFillVector& fill) override { Make<FillToolVector>(fill); }

private:
    template <class Tool>
    void Make(const CFill& fill)
    {
        if (m_wrapped)
            tool = std::make_unique<FillToolWrapper<Tool>>(&fill, m_site);
        else
            tool = std::make_unique<Tool>(&fill, m_site);
    }

    IToolSite* m_site;
    bool m_wrapped;
};

} // namespace

namespace {

std::unique_ptr<FillTool> Choose(const CFill* fill, IToolSite* site, bool wrapped)
{
    if (!fill)
        return nullptr;
    ToolChoice choice(site, wrapped);
    fill->Accept(choice);
    return std::move(choice.tool);
}

} // namespace

std::unique_ptr<FillTool> FillToolFactory::Create(const CFill* fill, IToolSite* site)
{
    return Choose(fill, site, false);
}

std::unique_ptr<FillTool> FillToolFactory::CreateWrapped(const CFill* fill, IToolSite* site)
{
    return Choose(fill, site, true);
}

bool FillToolFactory::HasTool(const CFill* fill)
{
    static NullToolSite probe; // the tool made to find out talks to no one
    return Choose(fill, &probe, false) != nullptr;
}

} // namespace KestoTool
