#include "app/CanvasPanel.h"
#include "tests/app/TestWindow.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/editors/PropertyEditor.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/PropertySheet.h"
#include "host/core/sheet/SectionFolds.h"
#include "host/core/widgets/ColorPopup.h"
#include "host/core/widgets/ColorSwatch.h"
#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/SpinBox.h"

#include <QAction>
#include <QDockWidget>
#include <QLineEdit>

using namespace Korvex::Meridane::Designer;
using Test::TestWindow;

/// The property sheet in the window: its actions, and that nothing typed into it is lost whatever one turns to next.
class tst_SheetActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(TestWindow::isolate());
        (void)DesignerFactory::instance()->loadInstalledPlugins();
    }

    void init()
    {
        m_window = std::make_unique<TestWindow>();
        QVERIFY(m_window->show());
        m_window->session()->addElement(QStringLiteral("Rectangle"), screen(), {},
                                        {{QStringLiteral("position"), QStringLiteral("20,20")}}, &m_element);
        QVERIFY(m_element);
        m_window->session()->setSelection({m_element});
        QCoreApplication::processEvents();
    }

    void cleanup()
    {
        SectionFolds::shared().setFolded(QStringLiteral("appearance"), false);
        m_window.reset();
    }

    void findGoesToTheSearchLineAndEscapeBack()
    {
        canvas()->setFocus();
        QTest::keyClick(m_window->window.get(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(search()->hasFocus());
        QTest::keyClicks(search(), QStringLiteral("radius"));
        QTest::keyClick(search(), Qt::Key_Escape);
        QVERIFY(canvas()->hasFocus());
        QCOMPARE(search()->text(), QString());
    }

    void findShowsTheSheetFirst()
    {
        auto* dock = m_window->window->findChild<QDockWidget*>(QStringLiteral("SheetDock"));
        dock->hide();
        m_window->action("sheet.find")->trigger();
        QVERIFY(dock->isVisible());
        QVERIFY(search()->hasFocus());
    }

    void resetIsOfferedWhileThereIsSomethingToReset()
    {
        QAction* reset = m_window->action("sheet.resetProperty");
        QVERIFY(!reset->isEnabled());
        SpinBox* field = type("cornerRadius", "9");
        QTest::keyClick(field, Qt::Key_Return);
        QVERIFY(reset->isEnabled());
        const int steps = m_window->session()->undoStack()->count();
        QTest::keyClick(m_window->window.get(), Qt::Key_Backspace, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(value("cornerRadius"), QStringLiteral("0"));
        QCOMPARE(m_window->session()->undoStack()->count(), steps + 1);
        QVERIFY(!reset->isEnabled());
        m_window->session()->undo();
        QCOMPARE(value("cornerRadius"), QStringLiteral("9"));
        QVERIFY(reset->isEnabled());
        m_window->session()->setSelection({});
        QVERIFY(!reset->isEnabled());
    }

    void aClickOnTheCanvasTakesWhatWasTypedOver()
    {
        type("cornerRadius", "7");
        QTest::mouseClick(canvas()->viewport(), Qt::LeftButton, {}, canvas()->mapFromScene(QPointF(300, 200)));
        QCOMPARE(value("cornerRadius"), QStringLiteral("7"));
    }

    void savingTakesWhatWasTypedOverAndLeavesTheFocus()
    {
        m_window->prompts.saveFolder = m_window->path("project");
        SpinBox* field = type("cornerRadius", "6");
        QTest::keyClick(m_window->window.get(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(value("cornerRadius"), QStringLiteral("6"));
        QVERIFY(!m_window->session()->project()->isModified());
        QVERIFY(field->hasFocus());
    }

    void anotherScreenTakesWhatWasTypedOver()
    {
        Screen* second = nullptr;
        m_window->session()->addScreen(QStringLiteral("second"), {}, &second);
        m_window->session()->setCurrentScreen(qobject_cast<Screen*>(m_element->parentObject()));
        m_window->session()->setSelection({m_element});
        type("cornerRadius", "5");
        QTest::keyClick(m_window->window.get(), Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(m_window->session()->currentScreen(), second);
        QCOMPARE(value("cornerRadius"), QStringLiteral("5"));
    }

    void closingTheWindowTakesWhatWasTypedOverBeforeItAsks()
    {
        m_window->prompts.saveFolder = m_window->path("project");
        QTest::keyClick(m_window->window.get(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_window->session()->project()->isModified());
        type("cornerRadius", "4");
        m_window->prompts.asked.clear();
        m_window->prompts.saveAnswer = UserPrompts::SaveAnswer::Cancel;
        QVERIFY(!m_window->window->close());
        QCOMPARE(m_window->prompts.asked.size(), 1);
        QCOMPARE(value("cornerRadius"), QStringLiteral("4"));
        m_window->prompts.saveAnswer = UserPrompts::SaveAnswer::Discard;
    }

    void foldedSectionsAreThereAgainInTheNextWindow()
    {
        SectionFolds::shared().setFolded(QStringLiteral("appearance"), true);
        m_window->prompts.saveAnswer = UserPrompts::SaveAnswer::Discard;
        QVERIFY(m_window->window->close());
        SectionFolds::shared().setFolded(QStringLiteral("appearance"), false);
        m_window = std::make_unique<TestWindow>(false);
        QVERIFY(SectionFolds::shared().isFolded(QStringLiteral("appearance")));
    }

    void theColorPopupOffersTheColorsOfTheProject()
    {
        m_window->session()->setProperty(m_element, QStringLiteral("color"), QStringLiteral("#123456"));
        auto* color = sheet()->editor(QStringLiteral("color"))->findChild<ColorWidget*>();
        QTest::mouseClick(color->swatch(), Qt::LeftButton);
        const auto swatches = color->popup()->findChildren<ColorSwatch*>(QStringLiteral("usedColor"));
        QVERIFY(!swatches.isEmpty());
        QVERIFY(std::any_of(swatches.begin(), swatches.end(),
                            [](const ColorSwatch* swatch) { return swatch->color() == QColor(0x12, 0x34, 0x56); }));
        color->popup()->close();
    }

private:
    Screen* screen() const { return m_window->session()->currentScreen(); }
    CanvasView* canvas() const { return m_window->window->workspace()->canvas(); }
    PropertySheet* sheet() const { return m_window->window->workspace()->sheet(); }
    QLineEdit* search() const { return sheet()->findChild<QLineEdit*>(QStringLiteral("sheetSearch")); }
    QString value(const char* id) const { return m_element->getProperty(QString::fromLatin1(id))->valueString(); }

    /// Types into the first number field of a property and leaves the text there.
    SpinBox* type(const char* id, const char* text) const
    {
        auto* field = sheet()->editor(QString::fromLatin1(id))->findChild<SpinBox*>();
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QString::fromLatin1(text));
        return field;
    }

    std::unique_ptr<TestWindow> m_window;
    DesignerObject* m_element = nullptr;
};

QTEST_MAIN(tst_SheetActions)
#include "tst_SheetActions.moc"
