#include "host/core/widgets/FontWidget.h"

#include "host/common/DisplayFont.h"
#include "host/common/LocalizationHelper.h"
#include "host/core/values/FontSpacing.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/ComboBox.h"
#include "host/core/widgets/FocusTracker.h"
#include "host/core/widgets/FontFamilyBox.h"
#include "host/core/widgets/FontStyleButton.h"
#include "host/core/widgets/SpinBox.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <array>

namespace Korvex::Meridane::Designer {
namespace {
using Common::LocalizationHelper;

constexpr double pointsInAPixel = 72.0 / 96.0;
constexpr double largestSpacing = 1000;

QString pointSizeKey()
{
    return QStringLiteral("pointSize");
}

QString pixelSizeKey()
{
    return QStringLiteral("pixelSize");
}

struct NamedWeight
{
    QFont::Weight weight;
    const char* name;
};
constexpr std::array<NamedWeight, 9> namedWeights{{
    {QFont::Thin, QT_TRANSLATE_NOOP("Core", "Thin")},
    {QFont::ExtraLight, QT_TRANSLATE_NOOP("Core", "Extra light")},
    {QFont::Light, QT_TRANSLATE_NOOP("Core", "Light")},
    {QFont::Normal, QT_TRANSLATE_NOOP("Core", "Normal")},
    {QFont::Medium, QT_TRANSLATE_NOOP("Core", "Medium")},
    {QFont::DemiBold, QT_TRANSLATE_NOOP("Core", "Semi-bold")},
    {QFont::Bold, QT_TRANSLATE_NOOP("Core", "Bold")},
    {QFont::ExtraBold, QT_TRANSLATE_NOOP("Core", "Extra bold")},
    {QFont::Black, QT_TRANSLATE_NOOP("Core", "Black")},
}};

SpinBox* createSpacingField(const QString& label, QWidget* parent)
{
    auto* field = new SpinBox(false, parent);
    field->setRange(-largestSpacing, largestSpacing);
    field->setSuffix(LocalizationHelper::coreString(QStringLiteral(" px")));
    field->setSingleStep(0.5);
    field->setAccessibleName(label);
    field->setToolTip(label);
    return field;
}
} // namespace

FontWidget::FontWidget(QWidget* parent)
    : QWidget(parent)
    , m_family(new FontFamilyBox(this))
    , m_import(new QToolButton(this))
    , m_size(new SpinBox(false, this))
    , m_unit(new ComboBox({}, this))
    , m_weight(new ComboBox({}, this))
    , m_letterSpacing(createSpacingField(LocalizationHelper::coreString(QStringLiteral("Letter spacing")), this))
    , m_wordSpacing(createSpacingField(LocalizationHelper::coreString(QStringLiteral("Word spacing")), this))
{
    m_size->setAccessibleName(LocalizationHelper::coreString(QStringLiteral("Font size")));
    m_size->setToolTip(m_size->accessibleName());
    m_size->setRange(1, ValueConversion::maximumFontSize());
    m_unit->addKeyedItem(pointSizeKey(), LocalizationHelper::coreString(QStringLiteral("pt")));
    m_unit->addKeyedItem(pixelSizeKey(), LocalizationHelper::coreString(QStringLiteral("px")));
    m_unit->setAccessibleName(LocalizationHelper::coreString(QStringLiteral("Unit of the font size")));
    m_weight->setAccessibleName(LocalizationHelper::coreString(QStringLiteral("Font weight")));
    m_weight->setToolTip(m_weight->accessibleName());
    m_family->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // long names do not widen the sheet
    setFocusProxy(m_family);
    m_import->setText(LocalizationHelper::coreString(QStringLiteral("Import\u2026")));
    m_import->setToolTip(LocalizationHelper::coreString(QStringLiteral("Copy a font file into the project")));
    m_import->setAccessibleName(m_import->toolTip());
    m_import->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Minimum);
    m_import->setFocusPolicy(Qt::StrongFocus);
    m_import->setEnabled(false);

    auto* styleRow = new QHBoxLayout;
    using Style = FontStyleButton::Style;
    for (const Style style : {Style::Bold, Style::Italic, Style::Underline, Style::Overline, Style::StrikeOut}) {
        auto* button = new FontStyleButton(style, this);
        connect(button, &FontStyleButton::userModified, this, [this, button] { edit(button->appliedTo(m_font)); });
        m_styles.append(button);
        styleRow->addWidget(button);
    }
    styleRow->addStretch();

    auto* sizeRow = new QHBoxLayout;
    sizeRow->addWidget(m_size, 1);
    sizeRow->addWidget(m_unit);
    auto* letterLabel = new QLabel(LocalizationHelper::coreString(QStringLiteral("Letters")), this);
    auto* wordLabel = new QLabel(LocalizationHelper::coreString(QStringLiteral("Words")), this);
    letterLabel->setBuddy(m_letterSpacing);
    wordLabel->setBuddy(m_wordSpacing);
    auto* letterRow = new QHBoxLayout;
    letterRow->addWidget(letterLabel);
    letterRow->addWidget(m_letterSpacing, 1);
    auto* wordRow = new QHBoxLayout;
    wordRow->addWidget(wordLabel);
    wordRow->addWidget(m_wordSpacing, 1);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* familyRow = new QHBoxLayout;
    familyRow->setSpacing(4);
    familyRow->addWidget(m_family, 1);
    familyRow->addWidget(m_import);
    layout->addLayout(familyRow, 0, 0, 1, 2);
    layout->addLayout(sizeRow, 1, 0);
    layout->addWidget(m_weight, 1, 1);
    layout->addLayout(styleRow, 2, 0, 1, 2);
    layout->addLayout(letterRow, 3, 0);
    layout->addLayout(wordRow, 3, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);

    connect(m_family, &FontFamilyBox::userModified, this, [this] {
        QFont font = m_font;
        font.setFamilies({m_family->family()});
        edit(font);
    });
    connect(m_size, &SpinBox::userModified, this, &FontWidget::editSize);
    connect(m_unit, &ComboBox::userModified, this, &FontWidget::editUnit);
    connect(m_weight, &ComboBox::userModified, this, [this] {
        QFont font = m_font;
        font.setWeight(static_cast<QFont::Weight>(m_weight->currentItemKey().toInt()));
        edit(font);
    });
    connect(m_letterSpacing, &SpinBox::userModified, this, &FontWidget::editLetterSpacing);
    connect(m_wordSpacing, &SpinBox::userModified, this, &FontWidget::editWordSpacing);
    auto* focus = new FocusTracker(this);
    connect(focus, &FocusTracker::entered, this, &FontWidget::focusedIn);
    connect(focus, &FocusTracker::left, this, &FontWidget::focusedOut);
    showFont();
}

void FontWidget::setValue(const QFont& font)
{
    m_font = font;
    showFont();
}

void FontWidget::showFont()
{
    const bool inPixels = m_font.pixelSize() > 0;
    m_family->setFamily(m_font.family());
    m_unit->setCurrentItemKey(inPixels ? pixelSizeKey() : pointSizeKey());
    m_size->setDecimals(inPixels ? 0 : 2);
    m_size->setValue(inPixels ? m_font.pixelSize() : m_font.pointSizeF());
    showWeight();
    for (FontStyleButton* button : m_styles) {
        button->showFont(m_font);
    }
    const bool absolute = m_font.letterSpacingType() == QFont::AbsoluteSpacing;
    m_letterSpacing->setValue(absolute ? shortestSpacing(m_font.letterSpacing()) : 0);
    m_wordSpacing->setValue(shortestSpacing(m_font.wordSpacing()));
}

/** Lists the weights that have names, and the font's own where it has none. */
void FontWidget::showWeight()
{
    const int weight = m_font.weight();
    const bool named = std::any_of(namedWeights.cbegin(), namedWeights.cend(),
                                   [weight](const NamedWeight& known) { return known.weight == weight; });
    const int items = static_cast<int>(namedWeights.size()) + (named ? 0 : 1);
    if (m_weight->count() != items || m_weight->findData(QString::number(weight)) < 0) {
        m_weight->clear();
        bool ownListed = named;
        for (const NamedWeight& known : namedWeights) {
            if (!ownListed && known.weight > weight) {
                m_weight->addKeyedItem(QString::number(weight), QString::number(weight));
                ownListed = true;
            }
            m_weight->addKeyedItem(QString::number(known.weight),
                                   LocalizationHelper::coreString(QString::fromLatin1(known.name)));
        }
        if (!ownListed) {
            m_weight->addKeyedItem(QString::number(weight), QString::number(weight));
        }
    }
    m_weight->setCurrentItemKey(QString::number(weight));
}

void FontWidget::edit(const QFont& font)
{
    m_font = font;
    showFont();
    Q_EMIT userModified();
}

void FontWidget::editSize()
{
    m_operation = m_size->operation();
    QFont font = m_font;
    if (font.pixelSize() > 0) {
        font.setPixelSize(qRound(m_size->value()));
    } else {
        font.setPointSizeF(m_size->value());
    }
    edit(font);
}

void FontWidget::editUnit()
{
    QFont font = m_font;
    const int pixels = Common::fontPixelSize(font);
    if (m_unit->currentItemKey() == pixelSizeKey()) {
        font.setPixelSize(pixels);
    } else {
        font.setPointSizeF(pixels * pointsInAPixel);
    }
    edit(font);
}

void FontWidget::editWordSpacing()
{
    m_operation = m_wordSpacing->operation();
    QFont font = m_font;
    font.setWordSpacing(m_wordSpacing->value());
    edit(font);
}

void FontWidget::editLetterSpacing()
{
    m_operation = m_letterSpacing->operation();
    QFont font = m_font;
    if (m_letterSpacing->value() == 0) {
        font.setLetterSpacing(QFont::PercentageSpacing, 0); // as in a font that was never spaced
    } else {
        font.setLetterSpacing(QFont::AbsoluteSpacing, m_letterSpacing->value());
    }
    edit(font);
}
} // namespace Korvex::Meridane::Designer
