#include "PreferencesDialog.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QSpinBox>

#include <cmath>

namespace KestoDraw {

PreferencesDialog::PreferencesDialog(int grid, int angleStep, QWidget* parent)
    : QDialog(parent), m_grid(new QSpinBox(this)), m_angle(new QDoubleSpinBox(this))
{
    setWindowTitle(tr("Preferences"));
    m_grid->setRange(0, 10000);
    m_grid->setSpecialValueText(tr("Off"));
    m_grid->setSuffix(tr(" units"));
    m_grid->setValue(grid);
    m_angle->setRange(0, 90);
    m_angle->setDecimals(2);
    m_angle->setSpecialValueText(tr("Off"));
    m_angle->setSuffix(QStringLiteral("°"));
    m_angle->setValue(angleStep / 100.0);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* form = new QFormLayout(this);
    form->addRow(tr("Snap to grid:"), m_grid);
    form->addRow(tr("Shift constrains angles to steps of:"), m_angle);
    form->addRow(buttons);
}

int PreferencesDialog::Grid() const
{
    return m_grid->value();
}

int PreferencesDialog::AngleStep() const
{
    return static_cast<int>(std::lround(m_angle->value() * 100));
}

} // namespace KestoDraw
