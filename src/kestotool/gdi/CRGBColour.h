#pragma once

#include "kestotool/gdi/CColour.h"
#include "kestotool/platform/Export.h"

#include <string>

namespace KestoGDI {

// A plain colour from an RGB value (0x00BBGGRR), optionally named as in a palette.
class KESTO_API CRGBColour : public CColour {
public:
    explicit CRGBColour(unsigned long rgb = 0, const wchar_t* name = nullptr, short tint = 0, short alpha = 255);

    std::unique_ptr<CColour> Clone() const override { return std::make_unique<CRGBColour>(*this); }
    bool IsEqual(const CColour& other) const override;

    const std::wstring& GetName() const { return m_name; }
    void SetRGB(COLORREF rgb) { m_rgb = rgb & 0xFFFFFF; }

protected:
    COLORREF GetBaseRGB() const override { return m_rgb; }

private:
    COLORREF m_rgb;
    std::wstring m_name;
};

} // namespace KestoGDI
