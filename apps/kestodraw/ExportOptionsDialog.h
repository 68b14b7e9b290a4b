#pragma once

#include "MainWindow.h"

#include <QDialog>

class QDoubleSpinBox;

namespace KestoDraw {

// The size and resolution of an SVG or PDF export: the page's longer side (PDF only) and the
// resolution of the pictures that stand for the kinds the format has no paint for.
class ExportOptionsDialog : public QDialog {
    Q_OBJECT
public:
    ExportOptionsDialog(bool pdf, const MainWindow::ExportOptions& options, QWidget* parent = nullptr);

    MainWindow::ExportOptions Options() const;

private:
    QDoubleSpinBox* m_side = nullptr; // PDF only
    QDoubleSpinBox* m_dpi;
};

} // namespace KestoDraw
