#pragma once

#include "kestotool/gdi/CColour.h"
#include "kestotool/gdi/CFill.h"
#include "kestotool/platform/Export.h"

#include <memory>

namespace KestoGDI {

// One colour over the whole object. No control points.
class KESTO_API CFillSolid : public CFill {
    KESTO_DECLARE_FILL(CFillSolid)
public:
    // Opaque black.
    CFillSolid();
    // A fill of the colour; with alphaFromColour the fill's own opacity is the colour's alpha.
    CFillSolid(const CColour& colour, bool alphaFromColour);
    CFillSolid(const CFillSolid& other);
    CFillSolid& operator=(const CFillSolid& other);
    ~CFillSolid() override;

    FillType::Type GetFillType() const override { return FillType::Solid; }

    const CColour& GetColour() const { return *m_colour; }
    void SetColour(const CColour& colour) { m_colour = colour.Clone(); }

protected:
    bool IsEqualData(const CFill& other) const override;

private:
    std::unique_ptr<CColour> m_colour;
};

} // namespace KestoGDI
