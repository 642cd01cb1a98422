#pragma once

#include "host/core/editors/PropertyEditor.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/ColorPopup.h"
#include "host/core/widgets/ColorSwatch.h"
#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/HexColorField.h"
#include "host/core/widgets/ItemButton.h"
#include "host/core/widgets/MessageBox.h"
#include "host/core/widgets/SpinBox.h"

#include "tests/sheet/SheetFixture.h"

#include <QLabel>
#include <QtTest>

#include <algorithm>

namespace Korvex::Meridane::Designer::Test {

const QString Default = QStringLiteral("0.33 #f8971d, 0.67 #ffffff");
const QString Three = QStringLiteral("0.1 #ff0000, 0.5 #00ff00, 0.9 #0000ff");
constexpr int Most = 101;

/// \a count stops at 0, 1, 2 … percent, each in a colour of its own.
inline QString stopsAtEachPercent(int count)
{
    QVector<QPair<double, QColor>> stops;
    for (int i = 0; i < count; ++i)
        stops.append({i / 100.0, QColor(i, 255 - i, 77)});
    return ValueConversion::toString(stops);
}

/// What the rows show of a value: "33 #f8971d, 67 #ffffff".
inline QString percents(const QString& value)
{
    QStringList texts;
    for (const auto& [position, color] : ValueConversion::toGradientStops(value))
        texts.append(QStringLiteral("%1 %2").arg(int(position * 100 + 1e-6)).arg(ValueConversion::toString(color)));
    return texts.join(QStringLiteral(", "));
}

/// Loads the plug-in itself, once a program.
class LoadedPlugin
{
protected:
    LoadedPlugin()
    {
        QString message;
        if (!DesignerFactory::instance()->loadPlugin(QStringLiteral(MERIDANE_PLUGIN_FILE), &message))
            qFatal("%s", qPrintable(message));
    }
};

/// Gradients of the plug-in on a screen, and the property sheet that edits their stops.
class GradientSheet : private LoadedPlugin, public SheetFixture
{
public:
    GradientSheet()
        : m_before(MessageBox::setPresenter(
            [this](QWidget*, const QString& title, const QString&) { warnings.append(title); }))
    {}
    ~GradientSheet() { MessageBox::setPresenter(m_before); }
    Q_DISABLE_COPY_MOVE(GradientSheet)

    /// A new gradient with these stops (the default ones for none), not selected; the history is empty afterwards.
    DesignerObject* add(const QString& stops = {}, const char* className = "LinearGradientElement")
    {
        DesignerObject* object = nullptr;
        session->addElement(QString::fromLatin1(className), screen, {}, {}, &object);
        if (!object)
            qFatal("no gradient");
        session->setSelection({});
        if (!stops.isEmpty())
            fill(object, stops);
        stack()->clear();
        return object;
    }
    DesignerObject* add(const char* stops) { return add(QString::fromLatin1(stops)); }
    DesignerObject* addAndSelect(const QString& stops = {})
    {
        DesignerObject* object = add(stops);
        select({object});
        return object;
    }
    DesignerObject* addAndSelect(const char* stops) { return addAndSelect(QString::fromLatin1(stops)); }

    static QSharedPointer<DesignerProperty> stopsOf(const DesignerObject* object)
    {
        return object->getProperty(QStringLiteral("gradientStops"));
    }
    static QString value(const DesignerObject* object) { return stopsOf(object)->valueString(); }
    /// Stores a value as a file does, valid or not.
    static void fill(DesignerObject* object, const QString& stops) { stopsOf(object)->fill(stops); }
    /// Another edit than one in the sheet.
    void set(DesignerObject* object, const char* stops)
    {
        session->setProperty(object, QStringLiteral("gradientStops"), QString::fromLatin1(stops));
    }

    [[nodiscard]] PropertyEditor* editor() const { return SheetFixture::editor<PropertyEditor>("gradientStops"); }
    [[nodiscard]] QString message() const { return SheetFixture::message("gradientStops"); }
    /// The number of the rows of stops.
    [[nodiscard]] int rows() const { return int(visible<SpinBox>().size()) - 1; }
    /// The parts of the row of a stop; the row behind the last one is that of the new stop.
    [[nodiscard]] SpinBox* position(int row) const { return visible<SpinBox>().at(row); }
    [[nodiscard]] ColorWidget* color(int row) const { return visible<ColorWidget>().at(row); }
    [[nodiscard]] ItemButton* removeButton(int row) const { return visible<ItemButton>("removeItem").at(row); }
    [[nodiscard]] bool removeButtonsAreVisible() const { return !visible<ItemButton>("removeItem").isEmpty(); }
    [[nodiscard]] ItemButton* addButton() const { return editor()->findChild<ItemButton*>(QStringLiteral("addItem")); }
    [[nodiscard]] SpinBox* newPosition() const { return visible<SpinBox>().last(); }
    [[nodiscard]] ColorWidget* newColor() const { return visible<ColorWidget>().last(); }
    /// The popup of the colour of that row, opened by a click.
    ColorPopup* openPopup(int row) const
    {
        QTest::mouseClick(color(row)->swatch(), Qt::LeftButton);
        return color(row)->popup();
    }
    /// Types a colour into the popup of that row.
    void pick(int row, const char* text) const
    {
        ColorPopup* popup = openPopup(row);
        enter(popup->findChild<HexColorField*>(), text);
        popup->close();
    }
    /// What the rows show, as percents() does.
    [[nodiscard]] QString shown() const
    {
        QCoreApplication::processEvents();
        const auto positions = visible<SpinBox>();
        const auto colors = visible<ColorWidget>();
        QStringList texts;
        for (int i = 0; i + 1 < positions.size(); ++i)
            texts.append(positions.at(i)->text().remove(QLatin1Char('%')) + QLatin1Char(' ')
                         + ValueConversion::toString(colors.at(i)->color()));
        return texts.join(QStringLiteral(", "));
    }
    /// The line that stands in place of the rows.
    [[nodiscard]] QString notice() const
    {
        const auto labels = visible<QLabel>();
        return labels.isEmpty() ? QString() : labels.first()->text();
    }

    /// How many widgets the editor has once those that are to go are gone.
    [[nodiscard]] qsizetype widgets() const
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const auto all = editor()->findChildren<QWidget*>();
        return std::count_if(all.begin(), all.end(), [](const QWidget* widget) {
            return !qobject_cast<const ColorPopup*>(widget->window()); // made when they are first opened
        });
    }

    QStringList warnings; ///< the titles of the warnings that were shown

private:
    /// The parts of that class and name, from top to bottom.
    template <typename Part>
    [[nodiscard]] QList<Part*> visible(const char* name = nullptr) const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); // rows get their places
        QList<Part*> parts = editor()->template findChildren<Part*>(QString::fromLatin1(name));
        parts.removeIf([this](const Part* part) { return !part->isVisibleTo(sheet.get()); });
        std::sort(parts.begin(), parts.end(), [](const Part* one, const Part* other) {
            return one->mapToGlobal(QPoint()).y() < other->mapToGlobal(QPoint()).y();
        });
        return parts;
    }

    MessageBox::Presenter m_before;
};

} // namespace Korvex::Meridane::Designer::Test
