// FillTool's drawing: a tool's handle scene emitted on either render path, handle by handle and
// line by line.
#include "kestotool/filltool/FillTool.h"

#include "kestotool/geometry/Rounding.h"
#include "kestotool/kernel/VerifyReporter.h"

#include <optional>
#include <variant>
#include <vector>

namespace KestoTool {
namespace {

using KestoGDI::RenderBrush;
using KestoGDI::RenderPen;

// The numbers this file reports its broken preconditions with.
constexpr int kReportDrawWithoutTarget = 172;
constexpr int kReportDrawWithoutContext = 173;

constexpr COLORREF kHaloColour = 0xFFFFFF;
constexpr int kHaloAlpha = 192;

// One layer of a handle, drawn outermost first: a disc (or square) of the radius, filled with
// the brush if any, outlined with the pen if any.
struct HandleLayer {
    double radius;
    std::optional<RenderBrush> fill;
    std::optional<RenderPen> pen;
};

// The face of a handle: its colour inside the tool's ring, with a halo.
std::vector<HandleLayer> FaceLayers(bool outlineOnly, bool selected, COLORREF colour, COLORREF toolColour, double s)
{
    const double r0 = s * FillTool::s_nHandleSize * 0.5;
    const RenderPen outline{toolColour, 255, s};
    if (outlineOnly)
        return {{r0 + 5 * s, RenderBrush{0x000000, 255}, std::nullopt}};
    if (selected) {
        // A small colour dot inside a ring, with a wide halo.
        return {{r0 + 4.5 * s, RenderBrush{kHaloColour, kHaloAlpha}, std::nullopt},
                {r0 - 0.5 * s, RenderBrush{colour, 255}, std::nullopt},
                {r0 + 2 * s, std::nullopt, outline}};
    }
    return {{r0 + 2.5 * s, RenderBrush{kHaloColour, kHaloAlpha}, std::nullopt},
            {r0, RenderBrush{colour, 255}, outline}};
}

// The look of a handle, the same on both render paths. s is one pixel in target units. The
// hot handle (the one under the pointer) is ringed on top.
std::vector<HandleLayer> HandleLayers(bool outlineOnly, bool selected, bool hot, COLORREF colour, COLORREF toolColour,
                                      double s)
{
    std::vector<HandleLayer> layers = FaceLayers(outlineOnly, selected, colour, toolColour, s);
    if (hot && !outlineOnly)
        layers.push_back({s * FillTool::s_nHandleSize * 0.5 + 6 * s, std::nullopt, RenderPen{toolColour, 255, 2 * s}});
    return layers;
}

// The strokes of a control line, the same on both render paths: a white halo, wider while a
// colour is dragged over a highlighted line, then the line itself unless only outlines are drawn.
std::vector<RenderPen> LinePasses(bool outlineOnly, bool wideHalo, COLORREF toolColour, double s)
{
    std::vector<RenderPen> passes{{kHaloColour, kHaloAlpha, (wideHalo ? 6 : 3) * s}};
    if (!outlineOnly)
        passes.push_back({toolColour, 255, s});
    return passes;
}

// A transparency's grey levels show as their complement.
COLORREF Inverted(COLORREF c)
{
    return KestoPlatform::RGB(255 - KestoPlatform::GetRValue(c), 255 - KestoPlatform::GetGValue(c),
                              255 - KestoPlatform::GetBValue(c));
}

int Radius(double r)
{
    return Kesto2D::RoundHalfAwayFromZero(r);
}

COLORREF ToolColour(const FillTool& tool)
{
    return static_cast<COLORREF>(tool.GetToolColour() & 0xFFFFFF);
}

// The handle's face colour as shown: complemented for a transparency.
COLORREF Face(const FillTool& tool, unsigned long colour)
{
    const auto c = static_cast<COLORREF>(colour & 0xFFFFFF);
    return tool.IsTransparency() ? Inverted(c) : c;
}

std::vector<RenderPen> Passes(const FillTool& tool, bool outlineOnly, bool highlight, double s)
{
    return LinePasses(outlineOnly, highlight && tool.HasGhostNode(), ToolColour(tool), s);
}

K2DArrayPoint Mapped(const K2DArrayPoint& points, const K2DLtGeneral& t)
{
    K2DArrayPoint mapped;
    for (const CPoint& p : points)
        mapped.Add(t.ApplyTo(p));
    return mapped;
}

template <class... Ts>
struct Overloaded : Ts... {
    using Ts::operator()...;
};
// Spelled out for compilers that do not yet deduce an aggregate's arguments (clang before 17).
template <class... Ts>
Overloaded(Ts...) -> Overloaded<Ts...>;

} // namespace

void FillTool::BuildHandleScene(HandleScene&) const {}

void FillTool::Draw(IRenderTarget* target, bool outlineOnly, const K2DLtGeneral& view) const
{
    m_viewTransform = view;
    if (!target) {
        KestoKernel::VerifyFailed("KestoTool", "FillTool", kReportDrawWithoutTarget, "pass a render target");
        return;
    }
    HandleScene scene;
    BuildHandleScene(scene);
    for (const HandleScene::Item& item : scene.Items()) {
        std::visit(
            Overloaded{
                [&](const HandleScene::Line& l) { DrawControlLine(target, outlineOnly, l.a, l.b, l.highlight); },
                [&](const HandleScene::Curve& c) {
                    DrawControlLine(target, outlineOnly, K2DCurve(c.curve), c.highlight);
                },
                [&](const HandleScene::Polyline& p) { DrawControlLine(target, outlineOnly, p.points, p.highlight); },
                [&](const HandleScene::Handle& h) { DrawBoxControl(target, outlineOnly, h.at, h.colour, h.index); },
            },
            item);
    }
}

void FillTool::Draw(CRenderContext* context) const
{
    if (!context) {
        KestoKernel::VerifyFailed("KestoTool", "FillTool", kReportDrawWithoutContext, "pass a render context");
        return;
    }
    HandleScene scene;
    BuildHandleScene(scene);
    for (const HandleScene::Item& item : scene.Items()) {
        std::visit(Overloaded{
                       [&](const HandleScene::Line& l) { DrawControlLine(context, l.a, l.b, false); },
                       [&](const HandleScene::Curve& c) { DrawControlLine(context, K2DCurve(c.curve), false); },
                       [&](const HandleScene::Polyline& p) { DrawControlLine(context, p.points, p.contextHighlight); },
                       [&](const HandleScene::Handle& h) { DrawBoxControl(context, h.at, h.colour, h.index); },
                   },
                   item);
    }
}

void FillTool::DrawBoxControl(IRenderTarget* target, bool outlineOnly, const CPoint& point, unsigned long colour,
                              int index) const
{
    const CPoint c = m_viewTransform.ApplyTo(point);
    const bool selected = index >= 0 && index == GetCurrentNode();
    const bool hot = index >= 0 && index == GetHotNode() && !IsInDrag();
    const double s = target->ScalePixels(1);
    for (const HandleLayer& layer :
         HandleLayers(outlineOnly, selected, hot, Face(*this, colour), ToolColour(*this), s)) {
        if (layer.fill)
            target->DrawDisc(c, Radius(layer.radius), *layer.fill, layer.pen);
        else
            target->DrawCircle(c, Radius(layer.radius), *layer.pen);
    }
}

void FillTool::DrawBoxControl(IRenderTarget* target, bool outlineOnly, const CPoint& point, const CColour* colour,
                              int index) const
{
    DrawBoxControl(target, outlineOnly, point, colour ? colour->GetRGB() : 0, index);
}

void FillTool::DrawBoxControl(CRenderContext* context, const CPoint& point, unsigned long colour, int index) const
{
    const CPoint c = m_viewTransform.ApplyTo(point);
    const bool selected = index >= 0 && index == GetCurrentNode();
    const bool hot = index >= 0 && index == GetHotNode() && !IsInDrag();
    const double s = context->ScalePixels(1);
    for (const HandleLayer& layer : HandleLayers(false, selected, hot, Face(*this, colour), ToolColour(*this), s)) {
        CRect square(c, c);
        square.InflateRect(Radius(layer.radius), Radius(layer.radius));
        KestoGDI::CBrushSession brush(*context, layer.fill);
        KestoGDI::CPenSession pen(*context, layer.pen);
        context->Rectangle(square);
    }
}

void FillTool::DrawControlLine(IRenderTarget* target, bool outlineOnly, const CPoint& a, const CPoint& b,
                               bool highlight) const
{
    const CPoint ta = m_viewTransform.ApplyTo(a);
    const CPoint tb = m_viewTransform.ApplyTo(b);
    for (const RenderPen& pen : Passes(*this, outlineOnly, highlight, target->ScalePixels(1)))
        target->DrawLine(ta, tb, pen);
}

void FillTool::DrawControlLine(IRenderTarget* target, bool outlineOnly, K2DCurve&& curve, bool highlight) const
{
    curve.Transform(m_viewTransform);
    for (const RenderPen& pen : Passes(*this, outlineOnly, highlight, target->ScalePixels(1)))
        target->DrawCurve(curve, pen);
}

void FillTool::DrawControlLine(IRenderTarget* target, bool outlineOnly, const K2DArrayPoint& points,
                               bool highlight) const
{
    const K2DArrayPoint mapped = Mapped(points, m_viewTransform);
    for (const RenderPen& pen : Passes(*this, outlineOnly, highlight, target->ScalePixels(1)))
        target->DrawPolyline(mapped, pen);
}

void FillTool::DrawControlLine(CRenderContext* context, const CPoint& a, const CPoint& b, bool highlight) const
{
    const CPoint ta = m_viewTransform.ApplyTo(a);
    const CPoint tb = m_viewTransform.ApplyTo(b);
    for (const RenderPen& pen : Passes(*this, false, highlight, context->ScalePixels(1))) {
        KestoGDI::CPenSession session(*context, pen);
        context->Line(ta, tb);
    }
}

void FillTool::DrawControlLine(CRenderContext* context, K2DCurve&& curve, bool highlight) const
{
    curve.Transform(m_viewTransform);
    for (const RenderPen& pen : Passes(*this, false, highlight, context->ScalePixels(1))) {
        KestoGDI::CPenSession session(*context, pen);
        context->Curve(curve);
    }
}

void FillTool::DrawControlLine(CRenderContext* context, const K2DArrayPoint& points, bool highlight) const
{
    const K2DArrayPoint mapped = Mapped(points, m_viewTransform);
    for (const RenderPen& pen : Passes(*this, false, highlight, context->ScalePixels(1))) {
        KestoGDI::CPenSession session(*context, pen);
        context->Polyline(mapped);
    }
}

} // namespace KestoTool
