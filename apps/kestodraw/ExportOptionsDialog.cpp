#include "ExportOptionsDialog.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>

namespace KestoDraw {

ExportOptionsDialog::ExportOptionsDialog(bool pdf, const MainWindow::ExportOptions& options, QWidget* parent)
    : QDialog(parent), m_dpi(new QDoubleSpinBox(this))
{
    setWindowTitle(pdf ? tr("PDF Options") : tr("SVG Options"));
    auto* form = new QFormLayout(this);
    if (pdf) {
        m_side = new QDoubleSpinBox(this);
        m_side->setRange(10, 5000);
        m_side->setDecimals(1);
        m_side->setSuffix(tr(" mm"));
        m_side->setValue(options.longerSideMm);
        form->addRow(tr("Page's longer side:"), m_side);
    }
    // Pictures past 8192 pixels a side are capped by the writers; the range keeps a page's
    // pictures within what a viewer opens.
    m_dpi->setRange(10, 1200);
    m_dpi->setDecimals(0);
    m_dpi->setSuffix(tr(" dpi"));
    m_dpi->setValue(options.dpi);
    // The kinds each format has no paint of its own for.
    form->addRow(pdf ? tr("Pictures of conical, plasma, bitmap and vector fills at:")
                     : tr("Pictures of conical, three- and four-colour and plasma fills at:"),
                 m_dpi);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
}

MainWindow::ExportOptions ExportOptionsDialog::Options() const
{
    return {m_side ? m_side->value() : 0, m_dpi->value()};
}

} // namespace KestoDraw
