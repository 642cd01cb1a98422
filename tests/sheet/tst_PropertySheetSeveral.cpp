#include "host/core/editors/BorderEditor.h"
#include "host/core/editors/ColorEditor.h"
#include "host/core/editors/FontEditor.h"
#include "host/core/editors/IntegerEditor.h"
#include "host/core/editors/KeepRatioEditor.h"
#include "host/core/editors/PointEditor.h"
#include "host/core/editors/RealEditor.h"
#include "host/core/editors/RotationEditor.h"
#include "host/core/editors/SizeEditor.h"
#include "host/core/editors/StringEditor.h"
#include "host/core/widgets/ColorPopup.h"
#include "host/core/widgets/ColorSwatch.h"
#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/FontStyleButton.h"
#include "host/core/widgets/FontWidget.h"
#include "host/core/widgets/HexColorField.h"
#include "host/core/widgets/HueSaturationField.h"
#include "host/core/widgets/LockToggle.h"
#include "host/core/widgets/NineGrid.h"
#include "host/core/widgets/NumberSlider.h"
#include "host/core/widgets/NumberWidget.h"
#include "host/core/widgets/SizeWidget.h"
#include "host/core/widgets/SpinBox.h"

#include "tests/sheet/SheetFixture.h"

#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

/// An editor as a plug-in may write it: knows nothing of components, saves on every change, and has a button that
/// changes another property directly.
class PlainEditor : public PropertyEditor
{
public:
    explicit PlainEditor(QWidget* parent)
        : PropertyEditor(parent)
    {}
    bool createEditorWidget() override
    {
        auto* widget = new QWidget(this);
        field = new QLineEdit(widget);
        button = new QPushButton(QStringLiteral("Direct"), widget);
        both = new QPushButton(QStringLiteral("Both"), widget);
        button->move(0, 40);
        both->move(100, 40);
        widget->setMinimumHeight(80);
        connect(button, &QPushButton::clicked, this, [this] { changeTextDirectly(); });
        connect(both, &QPushButton::clicked, this, [this] {
            changeTextDirectly();
            field->setText(QStringLiteral("11,12"));
            saveChange();
        });
        setEditorWidget(widget);
        saveOn(field, &QLineEdit::textEdited);
        return true;
    }
    QString editorValue() const override { return field->text(); }
    bool loadEditorValue() override
    {
        field->setText(valueToLoad());
        return true;
    }
    void changeTextDirectly()
    {
        DesignerObject* object = property()->parentObject();
        object->changePropertyValue(object->getProperty(QStringLiteral("text")), QStringLiteral("direct"));
    }
    QLineEdit* field = nullptr;
    QPushButton* button = nullptr;
    QPushButton* both = nullptr;
};

} // namespace

/// Several objects in the sheet: common rows, mixed values, and edits of all of them in one step.
class tst_PropertySheetSeveral : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<SheetFixture>();
        for (int i = 0; i < 3; ++i)
            m_elements[i] = m_fixture->addElement();
    }

    void cleanup()
    {
        m_fixture.reset();
        m_plain.reset();
    }

    void theHeadingCounts()
    {
        selectAll();
        QCOMPARE(m_fixture->sheet->title(), QStringLiteral("3 \u00d7 Test Element"));
        QVERIFY(!m_fixture->idField()->isVisible());
        m_fixture->select({m_elements[0], m_fixture->addRectangle()});
        QCOMPARE(m_fixture->sheet->title(), QStringLiteral("2 objects"));
    }

    void theCommonPropertiesAreShown()
    {
        m_fixture->select({m_elements[0], m_fixture->addRectangle()});
        for (const char* id : {"position", "rotation", "boundingSize", "keepRatio", "color", "border"})
            QVERIFY2(m_fixture->sheet->editor(QString::fromLatin1(id)), id);
        for (const char* id : {"number", "cornerRadius", "text", "size"})
            QVERIFY2(!m_fixture->sheet->editor(QString::fromLatin1(id)), id);
    }

    void aPropertyThatOneMayNotEditIsDisabledForAll()
    {
        m_elements[1]->property("real")->setFlag(Editable, false);
        selectAll();
        QVERIFY(!m_fixture->sheet->editor(QStringLiteral("real"))->isEnabled());
    }

    void valuesThatDifferAreShownAsMixed()
    {
        fill("position", {"10,5", "20,5", "30,5"});
        fill("number", {"1", "2", "1"});
        fill("text", {"a", "b", "c"});
        fill("color", {"#ff0000", "#00ff00", "#ff0000"});
        selectAll();
        auto* position = m_fixture->editor<PointEditor>("position");
        QVERIFY(position->xField()->isMixed());
        QVERIFY(!position->yField()->isMixed());
        QCOMPARE(position->yField()->value(), 5.0);
        QVERIFY(m_fixture->editor<IntegerEditor>("number")->numberWidget()->isMixed());
        QVERIFY(m_fixture->editor<ColorEditor>("color")->colorWidget()->isMixed());
        QCOMPARE(m_fixture->editor<StringEditor>("text")->textField()->text(), QString());
        QVERIFY(!m_fixture->editor<RealEditor>("real")->numberWidget()->isMixed());
        QCOMPARE(m_fixture->stack()->count(), 0);
    }

    void aRelativeEditChangesEachFromItsOwnValueInOneStep()
    {
        fill("number", {"1", "20", "33"});
        selectAll();
        SheetFixture::enter(m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox(), "+=10");
        QCOMPARE(values("number"), QStringList({QStringLiteral("11"), QStringLiteral("30"), QStringLiteral("43")}));
        QCOMPARE(m_fixture->stack()->count(), 1);
        QCOMPARE(m_fixture->stack()->text(0), QStringLiteral("Change Number"));
        QVERIFY(m_fixture->editor<IntegerEditor>("number")->numberWidget()->isMixed());
        m_fixture->session->undo();
        QCOMPARE(values("number"), QStringList({QStringLiteral("1"), QStringLiteral("20"), QStringLiteral("33")}));
        m_fixture->session->redo();
        QCOMPARE(values("number").last(), QStringLiteral("43"));
    }

    void anEditOfOneCoordinateLeavesTheOtherOfEach()
    {
        fill("position", {"10,5", "20,6", "30,7"});
        selectAll();
        auto* position = m_fixture->editor<PointEditor>("position");
        SheetFixture::enter(position->xField(), "+=10");
        QCOMPARE(values("position"),
                 QStringList({QStringLiteral("20,5"), QStringLiteral("30,6"), QStringLiteral("40,7")}));
        SheetFixture::enter(position->yField(), "100");
        QCOMPARE(values("position"),
                 QStringList({QStringLiteral("20,100"), QStringLiteral("30,100"), QStringLiteral("40,100")}));
        QVERIFY(position->xField()->isMixed());
        QVERIFY(!position->yField()->isMixed());
        QCOMPARE(m_fixture->stack()->count(), 2);
    }

    void typingTheFirstObjectsValueIntoAMixedFieldSetsAll()
    {
        fill("number", {"5", "20", "33"});
        selectAll();
        SheetFixture::enter(m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox(), "5");
        QCOMPARE(values("number"), QStringList({QStringLiteral("5"), QStringLiteral("5"), QStringLiteral("5")}));
        QCOMPARE(m_fixture->stack()->count(), 1);
        QVERIFY(!m_fixture->editor<IntegerEditor>("number")->numberWidget()->isMixed());
    }

    void stepsAreRelativeAndJoin()
    {
        fill("number", {"1", "20", "33"});
        selectAll();
        SpinBox* field = m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox();
        field->setFocus();
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(field, Qt::Key_Up);
        QCOMPARE(values("number"), QStringList({QStringLiteral("4"), QStringLiteral("23"), QStringLiteral("36")}));
        QCOMPARE(m_fixture->stack()->count(), 1);
        m_fixture->session->undo();
        QCOMPARE(values("number"), QStringList({QStringLiteral("1"), QStringLiteral("20"), QStringLiteral("33")}));
    }

    void partsOfABorderAndARotationAreEditedAlone()
    {
        fill("border", {"width: 1; color: #ff0000;", "width: 2; color: #00ff00;", "width: 3; color: #0000ff;"});
        fill("rotation",
             {"angle: 1; fixedPoint: Top;", "angle: 2; fixedPoint: Left;", "angle: 3; fixedPoint: Center;"});
        selectAll();
        SheetFixture::enter(m_fixture->editor<BorderEditor>("border")->widthField(), "9");
        QCOMPARE(values("border"),
                 QStringList({QStringLiteral("width: 9; color: #ff0000;"), QStringLiteral("width: 9; color: #00ff00;"),
                              QStringLiteral("width: 9; color: #0000ff;")}));
        auto* grid = m_fixture->editor<RotationEditor>("rotation")->fixedPointGrid();
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_End);
        QCOMPARE(values("rotation"), QStringList({QStringLiteral("angle: 1; fixedPoint: BottomRight;"),
                                                  QStringLiteral("angle: 2; fixedPoint: BottomRight;"),
                                                  QStringLiteral("angle: 3; fixedPoint: BottomRight;")}));
        SheetFixture::enter(m_fixture->editor<RotationEditor>("rotation")->angleWidget()->spinBox(), "*=2");
        QCOMPARE(values("rotation").at(2), QStringLiteral("angle: 6; fixedPoint: BottomRight;"));
        QCOMPARE(m_fixture->stack()->count(), 3);
    }

    void oneAttributeOfAFontIsEditedAlone()
    {
        fill("font", {"family: DejaVu Sans; pointSize: 10;", "family: DejaVu Serif; pixelSize: 20; italic: true;",
                      "family: DejaVu Sans; pointSize: 30; weight: 600;"});
        selectAll();
        QTest::mouseClick(m_fixture->editor<FontEditor>("font")->fontWidget()->styleButtons().at(2), Qt::LeftButton);
        QCOMPARE(values("font"),
                 QStringList({QStringLiteral("family: DejaVu Sans; pointSize: 10; underline: true;"),
                              QStringLiteral("family: DejaVu Serif; pixelSize: 20; italic: true; underline: true;"),
                              QStringLiteral("family: DejaVu Sans; pointSize: 30; underline: true; weight: 600;")}));
        QCOMPARE(m_fixture->stack()->count(), 1);
    }

    void relativeFontSizesAndSpacingsGoByEachOfThem()
    {
        fill("font", {"family: DejaVu Sans; pointSize: 10;", "family: DejaVu Sans; pixelSize: 20; letterSpacing: 1;",
                      "family: DejaVu Sans; pointSize: 30;"});
        selectAll();
        const FontWidget* font = m_fixture->editor<FontEditor>("font")->fontWidget();
        QVERIFY(font->sizeField()->isMixed());
        SheetFixture::enter(font->sizeField(), "+=5");
        QCOMPARE(values("font"), QStringList({QStringLiteral("family: DejaVu Sans; pointSize: 15;"),
                                              QStringLiteral("family: DejaVu Sans; pixelSize: 25; letterSpacing: 1;"),
                                              QStringLiteral("family: DejaVu Sans; pointSize: 35;")}));
        SheetFixture::enter(font->letterSpacingField(), "+=2");
        QCOMPARE(values("font").first(), QStringLiteral("family: DejaVu Sans; pointSize: 15; letterSpacing: 2;"));
        QCOMPARE(values("font").at(1), QStringLiteral("family: DejaVu Sans; pixelSize: 25; letterSpacing: 3;"));
        SheetFixture::enter(font->sizeField(), "/=3");
        QCOMPARE(values("font").at(2), QStringLiteral("family: DejaVu Sans; pointSize: 11.67; letterSpacing: 2;"));
        QCOMPARE(m_fixture->stack()->count(), 3);
    }

    void stylesThatDifferAreShownAsMixedAndSetForAll()
    {
        fill("font", {"family: DejaVu Sans; pointSize: 10; italic: true;", "family: DejaVu Sans; pointSize: 10;",
                      "family: DejaVu Sans; pointSize: 10;"});
        selectAll();
        const auto& styles = m_fixture->editor<FontEditor>("font")->fontWidget()->styleButtons();
        QVERIFY(styles.at(1)->isMixed());
        QVERIFY(!styles.at(0)->isMixed());
        QTest::mouseClick(styles.at(1), Qt::LeftButton);
        for (const QString& value : values("font"))
            QVERIFY2(value.contains(QLatin1String("italic: true")), qPrintable(value));
        QVERIFY(!styles.at(1)->isMixed());
        QVERIFY(styles.at(1)->isChecked());
    }

    void escapeInTheColorPopupGivesEachItsOwnColorBack()
    {
        fill("color", {"#ff0000", "#00ff00", "#0000ff"});
        const int steps = m_fixture->stack()->count();
        selectAll();
        ColorWidget* color = m_fixture->editor<ColorEditor>("color")->colorWidget();
        QTest::mouseClick(color->swatch(), Qt::LeftButton);
        auto* field = color->popup()->findChild<HueSaturationField*>();
        QTest::keyClick(field, Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(field, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(values("color").removeDuplicates(), 2);
        QCOMPARE(m_fixture->stack()->count(), steps + 1);
        QTest::keyClick(field, Qt::Key_Escape);
        QCOMPARE(values("color"),
                 QStringList({QStringLiteral("#ff0000"), QStringLiteral("#00ff00"), QStringLiteral("#0000ff")}));
        QCOMPARE(m_fixture->stack()->count(), steps);
        QTRY_VERIFY(color->isMixed());
    }

    void aColorIsSetForAll()
    {
        fill("color", {"#ff0000", "#00ff00", "#ff0000"});
        selectAll();
        SheetFixture::enter(m_fixture->editor<ColorEditor>("color")->colorWidget()->textField(), "#102030");
        QCOMPARE(values("color").removeDuplicates(), 2);
        QCOMPARE(values("color").first(), QStringLiteral("#102030"));
    }

    void eachKeepsItsOwnRatio()
    {
        for (int i = 0; i < 3; ++i)
            m_fixture->session->setProperty(
                m_elements[i], QStringLiteral("boundingSize"),
                QStringList({QStringLiteral("100,50"), QStringLiteral("100,200"), QStringLiteral("100,100")}).at(i));
        m_fixture->stack()->clear();
        selectAll();
        auto* lock = m_fixture->editor<KeepRatioEditor>("keepRatio")->lockToggle();
        QTest::mouseClick(lock, Qt::LeftButton);
        QCOMPARE(values("keepRatio"), QStringList({QStringLiteral("2"), QStringLiteral("0.5"), QStringLiteral("1")}));
        QVERIFY(lock->isLocked());
        QCOMPARE(m_fixture->stack()->count(), 1);
        SheetFixture::enter(m_fixture->editor<SizeEditor>("boundingSize")->sizeWidget()->widthField(), "200");
        QCOMPARE(values("boundingSize"),
                 QStringList({QStringLiteral("200,100"), QStringLiteral("200,400"), QStringLiteral("200,200")}));
        QCOMPARE(m_fixture->stack()->count(), 2);
        m_fixture->session->undo();
        QCOMPARE(values("boundingSize"),
                 QStringList({QStringLiteral("100,50"), QStringLiteral("100,200"), QStringLiteral("100,100")}));
        QTest::mouseClick(lock, Qt::LeftButton);
        QCOMPARE(values("keepRatio"), QStringList({QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("0")}));
        QVERIFY(!lock->isLocked());
    }

    void undoSelectsAllThatWereEdited()
    {
        fill("number", {"5", "20", "5"});
        selectAll();
        SheetFixture::enter(m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox(), "5");
        QCOMPARE(values("number").at(1), QStringLiteral("5"));
        m_fixture->session->undo();
        QCOMPARE(m_fixture->session->selection().size(), 3);
        QCOMPARE(m_fixture->sheet->objects().size(), 3);
        m_fixture->session->redo();
        QCOMPARE(m_fixture->session->selection().size(), 3);
    }

    void aValueThatOneRefusesChangesNone()
    {
        fill("number", {"1", "20", "33"});
        selectAll();
        SpinBox* field = m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox();
        SheetFixture::enter(field, "+=1");
        m_fixture->session->undo();
        SheetFixture::enter(field, "60");
        QCOMPARE(values("number"), QStringList({QStringLiteral("1"), QStringLiteral("20"), QStringLiteral("33")}));
        QCOMPARE(m_fixture->message("number"), QStringLiteral("50 is the most that this element can take."));
        QCOMPARE(field->text(), QStringLiteral("60 px"));
        QVERIFY(m_fixture->stack()->canRedo());
        SheetFixture::enter(field, "+=30");
        QCOMPARE(values("number"), QStringList({QStringLiteral("1"), QStringLiteral("20"), QStringLiteral("33")}));
        QTest::keyClick(field, Qt::Key_Escape);
        QCOMPARE(m_fixture->message("number"), QString());
        QVERIFY(m_fixture->editor<IntegerEditor>("number")->numberWidget()->isMixed());
    }

    void aRelativeEditKeepsToTheLimitsOfTheEditor()
    {
        fill("number", {"5", "20", "33"});
        selectAll();
        SheetFixture::enter(m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox(), "-=10");
        QCOMPARE(values("number"), QStringList({QStringLiteral("0"), QStringLiteral("10"), QStringLiteral("23")}));
    }

    void aSliderDragIsOneStepForAll()
    {
        fill("number", {"5", "20", "33"});
        selectAll();
        NumberSlider* slider = m_fixture->editor<IntegerEditor>("number")->numberWidget()->slider();
        const int y = slider->height() / 2;
        QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(4, y));
        for (int x = 6; x < slider->width() / 4; x += 2)
            QTest::mouseMove(slider, QPoint(x, y));
        QTest::mouseRelease(slider, Qt::LeftButton, {}, QPoint(slider->width() / 4, y));
        QCOMPARE(values("number").removeDuplicates(), 2);
        QCOMPARE(m_fixture->stack()->count(), 1);
        m_fixture->session->undo();
        QCOMPARE(values("number"), QStringList({QStringLiteral("5"), QStringLiteral("20"), QStringLiteral("33")}));
    }

    void aChangeElsewhereIsShown()
    {
        selectAll();
        m_fixture->session->setProperty(m_elements[1], QStringLiteral("number"), QStringLiteral("7"));
        QTRY_VERIFY(m_fixture->editor<IntegerEditor>("number")->numberWidget()->isMixed());
        m_fixture->session->undo();
        selectAll();
        QTRY_VERIFY(!m_fixture->editor<IntegerEditor>("number")->numberWidget()->isMixed());
    }

    void valuesThatBecomeTheSameElsewhereAreShown()
    {
        fill("number", {"7", "8", "7"});
        selectAll();
        const NumberWidget* number = m_fixture->editor<IntegerEditor>("number")->numberWidget();
        QVERIFY(number->isMixed());
        m_fixture->session->setProperty(m_elements[1], QStringLiteral("number"), QStringLiteral("7"));
        QTRY_VERIFY(!number->isMixed());
        QCOMPARE(number->spinBox()->text(), QStringLiteral("7 px"));
    }

    void anEditorThatKnowsNoComponentsChangesWhatDiffers()
    {
        usePlainEditors();
        fill("boundingSize", {"10,20", "30,40", "50,60"});
        selectAll();
        auto* editor = plainEditor();
        QCOMPARE(editor->field->text(), QStringLiteral("10,20"));
        editor->field->setFocus();
        editor->field->setCursorPosition(2);
        QTest::keyClicks(editor->field, QStringLiteral("0")); // "100,20": only the width differs
        QCOMPARE(values("boundingSize"),
                 QStringList({QStringLiteral("100,20"), QStringLiteral("100,40"), QStringLiteral("100,60")}));
        QCOMPARE(m_fixture->stack()->count(), 1);
        m_fixture->session->undo();
        QCOMPARE(values("boundingSize").last(), QStringLiteral("50,60"));
    }

    void directChangesOfAnEditorJoinItsStep()
    {
        usePlainEditors();
        selectAll();
        QTest::mouseClick(plainEditor()->both, Qt::LeftButton);
        QCOMPARE(values("boundingSize"),
                 QStringList({QStringLiteral("11,12"), QStringLiteral("11,12"), QStringLiteral("11,12")}));
        QCOMPARE(m_elements[0]->value("text"), QStringLiteral("direct"));
        QCOMPARE(m_fixture->stack()->count(), 1);
        m_fixture->session->undo();
        QCOMPARE(m_elements[0]->value("text"), QStringLiteral("[text]"));
        QCOMPARE(values("boundingSize").first(), QStringLiteral("100,75"));
    }

    void directChangesWithoutASaveAreAStepOfTheirOwn()
    {
        usePlainEditors();
        selectAll();
        QTest::mouseClick(plainEditor()->button, Qt::LeftButton);
        QCOMPARE(m_elements[0]->value("text"), QStringLiteral("direct"));
        QCOMPARE(m_fixture->stack()->count(), 1);
        QCOMPARE(m_fixture->stack()->text(0), QStringLiteral("Change Text"));
        m_fixture->session->undo();
        QCOMPARE(m_elements[0]->value("text"), QStringLiteral("[text]"));
        m_fixture->session->redo();
        QCOMPARE(m_elements[0]->value("text"), QStringLiteral("direct"));
    }

private:
    void selectAll() { m_fixture->select({m_elements[0], m_elements[1], m_elements[2]}); }

    void fill(const char* id, const std::array<const char*, 3>& texts)
    {
        for (std::size_t i = 0; i < texts.size(); ++i)
            m_fixture->session->setProperty(m_elements[i], QString::fromLatin1(id), QString::fromLatin1(texts.at(i)));
        m_fixture->stack()->clear();
    }

    QStringList values(const char* id) const
    {
        QStringList list;
        for (const EditorTestElement* element : m_elements)
            list.append(element->value(id));
        return list;
    }

    void usePlainEditors()
    {
        m_plain = std::make_unique<TestFactory>(
            QMap<QString, TestFactory::Maker>(),
            QMap<QString, TestFactory::EditorMaker>{
                {QStringLiteral("PlainEditor"), [](QWidget* parent) { return new PlainEditor(parent); }}});
        for (EditorTestElement* element : m_elements)
            element->property("boundingSize")->setEditor(QStringLiteral("PlainEditor"));
    }

    PlainEditor* plainEditor() const
    {
        return static_cast<PlainEditor*>(m_fixture->sheet->editor(QStringLiteral("boundingSize")));
    }

    std::unique_ptr<TestFactory> m_plain;
    std::unique_ptr<SheetFixture> m_fixture;
    std::array<EditorTestElement*, 3> m_elements{};
};

QTEST_MAIN(tst_PropertySheetSeveral)
#include "tst_PropertySheetSeveral.moc"
