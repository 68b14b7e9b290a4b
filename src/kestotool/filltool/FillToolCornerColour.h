#pragma once

#include "kestotool/filltool/FillToolGradient.h"
#include "kestotool/platform/Export.h"

#include <array>
#include <initializer_list>

namespace KestoTool {

// What the three- and four-colour tools do alike: their fill (of class Fill) has a colour per
// corner, the corners are its control points, and handle i shows and edits node-list entry i.
// A drag remembers the corners at the press; the handles are the corners in the tool's handle
// order; the rectangle is the corners' bounding box; there is no hint. Without a fill each
// query reports, under the tool's own class name, and answers its empty result.
template <class Fill>
class KESTO_API FillToolCornerColour : public FillToolGradient {
public:
    void OnDragStart(CPoint& point, unsigned int flags) override;
    CRect GetFillRect(const CFill* fill) override;
    int GetHintLine(CString* out) const override { return EmptyHint(out); }
    void BaseGetHandles(K2DArrayPoint* handles) const override;
    // Both measured sides at least 50 long.
    bool CheckSize() const override;
    K2DArrayPoint GetEffectiveBBox(const CFill* fill) override;

protected:
    void BuildHandleScene(HandleScene& scene) const override;
    // handleOrder: the corner each handle shows, one entry per corner of the kind; measured: the
    // two sides (pairs of corners) that must be at least 50 long.
    using Side = std::array<int, 2>;
    FillToolCornerColour(const CFill* fill, IToolSite* site, const char* module, std::initializer_list<int> handleOrder,
                         std::array<Side, 2> measured);

    // P0 .. P3 as the fill numbers its control points; P3 stays empty for three corners.
    using Corners = Figure;
    // The corners of fill (the tool's own when null); false without a fill of the kind.
    bool GetCorners(const CFill* fill, Corners& corners) const;
    void SetCorners(const Corners& corners);
    const Corners& CornersAtPress() const { return m_atPress; }
    void ReportNoFill(int line) const;
    // A drag whose current node is no corner handle.
    void ReportNoCorner() const;

    // The figure's outline.
    virtual K2DArrayPoint Outline(const Corners& corners) const = 0;

private:
    const char* m_module;
    std::array<int, 4> m_handleOrder{};
    int m_count = 0;
    std::array<Side, 2> m_measured;
    Corners m_atPress{};
};

} // namespace KestoTool
