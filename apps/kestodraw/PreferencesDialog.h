#pragma once

#include <QDialog>

class QDoubleSpinBox;
class QSpinBox;

namespace KestoDraw {

// The snapping preferences: the grid that handles snap to and the angle step that Shift
// constrains lines to.
class PreferencesDialog : public QDialog {
    Q_OBJECT
public:
    // grid in document units (0: off), angleStep in hundredths of a degree (0: off).
    PreferencesDialog(int grid, int angleStep, QWidget* parent = nullptr);

    int Grid() const;
    int AngleStep() const;

private:
    QSpinBox* m_grid;
    QDoubleSpinBox* m_angle;
};

} // namespace KestoDraw
