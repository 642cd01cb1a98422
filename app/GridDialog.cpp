#include "app/GridDialog.h"

#include "app/CoreText.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>

namespace Korvex::Meridane::Designer {

namespace {

QDoubleSpinBox* field(double value)
{
    auto* box = new QDoubleSpinBox;
    box->setRange(1, 1000);
    box->setDecimals(2);
    box->setSuffix(coreText(" px"));
    box->setValue(value);
    box->selectAll();
    return box;
}

} // namespace

GridDialog::GridDialog(const QSizeF& spacing, QWidget* parent)
    : QDialog(parent)
    , m_width(field(spacing.width()))
    , m_height(field(spacing.height()))
{
    setWindowTitle(coreText("Grid Spacing"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QFormLayout(this);
    layout->addRow(coreText("&Horizontal:"), m_width);
    layout->addRow(coreText("&Vertical:"), m_height);
    layout->addRow(buttons);
}

QSizeF GridDialog::spacing() const
{
    return {m_width->value(), m_height->value()};
}

} // namespace Korvex::Meridane::Designer
