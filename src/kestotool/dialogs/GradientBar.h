#pragma once

#include "kestotool/gdi/ColourIntPairs.h"
#include "kestotool/platform/Export.h"
#include "kestotool/tool/KestoToolImports.h"
#include "kestotool/ui/FillControl.h"

#include <functional>

namespace KestoTool {

// The stop list of an editor as a bar: the stops painted by the renderer from left (position 0)
// to right (10000), a marker under each stop, the selected one ringed. A press on a marker
// selects it and drags it along the bar; a press between markers adds a stop there in the
// colour the bar shows at that point, selected and dragged on from the press.
class KESTO_API GradientBar final : public KestoUI::FillControl, private KestoUI::FillControlClient {
public:
    // Bar units: the width of the list and the height of the bar.
    static constexpr int Width = 10000;
    static constexpr int Height = 1000;
    // Pixels: a marker's radius, and how near a press must be to a marker to take it.
    static constexpr int MarkerRadius = 6;
    static constexpr int MarkerReach = 7;

    GradientBar();

    // Told after each change the user makes to the stops (a stop added or moved); done on the
    // release that ends the gesture.
    std::function<void(bool done)> onStopsChanged;

    // Shows a stop list of a fill (a transparency's grey levels are how clear it is), keeping
    // the selection where it can; maxStops bounds how many a click may add (-1: no bound).
    void SetStops(const KestoGDI::ColourIntPairs& stops, bool transparency, int maxStops);
    const KestoGDI::ColourIntPairs& GetStops() const { return m_stops; }
    // The selected stop's index, always a valid one while there are stops.
    int GetSelected() const { return m_selected; }
    void Select(int index);
    // The stop whose marker is within reach of a bar position; -1 for none.
    int StopAt(int position) const;

private:
    void OnControlPress(KestoUI::FillControl& control, CPoint point, unsigned flags) override;
    void OnControlDrag(KestoUI::FillControl& control, CPoint point, unsigned flags) override;
    void OnControlRelease(KestoUI::FillControl& control, CPoint point, unsigned flags) override;
    void DrawOverlay(const KestoUI::FillControl& control, KestoGDI::IRenderTarget& target,
                     const Kesto2D::K2DLtGeneral& view) const override;
    // Shows the list on the bar's own fill.
    void ShowStops();
    void MoveSelected(int position);

    KestoGDI::ColourIntPairs m_stops;
    bool m_transparency = false;
    int m_maxStops = 0;
    int m_selected = 0;
    bool m_dragging = false;
};

} // namespace KestoTool
