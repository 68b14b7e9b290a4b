#include "filltool/FillToolFactory.h"

#include "filltool/FillToolBitmap.h"
#include "filltool/FillToolConical.h"
#include "filltool/FillToolElliptical.h"
#include "filltool/FillToolFourColour.h"
#include "filltool/FillToolLinear.h"
#include "filltool/FillToolPlasma.h"
#include "filltool/FillToolRadial.h"
#include "filltool/FillToolSquare.h"
#include "filltool/FillToolThreeColour.h"
#include "filltool/FillToolVector.h"
#include "gdi/CFillConical.h"
#include "gdi/CFillBitmap.h"
#include "gdi/CFillEllipse.h"
#include "gdi/CFillFourColour.h"
#include "gdi/CFillFractal.h"
#include "gdi/CFillLinear.h"
#include "gdi/CFillRadial.h"
#include "gdi/CFillSquare.h"
#include "gdi/CFillThreeColour.h"

namespace KestoTool {

namespace {

using namespace KestoGDI;

// The tool of each fill kind. Kinds whose tool is not built yet answer none, as kinds without a
// tool do.
class ToolChoice final : public ConstFillVisitor {
public:
    explicit ToolChoice(IToolSite* site) : m_site(site) {}

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
        tool = std::make_unique<Tool>(&fill, m_site);
    }

    IToolSite* m_site;
};

} // namespace

std::unique_ptr<FillTool> FillToolFactory::Create(const CFill* fill, IToolSite* site)
{
    if (!fill)
        return nullptr;
    ToolChoice choice(site);
    fill->Accept(choice);
    return std::move(choice.tool);
}

} // namespace KestoTool
