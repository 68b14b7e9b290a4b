#pragma once

#include "kestotool/gdi/CColour.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// A grey level 0 (black) .. 255 (white). Transparency stops are grey levels: the level is how
// transparent the stop is, 0 opaque and 255 fully transparent.
class KESTO_API CMonoColour : public CColour {
public:
    // The level is clamped to 0..255.
    explicit CMonoColour(int level = 0, short tint = 0);

    std::unique_ptr<CColour> Clone() const override { return std::make_unique<CMonoColour>(*this); }
    bool IsEqual(const CColour& other) const override;

    int GetLevel() const { return m_level; }
    void SetLevel(int level);

protected:
    COLORREF GetBaseRGB() const override { return KestoPlatform::RGB(m_level, m_level, m_level); }

private:
    int m_level = 0;
};

} // namespace KestoGDI
