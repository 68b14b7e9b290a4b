#pragma once

#include "kestotool/gdi/CColour.h"
#include "kestotool/geometry/K2DArrayPoint.h"
#include "kestotool/geometry/K2DCurve.h"
#include "kestotool/platform/Export.h"
#include "kestotool/tool/KestoToolImports.h"

#include <variant>
#include <vector>

namespace KestoTool {

// What a tool shows over its object: its control lines and handles, in document units and in
// drawing order. A tool says it once (FillTool::BuildHandleScene) and FillTool::Draw emits it to
// either render interface. A line's highlight widens its halo while a colour is dragged over it;
// the render context shows no highlight but on the lines that ask for it.
class KESTO_API HandleScene {
public:
    struct Line {
        CPoint a, b;
        bool highlight;
    };
    struct Curve {
        Kesto2D::K2DCurve curve;
        bool highlight;
    };
    struct Polyline {
        Kesto2D::K2DArrayPoint points;
        bool highlight;
        bool contextHighlight; // the rare line that the render context highlights too
    };
    struct Handle {
        CPoint at;
        unsigned long colour; // RGB
        int index;            // the node it shows; -1 for none
    };
    using Item = std::variant<Line, Curve, Polyline, Handle>;

    void AddLine(const CPoint& a, const CPoint& b, bool highlight) { m_items.push_back(Line{a, b, highlight}); }
    void AddCurve(Kesto2D::K2DCurve curve, bool highlight) { m_items.push_back(Curve{std::move(curve), highlight}); }
    void AddPolyline(Kesto2D::K2DArrayPoint points, bool highlight, bool contextHighlight = false)
    {
        m_items.push_back(Polyline{std::move(points), highlight, contextHighlight});
    }
    void AddHandle(const CPoint& at, unsigned long colour, int index) { m_items.push_back(Handle{at, colour, index}); }
    // A handle in the colour's RGB value; black without a colour.
    void AddHandle(const CPoint& at, const KestoGDI::CColour* colour, int index)
    {
        AddHandle(at, colour ? colour->GetRGB() : 0, index);
    }

    const std::vector<Item>& Items() const { return m_items; }

private:
    std::vector<Item> m_items;
};

} // namespace KestoTool
