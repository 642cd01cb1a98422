#include "text/TextStyleWidget.h"

#include "host/core/objects/ElementText.h"
#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/ComboBox.h"

#include "host/common/EnumHelper.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMetaEnum>
#include <QVBoxLayout>

#include <algorithm>

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;

namespace {

constexpr int ColorGap = 5; // pixels between style and colour
constexpr int LabelGap = 8; // pixels between the colour's label and the colour

/// The key of the standard style in the list; in value strings its name is another one.
const QString StandardKey = QStringLiteral("Standard");
const QString StandardName = QStringLiteral("Normal");

} // namespace

TextStyleWidget::TextStyleWidget(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
    , m_style(new ComboBox({}, this))
    , m_gap(new QSpacerItem(0, ColorGap))
    , m_colorLabel(new QLabel(elementText("Style Color"), this))
    , m_color(new ColorWidget(OpaqueOnly, false, this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    // In the order of the enumeration, so that the standard style comes first.
    const char* const name = "TextStyle";
    const QMap<QString, QString> texts = EnumHelper::getEnumNames(name);
    const QMetaEnum styles = EnumHelper::createEnum(QString::fromLatin1(name));
    for (int i = 0; i < styles.keyCount(); ++i) {
        const QString key = QString::fromLatin1(styles.key(i));
        m_style->addKeyedItem(key, texts.value(key));
    }
    m_style->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(m_style, &ComboBox::userModified, this, &TextStyleWidget::onTextStyleChanged);
    connect(m_style, &ComboBox::userModified, this, [this] { m_edit = Edit::Style; });
    connect(m_style, &ComboBox::userModified, this, &TextStyleWidget::userModified);
    m_layout->addWidget(m_style, 0);
    m_layout->addSpacerItem(m_gap);

    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(LabelGap);
    m_colorLabel->setObjectName(QStringLiteral("propertyEditorHeading"));
    m_colorLabel->setTextFormat(Qt::PlainText);
    m_colorLabel->setBuddy(m_color);
    row->addWidget(m_colorLabel);
    m_color->setColor(QColor(Qt::red));
    m_color->setAccessibleLabel(m_colorLabel->text());
    connect(m_color, &ColorWidget::userModified, this, [this] { m_edit = Edit::Color; });
    connect(m_color, &ColorWidget::userModified, this, &TextStyleWidget::userModified);
    row->addWidget(m_color, 1);
    row->addStretch(0);
    m_layout->addLayout(row);
    setFocusProxy(m_style);
    onTextStyleChanged();
}

TextStyleWidget::~TextStyleWidget() = default;

QString TextStyleWidget::textStyle() const
{
    const QString key = m_style->currentItemKey();
    return key == StandardKey ? StandardName : key;
}

void TextStyleWidget::setTextStyle(const QString& style)
{
    if (style == m_style->currentItemKey() && !m_style->isMixed())
        return;
    m_style->setCurrentItemKey(style.isEmpty() ? StandardKey : style);
    if (m_style->currentIndex() < 0)
        m_style->setCurrentItemKey(StandardKey);
    onTextStyleChanged();
}

const QColor& TextStyleWidget::color() const
{
    return m_color->color();
}

void TextStyleWidget::setColor(const QColor& color)
{
    m_color->setColor(color);
}

void TextStyleWidget::setMixed(bool styles, bool colors)
{
    m_style->setMixed(styles);
    m_color->setMixed(colors);
    onTextStyleChanged();
}

QSize TextStyleWidget::minimumSizeHint() const
{
    const int row = m_colorLabel->minimumSizeHint().width() + LabelGap + m_color->minimumSizeHint().width();
    QSize size = m_layout->totalMinimumSize();
    size.setWidth(std::max(m_style->minimumSizeHint().width(), row));
    return size;
}

void TextStyleWidget::onTextStyleChanged()
{
    const bool colored = m_style->currentItemKey() != StandardKey;
    m_colorLabel->setVisible(colored);
    m_color->setVisible(colored);
    m_gap->changeSize(0, colored ? ColorGap : 0);
    m_layout->invalidate();
}

} // namespace Korvex::Meridane::Designer
