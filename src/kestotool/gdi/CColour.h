#pragma once

#include "kestotool/gdi/KestoGDIImports.h"
#include "kestotool/platform/Export.h"

#include <memory>

namespace KestoGDI {

// A colour value: polymorphic, cloned rather than shared, with an alpha (0 transparent .. 255
// opaque) and a tint. The tint runs from -100 (black) through 0 (the colour itself) to 100
// (white); GetRGB shows the tinted colour.
class KESTO_API CColour {
public:
    virtual ~CColour() = default;

    virtual std::unique_ptr<CColour> Clone() const = 0;
    // Same kind of colour with the same stored values (name, tint and alpha included).
    virtual bool IsEqual(const CColour& other) const = 0;
    // Both null, or both showing the same RGB value with the same alpha, whatever their kind.
    static bool EqualColour(const CColour* a, const CColour* b);

    int GetAlpha() const { return m_alpha; }
    // Clamped to 0..255.
    void SetAlpha(int alpha);
    short GetTint() const { return m_tint; }
    // Clamped to -100..100.
    void SetTint(short tint);

    // The colour as displayed: the base colour with the tint applied.
    COLORREF GetRGB() const;
    // Luminance of GetRGB, 0 (black) .. 255 (white).
    int GetIntensity() const;

    // The colour a fraction t (0..1) of the way from a to b, channel by channel with alpha.
    // Two grey levels blend to a grey level; anything else to an RGB colour.
    static std::unique_ptr<CColour> Interpolate(const CColour& a, const CColour& b, double t);

protected:
    CColour(short tint, int alpha);
    CColour(const CColour&) = default;
    CColour& operator=(const CColour&) = default;

    virtual COLORREF GetBaseRGB() const = 0;
    bool SameTintAndAlpha(const CColour& other) const { return m_tint == other.m_tint && m_alpha == other.m_alpha; }

private:
    short m_tint = 0;
    unsigned char m_alpha = 255;
};

} // namespace KestoGDI
