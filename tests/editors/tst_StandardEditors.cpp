#include "host/core/canvas/EditSession.h"
#include "host/core/commands/UndoCommand.h"
#include "host/core/editors/PropertyEditor.h"
#include "host/core/editors/StandardEditors.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"

#include "tests/support/EditorTestElement.h"

#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

/// Value strings of every form, good ones and such that convert to nothing.
QStringList valueStrings()
{
    const char* const texts[] = {
        "",
        "abc",
        "nan",
        "-",
        "0",
        "1",
        "-7",
        "12",
        "250",
        "99999999",
        "0.1",
        "43.301270189221931",
        "-0.000001",
        "1e-7",
        "1e300",
        "true",
        "100,75",
        "0.5,0.25",
        "-3,1000000",
        "43.3333333,12.0000001",
        "1,2,3",
        "0,0 50,0 25,40",
        "1.25,2 3,4.0000001",
        "1,2 3",
        "#ff8800",
        "#80ff8800",
        "red",
        "#12",
        "width: 2; color: #000000;",
        "width: 5000; color: #80102030;",
        "width: -1; color: #000000;",
        "angle: 45; fixedPoint: Center;",
        "angle: -725.123456; fixedPoint: BottomRight;",
        "angle: 1; fixedPoint: Middle;",
        "family: DejaVu Sans; pointSize: 24;",
        "family: Not Installed\\: 1; pixelSize: 9; weight: 333;",
        "family: DejaVu Sans; pointSize: 24.333; bold: true; italic: true; underline: true; overline: true; "
        "strikeOut: true; letterSpacing: 1; wordSpacing: 2;",
        "family: A;",
        "PadSpread",
        "RepeatSpread",
        "NoSpread",
        "test1",
        "test2",
        "missing",
        "picture.png",
        "../up.png",
        "a text with \"quotes\" and <b>markup</b>",
        "two\nlines",
        "tab\tand trailing blank ",
    };
    QStringList strings;
    for (const char* text : texts)
        strings.append(QString::fromUtf8(text));
    return strings;
}

} // namespace

class tst_StandardEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_factory = std::make_unique<TestFactory>(QMap<QString, TestFactory::Maker>{
            {QStringLiteral("EditorTestElement"), [](QObject* parent) { return new EditorTestElement(parent); }}});
    }

    void init()
    {
        auto project = std::make_unique<Project>();
        QVERIFY(project->initialize());
        m_session = std::make_unique<EditSession>(std::move(project));
        Screen* screen = nullptr;
        m_session->addScreen(QStringLiteral("main"), {}, &screen);
        DesignerObject* object = nullptr;
        m_session->addElement(QStringLiteral("EditorTestElement"), screen, {}, {}, &object);
        m_element = qobject_cast<EditorTestElement*>(object);
        QVERIFY(m_element);
        m_session->undoStack()->clear();
    }

    void cleanup() { m_session.reset(); }

    void everyListedEditorCanBeMade()
    {
        for (const QString& name : standardEditorClassNames()) {
            const std::unique_ptr<PropertyEditor> editor(createStandardEditor(name, nullptr));
            QVERIFY2(editor, qPrintable(name));
            QCOMPARE(editor->className(), name);
            QCOMPARE(editor->classNames().first(), QStringLiteral("PropertyEditor"));
            QCOMPARE(editor->classNames().last(), name);
        }
        QVERIFY(!createStandardEditor(QStringLiteral("sizeEditor"), nullptr));
        QVERIFY(!createStandardEditor(QStringLiteral("PropertyEditor"), nullptr));
    }

    void anEditorWithoutPropertyCannotBeUsed()
    {
        for (const QString& name : standardEditorClassNames()) {
            const std::unique_ptr<PropertyEditor> editor(createStandardEditor(name, nullptr));
            QVERIFY2(!editor->initialize(), qPrintable(name));
        }
    }

    /// Every editor on every type of property, also one that it was not made for.
    void loadingAndSavingIsInverseForEveryEditorAndPropertyType_data()
    {
        QTest::addColumn<QString>("editorClass");
        for (const QString& name : standardEditorClassNames())
            QTest::newRow(qPrintable(name)) << name;
    }

    void loadingAndSavingIsInverseForEveryEditorAndPropertyType()
    {
        QFETCH(QString, editorClass);
        const QVector<QSharedPointer<DesignerProperty>> properties = m_element->properties();
        for (const auto& property : properties) {
            const std::unique_ptr<PropertyEditor> editor(createStandardEditor(editorClass, nullptr));
            editor->setSession(m_session.get());
            editor->setProperty(property);
            if (!editor->initialize()) {
                QCOMPARE(editorClass, QStringLiteral("EnumEditor")); // the only one that needs a certain type
                continue;
            }
            QSignalSpy refused(editor.get(), &PropertyEditor::refused);
            for (const QString& value : valueStrings()) {
                property->fill(value);
                const QString stored = property->valueString();
                editor->load();
                const QByteArray where =
                    (editorClass + QLatin1Char(' ') + property->id() + QLatin1Char(' ') + value).toUtf8();
                QVERIFY2(editor->editorValue() == stored, where.constData());
                editor->save();
                QVERIFY2(property->valueString() == stored, where.constData());
                QVERIFY2(m_session->undoStack()->count() == 0, where.constData());
                QVERIFY2(refused.isEmpty(), where.constData());
            }
        }
    }

    void loadingAPendingValueIsInverseToo()
    {
        for (const QString& editorClass : standardEditorClassNames()) {
            for (const auto& property : m_element->properties()) {
                const std::unique_ptr<PropertyEditor> editor(createStandardEditor(editorClass, nullptr));
                editor->setPropertyChange(true);
                editor->setProperty(property);
                if (!editor->initialize())
                    continue;
                QSignalSpy saved(editor.get(), &PropertyEditor::changeSaved);
                const QString before = property->valueString();
                for (const QString& value : valueStrings()) {
                    editor->setChangedPropertyValue(value);
                    editor->load();
                    QCOMPARE(editor->editorValue(), value);
                    QVERIFY(saved.isEmpty());
                }
                QCOMPARE(property->valueString(), before);
            }
        }
    }

    void theEditorRegistersWithItsPropertyAndLeavesIt()
    {
        const auto first = m_element->property("number");
        const auto second = m_element->property("real");
        auto editor = std::unique_ptr<PropertyEditor>(createStandardEditor(QStringLiteral("IntegerEditor"), nullptr));
        editor->setProperty(first);
        QCOMPARE(first->editorWidget(), editor.get());
        editor->setProperty(second);
        QCOMPARE(first->editorWidget(), nullptr);
        QCOMPARE(second->editorWidget(), editor.get());
        editor.reset();
        QCOMPARE(second->editorWidget(), nullptr);
    }

    void theTooltipParameterIsShown()
    {
        const std::unique_ptr<PropertyEditor> editor(createStandardEditor(QStringLiteral("KeepRatioEditor"), nullptr));
        editor->setProperty(m_element->property("keepRatio"));
        QVERIFY(editor->initialize());
        QCOMPARE(editor->toolTip(), QStringLiteral("Keep the ratio"));
    }

    void anEditorOutsideOfAProjectSavesWithoutHistory()
    {
        EditorTestElement lone;
        QVERIFY(lone.initialize());
        const std::unique_ptr<PropertyEditor> editor(createStandardEditor(QStringLiteral("StringEditor"), nullptr));
        editor->setProperty(lone.property("text"));
        QVERIFY(editor->initialize());
        std::unique_ptr<UndoCommand> command(
            editor->createUpdateCommand(lone.property("text"), QStringLiteral("new"), nullptr));
        QVERIFY(command);
    }

private:
    std::unique_ptr<TestFactory> m_factory;
    std::unique_ptr<EditSession> m_session;
    EditorTestElement* m_element = nullptr;
};

QTEST_MAIN(tst_StandardEditors)
#include "tst_StandardEditors.moc"
