#include "tests/text/TextSheet.h"

#include "host/core/widgets/ColorSwatch.h"
#include "host/core/widgets/PlainTextEdit.h"

#include <QSvgRenderer>
#include <QToolButton>

#include <memory>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// The editor of the plug-in in the property sheet.
class tst_TextAlignmentEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_sheet = std::make_unique<TextSheet>(); }
    void cleanup() { m_sheet.reset(); }

    void theSheetAsksThePluginForTheEditor()
    {
        m_sheet->select({m_sheet->add()});
        QCOMPARE(editor()->className(), QStringLiteral("TextAlignmentEditor"));
        QCOMPARE(editor()->classNames().last(), QStringLiteral("TextAlignmentEditor"));
        QVERIFY(editor()->metaObject()->indexOfSignal("userModified()") >= 0);
        QCOMPARE(editor()->editorWidget()->accessibleName(), QStringLiteral("Text Alignment"));
        QVERIFY(editor()->layout()->indexOf(editor()->editorWidget()) >= 0);
    }

    void thePluginCarriesTheIcons_data() { addTable(); }
    void thePluginCarriesTheIcons()
    {
        QFETCH(QString, icon);
        QFETCH(QString, toolTip);
        m_sheet->select({m_sheet->add()});
        QSvgRenderer drawing(icon);
        QVERIFY(drawing.isValid());
        QCOMPARE(drawing.defaultSize(), QSize(20, 20));
        // Drawn anew for every scale, not enlarged.
        QImage twice = button(toolTip)->icon().pixmap(QSize(20, 20), 2).toImage();
        QCOMPARE(twice.size(), QSize(40, 40));
        twice.setDevicePixelRatio(1);
        QImage expected(40, 40, QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::transparent);
        QPainter painter(&expected);
        drawing.render(&painter);
        painter.end();
        QCOMPARE(twice.convertToFormat(QImage::Format_Alpha8), expected.convertToFormat(QImage::Format_Alpha8));
    }

    void clickingAButtonWritesItsAlignment_data() { addTable(); }
    void clickingAButtonWritesItsAlignment()
    {
        QFETCH(QString, toolTip);
        QFETCH(QString, value);
        const QString before = value == QLatin1String("132") ? QStringLiteral("33") : QStringLiteral("132");
        const auto* box = m_sheet->addAndSelect("alignment", before);
        QSignalSpy modified(editor(), SIGNAL(userModified()));
        QTest::mouseClick(button(toolTip), Qt::LeftButton);
        QCOMPARE(modified.count(), 1);
        QCOMPARE(TextSheet::value(box, "alignment"), value);
        QCOMPARE(editor()->editorValue(), value);
        QCOMPARE(checked(), QStringList{toolTip});
        QCOMPARE(m_sheet->stack()->count(), 1);
        QCOMPARE(m_sheet->stack()->text(0), QStringLiteral("Change Text Alignment"));
        m_sheet->session->undo();
        QCOMPARE(TextSheet::value(box, "alignment"), before);
        QCOMPARE(editor()->editorValue(), before);
        QCOMPARE(checked().size(), 1);
        QVERIFY(!button(toolTip)->isChecked());
        m_sheet->session->redo();
        QCOMPARE(checked(), QStringList{toolTip});
    }

    void aValueChecksItsButtonSilently_data() { addTable(); }
    void aValueChecksItsButtonSilently()
    {
        QFETCH(QString, toolTip);
        QFETCH(QString, value);
        auto* box = m_sheet->add();
        m_sheet->select({box});
        QCOMPARE(checked(), QStringList{QStringLiteral("Align text to the top left corner")});
        QSignalSpy modified(editor(), SIGNAL(userModified()));
        m_sheet->set(box, "alignment", value);
        QCOMPARE(checked(), QStringList{toolTip});
        QCOMPARE(editor()->editorValue(), value);
        QCOMPARE(modified.count(), 0);
        QCOMPARE(m_sheet->stack()->count(), value == QLatin1String("33") ? 0 : 1);
    }

    void valuesWithoutAButtonLeaveTheButtonsAsTheyAre_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("another combination") << QStringLiteral("40");
        QTest::newRow("no number") << QStringLiteral("abc");
        QTest::newRow("empty") << QString();
        QTest::newRow("a real") << QStringLiteral("132.5");
        QTest::newRow("too large") << QStringLiteral("13200000000000");
    }
    void valuesWithoutAButtonLeaveTheButtonsAsTheyAre()
    {
        QFETCH(QString, value);
        auto* box = m_sheet->addAndSelect("alignment", QStringLiteral("132"));
        m_sheet->set(box, "alignment", value);
        QCOMPARE(TextSheet::value(box, "alignment"), value);
        QCOMPARE(checked(), QStringList{QStringLiteral("Align text to the center")});
        QCOMPARE(editor()->editorValue(), QStringLiteral("132"));
        // Nothing is written before a button is clicked.
        const int steps = m_sheet->stack()->count();
        m_sheet->select({});
        m_sheet->select({box});
        QCOMPARE(TextSheet::value(box, "alignment"), value);
        QCOMPARE(m_sheet->stack()->count(), steps);
        // And what the buttons showed for another element does not count.
        QCOMPARE(checked(), QStringList{QStringLiteral("Align text to the top left corner")});
        QTest::mouseClick(button(QStringLiteral("Align text to the right")), Qt::LeftButton);
        QCOMPARE(TextSheet::value(box, "alignment"), QStringLiteral("130"));
    }

    void clickingTheCheckedButtonChangesNothing()
    {
        const auto* box = m_sheet->addAndSelect("alignment", QStringLiteral("132"));
        QSignalSpy modified(editor(), SIGNAL(userModified()));
        QTest::mouseClick(button(QStringLiteral("Align text to the center")), Qt::LeftButton);
        QCOMPARE(checked(), QStringList{QStringLiteral("Align text to the center")});
        QCOMPARE(modified.count(), 0);
        QCOMPARE(m_sheet->stack()->count(), 0);
        QCOMPARE(TextSheet::value(box, "alignment"), QStringLiteral("132"));
    }

    void everyClickIsAStep()
    {
        m_sheet->select({m_sheet->add()});
        QTest::mouseClick(button(QStringLiteral("Align text to the top")), Qt::LeftButton);
        QTest::mouseClick(button(QStringLiteral("Align text to the bottom center")), Qt::LeftButton);
        QTest::keyClick(TextSheet::focus(), Qt::Key_Up);
        QCOMPARE(m_sheet->stack()->count(), 3);
        QCOMPARE(editor()->editorValue(), QStringLiteral("132"));
    }

    void anElementThatHasAnotherAlignmentShowsIt()
    {
        auto* first = m_sheet->addWith("alignment", QStringLiteral("66"));
        auto* second = m_sheet->addWith("alignment", QStringLiteral("129"));
        for (int i = 0; i < 3; ++i) {
            m_sheet->select({first});
            QCOMPARE(editor()->editorValue(), QStringLiteral("66"));
            m_sheet->select({second});
            QCOMPARE(editor()->editorValue(), QStringLiteral("129"));
        }
        QCOMPARE(m_sheet->stack()->count(), 0);
    }

    void severalElementsTakeOneAlignmentAsOneStep_data()
    {
        QTest::addColumn<QString>("toolTip");
        QTest::addColumn<QString>("value");
        QTest::newRow("that of none") << QStringLiteral("Align text to the right") << QStringLiteral("130");
        QTest::newRow("that of the first") << QStringLiteral("Align text to the center") << QStringLiteral("132");
        QTest::newRow("that of the second") << QStringLiteral("Align text to the top") << QStringLiteral("36");
    }
    void severalElementsTakeOneAlignmentAsOneStep()
    {
        QFETCH(QString, toolTip);
        QFETCH(QString, value);
        auto* first = m_sheet->addWith("alignment", QStringLiteral("132"));
        auto* second = m_sheet->addWith("alignment", QStringLiteral("36"));
        auto* third = m_sheet->addWith("alignment", QStringLiteral("abc"));
        m_sheet->select({first, second, third});
        QCOMPARE(checked(), QStringList());
        QCOMPARE(m_sheet->stack()->count(), 0);
        QTest::mouseClick(button(toolTip), Qt::LeftButton);
        for (const auto* box : {first, second, third})
            QCOMPARE(TextSheet::value(box, "alignment"), value);
        QCOMPARE(checked(), QStringList{toolTip});
        QCOMPARE(m_sheet->stack()->count(), 1);
        m_sheet->session->undo();
        QCOMPARE(TextSheet::value(first, "alignment"), QStringLiteral("132"));
        QCOMPARE(TextSheet::value(second, "alignment"), QStringLiteral("36"));
        QCOMPARE(TextSheet::value(third, "alignment"), QStringLiteral("abc"));
        QTRY_COMPARE(checked(), QStringList());
    }

    void severalElementsWithOneAlignmentShowIt()
    {
        auto* first = m_sheet->addWith("alignment", QStringLiteral("65"));
        auto* second = m_sheet->addWith("alignment", QStringLiteral("65"));
        m_sheet->select({first, second});
        QCOMPARE(checked(), QStringList{QStringLiteral("Align text to the bottom left corner")});
        QTest::mouseClick(button(checked().first()), Qt::LeftButton);
        QCOMPARE(m_sheet->stack()->count(), 0);
    }

    void aPendingValueIsEditedInPropertyChangeMode()
    {
        const auto* box = m_sheet->addAndSelect("alignment", QStringLiteral("33"));
        const std::unique_ptr<PropertyEditor> own(
            DesignerFactory::instance()->createPropertyEditor(QStringLiteral("TextAlignmentEditor"), nullptr));
        own->setPropertyChange(true);
        own->setProperty(box->getProperty(QStringLiteral("alignment")));
        own->setChangedPropertyValue(QStringLiteral("68"));
        QVERIFY(own->initialize());
        QCOMPARE(own->editorValue(), QStringLiteral("68"));
        QSignalSpy saved(own.get(), &PropertyEditor::changeSaved);
        own->findChildren<QToolButton*>().first()->click();
        QCOMPARE(saved.count(), 1);
        QCOMPARE(own->changedPropertyValue(), QStringLiteral("33"));
        QCOMPARE(m_sheet->stack()->count(), 0);
    }

    void tabLeadsFromTextToAlignmentToColor()
    {
        m_sheet->select({m_sheet->addWith("alignment", QStringLiteral("130"))});
        m_sheet->part<PlainTextEdit>("text")->setFocus();
        QTest::keyClick(TextSheet::focus(), Qt::Key_Tab);
        QCOMPARE(TextSheet::focus(), button(QStringLiteral("Align text to the right")));
        QTest::keyClick(TextSheet::focus(), Qt::Key_Tab);
        QCOMPARE(TextSheet::focus(), m_sheet->part<ColorSwatch>("color"));
    }

private:
    static void addTable()
    {
        QTest::addColumn<QString>("icon");
        QTest::addColumn<QString>("toolTip");
        QTest::addColumn<QString>("value");
        const auto add = [](const char* icon, const char* toolTip, int value) {
            QTest::newRow(icon) << QLatin1String(":/images/") + QLatin1String(icon) << QString::fromLatin1(toolTip)
                                << QString::number(value);
        };
        add("alignTopLeft", "Align text to the top left corner", 33);
        add("alignTop", "Align text to the top", 36);
        add("alignTopRight", "Align text to the top right corner", 34);
        add("alignLeft", "Align text to the left", 129);
        add("alignCenter", "Align text to the center", 132);
        add("alignRight", "Align text to the right", 130);
        add("alignBottomLeft", "Align text to the bottom left corner", 65);
        add("alignBottom", "Align text to the bottom center", 68);
        add("alignBottomRight", "Align text to the bottom right corner", 66);
    }

    [[nodiscard]] PropertyEditor* editor() const { return m_sheet->editor<PropertyEditor>("alignment"); }
    [[nodiscard]] QToolButton* button(const QString& toolTip) const
    {
        for (auto* button : editor()->findChildren<QToolButton*>()) {
            if (button->toolTip() == toolTip)
                return button;
        }
        qFatal("no such button: %s", qPrintable(toolTip));
    }
    /// The tooltips of the checked buttons.
    [[nodiscard]] QStringList checked() const
    {
        QStringList toolTips;
        for (const auto* button : editor()->findChildren<QToolButton*>()) {
            if (button->isChecked())
                toolTips.append(button->toolTip());
        }
        return toolTips;
    }

    std::unique_ptr<TextSheet> m_sheet;
};

QTEST_MAIN(tst_TextAlignmentEditor)
#include "tst_TextAlignmentEditor.moc"
