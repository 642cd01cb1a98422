#include "host/core/canvas/EditSession.h"
#include "host/core/commands/ChangeProperty.h"
#include "host/core/editors/PropertyEditor.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"

#include "tests/support/EditorTestElement.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

/// An editor as a plug-in writes one, on nothing but the contract. It saves on every change of its text, also on those
/// that loading makes.
class LineEditor : public PropertyEditor
{
public:
    LineEditor()
        : PropertyEditor(nullptr)
    {}
    bool createEditorWidget() override
    {
        field = new QLineEdit(this);
        setEditorWidget(field);
        saveOn(field, &QLineEdit::textChanged);
        return true;
    }
    QString editorValue() const override { return field->text(); }
    bool loadEditorValue() override
    {
        ++loads;
        field->setText(valueToLoad());
        return true;
    }
    UndoCommand* createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                     UndoCommand* parent) override
    {
        UndoCommand* command = PropertyEditor::createUpdateCommand(property, value, parent);
        if (alsoReal)
            new ChangeProperty(property->parentObject()->getProperty(QStringLiteral("real")), QStringLiteral("9"),
                               false, command);
        if (!stepText.isEmpty())
            command->setText(stepText);
        return command;
    }
    using PropertyEditor::setMergeKey;

    QLineEdit* field = nullptr;
    QString stepText;
    int loads = 0;
    bool alsoReal = false;
};

} // namespace

class tst_PropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_factory = std::make_unique<TestFactory>(QMap<QString, TestFactory::Maker>{
            {QStringLiteral("EditorTestElement"), [](QObject* parent) { return new EditorTestElement(parent); }}});
        auto project = std::make_unique<Project>();
        QVERIFY(project->initialize());
        m_session = std::make_unique<EditSession>(std::move(project));
        Screen* screen = nullptr;
        m_session->addScreen(QStringLiteral("main"), {}, &screen);
        DesignerObject* object = nullptr;
        m_session->addElement(QStringLiteral("EditorTestElement"), screen, {}, {}, &object);
        m_element = qobject_cast<EditorTestElement*>(object);
        m_session->undoStack()->clear();
        m_editor = std::make_unique<LineEditor>();
    }

    void cleanup()
    {
        m_editor.reset();
        m_session.reset();
        m_factory.reset();
    }

    void requestsToSaveWhileLoadingAreIgnored()
    {
        edit("text");
        m_session->setProperty(m_element, QStringLiteral("text"), QStringLiteral("elsewhere"));
        m_session->undoStack()->clear();
        m_editor->load();
        QCOMPARE(m_editor->field->text(), QStringLiteral("elsewhere"));
        QCOMPARE(m_session->undoStack()->count(), 0);
    }

    void aChangeIsOneStepNamedAfterTheProperty()
    {
        edit("text");
        m_editor->field->setText(QStringLiteral("new"));
        QCOMPARE(m_element->value("text"), QStringLiteral("new"));
        QCOMPARE(m_session->undoStack()->count(), 1);
        QCOMPARE(m_session->undoStack()->undoText(), QStringLiteral("Change Text"));
        m_session->undo();
        QCOMPARE(m_element->value("text"), QStringLiteral("[text]"));
    }

    void aTextThatTheCommandBringsIsKept()
    {
        edit("text");
        m_editor->stepText = QStringLiteral("Write");
        m_editor->field->setText(QStringLiteral("new"));
        QCOMPARE(m_session->undoStack()->undoText(), QStringLiteral("Write"));
    }

    void savingTheStoredValueMakesNoStep()
    {
        edit("real");
        m_editor->field->setText(QStringLiteral("1.50"));
        m_editor->save();
        QCOMPARE(m_session->undoStack()->count(), 0);
    }

    void aRefusedValueLeavesTheTextAndTheHistory()
    {
        edit("number");
        m_editor->field->setText(QStringLiteral("5"));
        m_session->undo();
        m_editor->load();
        QSignalSpy refused(m_editor.get(), &PropertyEditor::refused);
        QSignalSpy accepted(m_editor.get(), &PropertyEditor::accepted);
        m_editor->field->setText(QStringLiteral("60"));
        QCOMPARE(refused.size(), 1);
        QVERIFY(accepted.isEmpty());
        QCOMPARE(m_editor->field->text(), QStringLiteral("60"));
        QCOMPARE(m_element->value("number"), QStringLiteral("1"));
        QVERIFY(m_session->undoStack()->canRedo());
        m_editor->field->setText(QStringLiteral("1"));
        QVERIFY(!m_editor->isRefused());
        QCOMPARE(accepted.size(), 1);
        QVERIFY(m_session->undoStack()->canRedo());
    }

    void whatFollowsFromARefusedValueIsRefusedWithIt()
    {
        edit("number");
        m_editor->alsoReal = true;
        m_editor->field->setText(QStringLiteral("60"));
        QCOMPARE(m_element->value("real"), QStringLiteral("1.5"));
        QCOMPARE(m_session->undoStack()->count(), 0);
        m_editor->field->setText(QStringLiteral("40"));
        QCOMPARE(m_element->value("real"), QStringLiteral("9"));
        QCOMPARE(m_session->undoStack()->count(), 1);
    }

    void aValueThatIsStoredDifferentlyIsLoadedAgain()
    {
        edit("text");
        m_element->after = [this](const DesignerProperty* property, const QString&) {
            if (property->id() == QLatin1String("text") && !property->valueString().endsWith(QLatin1Char('!')))
                m_element->changePropertyValue(m_element->property("text"), property->valueString() + QLatin1Char('!'));
        };
        m_editor->field->setText(QStringLiteral("new"));
        QCOMPARE(m_editor->field->text(), QStringLiteral("new!"));
        QCOMPARE(m_session->undoStack()->count(), 1);
    }

    void editsWithOneMergeKeyAreOneStep()
    {
        edit("text");
        m_editor->setMergeKey(QStringLiteral("typing"));
        for (const char* text : {"n", "ne", "new"})
            m_editor->field->setText(QString::fromLatin1(text));
        QCOMPARE(m_session->undoStack()->count(), 1);
        m_editor->setMergeKey(QStringLiteral("typing again"));
        m_editor->field->setText(QStringLiteral("newer"));
        QCOMPARE(m_session->undoStack()->count(), 2);
        m_session->undo();
        QCOMPARE(m_element->value("text"), QStringLiteral("new"));
        m_session->undo();
        QCOMPARE(m_element->value("text"), QStringLiteral("[text]"));
    }

    void inPropertyChangeModeThePendingValueIsEdited()
    {
        m_editor->setPropertyChange(true);
        m_editor->setProperty(m_element->property("text"));
        m_editor->setChangedPropertyValue(QStringLiteral("pending"));
        QVERIFY(m_editor->initialize());
        QCOMPARE(m_editor->field->text(), QStringLiteral("pending"));
        QSignalSpy saved(m_editor.get(), &PropertyEditor::changeSaved);
        m_editor->field->setText(QStringLiteral("new"));
        QCOMPARE(saved.size(), 1);
        QCOMPARE(m_editor->changedPropertyValue(), QStringLiteral("new"));
        QCOMPARE(m_element->value("text"), QStringLiteral("[text]"));
        m_editor->field->setText(QStringLiteral("newer"));
        m_editor->save(); // goes the same way
        QCOMPARE(saved.size(), 3);
        QCOMPARE(m_session->undoStack()->count(), 0);
    }

    void anEditorCanBeHandedToAnotherObject()
    {
        edit("text");
        EditorTestElement other;
        QVERIFY(other.initialize());
        m_editor->setProperty(other.property("text"));
        m_editor->load();
        m_editor->field->setText(QStringLiteral("new"));
        QCOMPARE(other.value("text"), QStringLiteral("new"));
        QCOMPARE(m_element->value("text"), QStringLiteral("[text]"));
        m_editor->setProperty({});
        m_editor->field->setText(QStringLiteral("nobody's"));
        QCOMPARE(other.value("text"), QStringLiteral("new"));
    }

    void anObjectOutsideOfAProjectRefusesToo()
    {
        EditorTestElement lone;
        QVERIFY(lone.initialize());
        m_editor->setProperty(lone.property("number"));
        QVERIFY(m_editor->initialize());
        QSignalSpy refused(m_editor.get(), &PropertyEditor::refused);
        m_editor->field->setText(QStringLiteral("60"));
        QCOMPARE(refused.size(), 1);
        QCOMPARE(lone.value("number"), QStringLiteral("1"));
        m_editor->field->setText(QStringLiteral("6"));
        QCOMPARE(lone.value("number"), QStringLiteral("6"));
    }

private:
    void edit(const char* propertyId)
    {
        m_editor->setProperty(m_element->property(propertyId));
        QVERIFY(m_editor->initialize());
    }

    std::unique_ptr<TestFactory> m_factory;
    std::unique_ptr<EditSession> m_session;
    std::unique_ptr<LineEditor> m_editor;
    EditorTestElement* m_element = nullptr;
};

QTEST_MAIN(tst_PropertyEditor)
#include "tst_PropertyEditor.moc"
