#pragma once

#include "host/core/editors/PropertyEditor.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/DesignerProperty.h"

#include "tests/sheet/SheetFixture.h"

#include <QApplication>
#include <QSignalSpy>
#include <QtTest>

namespace Korvex::Meridane::Designer::Test {

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

/// Text boxes of the plug-in on a screen, and the property sheet that edits them.
class TextSheet : private LoadedPlugin, public SheetFixture
{
public:
    /// A new text box with these value strings; the history is empty afterwards.
    DesignerObject* add(const QMap<QString, QString>& values = {})
    {
        DesignerObject* object = nullptr;
        session->addElement(QStringLiteral("TextBox"), screen, {}, values, &object);
        stack()->clear();
        if (!object)
            qFatal("no text box");
        return object;
    }
    DesignerObject* addWith(const char* id, const QString& value) { return add({{QString::fromLatin1(id), value}}); }
    DesignerObject* addAndSelect(const char* id, const QString& value)
    {
        DesignerObject* object = addWith(id, value);
        select({object});
        return object;
    }

    /// Another edit than one in the sheet.
    void set(DesignerObject* object, const char* id, const QString& value)
    {
        session->setProperty(object, QString::fromLatin1(id), value);
    }
    static QString value(const DesignerObject* object, const char* id)
    {
        return object->getProperty(QString::fromLatin1(id))->valueString();
    }
    /// Every value string, for comparing whole states.
    static QStringList state(const DesignerObject* object)
    {
        QStringList values;
        for (const auto& property : object->properties())
            values.append(property->id() + QLatin1Char('=') + property->valueString());
        return values;
    }

    /// The part of the editor that has that class.
    template <typename Widget>
    Widget* part(const char* propertyId) const
    {
        auto* found = editor<PropertyEditor>(propertyId)->template findChild<Widget*>();
        if (!found)
            qFatal("the editor has no such part: %s", propertyId);
        return found;
    }
    static QWidget* focus() { return QApplication::focusWidget(); }
};

} // namespace Korvex::Meridane::Designer::Test
