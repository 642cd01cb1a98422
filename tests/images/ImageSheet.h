#pragma once

#include "host/core/editors/PropertyEditor.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/widgets/SizeWidget.h"
#include "host/core/widgets/SpinBox.h"

#include "tests/images/ProjectImages.h"
#include "tests/sheet/SheetFixture.h"

#include <QLineEdit>
#include <QPushButton>
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

/// Images of the plug-in on a screen, in a project with files, and the property sheet that edits them.
class ImageSheet : private LoadedPlugin, public SheetFixture
{
public:
    ImageSheet() { files.serve(session->project()); }

    /// A new image; the history is empty afterwards.
    DesignerObject* add(const QString& source = {}, const QMap<QString, QString>& values = {})
    {
        QMap<QString, QString> properties = values;
        if (!source.isEmpty())
            properties.insert(QStringLiteral("source"), source);
        DesignerObject* object = nullptr;
        session->addElement(QStringLiteral("Image"), screen, {}, properties, &object);
        stack()->clear();
        if (!object)
            qFatal("no image");
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

    [[nodiscard]] PropertyEditor* editor() const { return sheet->editor(QStringLiteral("boundingSize")); }
    [[nodiscard]] SizeWidget* size() const { return editor()->findChild<SizeWidget*>(); }
    [[nodiscard]] QPushButton* button() const { return editor()->findChild<QPushButton*>(); }
    void click() const { QTest::mouseClick(button(), Qt::LeftButton); }
    /// Types into a field of the size.
    static void enter(SpinBox* field, const char* text) { SheetFixture::enter(field, text); }

    ProjectImages files;
};

} // namespace Korvex::Meridane::Designer::Test
