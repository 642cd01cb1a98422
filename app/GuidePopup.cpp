#include "app/GuidePopup.h"

#include "app/CoreText.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>

namespace Korvex::Meridane::Designer {

GuidePopup::GuidePopup(const std::optional<Guide>& guide, QWidget* parent)
    : QFrame(parent, Qt::Popup)
    , m_direction(new QComboBox)
    , m_position(new QDoubleSpinBox)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("GuidePopup"));
    setAccessibleName(coreText("Position of the Guide"));
    setFrameShape(QFrame::StyledPanel);
    m_direction->addItem(coreText("Vertical, at x"), int(Qt::Vertical));
    m_direction->addItem(coreText("Horizontal, at y"), int(Qt::Horizontal));
    m_direction->setAccessibleName(coreText("Direction of the Guide"));
    m_direction->setEnabled(!guide);
    constexpr double Furthest = 100000; // pixels
    m_position->setRange(-Furthest, Furthest);
    m_position->setDecimals(3);
    m_position->setSuffix(coreText(" px"));
    m_position->setAccessibleName(accessibleName());
    if (guide) {
        m_direction->setCurrentIndex(m_direction->findData(int(guide->orientation)));
        m_position->setValue(guide->position);
    }
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(m_direction);
    layout->addWidget(m_position);
}

void GuidePopup::showAt(const QPoint& globalPos)
{
    adjustSize();
    const QRect room = screen()->availableGeometry();
    const QPoint corner = globalPos - rect().center();
    move(std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() - width())),
         std::clamp(corner.y(), room.top(), std::max(room.top(), room.bottom() - height())));
    show();
    m_position->setFocus(Qt::PopupFocusReason);
    m_position->selectAll();
}

void GuidePopup::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        m_position->interpretText();
        const Guide guide{Qt::Orientation(m_direction->currentData().toInt()), m_position->value()};
        close();
        Q_EMIT accepted(guide);
    } else {
        QFrame::keyPressEvent(event);
    }
}

} // namespace Korvex::Meridane::Designer
