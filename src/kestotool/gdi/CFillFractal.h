#pragma once

#include "kestotool/gdi/CFillGradient.h"
#include "kestotool/gdi/FillWithControls.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// The plasma fill: a fractal noise pattern whose values are coloured through the stop list.
// Control points: 0 P0 and 1 P1, the start and end of the stop line; 2 P2, the end of the
// second arm from P0, which sets the width and skew of the pattern tile.
class KESTO_API CFillFractal : public FillWithControls<CFillGradient, 3> {
    KESTO_DECLARE_FILL(CFillFractal)
public:
    static constexpr int MinResolution = 2;
    static constexpr int MaxResolution = 1024;

    CFillFractal();

    FillType::Type GetFillType() const override { return FillType::Plasma; }

    void SetControls(const K2DDblPoint& p0, const K2DDblPoint& p1, const K2DDblPoint& p2) { SetPoints({p0, p1, p2}); }
    using CFill::SetControls;
    // P0 the top-left corner, P1 the top-right, P2 the bottom-left.
    void SetDefaultControls(const CRect& rect) override;

    // Roughness of the pattern, 0 (smooth) .. 100 (grainy); clamped.
    int GetGrain() const { return m_grain; }
    void SetGrain(int grain);
    // Cells along each side of the pattern tile; clamped to MinResolution..MaxResolution.
    int GetResolution() const { return m_resolution; }
    void SetResolution(int resolution);
    // The pattern is a pure function of the seed: the same seed draws the same plasma.
    unsigned GetSeed() const { return m_seed; }
    void SetSeed(unsigned seed) { m_seed = seed; }
    // Neighbouring tiles are mirrored so that the pattern has no seams.
    bool GetTileInverted() const { return m_tileInverted; }
    void SetTileInverted(bool inverted) { m_tileInverted = inverted; }

protected:
    bool IsEqualData(const CFill& other) const override;

private:
    int m_grain = 50;
    int m_resolution = 256;
    unsigned m_seed = 1;
    bool m_tileInverted = true;
};

} // namespace KestoGDI
