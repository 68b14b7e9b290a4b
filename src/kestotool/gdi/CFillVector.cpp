#include "kestotool/gdi/CFillVector.h"

#include "kestotool/gdi/DefaultControls_p.h"
#include "kestotool/geometry/K2DStraightLine.h"
#include "kestotool/geometry/Rounding.h"

#include <cmath>
#include <numbers>

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillVector, CFillBitmap)

namespace {

// The linear part of t, undone; identity when t cannot be undone.
K2DLtGeneral InverseLinearPart(const K2DLtGeneral& t)
{
    const K2DLtGeneral linear(t.GetM11(), t.GetM12(), t.GetM21(), t.GetM22(), 0, 0);
    return linear.HasInverse() ? linear.GetInverse() : K2DLtGeneral();
}

double Length(const K2DDblPoint& from, const K2DDblPoint& to)
{
    return (to - from).Length();
}

// to moved along from->to so that it lies length away from from.
K2DDblPoint AtLength(const K2DDblPoint& from, const K2DDblPoint& to, double length)
{
    return from + (to - from).Normalized() * length;
}

} // namespace

K2DDblPoint CFillVector::GetNaturalSize() const
{
    if (!m_drawing)
        return {1, 1};
    return {static_cast<double>(m_drawing->GetWidth()), static_cast<double>(m_drawing->GetHeight())};
}

void CFillVector::SetRawBox(const Box& box, bool alreadyScaled)
{
    SetControls(box.origin, box.xEnd, box.yEnd);
    m_alreadyScaled = alreadyScaled;
}

CFillVector::Box CFillVector::GetPlacedBox() const
{
    Box box = GetRawBox();
    if (!m_alreadyScaled)
        ScaleControlBoxToMetaInstance(box.origin, box.xEnd, box.yEnd, false, false);
    return box;
}

void CFillVector::ScaleControlBoxToMetaInstance(K2DDblPoint& origin, K2DDblPoint& xEnd, K2DDblPoint& yEnd, bool yLeads,
                                                bool fitAspect) const
{
    const K2DDblPoint natural = GetNaturalSize();
    const double lx = Length(origin, xEnd);
    const double ly = Length(origin, yEnd);
    if (lx == 0 || ly == 0)
        return;
    double newX = natural.x;
    double newY = natural.y;
    if (fitAspect) {
        newX = yLeads ? ly * natural.x / natural.y : lx;
        newY = yLeads ? ly : lx * natural.y / natural.x;
    }
    xEnd = Kesto2D::SaturateToRange(AtLength(origin, xEnd, newX));
    yEnd = Kesto2D::SaturateToRange(AtLength(origin, yEnd, newY));
}

void CFillVector::ScaleControlBoxToMetaInstance(CPoint& origin, CPoint& xEnd, CPoint& yEnd, bool yLeads,
                                                bool fitAspect) const
{
    K2DDblPoint o(origin), x(xEnd), y(yEnd);
    ScaleControlBoxToMetaInstance(o, x, y, yLeads, fitAspect);
    xEnd = x.Round();
    yEnd = y.Round();
}

CPoint CFillVector::GetWidthHeight() const
{
    const Box box = GetPlacedBox();
    return K2DDblPoint(Length(box.origin, box.xEnd), Length(box.origin, box.yEnd)).Round();
}

K2DDblPoint CFillVector::GetScale(const K2DDblPoint& origin, const K2DDblPoint& xEnd, const K2DDblPoint& yEnd) const
{
    const Box box = GetPlacedBox();
    const double w = Length(box.origin, box.xEnd);
    const double h = Length(box.origin, box.yEnd);
    return {Length(origin, xEnd) / (w > 0 ? w : 1), Length(origin, yEnd) / (h > 0 ? h : 1)};
}

void CFillVector::UpdateBBox(const CRect& objectBox, const K2DLtGeneral& transform)
{
    m_objectBox = objectBox.Normalized();
    m_transform = transform;
}

void CFillVector::SetScaleRotateIndependentOfObject(bool independent, const K2DLtGeneral& objectTransform)
{
    m_independent = independent;
    m_objectTransform = independent ? InverseLinearPart(objectTransform) : K2DLtGeneral();
}

K2DDblPoint CFillVector::GetNotionalCentre() const
{
    if (!m_objectBox.IsRectEmpty())
        return {(m_objectBox.left + m_objectBox.right) / 2.0, (m_objectBox.top + m_objectBox.bottom) / 2.0};
    const Box box = GetPlacedBox();
    return {(box.xEnd.x + box.yEnd.x) / 2, (box.xEnd.y + box.yEnd.y) / 2};
}

K2DDblPoint CFillVector::ToSpread(const K2DDblPoint& p) const
{
    if (m_transform.IsIdentity() && m_objectTransform.IsIdentity())
        return p;
    const K2DDblPoint c = GetNotionalCentre();
    return Kesto2D::SaturateToRange(K2DLtGeneral::About(c, m_objectTransform.Then(m_transform)).ApplyTo(p));
}

K2DDblPoint CFillVector::FromSpread(const K2DDblPoint& p) const
{
    const K2DLtGeneral toSpread = m_objectTransform.Then(m_transform);
    if (toSpread.IsIdentity() || !toSpread.HasInverse())
        return p;
    return Kesto2D::SaturateToRange(K2DLtGeneral::About(GetNotionalCentre(), toSpread).GetInverse().ApplyTo(p));
}

void CFillVector::SetAdditionalOffsetsX1Y2(CPoint spacing)
{
    m_offset2.x = -spacing.x;
    m_offset1.y = -spacing.y;
}

void CFillVector::SetAdditionalOffsetsX2Y1(CPoint negated)
{
    m_offset1.x = -negated.x;
    m_offset2.y = -negated.y;
}

void CFillVector::SetFlipped(bool horizontal, bool vertical)
{
    m_hFlipped = horizontal;
    m_vFlipped = vertical;
}

void CFillVector::ResetExtents()
{
    const K2DDblPoint c = GetNotionalCentre();
    const K2DDblPoint size = GetNaturalSize();
    const K2DDblPoint origin(c.x - size.x / 2, c.y + size.y / 2);
    SetRawBox({origin, {origin.x + size.x, origin.y}, {origin.x, origin.y - size.y}}, true);
    m_offset1 = m_offset2 = CPoint();
    m_rotation = m_rotation2 = 0;
    m_hFlipped = m_vFlipped = false;
    m_independent = false;
    m_transform.SetToIdentity();
    m_objectTransform.SetToIdentity();
}

void CFillVector::Transform(const K2DLtGeneral& t)
{
    if (m_independent) {
        // The tile keeps its size and turn: the box and the object's box only move.
        const Box box = GetRawBox();
        const K2DDblPoint centre((box.xEnd.x + box.yEnd.x) / 2, (box.xEnd.y + box.yEnd.y) / 2);
        const Kesto2D::K2DVector move = t.ApplyTo(centre) - centre;
        SetControls(box.origin + move, box.xEnd + move, box.yEnd + move);
        m_objectBox.OffsetRect(Kesto2D::RoundHalfAwayFromZero(move.dx), Kesto2D::RoundHalfAwayFromZero(move.dy));
        return;
    }
    CFillBitmap::Transform(t);
    m_hFlipped ^= t.GetM11() < 0;
    m_vFlipped ^= t.GetM22() < 0;
}

void CFillVector::SetDefaultControls(const CRect& rect)
{
    const CRect r = rect.Normalized();
    SetRawBox({K2DDblPoint(r.left, r.bottom), K2DDblPoint(r.right, r.bottom), K2DDblPoint(r.left, r.top)}, false);
}

K2DLtGeneral CFillVector::DrawingToBox(const Box& box) const
{
    const K2DDblPoint natural = GetNaturalSize();
    const Kesto2D::K2DVector x = box.xEnd - box.origin;
    const Kesto2D::K2DVector y = box.yEnd - box.origin;
    return {x.dx / natural.x, x.dy / natural.x, -y.dx / natural.y, -y.dy / natural.y, box.yEnd.x, box.yEnd.y};
}

double CFillVector::MeasureTileRotation(const K2DDblPoint& origin, const K2DDblPoint& yEnd)
{
    Kesto2D::K2DStraightLine down, axis;
    down.SetFinite(origin, {origin.x, origin.y + 15000});
    axis.SetFinite(origin, yEnd);
    const double angle = std::numbers::pi - down.GetAngle(axis);
    return yEnd.x < origin.x ? -angle : angle;
}

K2DLtGeneral CFillVector::TileRotationTransform(double rotation)
{
    K2DLtGeneral turn;
    turn += Kesto2D::K2DLtTranslate(-0.5, -0.5);
    turn += Kesto2D::K2DLtRotate(Kesto2D::KCAngle::FromRadians(-rotation));
    turn += Kesto2D::K2DLtTranslate(0.5, 0.5);
    return turn;
}

CFillVector::Neighbours CFillVector::NeighbourOrigins(const Box& box, const K2DDblPoint& scale,
                                                      const K2DLtGeneral& turn) const
{
    Kesto2D::K2DVector u = (box.xEnd - box.origin).Normalized();
    Kesto2D::K2DVector v = (box.yEnd - box.origin).Normalized();
    if (m_vFlipped && !m_hFlipped)
        v = -v;
    if (m_hFlipped && !m_vFlipped)
        u = -u;
    const CPoint size = GetWidthHeight();
    const auto spacing = [&](double x, double y) {
        return turn.ApplyTo(Kesto2D::K2DVector(scale.x != 0 ? x / scale.x : x, scale.y != 0 ? y / scale.y : y));
    };
    Neighbours n{box.origin + spacing(m_offset1.x, m_offset2.y) + u * size.x,
                 box.origin + spacing(-m_offset2.x, -m_offset1.y) + v * size.y};
    if (m_hFlipped && m_vFlipped) {
        n.a = box.origin - (n.a - box.origin);
        n.b = box.origin - (n.b - box.origin);
    }
    return {Kesto2D::SaturateToRange(n.a), Kesto2D::SaturateToRange(n.b)};
}

bool CFillVector::IsEqualData(const CFill& other) const
{
    const auto& o = static_cast<const CFillVector&>(other);
    const bool sameDrawing = m_drawing == o.m_drawing;
    return CFillBitmap::IsEqualData(other) && sameDrawing && m_alreadyScaled == o.m_alreadyScaled &&
           m_offset1 == o.m_offset1 && m_offset2 == o.m_offset2 && m_rotation == o.m_rotation &&
           m_rotation2 == o.m_rotation2 && m_hFlipped == o.m_hFlipped && m_vFlipped == o.m_vFlipped &&
           m_independent == o.m_independent && m_transform == o.m_transform &&
           m_objectTransform == o.m_objectTransform && m_objectBox == o.m_objectBox;
}

std::size_t CFillVector::HeapBytes() const
{
    return CFillBitmap::HeapBytes() + (m_drawing ? m_drawing->Measure() : 0);
}

} // namespace KestoGDI
