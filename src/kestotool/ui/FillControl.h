#pragma once

#include "kestotool/gdi/IRenderTarget.h"
#include "kestotool/geometry/K2DLtGeneral.h"
#include "kestotool/platform/Export.h"
#include "kestotool/ui/FillPreview.h"

#include <span>

namespace KestoUI {

class FillControl;

// What a fill control hands its mouse gestures to, in document units, and what draws over the
// fill (handles, stop markers) through the control's view.
class KESTO_API FillControlClient {
public:
    virtual void OnControlPress(FillControl& control, KestoPlatform::CPoint point, unsigned flags) = 0;
    virtual void OnControlDrag(FillControl& control, KestoPlatform::CPoint point, unsigned flags) = 0;
    virtual void OnControlRelease(FillControl& control, KestoPlatform::CPoint point, unsigned flags) = 0;
    // view maps document units to the target's coordinates.
    virtual void DrawOverlay(const FillControl& control, KestoGDI::IRenderTarget& target,
                             const Kesto2D::K2DLtGeneral& view) const = 0;

protected:
    ~FillControlClient() = default;
};

// A fill preview that the user works in: it shows its bounds through a view (fitted and zoomed,
// or stretched over the window), lets its client draw over the fill, and turns the left
// button's gestures into press, drag and release in document units. Between a press and its
// release the control has the mouse.
class KESTO_API FillControl : public FillPreview {
public:
    enum class Fit {
        // The bounds fitted into the window with a margin for handles outside them, keeping
        // their shape, then zoomed about their centre.
        Uniform,
        // The bounds stretched over the whole window on each axis; zoom does not apply.
        Stretch,
    };
    // Zoom in percent of the fitted view.
    static constexpr int FitZoom = 100;
    static constexpr int MinZoom = 10;
    static constexpr int MaxZoom = 3200;
    // The steps ZoomIn and ZoomOut go through, as the zoom box lists them.
    static std::span<const int> ZoomSteps();

    void SetClient(FillControlClient* client) { m_client = client; }
    void SetFit(Fit fit);
    int GetZoom() const { return m_zoom; }
    // Clamped to MinZoom..MaxZoom.
    void SetZoom(int percent);
    // To the next step above (below) the zoom; false when there is none.
    bool ZoomIn();
    bool ZoomOut();

    // Document units to the window's client coordinates (dialog units).
    Kesto2D::K2DLtGeneral GetViewTransform() const;
    KestoPlatform::CPoint ClientToDocument(KestoPlatform::CPoint client) const;
    // Document units per dialog unit along x.
    double GetUnitsPerPixel() const;
    // Asks the client to draw over the fill; view maps document units to the target.
    void DrawOverlay(KestoGDI::IRenderTarget& target, const Kesto2D::K2DLtGeneral& view) const;
    bool HasMouse() const { return m_pressed; }

    void OnLButtonDown(unsigned flags, KestoPlatform::CPoint point) override;
    void OnMouseMove(unsigned flags, KestoPlatform::CPoint point) override;
    void OnLButtonUp(unsigned flags, KestoPlatform::CPoint point) override;

protected:
    KestoPlatform::WindowKind GetWindowKind() const override { return KestoPlatform::WindowKind::FillControl; }

private:
    FillControlClient* m_client = nullptr;
    Fit m_fit = Fit::Uniform;
    int m_zoom = FitZoom;
    bool m_pressed = false;
};

} // namespace KestoUI
