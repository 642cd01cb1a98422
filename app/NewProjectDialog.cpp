#include "app/NewProjectDialog.h"

#include "app/CoreText.h"
#include "app/PanelSizes.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int LargestSide = 20000; // pixels, the limit of a screen

QSpinBox* pixelBox(const QString& name)
{
    auto* box = new QSpinBox;
    box->setRange(1, LargestSide);
    box->setSuffix(coreText(" px"));
    box->setAccelerated(true);
    box->setAccessibleName(name);
    return box;
}

} // namespace

NewProjectDialog::NewProjectDialog(const NewProject& proposal, QWidget* parent)
    : QDialog(parent)
    , m_name(new QLineEdit(proposal.name))
    , m_preset(new QComboBox)
    , m_width(pixelBox(coreText("Width")))
    , m_height(pixelBox(coreText("Height")))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setWindowTitle(coreText("New Project"));
    for (const QSize& preset : PanelSizes)
        m_preset->addItem(coreText("%1 × %2").arg(preset.width()).arg(preset.height()), preset);
    m_preset->addItem(coreText("Custom"));
    m_width->setValue(qRound(proposal.displaySize.width()));
    m_height->setValue(qRound(proposal.displaySize.height()));
    m_name->selectAll();
    m_buttons->button(QDialogButtonBox::Ok)->setText(coreText("Create"));

    auto* size = new QHBoxLayout;
    size->setSpacing(8);
    size->addWidget(m_width, 1);
    size->addWidget(new QLabel(QStringLiteral("×")));
    size->addWidget(m_height, 1);

    auto* form = new QFormLayout;
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(10);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->addRow(coreText("Name:"), m_name);
    form->addRow(coreText("Display:"), m_preset);
    form->addRow(coreText("Size:"), size);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(20);
    layout->addLayout(form);
    layout->addWidget(m_buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    m_name->setMinimumWidth(300);

    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_preset, &QComboBox::activated, this, &NewProjectDialog::takePreset);
    connect(m_width, &QSpinBox::valueChanged, this, &NewProjectDialog::showPreset);
    connect(m_height, &QSpinBox::valueChanged, this, &NewProjectDialog::showPreset);
    connect(m_name, &QLineEdit::textChanged, this, &NewProjectDialog::updateAcceptance);
    showPreset();
    updateAcceptance();
}

NewProject NewProjectDialog::newProject() const
{
    return {m_name->text().trimmed(), QSizeF(m_width->value(), m_height->value())};
}

void NewProjectDialog::showPreset()
{
    const int known = m_preset->findData(QSize(m_width->value(), m_height->value()));
    m_preset->setCurrentIndex(known >= 0 ? known : m_preset->count() - 1);
}

void NewProjectDialog::takePreset(int index)
{
    const QSize size = m_preset->itemData(index).toSize();
    if (!size.isValid()) {
        m_width->setFocus();
        m_width->selectAll();
        return;
    }
    const QSignalBlocker width(m_width);
    const QSignalBlocker height(m_height);
    m_width->setValue(size.width());
    m_height->setValue(size.height());
}

void NewProjectDialog::updateAcceptance()
{
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(!m_name->text().trimmed().isEmpty());
}

} // namespace Korvex::Meridane::Designer
