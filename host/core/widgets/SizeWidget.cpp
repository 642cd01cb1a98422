#include "host/core/widgets/SizeWidget.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/widgets/FocusTracker.h"
#include "host/core/widgets/LockToggle.h"
#include "host/core/widgets/SpinBox.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>

namespace Korvex::Meridane::Designer {
namespace {
using Common::LocalizationHelper;

constexpr double largestDimension = 99999;
} // namespace

SizeWidget::SizeWidget(QWidget* parent)
    : QWidget(parent)
    , m_width(new SpinBox(false, this))
    , m_height(new SpinBox(false, this))
    , m_lock(new LockToggle(this))
{
    auto* widthLabel = new QLabel(LocalizationHelper::coreString(QStringLiteral("W")), this);
    auto* heightLabel = new QLabel(LocalizationHelper::coreString(QStringLiteral("H")), this);
    widthLabel->setBuddy(m_width);
    heightLabel->setBuddy(m_height);
    m_width->setAccessibleName(LocalizationHelper::coreString(QStringLiteral("Width")));
    m_height->setAccessibleName(LocalizationHelper::coreString(QStringLiteral("Height")));
    for (SpinBox* field : {m_width, m_height}) {
        field->setRange(0, largestDimension);
        field->setSuffix(LocalizationHelper::coreString(QStringLiteral(" px")));
    }

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widthLabel);
    layout->addWidget(m_width, 1);
    layout->addWidget(m_lock);
    layout->addWidget(heightLabel);
    layout->addWidget(m_height, 1);
    m_lock->hide();
    setFocusProxy(m_width);

    connect(m_width, &SpinBox::userModified, this, &SizeWidget::userModifiedWidth);
    connect(m_height, &SpinBox::userModified, this, &SizeWidget::userModifiedHeight);
    connect(this, &SizeWidget::userModifiedWidth, this, &SizeWidget::userModified);
    connect(this, &SizeWidget::userModifiedHeight, this, &SizeWidget::userModified);
    connect(m_lock, &LockToggle::userModified, this, &SizeWidget::userModifiedLock);
    auto* focus = new FocusTracker(this);
    connect(focus, &FocusTracker::entered, this, &SizeWidget::focusedIn);
    connect(focus, &FocusTracker::left, this, &SizeWidget::focusedOut);
}

void SizeWidget::setDecimals(int decimals)
{
    m_width->setDecimals(decimals);
    m_height->setDecimals(decimals);
}

void SizeWidget::setMinimum(const QSizeF& minimum)
{
    m_width->setMinimum(minimum.width());
    m_height->setMinimum(minimum.height());
}

void SizeWidget::setMaximum(const QSizeF& maximum)
{
    m_width->setMaximum(maximum.width());
    m_height->setMaximum(maximum.height());
}

void SizeWidget::setSuffix(const QString& suffix)
{
    m_width->setSuffix(suffix);
    m_height->setSuffix(suffix);
}

QSizeF SizeWidget::value() const
{
    return {m_width->value(), m_height->value()};
}

void SizeWidget::setValue(const QSizeF& size)
{
    m_width->setValue(size.width());
    m_height->setValue(size.height());
}

void SizeWidget::setRelativeInputAllowed(bool allowed)
{
    m_width->setRelativeInputAllowed(allowed);
    m_height->setRelativeInputAllowed(allowed);
}

NumberOperation SizeWidget::widthOperation() const
{
    return m_width->operation();
}

NumberOperation SizeWidget::heightOperation() const
{
    return m_height->operation();
}

void SizeWidget::setMixed(bool widthIsMixed, bool heightIsMixed)
{
    m_width->setMixed(widthIsMixed);
    m_height->setMixed(heightIsMixed);
}

void SizeWidget::setLockVisible(bool visible)
{
    m_lock->setVisible(visible);
}

bool SizeWidget::isLocked() const
{
    return m_lock->isLocked();
}

void SizeWidget::setLocked(bool locked)
{
    m_lock->setLocked(locked);
}
} // namespace Korvex::Meridane::Designer
