#pragma once

#include "kestotool/gdi/RenderBrush.h"
#include "kestotool/gdi/RenderPen.h"
#include "kestotool/geometry/K2DCurve.h"
#include "kestotool/platform/Export.h"

#include <optional>
#include <utility>

namespace KestoGDI {

// The older drawing path: rectangles and lines drawn with a selected pen and brush, which
// CPenSession and CBrushSession select for a scope. No pen or no brush means that part is not
// drawn.
class KESTO_API CRenderContext {
public:
    virtual ~CRenderContext() = default;

    virtual double ScalePixels(double pixels) const = 0;

    const std::optional<RenderPen>& GetPen() const { return m_pen; }
    const std::optional<RenderBrush>& GetBrush() const { return m_brush; }
    // Select and answer the previous selection.
    std::optional<RenderPen> SelectPen(const std::optional<RenderPen>& pen) { return std::exchange(m_pen, pen); }
    std::optional<RenderBrush> SelectBrush(const std::optional<RenderBrush>& brush)
    {
        return std::exchange(m_brush, brush);
    }

    virtual void Rectangle(const CRect& r) = 0;
    virtual void Line(const CPoint& a, const CPoint& b) = 0;
    virtual void Polyline(const K2DArrayPoint& points) = 0;
    virtual void Curve(const Kesto2D::K2DCurve& curve) = 0;

private:
    std::optional<RenderPen> m_pen;
    std::optional<RenderBrush> m_brush;
};

// Selects a pen for its lifetime, then restores the previous one.
class KESTO_API CPenSession {
public:
    CPenSession(CRenderContext& rc, const std::optional<RenderPen>& pen) : m_rc(rc), m_previous(rc.SelectPen(pen)) {}
    ~CPenSession() { m_rc.SelectPen(m_previous); }
    CPenSession(const CPenSession&) = delete;
    CPenSession& operator=(const CPenSession&) = delete;

private:
    CRenderContext& m_rc;
    std::optional<RenderPen> m_previous;
};

// Selects a brush for its lifetime, then restores the previous one.
class KESTO_API CBrushSession {
public:
    CBrushSession(CRenderContext& rc, const std::optional<RenderBrush>& brush)
        : m_rc(rc), m_previous(rc.SelectBrush(brush))
    {
    }
    ~CBrushSession() { m_rc.SelectBrush(m_previous); }
    CBrushSession(const CBrushSession&) = delete;
    CBrushSession& operator=(const CBrushSession&) = delete;

private:
    CRenderContext& m_rc;
    std::optional<RenderBrush> m_previous;
};

} // namespace KestoGDI
