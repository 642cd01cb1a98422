#include "host/core/editors/IntegerEditor.h"
#include "host/core/editors/KeepRatioEditor.h"
#include "host/core/editors/RealEditor.h"
#include "host/core/sheet/DefaultMark.h"
#include "host/core/sheet/DefaultValues.h"
#include "host/core/sheet/SectionHeader.h"
#include "host/core/widgets/LockToggle.h"
#include "host/core/widgets/NumberWidget.h"
#include "host/core/widgets/SpinBox.h"

#include "tests/sheet/SheetFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// The marks on values that differ from their defaults, and the rows' menus: reset, copy, paste.
class tst_SheetDefaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<SheetFixture>();
        m_element = m_fixture->addElement();
        m_fixture->select({m_element});
    }

    void cleanup() { m_fixture.reset(); }

    void aNewObjectHasNoMarks()
    {
        for (const DefaultMark* mark : m_fixture->sheet->findChildren<DefaultMark*>())
            QVERIFY2(!mark->isVisible(), qPrintable(mark->accessibleName()));
    }

    void aChangedValueIsMarkedUntilItIsTakenBack()
    {
        SheetFixture::enter(m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox(), "9");
        QVERIFY(mark("number")->isVisible());
        QVERIFY(mark("number")->toolTip().contains(QLatin1String("1")));
        m_fixture->session->undo();
        QVERIFY(!mark("number")->isVisible());
        set(m_element, "number", "9");
        QTRY_VERIFY(mark("number")->isVisible());
    }

    void anotherWayToWriteTheDefaultIsTheDefault()
    {
        set(m_element, "color", "#FFF8971D");
        QCoreApplication::processEvents();
        QVERIFY(!mark("color")->isVisible());
    }

    void aClickOnTheMarkResetsInOneStep()
    {
        set(m_element, "number", "9");
        m_fixture->stack()->clear();
        QTRY_VERIFY(mark("number")->isVisible());
        QTest::mouseClick(mark("number"), Qt::LeftButton);
        QCOMPARE(m_element->value("number"), QStringLiteral("1"));
        QCOMPARE(m_fixture->stack()->count(), 1);
        QCOMPARE(m_fixture->stack()->text(0), QStringLiteral("Reset Number"));
        QCOMPARE(m_fixture->editor<IntegerEditor>("number")->numberWidget()->value(), 1.0);
        QVERIFY(!mark("number")->isVisible());
        m_fixture->session->undo();
        QCOMPARE(m_element->value("number"), QStringLiteral("9"));
    }

    void severalObjectsGoBackEachToItsOwnDefault()
    {
        DesignerObject* rectangle = m_fixture->addRectangle();
        set(m_element, "boundingSize", "50,50");
        set(rectangle, "boundingSize", "60,70");
        set(rectangle, "color", "#000000");
        m_fixture->stack()->clear();
        m_fixture->select({m_element, rectangle});
        QVERIFY(mark("color")->isVisible());
        QVERIFY(mark("boundingSize")->isVisible());
        QTest::mouseClick(mark("boundingSize"), Qt::LeftButton);
        for (const DesignerObject* object : {static_cast<DesignerObject*>(m_element), rectangle}) {
            const auto size = object->getProperty(QStringLiteral("boundingSize"));
            QCOMPARE(size->valueString(), size->defaultValueString());
        }
        QCOMPARE(m_fixture->stack()->count(), 1);
        m_fixture->session->undo();
        QCOMPARE(rectangle->getProperty(QStringLiteral("boundingSize"))->valueString(), QStringLiteral("60,70"));
        QCOMPARE(m_element->value("boundingSize"), QStringLiteral("50,50"));
    }

    void aKeptRatioIsLetGoBeforeTheSizeGoesBack()
    {
        set(m_element, "boundingSize", "50,100");
        QTest::mouseClick(m_fixture->editor<KeepRatioEditor>("keepRatio")->lockToggle(), Qt::LeftButton);
        m_fixture->stack()->clear();
        QTest::mouseClick(mark("boundingSize"), Qt::LeftButton);
        QCOMPARE(m_element->value("boundingSize"), QStringLiteral("100,75"));
        QCOMPARE(m_element->value("keepRatio"), QStringLiteral("0"));
        QCOMPARE(m_fixture->stack()->count(), 1);
        m_fixture->session->undo();
        QCOMPARE(m_element->value("boundingSize"), QStringLiteral("50,100"));
    }

    void aDefaultThatIsRefusedLeavesTheValueWithAMessage()
    {
        set(m_element, "number", "9");
        m_element->property("number")->setValidator([](const DesignerProperty* property, QString& message) {
            if (property->valueString() == QLatin1String("1"))
                message = QStringLiteral("Not one.");
            return message.isEmpty();
        });
        m_fixture->stack()->clear();
        QTRY_VERIFY(mark("number")->isVisible());
        QTest::mouseClick(mark("number"), Qt::LeftButton);
        QCOMPARE(m_element->value("number"), QStringLiteral("9"));
        QCOMPARE(m_fixture->message("number"), QStringLiteral("Not one."));
        QCOMPARE(m_fixture->stack()->count(), 0);
        QVERIFY(mark("number")->isVisible());
    }

    void aTextThatDoesNotConvertCanBeReset()
    {
        m_fixture->select({});
        m_element->property("number")->fill(QStringLiteral("abc"));
        m_fixture->select({m_element});
        QVERIFY(mark("number")->isVisible());
        QTest::mouseClick(mark("number"), Qt::LeftButton);
        QCOMPARE(m_element->value("number"), QStringLiteral("1"));
        QCOMPARE(m_fixture->message("number"), QString());
    }

    void whatMayNotBeEditedHasNoMark()
    {
        m_fixture->select({});
        m_element->property("fixed")->fill(QStringLiteral("7,7"));
        m_fixture->select({m_element});
        QVERIFY(!mark("fixed")->isVisible());
    }

    void theKeyboardResetsTheRowInUse()
    {
        PropertySheet* sheet = m_fixture->sheet.get();
        QSignalSpy changed(sheet, &PropertySheet::canResetCurrentChanged);
        SpinBox* field = m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox();
        field->setFocus();
        QVERIFY(!sheet->canResetCurrent());
        SheetFixture::enter(field, "9");
        QVERIFY(sheet->canResetCurrent());
        QVERIFY(!changed.isEmpty());
        sheet->resetCurrent();
        QCOMPARE(m_element->value("number"), QStringLiteral("1"));
        QVERIFY(!sheet->canResetCurrent());
        QVERIFY(field->hasFocus());
    }

    void resettingDropsWhatIsBeingTyped()
    {
        SpinBox* field = m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox();
        SheetFixture::enter(field, "9");
        SheetFixture::type(field, "33");
        m_fixture->sheet->resetCurrent();
        QCOMPARE(m_element->value("number"), QStringLiteral("1"));
        m_fixture->idField()->setFocus();
        QCOMPARE(m_element->value("number"), QStringLiteral("1"));
    }

    void aSectionIsResetInOneStep()
    {
        set(m_element, "color", "#000000");
        set(m_element, "border", "width: 3; color: #ff0000;");
        set(m_element, "number", "9");
        m_fixture->stack()->clear();
        trigger(m_fixture->section(QStringLiteral("appearance")), "Reset Section");
        QCOMPARE(m_element->value("color"), QStringLiteral("#f8971d"));
        QCOMPARE(m_element->value("border"), QStringLiteral("width: 0; color: #000000;"));
        QCOMPARE(m_element->value("number"), QStringLiteral("9"));
        QCOMPARE(m_fixture->stack()->count(), 1);
        QCOMPARE(m_fixture->stack()->text(0), QStringLiteral("Reset Appearance"));
    }

    void aValueIsCopiedAndPasted()
    {
        set(m_element, "border", "width: 3; color: #ff0000;");
        EditorTestElement* other = m_fixture->addElement();
        m_fixture->select({m_element});
        trigger(row("border"), "Copy Value");
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("width: 3; color: #ff0000;"));
        m_fixture->select({m_element, other});
        m_fixture->stack()->clear();
        trigger(row("border"), "Paste Value");
        QCOMPARE(other->value("border"), QStringLiteral("width: 3; color: #ff0000;"));
        QCOMPARE(m_fixture->stack()->count(), 1);
        QCOMPARE(m_fixture->stack()->text(0), QStringLiteral("Change Border"));
    }

    void whatIsNoValueIsNotPasted()
    {
        QGuiApplication::clipboard()->setText(QStringLiteral("red as a rose"));
        trigger(row("color"), "Paste Value");
        QCOMPARE(m_element->value("color"), QStringLiteral("#f8971d"));
        QVERIFY(m_fixture->message("color").contains(QLatin1String("red as a rose")));
        QCOMPARE(m_fixture->stack()->count(), 0);
    }

    void aPastedValueThatTheElementRefusesSaysWhy()
    {
        QGuiApplication::clipboard()->setText(QStringLiteral("60"));
        trigger(row("number"), "Paste Value");
        QCOMPARE(m_element->value("number"), QStringLiteral("1"));
        QCOMPARE(m_fixture->message("number"), QStringLiteral("50 is the most that this element can take."));
    }

    void valuesThatDifferCannotBeCopied()
    {
        EditorTestElement* other = m_fixture->addElement();
        set(other, "number", "9");
        m_fixture->select({m_element, other});
        QVERIFY(!action(row("number"), "Copy Value")->isEnabled());
        QVERIFY(action(row("color"), "Copy Value")->isEnabled());
    }

    void theMenuOfATextFieldHasTheRowsActionsToo()
    {
        set(m_element, "number", "9");
        QTRY_VERIFY(mark("number")->isVisible());
        SpinBox* field = m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox();
        QAction* reset = action(field, "Reset to Default");
        QVERIFY(reset);
        QVERIFY(reset->isEnabled());
        reset->trigger();
        QCOMPARE(m_element->value("number"), QStringLiteral("1"));
    }

    void aSizeThatFollowsFromOthersIsAtItsDefaultWhileTheyAre()
    {
        // What the item makes of the declared values may differ from what was declared for the size.
        const auto bounding = m_element->property("boundingSize");
        bounding->fill(QStringLiteral("99,75"));
        QVERIFY(hasDefaultValue(*bounding));
        m_element->property("color")->fill(QStringLiteral("#000000"));
        QVERIFY(hasDefaultValue(*bounding));
        m_element->property("size")->fill(QStringLiteral("99,75"));
        QVERIFY(!hasDefaultValue(*bounding));
    }

private:
    void set(DesignerObject* object, const char* id, const char* value)
    {
        m_fixture->session->setProperty(object, QString::fromLatin1(id), QString::fromLatin1(value));
    }

    QWidget* row(const char* propertyId) const
    {
        QWidget* widget = m_fixture->sheet->editor(QString::fromLatin1(propertyId));
        while (widget && !widget->objectName().startsWith(QLatin1String("row_")))
            widget = widget->parentWidget();
        return widget;
    }

    DefaultMark* mark(const char* propertyId) const { return row(propertyId)->findChild<DefaultMark*>(); }

    /// The action of that text in the menu that a right click on \a widget opens; null when there is none.
    QAction* action(QWidget* widget, const char* text) const
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3), widget->mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(widget, &event);
        const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return nullptr;
        for (QAction* action : menu->actions()) {
            if (action->text() == QLatin1String(text))
                return action;
        }
        return nullptr;
    }

    void trigger(QWidget* widget, const char* text) const
    {
        QAction* found = action(widget, text);
        QVERIFY(found);
        QVERIFY(found->isEnabled());
        found->trigger();
        QApplication::activePopupWidget()->close();
        QCoreApplication::processEvents();
    }

    std::unique_ptr<SheetFixture> m_fixture;
    EditorTestElement* m_element = nullptr;
};

QTEST_MAIN(tst_SheetDefaults)
#include "tst_SheetDefaults.moc"
