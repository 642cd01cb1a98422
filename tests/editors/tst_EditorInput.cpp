#include "host/core/canvas/EditSession.h"
#include "host/core/commands/UndoCommand.h"
#include "host/core/editors/BorderEditor.h"
#include "host/core/editors/ColorEditor.h"
#include "host/core/editors/EnumEditor.h"
#include "host/core/editors/FontEditor.h"
#include "host/core/editors/ImageSourceEditor.h"
#include "host/core/editors/IntegerEditor.h"
#include "host/core/editors/KeepRatioEditor.h"
#include "host/core/editors/LinkEditor.h"
#include "host/core/editors/PointEditor.h"
#include "host/core/editors/PointListTextEditor.h"
#include "host/core/editors/RealEditor.h"
#include "host/core/editors/RotationEditor.h"
#include "host/core/editors/SizeEditor.h"
#include "host/core/editors/StringEditor.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/widgets/ColorPopup.h"
#include "host/core/widgets/ColorSwatch.h"
#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/ComboBox.h"
#include "host/core/widgets/FontFamilyBox.h"
#include "host/core/widgets/FontStyleButton.h"
#include "host/core/widgets/FontWidget.h"
#include "host/core/widgets/HexColorField.h"
#include "host/core/widgets/LockToggle.h"
#include "host/core/widgets/NineGrid.h"
#include "host/core/widgets/NumberSlider.h"
#include "host/core/widgets/NumberWidget.h"
#include "host/core/widgets/SizeWidget.h"
#include "host/core/widgets/SpinBox.h"

#include "tests/support/EditorTestElement.h"

#include <QImage>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// Real events on each editor in a window: what is typed becomes one undo step, which undo takes back.
class tst_EditorInput : public QObject
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
        project->setFolder(m_folder.path());
        m_session = std::make_unique<EditSession>(std::move(project));
        Screen* screen = nullptr;
        m_session->addScreen(QStringLiteral("main"), {}, &screen);
        for (int i = 0; i < 2; ++i) {
            DesignerObject* object = nullptr;
            m_session->addElement(QStringLiteral("EditorTestElement"), screen, {}, {}, &object);
            m_element = qobject_cast<EditorTestElement*>(object);
        }
        QVERIFY(m_element);
        stack()->clear();
        m_window = std::make_unique<QWidget>();
        new QVBoxLayout(m_window.get());
    }

    void cleanup()
    {
        m_window.reset();
        m_session.reset();
    }

    void aTypedIntegerIsOneStep()
    {
        auto* editor = show<IntegerEditor>("number");
        type(editor->numberWidget()->spinBox(), "12");
        QCOMPARE(m_element->value("number"), QStringLiteral("1"));
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(m_element->value("number"), QStringLiteral("12"));
        QCOMPARE(stack()->count(), 1);
        QCOMPARE(stack()->text(0), QStringLiteral("Change Number"));
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(stack()->count(), 1);
        m_session->undo();
        editor->load();
        QCOMPARE(m_element->value("number"), QStringLiteral("1"));
        QCOMPARE(editor->numberWidget()->value(), 1.0);
    }

    void twoTypedNumbersAreTwoSteps()
    {
        auto* editor = show<IntegerEditor>("number");
        for (const char* text : {"12", "13"}) {
            type(editor->numberWidget()->spinBox(), text);
            QTest::keyClick(focus(), Qt::Key_Return);
        }
        QCOMPARE(stack()->count(), 2);
    }

    void stepsThatFollowEachOtherAreOneStep()
    {
        auto* editor = show<IntegerEditor>("number");
        editor->numberWidget()->spinBox()->setFocus();
        for (int i = 0; i < 5; ++i)
            QTest::keyClick(focus(), Qt::Key_Up);
        QCOMPARE(m_element->value("number"), QStringLiteral("6"));
        QCOMPARE(stack()->count(), 1);
        type(editor->numberWidget()->spinBox(), "20");
        QTest::keyClick(focus(), Qt::Key_Return);
        QTest::keyClick(focus(), Qt::Key_Down);
        QTest::keyClick(focus(), Qt::Key_Down);
        QCOMPARE(m_element->value("number"), QStringLiteral("18"));
        QCOMPARE(stack()->count(), 3);
    }

    void stepsThatLeadBackLeaveNoStep()
    {
        auto* editor = show<IntegerEditor>("number");
        editor->numberWidget()->spinBox()->setFocus();
        QTest::keyClick(focus(), Qt::Key_Up);
        QTest::keyClick(focus(), Qt::Key_Down);
        QCOMPARE(m_element->value("number"), QStringLiteral("1"));
        QCOMPARE(stack()->count(), 0);
    }

    void anotherPartThanTheOneThatWasSteppedIsAStepOfItsOwn()
    {
        auto* editor = show<BorderEditor>("border");
        auto* width = editor->findChild<SpinBox*>();
        auto* color = editor->findChild<ColorWidget*>();
        width->setFocus();
        QTest::keyClick(width, Qt::Key_Up);
        QTest::keyClick(width, Qt::Key_Up);
        QTest::mouseClick(color->swatch(), Qt::LeftButton);
        auto* text = color->popup()->findChild<HexColorField*>();
        type(text, "#112233");
        QTest::keyClick(text, Qt::Key_Return);
        color->popup()->close();
        QCOMPARE(m_element->value("border"), QStringLiteral("width: 2; color: #112233;"));
        QCOMPARE(stack()->count(), 2);
        m_session->undo();
        QCOMPARE(m_element->value("border"), QStringLiteral("width: 2; color: #000000;"));
    }

    void aSliderDragIsOneStep()
    {
        auto* editor = show<IntegerEditor>("number");
        NumberSlider* slider = editor->numberWidget()->slider();
        QVERIFY(slider->isVisible());
        const int y = slider->height() / 2;
        for (int drag = 1; drag <= 2; ++drag) {
            QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(3, y));
            for (int x = 4; x < slider->width() / (4 * drag); x += 3)
                QTest::mouseMove(slider, QPoint(x, y));
            QTest::mouseRelease(slider, Qt::LeftButton, {}, QPoint(slider->width() / (4 * drag), y));
            QCOMPARE(stack()->count(), drag);
        }
        m_session->undo();
        m_session->undo();
        QCOMPARE(m_element->value("number"), QStringLiteral("1"));
    }

    void aSliderDragThatEscapeTakesBackLeavesNoStep()
    {
        auto* editor = show<IntegerEditor>("number");
        NumberSlider* slider = editor->numberWidget()->slider();
        const int y = slider->height() / 2;
        QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(3, y));
        for (int x = 4; x < slider->width() / 4; x += 3)
            QTest::mouseMove(slider, QPoint(x, y));
        QVERIFY(m_element->value("number") != QStringLiteral("1"));
        QTest::keyClick(slider, Qt::Key_Escape);
        QCOMPARE(m_element->value("number"), QStringLiteral("1"));
        QCOMPARE(stack()->count(), 0);
    }

    void arithmeticIsCalculated()
    {
        auto* editor = show<RealEditor>("real");
        type(editor->numberWidget()->spinBox(), "120/3");
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(m_element->value("real"), QStringLiteral("40"));
        type(editor->numberWidget()->spinBox(), "+=2.5");
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(m_element->value("real"), QStringLiteral("42.5"));
        QCOMPARE(stack()->count(), 2);
    }

    void aTypedValueIsTakenOverWhenTheFocusLeaves()
    {
        auto* editor = show<RealEditor>("real");
        auto* other = new QLineEdit(m_window.get());
        m_window->layout()->addWidget(other);
        other->show();
        type(editor->numberWidget()->spinBox(), "7");
        other->setFocus();
        QCOMPARE(m_element->value("real"), QStringLiteral("7"));
        QCOMPARE(stack()->count(), 1);
    }

    void aRefusedValueKeepsTheTextAndTheHistory()
    {
        auto* editor = show<IntegerEditor>("number");
        type(editor->numberWidget()->spinBox(), "5");
        QTest::keyClick(focus(), Qt::Key_Return);
        m_session->undo();
        editor->load();
        QSignalSpy refused(editor, &PropertyEditor::refused);
        type(editor->numberWidget()->spinBox(), "60");
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(refused.size(), 1);
        QCOMPARE(refused.first().first().toString(), QStringLiteral("50 is the most that this element can take."));
        QCOMPARE(m_element->value("number"), QStringLiteral("1"));
        QCOMPARE(editor->numberWidget()->spinBox()->text(), QStringLiteral("60 px"));
        QVERIFY(editor->isRefused());
        QCOMPARE(stack()->count(), 1);
        QVERIFY(stack()->canRedo());
        QTest::keyClick(focus(), Qt::Key_Escape);
        QCOMPARE(editor->numberWidget()->value(), 1.0);
        QVERIFY(!editor->isRefused());
    }

    void aSizeIsEditedByDimension()
    {
        m_element->property("boundingSize")->fill(QStringLiteral("43.301270189,20"));
        auto* editor = show<SizeEditor>("boundingSize");
        type(editor->sizeWidget()->heightField(), "30");
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(m_element->value("size"), QStringLiteral("43.301270189,30"));
        QCOMPARE(stack()->count(), 1);
    }

    void aKeptRatioCompletesTheOtherDimension()
    {
        auto* lock = show<KeepRatioEditor>("keepRatio");
        QTest::mouseClick(lock->lockToggle(), Qt::LeftButton);
        QCOMPARE(ValueConversion::toReal(m_element->value("keepRatio")), 100.0 / 75);
        QCOMPARE(stack()->count(), 1);

        auto* editor = show<SizeEditor>("boundingSize");
        type(editor->sizeWidget()->widthField(), "200");
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(m_element->value("boundingSize"), QStringLiteral("200,150"));
        QCOMPARE(m_element->value("size"), QStringLiteral("200,150"));
        QCOMPARE(editor->sizeWidget()->value(), QSizeF(200, 150));
        QCOMPARE(stack()->count(), 2);
        type(editor->sizeWidget()->heightField(), "75");
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(m_element->value("boundingSize"), QStringLiteral("100,75"));
        m_session->undo();
        QCOMPARE(m_element->value("size"), QStringLiteral("200,150"));
        m_session->undo();
        QCOMPARE(m_element->value("size"), QStringLiteral("100,75"));
        QCOMPARE(m_element->value("boundingSize"), QStringLiteral("100,75"));

        QTest::mouseClick(lock->lockToggle(), Qt::LeftButton);
        QCOMPARE(m_element->value("keepRatio"), QStringLiteral("0"));
    }

    void aPointIsEditedByCoordinate()
    {
        auto* editor = show<PointEditor>("position");
        type(editor->yField(), "-12.5");
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(m_element->value("position"), QStringLiteral("0,-12.5"));
        QCOMPARE(stack()->text(0), QStringLiteral("Change Position"));
    }

    void aColorIsTyped()
    {
        auto* editor = show<ColorEditor>("color");
        QLineEdit* field = editor->colorWidget()->textField();
        type(field, "#102030");
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(m_element->value("color"), QStringLiteral("#102030"));
        QCOMPARE(stack()->count(), 1);
    }

    void aBorderIsEditedByPart()
    {
        auto* editor = show<BorderEditor>("border");
        type(editor->widthField(), "3");
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(m_element->value("border"), QStringLiteral("width: 3; color: #000000;"));
        QCOMPARE(stack()->count(), 1);
    }

    void aTextIsTakenOverOnEnter()
    {
        auto* editor = show<StringEditor>("text");
        type(editor->textField(), "Hello");
        QCOMPARE(stack()->count(), 0);
        QTest::keyClick(editor->textField(), Qt::Key_Return);
        QCOMPARE(m_element->value("text"), QStringLiteral("Hello"));
        QCOMPARE(stack()->count(), 1);
        type(editor->textField(), "dropped");
        QTest::keyClick(editor->textField(), Qt::Key_Escape);
        QCOMPARE(editor->textField()->text(), QStringLiteral("Hello"));
        QCOMPARE(stack()->count(), 1);
    }

    void textThatIsNoPointListIsRefused()
    {
        auto* editor = show<PointListTextEditor>("points");
        QSignalSpy refused(editor, &PropertyEditor::refused);
        type(editor->textField(), "0,0 10");
        QTest::keyClick(editor->textField(), Qt::Key_Return);
        QCOMPARE(refused.size(), 1);
        QCOMPARE(editor->textField()->text(), QStringLiteral("0,0 10"));
        QCOMPARE(stack()->count(), 0);
        type(editor->textField(), "0,0 10,0 5,7.5");
        QTest::keyClick(editor->textField(), Qt::Key_Return);
        QCOMPARE(m_element->value("points"), QStringLiteral("0,0 10,0 5,7.5"));
        QVERIFY(!editor->isRefused());
    }

    void aFontIsEditedByAttribute()
    {
        auto* editor = show<FontEditor>("font");
        QTest::mouseClick(editor->fontWidget()->styleButtons().first(), Qt::LeftButton);
        QCOMPARE(m_element->value("font"), QStringLiteral("family: DejaVu Sans; pointSize: 24; bold: true;"));
        type(editor->fontWidget()->sizeField(), "30");
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(m_element->value("font"), QStringLiteral("family: DejaVu Sans; pointSize: 30; bold: true;"));
        QCOMPARE(stack()->count(), 2);
    }

    void aRotationIsEditedByPart()
    {
        auto* editor = show<RotationEditor>("rotation");
        type(editor->angleWidget()->spinBox(), "-45");
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(m_element->value("rotation"), QStringLiteral("angle: -45; fixedPoint: Center;"));
        editor->fixedPointGrid()->setFocus();
        QTest::keyClick(editor->fixedPointGrid(), Qt::Key_Home);
        QCOMPARE(m_element->value("rotation"), QStringLiteral("angle: -45; fixedPoint: TopLeft;"));
        QCOMPARE(stack()->count(), 2);
        QCOMPARE(editor->angleWidget()->slider()->number(), 0.0);
    }

    void anEnumerationIsChosenWithTheKeyboard()
    {
        auto* editor = show<EnumEditor>("spread");
        QCOMPARE(editor->comboBox()->itemText(0), QStringLiteral("Pad"));
        editor->comboBox()->setFocus();
        QTest::keyClick(editor->comboBox(), Qt::Key_Down);
        QCOMPARE(m_element->value("spread"), QStringLiteral("ReflectSpread"));
        QCOMPARE(stack()->count(), 1);
    }

    void aLinkOffersTheObjectsOfItsScope()
    {
        auto* editor = show<LinkEditor>("link");
        editor->comboBox()->setFocus();
        // "(none)" and the other element: no object links to itself.
        QCOMPARE(editor->comboBox()->count(), 2);
        QTest::keyClick(editor->comboBox(), Qt::Key_Down);
        QCOMPARE(m_element->value("link"), QStringLiteral("test1"));
        QCOMPARE(stack()->count(), 1);
        m_element->property("link")->fill(QStringLiteral("gone"));
        editor->load();
        QCOMPARE(editor->comboBox()->currentText(), QStringLiteral("gone (missing)"));
    }

    void anImportedImageIsLinked()
    {
        QTemporaryDir elsewhere;
        const QString file = elsewhere.filePath(QStringLiteral("logo.png"));
        QImage picture(8, 8, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(file));
        auto* editor = show<ImageSourceEditor>("source");
        QVERIFY(editor->importButton()->isEnabled());
        editor->importFile(file);
        QCOMPARE(m_element->value("source"), QStringLiteral("logo.png"));
        QCOMPARE(stack()->count(), 1);
        const int index = editor->comboBox()->currentIndex();
        QTRY_VERIFY(!editor->comboBox()->itemIcon(index).isNull());

        QSignalSpy refused(editor, &PropertyEditor::refused);
        editor->importFile(elsewhere.filePath(QStringLiteral("missing.png")));
        QCOMPARE(refused.size(), 1);
        QCOMPARE(m_element->value("source"), QStringLiteral("logo.png"));
    }

    void anImportedFontIsChosen()
    {
        const QString before = m_element->value("font");
        auto* editor = show<FontEditor>("font");
        FontFamilyBox* family = editor->fontWidget()->familyBox();
        QVERIFY(editor->fontWidget()->importButton()->isEnabled());
        editor->importFile(QStringLiteral(MERIDANE_FONT));
        QVERIFY(m_element->value("font").startsWith(QLatin1String("family: Panel Segments;")));
        QCOMPARE(stack()->count(), 1);
        QCOMPARE(family->currentText(), QStringLiteral("Panel Segments"));
        QVERIFY(family->isInstalled());
        QVERIFY(family->toolTip().isEmpty());
        // A font that goes is shown as missing, one that comes back as there.
        Project* project = m_session->project();
        const QStringList fonts = project->fontResources();
        project->setFontResources({});
        QCOMPARE(family->currentText(), QStringLiteral("Panel Segments"));
        QVERIFY(!family->isInstalled());
        QVERIFY(!family->toolTip().isEmpty());
        project->setFontResources(fonts);
        QVERIFY(family->isInstalled());
        QVERIFY(family->toolTip().isEmpty());
        stack()->undo();
        QCOMPARE(m_element->value("font"), before);
        QCOMPARE(project->fontResources(), fonts);

        QSignalSpy refused(editor, &PropertyEditor::refused);
        editor->importFile(QStringLiteral("/missing.ttf"));
        QCOMPARE(refused.size(), 1);
        QCOMPARE(m_element->value("font"), before);
    }

    void valuesOutsideTheLimitsOfAnEditorAreShownAndKept()
    {
        m_element->property("number")->fill(QStringLiteral("250"));
        auto* editor = show<IntegerEditor>("number");
        QCOMPARE(editor->numberWidget()->spinBox()->text(), QStringLiteral("250 px"));
        editor->numberWidget()->spinBox()->setFocus();
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(stack()->count(), 0);
    }

private:
    UndoStack* stack() const { return m_session->undoStack(); }
    static QWidget* focus() { return QApplication::focusWidget(); }

    template <typename Editor>
    Editor* show(const char* propertyId)
    {
        auto* editor = new Editor(m_window.get());
        editor->setSession(m_session.get());
        editor->setProperty(m_element->property(propertyId));
        if (!editor->initialize())
            qFatal("the editor cannot be initialized");
        m_window->layout()->addWidget(editor);
        m_window->resize(300, 400);
        m_window->show();
        m_window->activateWindow();
        if (!QTest::qWaitForWindowActive(m_window.get()))
            qFatal("the window does not become active");
        return editor;
    }

    template <typename Field>
    static void type(Field* field, const char* text)
    {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QString::fromLatin1(text));
    }

    QTemporaryDir m_folder;
    std::unique_ptr<TestFactory> m_factory;
    std::unique_ptr<EditSession> m_session;
    std::unique_ptr<QWidget> m_window;
    EditorTestElement* m_element = nullptr;
};

QTEST_MAIN(tst_EditorInput)
#include "tst_EditorInput.moc"
