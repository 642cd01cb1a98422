#include "images/ImageSizeWidget.h"

#include "host/core/objects/ElementText.h"
#include "host/core/widgets/SizeWidget.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

ImageSizeWidget::ImageSizeWidget(QWidget* parent)
    : QWidget(parent)
    , m_size(new SizeWidget(this))
    , m_button(new QPushButton(elementText("Set to Image Size"), this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_size);
    layout->addWidget(m_button);
    m_size->setMinimum(QSizeF(1, 1));
    m_size->setMaximum(QSizeF(LargestSide, LargestSide));
    m_size->setDecimals(2);
    m_button->setDefault(false);
    m_button->setAutoDefault(false);
    m_button->setEnabled(false);
    connect(m_size, &SizeWidget::userModifiedWidth, this, &ImageSizeWidget::userModified);
    connect(m_size, &SizeWidget::userModifiedHeight, this, &ImageSizeWidget::userModified);
    connect(m_button, &QPushButton::clicked, this, &ImageSizeWidget::onButtonClicked);
}

void ImageSizeWidget::setImageSize(const QSize& size)
{
    m_size->setValue(size);
}

void ImageSizeWidget::setImageWidth(int width)
{
    m_size->setValue(QSizeF(width, m_size->value().height()));
}

void ImageSizeWidget::setImageHeight(int height)
{
    m_size->setValue(QSizeF(m_size->value().width(), height));
}

void ImageSizeWidget::setButtonEnabled(bool enabled)
{
    if (m_button->isEnabled() != enabled)
        m_button->setEnabled(enabled);
}

void ImageSizeWidget::onButtonClicked()
{
    Q_EMIT imageSizeWanted();
}

} // namespace Korvex::Meridane::Designer
