#include "text/TextAlignButtonGroup.h"

#include "host/core/objects/ElementText.h"
#include "host/core/widgets/IconTint.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QToolButton>

#include <algorithm>
#include <array>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int Columns = 3;
constexpr int ButtonSize = 24; // pixels
constexpr int IconSize = 20;

struct Place
{
    const char* icon;
    const char* toolTip;
    int alignment;
};

/// Row by row.
constexpr std::array Places{
    Place{":/images/alignTopLeft", QT_TRANSLATE_NOOP("VisualDesigner", "Align text to the top left corner"),
          Qt::AlignTop | Qt::AlignLeft},
    Place{":/images/alignTop", QT_TRANSLATE_NOOP("VisualDesigner", "Align text to the top"),
          Qt::AlignTop | Qt::AlignHCenter},
    Place{":/images/alignTopRight", QT_TRANSLATE_NOOP("VisualDesigner", "Align text to the top right corner"),
          Qt::AlignTop | Qt::AlignRight},
    Place{":/images/alignLeft", QT_TRANSLATE_NOOP("VisualDesigner", "Align text to the left"),
          Qt::AlignVCenter | Qt::AlignLeft},
    Place{":/images/alignCenter", QT_TRANSLATE_NOOP("VisualDesigner", "Align text to the center"),
          Qt::AlignVCenter | Qt::AlignHCenter},
    Place{":/images/alignRight", QT_TRANSLATE_NOOP("VisualDesigner", "Align text to the right"),
          Qt::AlignVCenter | Qt::AlignRight},
    Place{":/images/alignBottomLeft", QT_TRANSLATE_NOOP("VisualDesigner", "Align text to the bottom left corner"),
          Qt::AlignBottom | Qt::AlignLeft},
    Place{":/images/alignBottom", QT_TRANSLATE_NOOP("VisualDesigner", "Align text to the bottom center"),
          Qt::AlignBottom | Qt::AlignHCenter},
    Place{":/images/alignBottomRight", QT_TRANSLATE_NOOP("VisualDesigner", "Align text to the bottom right corner"),
          Qt::AlignBottom | Qt::AlignRight},
};

/// The place that a key leads to from \a place, both row by row; -1 for a key that leads nowhere.
int neighbour(int place, const QKeyEvent& event)
{
    if (event.modifiers() & ~Qt::KeypadModifier)
        return -1;
    const int row = place / Columns;
    const int column = place % Columns;
    const int last = static_cast<int>(Places.size()) - 1;
    switch (event.key()) {
    case Qt::Key_Left:
        return row * Columns + std::max(column - 1, 0);
    case Qt::Key_Right:
        return row * Columns + std::min(column + 1, Columns - 1);
    case Qt::Key_Up:
        return std::max(place - Columns, column);
    case Qt::Key_Down:
        return std::min(place + Columns, last - (Columns - 1 - column));
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    default:
        return -1;
    }
}

/// A button that draws its icon, of which the alpha alone counts, in the colours of the palette: in that of text, or in
/// that of selected text while it is checked. A ring around it shows the keyboard focus.
class AlignButton : public QToolButton
{
public:
    using QToolButton::QToolButton;

protected:
    void paintEvent(QPaintEvent*) override
    {
        constexpr double RingWidth = 1.5;
        constexpr double Radius = 2.5;
        QStylePainter painter(this);
        QStyleOptionToolButton option;
        initStyleOption(&option);
        option.icon = QIcon();
        option.state.setFlag(QStyle::State_On, false);
        option.state.setFlag(QStyle::State_HasFocus, false);
        painter.drawComplexControl(QStyle::CC_ToolButton, option);

        const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
        const QColor highlight = palette().color(group, QPalette::Highlight);
        const QRect inner = QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, iconSize(), rect());
        painter.setRenderHint(QPainter::Antialiasing);
        if (isChecked()) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(highlight);
            painter.drawRoundedRect(inner, Radius, Radius);
        }
        if (hasFocus()) {
            constexpr double Inset = RingWidth / 2;
            painter.setPen(QPen(highlight, RingWidth));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(QRectF(rect()).adjusted(Inset, Inset, -Inset, -Inset), Radius, Radius);
        }

        const QColor ink = palette().color(group, isChecked() ? QPalette::HighlightedText : QPalette::ButtonText);
        painter.drawPixmap(inner, IconTint::tinted(icon().pixmap(iconSize(), devicePixelRatioF()), ink));
    }

    /// The group moves between its buttons.
    void keyPressEvent(QKeyEvent* event) override
    {
        if (neighbour(0, *event) >= 0)
            event->ignore();
        else
            QToolButton::keyPressEvent(event);
    }
};

} // namespace

TextAlignButtonGroup::TextAlignButtonGroup(QWidget* parent)
    : QWidget(parent)
{
    setLayoutDirection(Qt::LeftToRight); // left is left in every language
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2);
    for (const Place& place : Places) {
        const int index = static_cast<int>(m_alignments.size());
        QToolButton* button =
            createButton(QString::fromLatin1(place.icon), elementText(place.toolTip), place.alignment);
        grid->addWidget(button, index / Columns, index % Columns);
        m_alignments.append(place.alignment);
        m_values.insert(button, place.alignment);
        m_buttons.insert(place.alignment, button);
    }
    row->addLayout(grid, 0);
    row->addStretch(0);
    for (QToolButton* button : std::as_const(m_buttons))
        button->setObjectName(QStringLiteral("textAlignment"));
    moveTabStop(m_alignment);
}

TextAlignButtonGroup::~TextAlignButtonGroup() = default;

QToolButton* TextAlignButtonGroup::createButton(const QString& icon, const QString& toolTip, int alignment)
{
    auto* button = new AlignButton(this);
    button->setIcon(QIcon(icon));
    button->setIconSize(QSize(IconSize, IconSize));
    button->setCheckable(true);
    button->setChecked(alignment == m_alignment);
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setFixedSize(ButtonSize, ButtonSize);
    button->setAutoRaise(true);
    // A click takes the focus, so that what is being typed elsewhere is taken over first.
    button->setFocusPolicy(Qt::ClickFocus);
    connect(button, &QToolButton::clicked, this, &TextAlignButtonGroup::onButtonClicked);
    return button;
}

void TextAlignButtonGroup::setAlignment(int alignment)
{
    if (!m_buttons.contains(alignment))
        return;
    const int before = m_alignment;
    showChecked(before, false);
    m_alignment = alignment;
    m_mixed = false;
    showChecked(alignment, true);
    moveTabStop(before);
}

void TextAlignButtonGroup::setMixed(bool mixed)
{
    m_mixed = mixed;
    showChecked(m_alignment, !mixed);
}

void TextAlignButtonGroup::onButtonClicked()
{
    auto* button = qobject_cast<QToolButton*>(sender());
    if (!button)
        return;
    const int alignment = m_values.value(button);
    if (alignment == m_alignment && !m_mixed) {
        button->setChecked(true); // the click has just unchecked it
        return;
    }
    const int before = m_alignment;
    if (alignment != before)
        showChecked(before, false);
    m_alignment = alignment;
    m_mixed = false;
    moveTabStop(before);
    Q_EMIT userModified();
}

void TextAlignButtonGroup::keyPressEvent(QKeyEvent* event)
{
    auto* focused = qobject_cast<QToolButton*>(focusWidget());
    const int place = static_cast<int>(m_alignments.indexOf(m_values.value(focused, m_alignment)));
    const int next = neighbour(place, *event);
    if (next < 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    QToolButton* button = m_buttons.value(m_alignments.at(next));
    button->setFocus(Qt::TabFocusReason);
    if (!button->isChecked())
        button->click();
}

void TextAlignButtonGroup::showChecked(int alignment, bool checked)
{
    if (QToolButton* button = m_buttons.value(alignment))
        button->setChecked(checked);
}

/// Tab leads to the button of the chosen alignment, as does the focus of the group, which was at the button \a from.
void TextAlignButtonGroup::moveTabStop(int from)
{
    QToolButton* before = m_buttons.value(from);
    QToolButton* now = m_buttons.value(m_alignment);
    if (before)
        before->setFocusPolicy(Qt::ClickFocus);
    if (!now)
        return;
    now->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(now);
    if (before && before != now && before->hasFocus())
        now->setFocus(Qt::OtherFocusReason);
}

} // namespace Korvex::Meridane::Designer
