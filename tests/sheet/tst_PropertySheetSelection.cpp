#include "host/core/editors/IntegerEditor.h"
#include "host/core/editors/PropertyEditor.h"
#include "host/core/editors/RealEditor.h"
#include "host/core/editors/SizeEditor.h"
#include "host/core/editors/StringEditor.h"
#include "host/core/widgets/NumberWidget.h"
#include "host/core/widgets/SizeWidget.h"
#include "host/core/widgets/SpinBox.h"

#include "tests/sheet/SheetFixture.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// What the sheet shows as the selection changes.
class tst_PropertySheetSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<SheetFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void withNothingSelectedTheScreenIsShown()
    {
        QCOMPARE(m_fixture->sheet->title(), QStringLiteral("Screen"));
        QCOMPARE(m_fixture->idField()->text(), QStringLiteral("main"));
        SheetFixture::enter(m_fixture->editor<SizeEditor>("size")->sizeWidget()->widthField(), "640");
        QCOMPARE(m_fixture->screen->size().width(), 640.0);
        QCOMPARE(m_fixture->stack()->count(), 1);
        QVERIFY(m_fixture->sheet->editor(QStringLiteral("name")));
        QVERIFY(m_fixture->sheet->editor(QStringLiteral("color")));
    }

    void withoutAScreenAHintIsShown()
    {
        m_fixture->session->removeScreen(m_fixture->screen);
        QVERIFY(m_fixture->sheet->objects().isEmpty());
        QVERIFY(!m_fixture->idField()->isVisible());
        m_fixture->session->undo();
        QCOMPARE(m_fixture->sheet->title(), QStringLiteral("Screen"));
    }

    void objectsOfTheSameClassShareTheirRows()
    {
        DesignerObject* first = m_fixture->addElement();
        EditorTestElement* second = m_fixture->addElement();
        m_fixture->select({first});
        const int built = m_fixture->sheet->builtPanels();
        const PropertyEditor* editor = m_fixture->sheet->editor(QStringLiteral("number"));
        second->property("number")->fill(QStringLiteral("9"));
        m_fixture->select({second});
        QCOMPARE(m_fixture->sheet->editor(QStringLiteral("number")), editor);
        QCOMPARE(m_fixture->editor<IntegerEditor>("number")->numberWidget()->value(), 9.0);
        QCOMPARE(second->property("number")->editorWidget(), editor);
        QCOMPARE(first->getProperty(QStringLiteral("number"))->editorWidget(), nullptr);
        m_fixture->select({});
        m_fixture->select({first});
        QCOMPARE(m_fixture->sheet->builtPanels(), built);
    }

    void editorsOfASelectionThatWasLeftChangeNothing()
    {
        EditorTestElement* first = m_fixture->addElement();
        EditorTestElement* second = m_fixture->addElement();
        m_fixture->select({first});
        m_fixture->select({second});
        SheetFixture::enter(m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox(), "20");
        QCOMPARE(first->value("number"), QStringLiteral("1"));
        QCOMPARE(second->value("number"), QStringLiteral("20"));
    }

    void aTypedTextIsTakenOverWhenTheSelectionChanges()
    {
        EditorTestElement* first = m_fixture->addElement();
        EditorTestElement* second = m_fixture->addElement();
        m_fixture->select({first});
        SheetFixture::type(m_fixture->editor<RealEditor>("real")->numberWidget()->spinBox(), "8");
        m_fixture->select({second});
        QCOMPARE(first->value("real"), QStringLiteral("8"));
        QCOMPARE(second->value("real"), QStringLiteral("1.5"));
        QCOMPARE(m_fixture->stack()->count(), 1);
    }

    void aTypedTextOfARemovedObjectIsDropped()
    {
        EditorTestElement* element = m_fixture->addElement();
        m_fixture->select({element});
        SheetFixture::type(m_fixture->editor<RealEditor>("real")->numberWidget()->spinBox(), "8");
        m_fixture->session->removeElements({element});
        QCOMPARE(m_fixture->stack()->count(), 1);
        QCOMPARE(element->value("real"), QStringLiteral("1.5"));
        QCOMPARE(m_fixture->sheet->title(), QStringLiteral("Screen"));
        m_fixture->session->undo();
        QCOMPARE(element->value("real"), QStringLiteral("1.5"));
    }

    void aRefusalGoesWithTheSelection()
    {
        DesignerObject* first = m_fixture->addElement();
        DesignerObject* second = m_fixture->addElement();
        m_fixture->select({first});
        SheetFixture::enter(m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox(), "60");
        m_fixture->select({second});
        QCOMPARE(m_fixture->message("number"), QString());
        m_fixture->select({first});
        QCOMPARE(m_fixture->message("number"), QString());
        QCOMPARE(m_fixture->editor<IntegerEditor>("number")->numberWidget()->value(), 1.0);
    }

    void selectingChangesNothing()
    {
        EditorTestElement* element = m_fixture->addElement();
        DesignerObject* rectangle = m_fixture->addRectangle();
        QStringList before;
        for (const auto& property : element->properties())
            before.append(property->valueString());
        for (int i = 0; i < 3; ++i) {
            m_fixture->select({element});
            m_fixture->select({rectangle});
            m_fixture->select({element, rectangle});
            m_fixture->select({});
        }
        QCoreApplication::processEvents();
        QCOMPARE(m_fixture->stack()->count(), 0);
        QStringList after;
        for (const auto& property : element->properties())
            after.append(property->valueString());
        QCOMPARE(after, before);
    }

    void theSheetSurvivesItsSession()
    {
        m_fixture->select({m_fixture->addElement()});
        m_fixture->session.reset();
        QVERIFY(m_fixture->sheet->objects().isEmpty());
        QVERIFY(!m_fixture->sheet->session());
    }

    void anotherSessionCanBeFollowed()
    {
        m_fixture->select({m_fixture->addElement()});
        auto project = std::make_unique<Project>();
        QVERIFY(project->initialize());
        EditSession other(std::move(project));
        m_fixture->sheet->setSession(&other);
        QVERIFY(m_fixture->sheet->objects().isEmpty());
        Screen* screen = nullptr;
        other.addScreen(QStringLiteral("second"), {}, &screen);
        QCOMPARE(m_fixture->idField()->text(), QStringLiteral("second"));
        SheetFixture::enter(m_fixture->editor<StringEditor>("name")->textField(), "Second");
        QCOMPARE(other.undoStack()->count(), 2);
        m_fixture->sheet->setSession(nullptr);
    }

    void aNewElementIsShownAtOnce()
    {
        DesignerObject* added = nullptr;
        m_fixture->session->addElement(QStringLiteral("Rectangle"), m_fixture->screen, {}, {}, &added);
        QCOMPARE(m_fixture->sheet->objects(), QList<DesignerObject*>{added});
        QCOMPARE(m_fixture->sheet->title(), QStringLiteral("Rectangle"));
        m_fixture->session->undo();
        QCOMPARE(m_fixture->sheet->title(), QStringLiteral("Screen"));
    }

    void switchingBetweenObjectsOfAClassIsFast()
    {
        QList<DesignerObject*> elements;
        for (int i = 0; i < 20; ++i)
            elements.append(m_fixture->addElement());
        m_fixture->select({elements.first()});
        QElapsedTimer timer;
        timer.start();
        for (DesignerObject* element : std::as_const(elements))
            m_fixture->select({element});
        // Far from what building the widgets would take, and far from a limit that a slow machine could miss.
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    }

private:
    std::unique_ptr<SheetFixture> m_fixture;
};

QTEST_MAIN(tst_PropertySheetSelection)
#include "tst_PropertySheetSelection.moc"
