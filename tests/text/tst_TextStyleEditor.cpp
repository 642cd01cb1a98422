#include "tests/text/TextSheet.h"

#include "host/core/widgets/ColorPopup.h"
#include "host/core/widgets/ColorSwatch.h"
#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/ComboBox.h"
#include "host/core/widgets/HexColorField.h"
#include "host/core/widgets/HueSaturationField.h"

#include <QAbstractItemView>

#include <memory>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

const QString Normal = QStringLiteral("textStyle: Normal;");

QString colored(const char* name, const char* color)
{
    return QStringLiteral("textStyle: %1; styleColor: %2;").arg(QLatin1String(name), QLatin1String(color));
}

} // namespace

/// The editor of the plug-in in the property sheet.
class tst_TextStyleEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_sheet = std::make_unique<TextSheet>(); }
    void cleanup() { m_sheet.reset(); }

    void theSheetAsksThePluginForTheEditor()
    {
        m_sheet->select({m_sheet->add()});
        QCOMPARE(editor()->className(), QStringLiteral("TextStyleEditor"));
        QCOMPARE(editor()->classNames().last(), QStringLiteral("TextStyleEditor"));
        QCOMPARE(box()->accessibleName(), QStringLiteral("Text Style"));
        QCOMPARE(box()->itemText(0), QStringLiteral("Standard"));
        QCOMPARE(box()->currentIndex(), 0);
        QVERIFY(!color()->isVisible());
        QCOMPARE(editor()->editorValue(), Normal);
    }

    void aChosenStyleIsWrittenWithTheInitialColor_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("value");
        QTest::newRow("Outline") << 1 << colored("Outline", "#ff0000");
        QTest::newRow("Raised") << 2 << colored("Raised", "#ff0000");
        QTest::newRow("Sunken") << 3 << colored("Sunken", "#ff0000");
    }
    void aChosenStyleIsWrittenWithTheInitialColor()
    {
        QFETCH(int, index);
        QFETCH(QString, value);
        auto* element = m_sheet->add();
        m_sheet->select({element});
        choose(index);
        QCOMPARE(style(element), value);
        QVERIFY(color()->isVisible());
        QCOMPARE(m_sheet->stack()->count(), 1);
        QCOMPARE(m_sheet->stack()->text(0), QStringLiteral("Change Text Style"));
        m_sheet->session->undo();
        QCOMPARE(style(element), Normal);
        QCOMPARE(box()->currentIndex(), 0);
        QVERIFY(!color()->isVisible());
        m_sheet->session->redo();
        QCOMPARE(editor()->editorValue(), value);
        QVERIFY(color()->isVisible());
    }

    void everyKeyIsAStep()
    {
        auto* element = m_sheet->add();
        m_sheet->select({element});
        box()->setFocus();
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(box(), Qt::Key_Down);
        QCOMPARE(style(element), colored("Sunken", "#ff0000"));
        QCOMPARE(m_sheet->stack()->count(), 3);
    }

    void theStandardStyleWritesNoColor()
    {
        auto* element = m_sheet->addAndSelect("textStyle", colored("Raised", "#00ff00"));
        enterColor("#0000ff");
        QCOMPARE(style(element), colored("Raised", "#0000ff"));
        choose(0);
        QCOMPARE(style(element), Normal);
        QVERIFY(!color()->isVisible());
        QCOMPARE(color()->color(), QColor(Qt::blue));
        // The colour comes back with a style.
        choose(1);
        QCOMPARE(style(element), colored("Outline", "#0000ff"));
        QCOMPARE(m_sheet->stack()->count(), 3);
    }

    void aStoredValueIsShown_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QColor>("color");
        const QColor initial(Qt::red);
        QTest::newRow("Normal") << Normal << QStringLiteral("Standard") << initial;
        QTest::newRow("Outline") << colored("Outline", "#00ff00") << QStringLiteral("Outline") << QColor(Qt::green);
        QTest::newRow("Raised") << colored("Raised", "#102030") << QStringLiteral("Raised") << QColor(0x10, 0x20, 0x30);
        QTest::newRow("Sunken") << colored("Sunken", "#80ff0000") << QStringLiteral("Sunken")
                                << QColor(0xff, 0, 0, 0x80);
        QTest::newRow("no colour") << QStringLiteral("textStyle: Raised;") << QStringLiteral("Raised") << initial;
        QTest::newRow("a bad colour") << colored("Raised", "none of them") << QStringLiteral("Raised") << initial;
        QTest::newRow("a colour's name") << colored("Raised", "blue") << QStringLiteral("Raised") << QColor(Qt::blue);
        QTest::newRow("unknown style") << colored("Embossed", "#00ff00") << QStringLiteral("Standard") << initial;
        QTest::newRow("empty style") << QStringLiteral("textStyle: ;") << QStringLiteral("Standard") << initial;
        QTest::newRow("Standard") << QStringLiteral("textStyle: Standard;") << QStringLiteral("Standard") << initial;
        QTest::newRow("normal with a colour") << colored("Normal", "#00ff00") << QStringLiteral("Standard") << initial;
        QTest::newRow("the colour alone")
            << QStringLiteral("styleColor: #00ff00;") << QStringLiteral("Standard") << initial;
        QTest::newRow("no group") << QStringLiteral("Outline") << QStringLiteral("Standard") << initial;
        QTest::newRow("empty") << QString() << QStringLiteral("Standard") << initial;
    }
    void aStoredValueIsShown()
    {
        QFETCH(QString, value);
        QFETCH(QString, key);
        QFETCH(QColor, color);
        auto* other = m_sheet->addWith("textStyle", colored("Sunken", "#abcdef"));
        auto* element = m_sheet->addWith("textStyle", value);
        m_sheet->select({element});
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(box()->currentItemKey(), key);
            QCOMPARE(this->color()->color(), color);
            QCOMPARE(this->color()->isVisible(), key != QLatin1String("Standard"));
            // What the editor shows of another element leaves nothing behind.
            m_sheet->select({other});
            QCOMPARE(box()->currentItemKey(), QStringLiteral("Sunken"));
            m_sheet->select({element});
        }
        // And loading writes nothing, whatever the value is.
        editor()->load();
        QCOMPARE(style(element), value);
        QCOMPARE(m_sheet->stack()->count(), 0);
    }

    void anUnknownStyleSelectsTheStandardItem()
    {
        auto* element = m_sheet->addAndSelect("textStyle", colored("Outline", "#00ff00"));
        m_sheet->set(element, "textStyle", colored("Embossed", "#0000ff"));
        QCOMPARE(box()->currentItemKey(), QStringLiteral("Standard"));
        QVERIFY(!color()->isVisible());
    }

    void theColorOfANormalStyleIsNotRead()
    {
        auto* element = m_sheet->addAndSelect("textStyle", colored("Outline", "#00ff00"));
        m_sheet->set(element, "textStyle", colored("Normal", "#0000ff"));
        QCOMPARE(box()->currentItemKey(), QStringLiteral("Standard"));
        QCOMPARE(color()->color(), QColor(Qt::green));
    }

    void aTypedColorIsAStep()
    {
        auto* element = m_sheet->addAndSelect("textStyle", colored("Outline", "#00ff00"));
        enterColor("#102030");
        QCOMPARE(style(element), colored("Outline", "#102030"));
        enterColor("#102031");
        QCOMPARE(m_sheet->stack()->count(), 2);
        m_sheet->session->undo();
        m_sheet->session->undo();
        QCOMPARE(color()->color(), QColor(Qt::green));
    }

    void whatIsDoneInTheColorsPopupIsOneStep()
    {
        auto* element = m_sheet->addAndSelect("textStyle", colored("Outline", "#00ff00"));
        QTest::mouseClick(color()->swatch(), Qt::LeftButton);
        QVERIFY(color()->popup());
        auto* field = color()->popup()->findChild<HueSaturationField*>();
        QStringList seen;
        for (int drag = 1; drag <= 2; ++drag) {
            QTest::mousePress(field, Qt::LeftButton, {}, QPoint(10, 20 * drag));
            for (int x = 15; x < 60; x += 5) {
                QTest::mouseMove(field, QPoint(x, 20 * drag));
                QCOMPARE(style(element), colored("Outline", qPrintable(color()->color().name())));
                seen.append(style(element));
            }
            QTest::mouseRelease(field, Qt::LeftButton, {}, QPoint(60, 20 * drag));
            QCOMPARE(m_sheet->stack()->count(), 1);
        }
        QVERIFY(seen.removeDuplicates() < 9);
        color()->popup()->close();
        enterColor("#102030");
        QCOMPARE(m_sheet->stack()->count(), 2);
        m_sheet->session->undo();
        m_sheet->session->undo();
        QCOMPARE(style(element), colored("Outline", "#00ff00"));
    }

    void aTransparentColorIsKeptButNotOffered()
    {
        auto* element = m_sheet->addAndSelect("textStyle", colored("Outline", "#80ff0000"));
        choose(2);
        QCOMPARE(style(element), colored("Raised", "#80ff0000"));
        enterColor("#40102030");
        QCOMPARE(style(element), colored("Raised", "#102030"));
    }

    void theRowHasNoGapWithoutColor()
    {
        auto* element = m_sheet->add();
        m_sheet->select({element});
        QCOMPARE(editor()->height(), box()->height());
        m_sheet->set(element, "textStyle", colored("Outline", "#00ff00"));
        QTRY_COMPARE(editor()->height(), box()->height() + 5 + color()->height());
        m_sheet->session->undo();
        QTRY_COMPARE(editor()->height(), box()->height());
    }

    void aNarrowSheetHasRoomForTheColor()
    {
        m_sheet->select({m_sheet->add()});
        m_sheet->sheet->resize(m_sheet->sheet->sizeHint().width(), 900);
        QCoreApplication::processEvents();
        const int width = m_sheet->sheet->widget()->width();
        choose(1);
        QCoreApplication::processEvents();
        QCOMPARE(m_sheet->sheet->widget()->width(), width);
        QTRY_VERIFY(editor()->rect().contains(QRect(color()->mapTo(editor(), QPoint()), color()->size())));
        QVERIFY(color()->width() >= color()->minimumSizeHint().width());
    }

    void severalElementsWithOneStyleShowIt()
    {
        auto* first = m_sheet->addWith("textStyle", colored("Raised", "#00ff00"));
        auto* second = m_sheet->addWith("textStyle", colored("Raised", "#00ff00"));
        m_sheet->select({first, second});
        QCOMPARE(box()->currentItemKey(), QStringLiteral("Raised"));
        QCOMPARE(color()->color(), QColor(Qt::green));
        enterColor("#102030");
        QCOMPARE(style(first), colored("Raised", "#102030"));
        QCOMPARE(style(second), colored("Raised", "#102030"));
        QCOMPARE(m_sheet->stack()->count(), 1);
        choose(0);
        QCOMPARE(style(first), Normal);
        QCOMPARE(style(second), Normal);
        QVERIFY(!color()->isVisible());
        QCOMPARE(m_sheet->stack()->count(), 2);
    }

    void differentStylesOfSeveralElementsShowNone()
    {
        auto* first = m_sheet->add();
        auto* second = m_sheet->addWith("textStyle", colored("Raised", "#00ff00"));
        auto* third = m_sheet->addWith("textStyle", colored("Sunken", "#0000ff"));
        m_sheet->select({first, second});
        QCOMPARE(box()->currentIndex(), -1);
        QVERIFY(color()->isVisible());
        QVERIFY(!color()->isMixed());
        QCOMPARE(color()->color(), QColor(Qt::green));
        m_sheet->select({first, second, third});
        QCOMPARE(box()->currentIndex(), -1);
        QVERIFY(color()->isMixed());
        QCOMPARE(m_sheet->stack()->count(), 0);
    }

    void aStyleForSeveralLeavesEachItsColor()
    {
        auto* first = m_sheet->addWith("textStyle", colored("Outline", "#00ff00"));
        auto* second = m_sheet->addWith("textStyle", colored("Raised", "#0000ff"));
        auto* third = m_sheet->add();
        const QList<DesignerObject*> all{first, second, third};
        m_sheet->select(all);
        choose(3);
        QCOMPARE(style(first), colored("Sunken", "#00ff00"));
        QCOMPARE(style(second), colored("Sunken", "#0000ff"));
        QCOMPARE(style(third), colored("Sunken", "#00ff00")); // the one that was shown
        QCOMPARE(box()->currentItemKey(), QStringLiteral("Sunken"));
        QVERIFY(color()->isMixed());
        QCOMPARE(m_sheet->stack()->count(), 1);
        m_sheet->session->undo();
        QCOMPARE(style(first), colored("Outline", "#00ff00"));
        QCOMPARE(style(third), Normal);
        QTRY_COMPARE(box()->currentIndex(), -1);
        // The style of one of them is for all, too, also that of the first.
        choose(1);
        QCOMPARE(style(first), colored("Outline", "#00ff00"));
        QCOMPARE(style(second), colored("Outline", "#0000ff"));
        QCOMPARE(m_sheet->stack()->count(), 1);
    }

    void aColorForSeveralLeavesEachItsStyle_data()
    {
        QTest::addColumn<QList<int>>("order");
        QTest::newRow("a normal style first") << QList<int>{0, 1, 2};
        QTest::newRow("a normal style last") << QList<int>{1, 2, 0};
    }
    void aColorForSeveralLeavesEachItsStyle()
    {
        QFETCH(QList<int>, order);
        const QStringList values{Normal, colored("Outline", "#00ff00"), QStringLiteral("textStyle: Raised;")};
        QList<DesignerObject*> elements;
        for (const int index : order)
            elements.append(m_sheet->addWith("textStyle", values.at(index)));
        m_sheet->select(elements);
        enterColor("#00ff00"); // that of one of them
        const QStringList expected{Normal, colored("Outline", "#00ff00"), colored("Raised", "#00ff00")};
        for (int i = 0; i < elements.size(); ++i)
            QCOMPARE(style(elements.at(i)), expected.at(order.at(i)));
        QCOMPARE(box()->currentIndex(), -1);
        QCOMPARE(color()->color(), QColor(Qt::green));
        QVERIFY(!color()->isMixed());
        QCOMPARE(m_sheet->stack()->count(), 1);
        m_sheet->session->undo();
        for (int i = 0; i < elements.size(); ++i)
            QCOMPARE(style(elements.at(i)), values.at(order.at(i)));
    }

    void aColorForSeveralLeavesAValueWithoutOneAlone()
    {
        const QStringList values{colored("Embossed", "#00ff00"), colored("Normal", "#00ff00"), QStringLiteral("none")};
        QList<DesignerObject*> elements{m_sheet->addWith("textStyle", colored("Sunken", "#0000ff"))};
        for (const QString& value : values)
            elements.append(m_sheet->addWith("textStyle", value));
        m_sheet->select(elements);
        enterColor("#102030");
        QCOMPARE(style(elements.at(0)), colored("Sunken", "#102030"));
        for (int i = 0; i < values.size(); ++i)
            QCOMPARE(style(elements.at(i + 1)), values.at(i));
    }

    void aDragForSeveralIsOneStep()
    {
        auto* first = m_sheet->addWith("textStyle", colored("Outline", "#00ff00"));
        auto* second = m_sheet->addWith("textStyle", colored("Raised", "#0000ff"));
        m_sheet->select({first, second});
        QTest::mouseClick(color()->swatch(), Qt::LeftButton);
        auto* field = color()->popup()->findChild<HueSaturationField*>();
        QTest::mousePress(field, Qt::LeftButton, {}, QPoint(10, 20));
        for (int x = 15; x < 60; x += 5) {
            QTest::mouseMove(field, QPoint(x, 20));
            const QByteArray shown = color()->color().name().toLatin1();
            QCOMPARE(style(first), colored("Outline", shown));
            QCOMPARE(style(second), colored("Raised", shown));
        }
        QTest::mouseRelease(field, Qt::LeftButton, {}, QPoint(60, 20));
        color()->popup()->close();
        QCOMPARE(m_sheet->stack()->count(), 1);
        m_sheet->session->undo();
        QCOMPARE(style(first), colored("Outline", "#00ff00"));
        QCOMPARE(style(second), colored("Raised", "#0000ff"));
    }

    void aPendingValueIsEditedInPropertyChangeMode()
    {
        auto* element = m_sheet->add();
        const std::unique_ptr<PropertyEditor> own(
            DesignerFactory::instance()->createPropertyEditor(QStringLiteral("TextStyleEditor"), nullptr));
        own->setPropertyChange(true);
        own->setProperty(element->getProperty(QStringLiteral("textStyle")));
        own->setChangedPropertyValue(colored("Raised", "#00ff00"));
        QVERIFY(own->initialize());
        QCOMPARE(own->editorValue(), colored("Raised", "#00ff00"));
        QSignalSpy saved(own.get(), &PropertyEditor::changeSaved);
        auto* list = own->findChild<ComboBox*>();
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(saved.count(), 1);
        QCOMPARE(own->changedPropertyValue(), colored("Sunken", "#00ff00"));
        QCOMPARE(style(element), Normal);
    }

private:
    [[nodiscard]] PropertyEditor* editor() const { return m_sheet->editor<PropertyEditor>("textStyle"); }
    [[nodiscard]] ComboBox* box() const { return m_sheet->part<ComboBox>("textStyle"); }
    [[nodiscard]] ColorWidget* color() const { return m_sheet->part<ColorWidget>("textStyle"); }
    static QString style(const DesignerObject* element) { return TextSheet::value(element, "textStyle"); }

    /// Opens the list with the keyboard and takes the choice at \a index.
    void choose(int index)
    {
        box()->setFocus();
        QTest::keyClick(box(), Qt::Key_F4);
        QTest::keyClick(box()->view(), Qt::Key_Home);
        for (int i = 0; i < index; ++i)
            QTest::keyClick(box()->view(), Qt::Key_Down);
        QTest::keyClick(box()->view(), Qt::Key_Return);
    }
    void enterColor(const char* text) { SheetFixture::enter(color()->textField(), text); }

    std::unique_ptr<TextSheet> m_sheet;
};

QTEST_MAIN(tst_TextStyleEditor)
#include "tst_TextStyleEditor.moc"
