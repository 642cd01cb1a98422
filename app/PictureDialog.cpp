#include "app/PictureDialog.h"

#include "app/CoreText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

constexpr double SmallestScale = 0.1;
constexpr double LargestScale = 16;
enum FormatIndex
{
    Png,
    Svg
};

} // namespace

PictureDialog::PictureDialog(const QSizeF& size, const PictureChoice& proposal, QWidget* parent)
    : QDialog(parent)
    , m_size(size)
    , m_format(new QComboBox)
    , m_scale(new QDoubleSpinBox)
    , m_transparent(new QCheckBox(coreText("&Transparent background")))
    , m_pixels(new QLabel)
{
    setWindowTitle(coreText("Export Picture"));
    m_format->addItem(coreText("PNG picture"));
    m_format->addItem(coreText("SVG drawing"));
    m_format->setCurrentIndex(proposal.isDrawing ? Svg : Png);
    m_scale->setRange(SmallestScale, LargestScale);
    m_scale->setDecimals(2);
    m_scale->setValue(proposal.scale);
    m_scale->setSuffix(coreText(" ×"));
    m_transparent->setChecked(!proposal.ground);
    m_format->setMinimumWidth(200);

    auto* form = new QFormLayout;
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(10);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->addRow(coreText("&Format:"), m_format);
    form->addRow(coreText("&Scale:"), m_scale);
    form->addRow(coreText("Size:"), m_pixels);
    form->addRow(QString(), m_transparent);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(coreText("Export…"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(20);
    layout->addLayout(form);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_scale, &QDoubleSpinBox::valueChanged, this, &PictureDialog::showSize);
    showSize();
}

PictureChoice PictureDialog::choice() const
{
    return {m_format->currentIndex() == Svg, m_scale->value(), !m_transparent->isChecked()};
}

void PictureDialog::showSize()
{
    const auto pixels = [this](double length) { return std::max(qRound(length * m_scale->value()), 1); };
    m_pixels->setText(coreText("%1 × %2 px").arg(pixels(m_size.width())).arg(pixels(m_size.height())));
}

} // namespace Korvex::Meridane::Designer
