#include "host/core/editors/FontEditor.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/ComboBox.h"
#include "host/core/widgets/FontFamilyBox.h"
#include "host/core/widgets/FontStyleButton.h"
#include "host/core/widgets/FontWidget.h"
#include "host/core/widgets/SpinBox.h"

#include "host/common/LocalizationHelper.h"

#include <QFileDialog>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <cmath>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// The components in the order of FontWidget::styleButtons().
constexpr std::array StyleComponents{"bold", "italic", "underline", "overline", "strikeOut"};

} // namespace

FontEditor::FontEditor(QWidget* parent)
    : StandardEditor(parent)
{}

FontEditor::~FontEditor() = default;

QString FontEditor::className() const
{
    return QStringLiteral("FontEditor");
}

bool FontEditor::createEditorWidget()
{
    m_widget = new FontWidget(this);
    // The parts of the widget tell which attribute was edited; they report after the widget has its new font.
    const auto save = [this](const char* component) {
        return [this, component] { edit(QString::fromLatin1(component)); };
    };
    connect(m_widget->familyBox(), &FontFamilyBox::userModified, this, save("family"));
    connect(m_widget->unitBox(), &ComboBox::userModified, this, save("size"));
    connect(m_widget->weightBox(), &ComboBox::userModified, this, save("bold"));
    const auto saveNumber = [this](SpinBox* field, const char* component) {
        field->setRelativeInputAllowed(true);
        connect(field, &SpinBox::userModified, this,
                [this, component] { edit(QString::fromLatin1(component), operationText(m_widget->operation())); });
    };
    saveNumber(m_widget->sizeField(), "size");
    saveNumber(m_widget->letterSpacingField(), "letterSpacing");
    saveNumber(m_widget->wordSpacingField(), "wordSpacing");
    for (qsizetype i = 0; i < m_widget->styleButtons().size(); ++i) {
        connect(m_widget->styleButtons().at(i), &FontStyleButton::userModified, this,
                save(StyleComponents.at(static_cast<std::size_t>(i))));
    }
    for (SpinBox* field : {m_widget->sizeField(), m_widget->letterSpacingField(), m_widget->wordSpacingField()})
        joinSteps(field);
    connect(m_widget->importButton(), &QToolButton::clicked, this, &FontEditor::chooseFile);
    setEditorWidget(m_widget);
    propertyReplaced();
    return true;
}

void FontEditor::propertyReplaced()
{
    if (m_widget)
        m_widget->importButton()->setEnabled(session() != nullptr);
}

UndoCommand* FontEditor::createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                             UndoCommand* parent)
{
    bool presentOk = false;
    bool wantedOk = false;
    const QFont present = ValueConversion::toFont(property->valueString(), &presentOk);
    QFont wanted = ValueConversion::toFont(value, &wantedOk);
    if (!wantedOk || !m_widget || wanted.pointSizeF() <= 0
        || (presentOk && wanted.pointSizeF() == present.pointSizeF()))
        return StandardEditor::createUpdateCommand(property, value, parent);
    constexpr double Steps = 100; // of a point: two decimals
    wanted.setPointSizeF(std::max(std::round(wanted.pointSizeF() * Steps) / Steps, m_widget->sizeField()->minimum()));
    return StandardEditor::createUpdateCommand(property, ValueConversion::toString(wanted), parent);
}

void FontEditor::importFile(const QString& file)
{
    if (!session())
        return;
    QString id;
    QStringList families;
    const EditResult result = session()->importFont(file, &id, &families);
    if (!result.accepted) {
        refuse(result.message);
        return;
    }
    QFont font = m_widget->value();
    font.setFamilies({families.constFirst()});
    m_widget->setValue(font);
    endSteps();
    edit(QStringLiteral("family"));
}

void FontEditor::chooseFile()
{
    const QString file = QFileDialog::getOpenFileName(
        this, LocalizationHelper::coreString(QStringLiteral("Import Font")), QString(),
        LocalizationHelper::coreString(QStringLiteral("Fonts (%1)")).arg(QStringLiteral("*.ttf *.otf *.ttc")));
    if (!file.isEmpty())
        importFile(file);
}

bool FontEditor::showValue(const QString& value)
{
    bool ok = false;
    const QFont font = ValueConversion::toFont(value, &ok);
    if (ok)
        m_widget->setValue(font);
    const auto mixed = [this, ok](const char* component) { return !ok || isMixed(QString::fromLatin1(component)); };
    m_widget->familyBox()->setMixed(mixed("family"));
    m_widget->sizeField()->setMixed(mixed("size"));
    m_widget->unitBox()->setMixed(mixed("size"));
    m_widget->weightBox()->setMixed(mixed("bold"));
    m_widget->letterSpacingField()->setMixed(mixed("letterSpacing"));
    m_widget->wordSpacingField()->setMixed(mixed("wordSpacing"));
    for (qsizetype i = 0; i < m_widget->styleButtons().size(); ++i)
        m_widget->styleButtons().at(i)->setMixed(mixed(StyleComponents.at(static_cast<std::size_t>(i))));
    return ok;
}

QString FontEditor::widgetValue() const
{
    return ValueConversion::toString(m_widget->value());
}

} // namespace Korvex::Meridane::Designer
