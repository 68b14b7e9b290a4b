#pragma once

#include "kestotool/gdi/BlendMode.h"
#include "kestotool/gdi/FillType.h"
#include "kestotool/gdi/FillVisitor.h"
#include "kestotool/gdi/KestoGDIImports.h"
#include "kestotool/kernel/CRefCount.h"
#include "kestotool/platform/Export.h"

#include <span>

namespace KestoGDI {

// A fill or transparency of an object: the paint model that the tools edit.
//
// Fills are shared through their reference count and never changed while shared: an editor
// clones, changes the clone and hands the whole new fill on. Clone answers a RefPtr, which holds
// the clone's first reference.
//
// Geometry: each kind places its paint with a fixed list of control points in double precision,
// in object space; the order is documented at each class. GetControls, SetControls and
// Transform work on that list for every kind alike, and keep every point inside the coordinate
// range (Kesto2D::CoordinateLimit), saturating what falls outside.
//
// Rendering: KestoGDI::FillPaint turns a fill into the renderer's paint (FillPaint::From), which
// KestoRaster renders for any affine placement; the host clips the result to the object's
// outline (FillPaint::PaintOver does it all for a preview).
class KESTO_API CFill : public KestoPlatform::CObject, public KestoKernel::CRefCount {
    KESTO_DECLARE_DYNAMIC(CFill)
public:
    // The run-time class of the fill kind with that type number; null for an unknown number.
    static const CRuntimeClass* GetRuntimeClassFromType(int type);
    // A new fill of a creatable fill class in its default state; null for any other class.
    static RefPtr<CFill> CreateFromClass(const CRuntimeClass* runtimeClass);

    virtual RefPtr<CFill> Clone() const = 0;
    virtual FillType::Type GetFillType() const = 0;
    virtual bool IsTransparency() const { return false; }
    // The kind's name as type combos show it (FillKinds).
    virtual const wchar_t* GetTypeAsString() const;
    // Calls the visitor's Visit for this fill's kind.
    virtual void Accept(FillVisitor& visitor) = 0;
    virtual void Accept(ConstFillVisitor& visitor) const = 0;

    bool IsNone() const;
    bool IsSolid() const;

    int GetControlCount() const { return static_cast<int>(ControlPoints().size()); }
    // Control point index; out of range reports "Verify failed" and answers (0, 0).
    K2DDblPoint GetControlPoint(int index) const;
    // Appends the control points, rounded to integer points, to out (null: "Verify failed").
    void GetControls(K2DArrayPoint* out) const;
    // Takes the control points from an array with exactly GetControlCount points; any other
    // count answers false and changes nothing.
    bool SetControls(const K2DArrayPoint& points);
    // Takes the control points in double precision, as GetControlPoint answers them, saturated
    // to the coordinate range; a count other than GetControlCount answers false and changes
    // nothing.
    bool SetControlPoints(std::span<const K2DDblPoint> points);
    // Takes the control points of another fill with the same number of them; false otherwise.
    bool SetControls(const CFill* other);
    // Places the fill to cover the rectangle in the kind's natural way; see each class.
    virtual void SetDefaultControls(const CRect& rect);
    // Maps the control points through t (for example from object space to page space).
    virtual void Transform(const K2DLtGeneral& t);

    // Same class and same value: controls, colours, stops, attributes.
    bool IsEqual(const CFill& other) const;

    // Opacity of the whole fill, clamped to 0 (transparent) .. 255 (opaque).
    int GetAlpha() const { return m_alpha; }
    void SetAlpha(int alpha);
    BlendMode GetBlendMode() const { return m_blendMode; }
    void SetBlendMode(BlendMode mode) { m_blendMode = mode; }
    bool GetOverprint() const { return m_overprint; }
    void SetOverprint(bool overprint) { m_overprint = overprint; }

    std::size_t Measure() const override;

protected:
    CFill() = default;
    CFill(const CFill&) = default;
    CFill& operator=(const CFill&) = default;

    // The kind's control points; none for kinds without geometry.
    virtual std::span<K2DDblPoint> ControlPoints() { return {}; }
    std::span<const K2DDblPoint> ControlPoints() const { return const_cast<CFill*>(this)->ControlPoints(); }
    // Compares what a kind adds to its base; other is of the same class as this. Overrides
    // call their base first.
    virtual bool IsEqualData(const CFill& other) const;
    // Heap memory held beyond the object itself.
    virtual std::size_t HeapBytes() const { return 0; }

private:
    int m_alpha = 255;
    BlendMode m_blendMode = BlendMode::Normal;
    bool m_overprint = false;
};

} // namespace KestoGDI

// Declares and implements what every creatable fill class has: its run-time class, Clone and
// the visitor's dispatch (a transparency class reaches the Visit of the fill kind it derives from).
#define KESTO_DECLARE_FILL(Class)                                                                                      \
    KESTO_DECLARE_DYNCREATE(Class)                                                                                     \
    ::KestoKernel::RefPtr<::KestoGDI::CFill> Clone() const override;                                                   \
    void Accept(::KestoGDI::FillVisitor& visitor) override;                                                            \
    void Accept(::KestoGDI::ConstFillVisitor& visitor) const override;

#define KESTO_IMPLEMENT_FILL(Class, Base)                                                                              \
    KESTO_IMPLEMENT_DYNCREATE(Class, Base)                                                                             \
    ::KestoKernel::RefPtr<::KestoGDI::CFill> Class::Clone() const                                                      \
    {                                                                                                                  \
        return ::KestoKernel::RefPtr<::KestoGDI::CFill>(new Class(*this));                                             \
    }                                                                                                                  \
    void Class::Accept(::KestoGDI::FillVisitor& visitor)                                                               \
    {                                                                                                                  \
        visitor.Visit(*this);                                                                                          \
    }                                                                                                                  \
    void Class::Accept(::KestoGDI::ConstFillVisitor& visitor) const                                                    \
    {                                                                                                                  \
        visitor.Visit(*this);                                                                                          \
    }
