#include "app/ScreenSizeDialog.h"

#include "app/CoreText.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int LargestSide = 20000; // pixels

QSpinBox* pixelBox(const QString& name, double value)
{
    auto* box = new QSpinBox;
    box->setRange(1, LargestSide);
    box->setSuffix(coreText(" px"));
    box->setAccelerated(true);
    box->setAccessibleName(name);
    box->setValue(qRound(value));
    return box;
}

} // namespace

ScreenSizeDialog::ScreenSizeDialog(const QString& name, const ScreenSize& proposal, QWidget* parent)
    : QDialog(parent)
    , m_width(pixelBox(coreText("Width"), proposal.size.width()))
    , m_height(pixelBox(coreText("Height"), proposal.size.height()))
    , m_leave(new QRadioButton(coreText("&Leave the elements as they are")))
    , m_scale(new QRadioButton(coreText("S&cale the elements with the screen")))
{
    setWindowTitle(coreText("Resize \"%1\"").arg(name));
    m_leave->setChecked(!proposal.scales);
    m_scale->setChecked(proposal.scales);
    m_width->selectAll();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(coreText("Resize"));

    auto* form = new QFormLayout;
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(10);
    form->addRow(coreText("&Width:"), m_width);
    form->addRow(coreText("&Height:"), m_height);
    form->addRow(m_leave);
    form->addRow(m_scale);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(20);
    layout->addLayout(form);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

ScreenSize ScreenSizeDialog::screenSize() const
{
    return {QSizeF(m_width->value(), m_height->value()), m_scale->isChecked()};
}

} // namespace Korvex::Meridane::Designer
