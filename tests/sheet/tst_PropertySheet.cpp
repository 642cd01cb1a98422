#include "host/core/commands/ChangeProperty.h"
#include "host/core/editors/ColorEditor.h"
#include "host/core/editors/IntegerEditor.h"
#include "host/core/editors/KeepRatioEditor.h"
#include "host/core/editors/PointEditor.h"
#include "host/core/editors/RealEditor.h"
#include "host/core/editors/SizeEditor.h"
#include "host/core/editors/StringEditor.h"
#include "host/core/sheet/SectionHeader.h"
#include "host/core/sheet/SheetColors.h"
#include "host/core/sheet/SheetSections.h"
#include "host/core/widgets/ColorPopup.h"
#include "host/core/widgets/ColorSwatch.h"
#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/HexColorField.h"
#include "host/core/widgets/HueSaturationField.h"
#include "host/core/widgets/LockToggle.h"
#include "host/core/widgets/NumberSlider.h"
#include "host/core/widgets/NumberWidget.h"
#include "host/core/widgets/SizeWidget.h"
#include "host/core/widgets/SpinBox.h"

#include "tests/sheet/SheetFixture.h"

#include <QApplication>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// One object in the sheet: rows, editing, refusals and what is refreshed when.
class tst_PropertySheet : public QObject
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

    void everyShownPropertyHasARowAndSectionsKeepTheOrderOfRank()
    {
        QHash<QString, int> lastY; // by section
        for (const auto& property : m_element->properties()) {
            const PropertyEditor* editor = m_fixture->sheet->editor(property->id());
            QVERIFY2((editor != nullptr) == property->hasFlag(Shown), qPrintable(property->id()));
            if (!editor || property->id() == QLatin1String("keepRatio"))
                continue;
            const int y = editor->mapTo(m_fixture->sheet->widget(), QPoint()).y();
            const QString section = SheetSections::keyOf(*property);
            const SectionHeader* header = m_fixture->section(section);
            QVERIFY2(header, qPrintable(section));
            QVERIFY(y > header->mapTo(m_fixture->sheet->widget(), QPoint()).y());
            QVERIFY2(y > lastY.value(section, -1), qPrintable(property->id()));
            lastY.insert(section, y);
        }
    }

    void nothingIsCutOffInANarrowSheet_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::newRow("whole") << 280 << 1200;
        QTest::newRow("with a scroll bar") << 280 << 300;
        QTest::newRow("narrow") << 240 << 1200;
    }

    void nothingIsCutOffInANarrowSheet()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        PropertySheet* sheet = m_fixture->sheet.get();
        sheet->resize(width, height);
        QCoreApplication::processEvents();
        QTRY_COMPARE(sheet->widget()->width(), sheet->viewport()->width());
        // All that one can see stands within the sheet, and no two parts of an editor cover each other.
        const QRect inside = sheet->widget()->rect();
        for (const auto& property : m_element->properties()) {
            const PropertyEditor* editor = sheet->editor(property->id());
            if (!editor)
                continue;
            for (const QWidget* part : editor->findChildren<QWidget*>()) {
                if (!part->isVisible() || part->isWindow())
                    continue;
                const QRect place(part->mapTo(sheet->widget(), QPoint()), part->size());
                QVERIFY2(inside.contains(place), qPrintable(property->id() + QLatin1Char(' ')
                                                            + QString::fromLatin1(part->metaObject()->className())));
            }
        }
    }

    void aPropertyThatMayNotBeEditedIsShownDisabled()
    {
        QVERIFY(!m_fixture->sheet->editor(QStringLiteral("fixed"))->isEnabled());
        QVERIFY(m_fixture->sheet->editor(QStringLiteral("number"))->isEnabled());
    }

    void theRatioLockStandsBesideTheSize()
    {
        const auto* size = m_fixture->editor<SizeEditor>("boundingSize");
        const auto* lock = m_fixture->editor<KeepRatioEditor>("keepRatio");
        QCOMPARE(size->parentWidget(), lock->parentWidget());
        QVERIFY(lock->x() >= size->geometry().right());
    }

    void theHeadingNamesTheTypeAndTheId()
    {
        QCOMPARE(m_fixture->sheet->title(), QStringLiteral("Test Element"));
        QCOMPARE(m_fixture->idField()->text(), QStringLiteral("test1"));
    }

    void typingAnIdRenamesTheObject()
    {
        SheetFixture::enter(m_fixture->idField(), "gauge");
        QCOMPARE(m_element->getIdName(), QStringLiteral("gauge"));
        QCOMPARE(m_fixture->stack()->count(), 1);
        m_fixture->session->undo();
        QCOMPARE(m_fixture->idField()->text(), QStringLiteral("test1"));
    }

    void anIdThatCannotBeUsedIsRefusedWithAMessage()
    {
        m_fixture->addElement();
        m_fixture->select({m_element});
        for (const char* id : {"test2", "9lives", "two words"}) {
            SheetFixture::enter(m_fixture->idField(), id);
            QCOMPARE(m_element->getIdName(), QStringLiteral("test1"));
            QCOMPARE(m_fixture->idField()->text(), QString::fromLatin1(id));
            const auto* heading = m_fixture->idField()->parentWidget();
            const auto* message = heading->findChild<QLabel*>(QStringLiteral("error"));
            QVERIFY(message->isVisible());
            QVERIFY(!message->text().isEmpty());
        }
        QCOMPARE(m_fixture->stack()->count(), 0);
        QTest::keyClick(m_fixture->idField(), Qt::Key_Escape);
        QCOMPARE(m_fixture->idField()->text(), QStringLiteral("test1"));
    }

    void anEditIsOneStepAndUndoIsShown()
    {
        auto* number = m_fixture->editor<IntegerEditor>("number");
        SheetFixture::enter(number->numberWidget()->spinBox(), "30");
        QCOMPARE(m_element->value("number"), QStringLiteral("30"));
        QCOMPARE(m_fixture->stack()->count(), 1);
        QCOMPARE(m_fixture->stack()->text(0), QStringLiteral("Change Number"));
        m_fixture->session->undo();
        QCOMPARE(number->numberWidget()->value(), 1.0);
        m_fixture->session->redo();
        QCOMPARE(number->numberWidget()->value(), 30.0);
    }

    void aRefusedValueIsExplainedBelowItsRow()
    {
        auto* number = m_fixture->editor<IntegerEditor>("number");
        SheetFixture::enter(number->numberWidget()->spinBox(), "30");
        m_fixture->session->undo();
        SheetFixture::enter(number->numberWidget()->spinBox(), "60");
        QCOMPARE(m_fixture->message("number"), QStringLiteral("50 is the most that this element can take."));
        QCOMPARE(number->numberWidget()->spinBox()->text(), QStringLiteral("60 px"));
        QCOMPARE(m_element->value("number"), QStringLiteral("1"));
        QCOMPARE(m_fixture->stack()->count(), 1);
        QVERIFY(m_fixture->stack()->canRedo());

        SheetFixture::enter(number->numberWidget()->spinBox(), "50");
        QCOMPARE(m_fixture->message("number"), QString());
        QCOMPARE(m_element->value("number"), QStringLiteral("50"));
    }

    void aCornerRadiusAboveHalfTheSmallerSideIsRefusedInTheElementsWords()
    {
        DesignerObject* rectangle = m_fixture->addRectangle();
        m_fixture->select({rectangle});
        auto* radius = m_fixture->editor<IntegerEditor>("cornerRadius");
        SheetFixture::enter(radius->numberWidget()->spinBox(), "50");
        QCOMPARE(m_fixture->message("cornerRadius"),
                 QStringLiteral("The corner radius must be smaller than or equal to 37 px."));
        QCOMPARE(radius->numberWidget()->spinBox()->text(), QStringLiteral("50 px"));
        QCOMPARE(rectangle->getProperty(QStringLiteral("cornerRadius"))->valueString(), QStringLiteral("0"));
        QCOMPARE(m_fixture->stack()->count(), 0);
        QTest::keyClick(radius->numberWidget()->spinBox(), Qt::Key_Escape);
        QCOMPARE(m_fixture->message("cornerRadius"), QString());
        QCOMPARE(radius->numberWidget()->spinBox()->text(), QStringLiteral("0 px"));
    }

    void aTextThatCannotBeReadStaysWithItsReason()
    {
        SpinBox* field = m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox();
        SheetFixture::enter(field, "7/0");
        QVERIFY(!m_fixture->message("number").isEmpty());
        QCOMPARE(field->text(), QStringLiteral("7/0 px"));
        m_fixture->idField()->setFocus();
        QVERIFY(!m_fixture->message("number").isEmpty());
        QCOMPARE(field->text(), QStringLiteral("7/0 px"));
        QCOMPARE(m_element->value("number"), QStringLiteral("1"));
        field->setFocus();
        QTest::keyClick(field, Qt::Key_Escape);
        QCOMPARE(m_fixture->message("number"), QString());
        QCOMPARE(field->text(), QStringLiteral("1 px"));
        SheetFixture::enter(field, "(3");
        SheetFixture::enter(field, "1");
        QCOMPARE(m_fixture->message("number"), QString());
        QCOMPARE(m_fixture->stack()->count(), 0);
    }

    void aTextThatCannotBeReadDoesNotOutliveItsObject()
    {
        SpinBox* field = m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox();
        SheetFixture::enter(field, "7/0");
        m_fixture->select({m_fixture->addElement()});
        QCOMPARE(field->text(), QStringLiteral("1 px"));
        QCOMPARE(m_fixture->message("number"), QString());
    }

    void textThatIsNoColorStaysWithItsReason()
    {
        HexColorField* field = m_fixture->editor<ColorEditor>("color")->colorWidget()->textField();
        SheetFixture::enter(field, "reddish");
        QCOMPARE(field->text(), QStringLiteral("reddish"));
        QVERIFY(m_fixture->message("color").contains(QLatin1String("reddish")));
        QTest::keyClick(field, Qt::Key_Escape);
        QCOMPARE(field->text(), QStringLiteral("#f8971d"));
        QCOMPARE(m_fixture->message("color"), QString());
        SheetFixture::enter(field, "reddish");
        SheetFixture::enter(field, "red");
        QCOMPARE(m_fixture->message("color"), QString());
        QCOMPARE(m_element->value("color"), QStringLiteral("#ff0000"));
    }

    void aDragBeyondWhatIsTakenLeavesNoMessage()
    {
        auto* number = m_fixture->editor<IntegerEditor>("number")->numberWidget();
        NumberSlider* slider = number->slider();
        const int y = slider->height() / 2;
        QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(4, y));
        for (int x = 4; x < slider->width(); x += 2)
            QTest::mouseMove(slider, QPoint(x, y));
        QVERIFY(!m_fixture->message("number").isEmpty());
        QTest::mouseRelease(slider, Qt::LeftButton, {}, QPoint(slider->width() - 2, y));
        QCOMPARE(m_fixture->message("number"), QString());
        QVERIFY(m_element->value("number").toInt() <= 50);
        QCOMPARE(number->value(), m_element->value("number").toDouble());
        QCOMPARE(m_fixture->stack()->count(), 1);
    }

    void escapeInTheColorPopupLeavesNoStep()
    {
        ColorWidget* color = m_fixture->editor<ColorEditor>("color")->colorWidget();
        QTest::mouseClick(color->swatch(), Qt::LeftButton);
        auto* field = color->popup()->findChild<HueSaturationField*>();
        QTest::keyClick(field, Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(field, Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(m_fixture->stack()->count(), 1);
        QTest::keyClick(field, Qt::Key_Escape);
        QCOMPARE(m_element->value("color"), QStringLiteral("#f8971d"));
        QCOMPARE(m_fixture->stack()->count(), 0);
    }

    void aRefusedTextGoesWhenTheValueChangesElsewhere()
    {
        auto* number = m_fixture->editor<IntegerEditor>("number");
        SheetFixture::enter(number->numberWidget()->spinBox(), "60");
        QVERIFY(!m_fixture->message("number").isEmpty());
        m_fixture->session->setProperty(m_element, QStringLiteral("number"), QStringLiteral("7"));
        QCOMPARE(m_fixture->message("number"), QString());
        QCOMPARE(number->numberWidget()->value(), 7.0);
    }

    void anUnrelatedChangeLeavesARefusedTextAlone()
    {
        auto* number = m_fixture->editor<IntegerEditor>("number");
        SheetFixture::enter(number->numberWidget()->spinBox(), "60");
        m_fixture->session->setProperty(m_element, QStringLiteral("real"), QStringLiteral("7"));
        QCOMPARE(number->numberWidget()->spinBox()->text(), QStringLiteral("60 px"));
        QVERIFY(!m_fixture->message("number").isEmpty());
    }

    void valuesThatChangeElsewhereAreShown()
    {
        m_fixture->session->setProperty(m_element, QStringLiteral("position"), QStringLiteral("12,34"));
        QCOMPARE(m_fixture->editor<PointEditor>("position")->yField()->value(), 34.0);
        m_fixture->session->setProperty(m_element, QStringLiteral("text"), QStringLiteral("new"));
        QCOMPARE(m_fixture->editor<StringEditor>("text")->textField()->text(), QStringLiteral("new"));
    }

    void derivedValuesAreShown()
    {
        auto* size = m_fixture->editor<SizeEditor>("boundingSize");
        m_fixture->session->setProperty(m_element, QStringLiteral("border"),
                                        QStringLiteral("width: 10; color: #000000;"));
        QCOMPARE(m_element->value("boundingSize"), QStringLiteral("110,85"));
        QCOMPARE(size->sizeWidget()->value(), QSizeF(110, 85));
    }

    void aTextThatIsBeingTypedIsNotLost()
    {
        SpinBox* field = m_fixture->editor<RealEditor>("real")->numberWidget()->spinBox();
        SheetFixture::type(field, "33");
        m_fixture->session->setProperty(m_element, QStringLiteral("number"), QStringLiteral("7"));
        m_fixture->session->setProperty(m_element, QStringLiteral("real"), QStringLiteral("4"));
        QVERIFY(field->text().startsWith(QLatin1String("33")));
        QTest::keyClick(field, Qt::Key_Escape);
        m_fixture->idField()->setFocus();
        QCOMPARE(field->value(), 4.0);
        QCOMPARE(m_element->value("real"), QStringLiteral("4"));
    }

    void aKeptRatioCompletesTheOtherDimensionInOneStep()
    {
        QTest::mouseClick(m_fixture->editor<KeepRatioEditor>("keepRatio")->lockToggle(), Qt::LeftButton);
        QCOMPARE(m_fixture->stack()->count(), 1);
        auto* size = m_fixture->editor<SizeEditor>("boundingSize");
        SheetFixture::enter(size->sizeWidget()->widthField(), "200");
        QCOMPARE(m_element->value("boundingSize"), QStringLiteral("200,150"));
        QCOMPARE(size->sizeWidget()->value(), QSizeF(200, 150));
        QCOMPARE(m_fixture->stack()->count(), 2);
        m_fixture->session->undo();
        QCOMPARE(m_element->value("boundingSize"), QStringLiteral("100,75"));
        QCOMPARE(size->sizeWidget()->value(), QSizeF(100, 75));
        m_fixture->session->undo();
        QVERIFY(!m_fixture->editor<KeepRatioEditor>("keepRatio")->lockToggle()->isLocked());
    }

    void aStoredTextThatDoesNotConvertIsReported()
    {
        m_fixture->select({});
        m_element->property("number")->fill(QStringLiteral("abc"));
        m_fixture->select({m_element});
        QVERIFY(m_fixture->message("number").contains(QLatin1String("abc")));
        SheetFixture::enter(m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox(), "0");
        QCOMPARE(m_element->value("number"), QStringLiteral("0"));
        QCOMPARE(m_fixture->message("number"), QString());
    }

    void tabGoesThroughTheFieldsInTheirOrder()
    {
        m_fixture->idField()->setFocus();
        int lastY = -1;
        QSet<QString> visited;
        for (int i = 0; i < 60; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            const QWidget* focus = QApplication::focusWidget();
            QVERIFY(focus);
            if (focus->objectName() == QLatin1String("sheetSearch"))
                break; // which stands above the heading
            // The row or heading it stands in: rows are named after their properties.
            const QWidget* row = focus;
            while (row && !row->objectName().startsWith(QLatin1String("row_"))
                   && !row->objectName().startsWith(QLatin1String("section_")))
                row = row->parentWidget();
            QVERIFY(row);
            QVERIFY(row->y() >= lastY);
            lastY = row->y();
            if (row->objectName().startsWith(QLatin1String("row_")))
                visited.insert(row->objectName());
        }
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("sheetSearch"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), m_fixture->idField());
        // The row that may not be edited takes no focus, and the lock shares the row of the size.
        QCOMPARE(visited.size(), 13);
    }

    void rowsFollowTheFlagsThatAnElementChanges()
    {
        m_element->after = [this](const DesignerProperty* property, const QString&) {
            if (property->id() == QLatin1String("number"))
                m_element->property("real")->setFlag(Shown, property->valueString() == QLatin1String("1"));
        };
        SheetFixture::enter(m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox(), "2");
        QTRY_VERIFY(!m_fixture->sheet->editor(QStringLiteral("real")));
        m_fixture->session->undo();
        m_element->property("real")->setFlag(Shown, true);
        m_fixture->session->setProperty(m_element, QStringLiteral("text"), QStringLiteral("x"));
        QTRY_VERIFY(m_fixture->sheet->editor(QStringLiteral("real")));
    }

    void messagesAreLegibleInLightAndDarkThemes_data()
    {
        QTest::addColumn<QColor>("window");
        QTest::addColumn<QColor>("text");
        QTest::newRow("light") << QColor(0xef, 0xef, 0xef) << QColor(Qt::black);
        QTest::newRow("white") << QColor(Qt::white) << QColor(0x20, 0x20, 0x20);
        QTest::newRow("dark") << QColor(0x2b, 0x2b, 0x2b) << QColor(0xee, 0xee, 0xee);
        QTest::newRow("black") << QColor(Qt::black) << QColor(Qt::white);
        QTest::newRow("middle") << QColor(0x70, 0x70, 0x70) << QColor(Qt::white);
    }

    void messagesAreLegibleInLightAndDarkThemes()
    {
        QFETCH(QColor, window);
        QFETCH(QColor, text);
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        palette.setColor(QPalette::WindowText, text);
        const auto luminance = [](const QColor& color) {
            const auto linear = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
            return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
        };
        for (const QColor& color : {errorColor(palette), quietColor(palette), markColor(palette)}) {
            const auto [dark, light] = std::minmax({luminance(color), luminance(window)});
            QVERIFY((light + 0.05) / (dark + 0.05) >= 4.5);
        }
    }

private:
    std::unique_ptr<SheetFixture> m_fixture;
    EditorTestElement* m_element = nullptr;
};

QTEST_MAIN(tst_PropertySheet)
#include "tst_PropertySheet.moc"
