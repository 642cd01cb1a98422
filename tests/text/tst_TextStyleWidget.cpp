#include "text/TextStyleWidget.h"

#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/ComboBox.h"
#include "host/core/widgets/HexColorField.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

using namespace Korvex::Meridane::Designer;

/// List and colour on their own.
class tst_TextStyleWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        auto* layout = new QVBoxLayout(m_window.get());
        layout->setContentsMargins(0, 0, 0, 0);
        m_widget = new TextStyleWidget;
        layout->addWidget(m_widget);
        layout->addStretch(1);
        m_window->resize(260, 120);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_modified = std::make_unique<QSignalSpy>(m_widget, &TextStyleWidget::userModified);
    }

    void cleanup()
    {
        m_modified.reset();
        m_window.reset();
    }

    void theStandardStyleComesFirst()
    {
        QStringList keys;
        QStringList texts;
        for (int i = 0; i < box()->count(); ++i) {
            keys.append(box()->itemData(i).toString());
            texts.append(box()->itemText(i));
        }
        QCOMPARE(keys, QStringList({QStringLiteral("Standard"), QStringLiteral("Outline"), QStringLiteral("Raised"),
                                    QStringLiteral("Sunken")}));
        QCOMPARE(texts, keys);
    }

    void aNewWidgetIsStandardAndRed()
    {
        QCOMPARE(box()->currentItemKey(), QStringLiteral("Standard"));
        QCOMPARE(m_widget->textStyle(), QStringLiteral("Normal"));
        QCOMPARE(m_widget->color(), QColor(Qt::red));
        QVERIFY(!isColorVisible());
    }

    void theColorStandsBelowTheList()
    {
        m_widget->setTextStyle(QStringLiteral("Raised"));
        QCoreApplication::processEvents();
        QCOMPARE(label()->text(), QStringLiteral("Style Color"));
        QCOMPARE(label()->objectName(), QStringLiteral("propertyEditorHeading"));
        QVERIFY(qobject_cast<QVBoxLayout*>(m_widget->layout()));
        QCOMPARE(color()->y() - box()->geometry().bottom() - 1, 5);
        QVERIFY(color()->x() > label()->geometry().right());
        QVERIFY(!color()->textField()->isHidden());
    }

    void withoutAColorThereIsNoGap()
    {
        QTRY_COMPARE(m_widget->height(), box()->height());
        m_widget->setTextStyle(QStringLiteral("Sunken"));
        QTRY_COMPARE(m_widget->height(), box()->height() + 5 + color()->height());
        m_widget->setTextStyle(QString());
        QTRY_COMPARE(m_widget->height(), box()->height());
    }

    void theLeastWidthIsTheSameForEveryStyle()
    {
        const int standard = m_widget->minimumSizeHint().width();
        m_widget->setTextStyle(QStringLiteral("Outline"));
        QCoreApplication::processEvents();
        QCOMPARE(m_widget->minimumSizeHint().width(), standard);
        QVERIFY(m_widget->layout()->totalMinimumSize().width() <= standard);
    }

    void aStyleIsSetSilently_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("key");
        QTest::newRow("Normal") << QStringLiteral("Normal") << QStringLiteral("Standard");
        QTest::newRow("Standard") << QStringLiteral("Standard") << QStringLiteral("Standard");
        QTest::newRow("Outline") << QStringLiteral("Outline") << QStringLiteral("Outline");
        QTest::newRow("Raised") << QStringLiteral("Raised") << QStringLiteral("Raised");
        QTest::newRow("Sunken") << QStringLiteral("Sunken") << QStringLiteral("Sunken");
        QTest::newRow("none") << QString() << QStringLiteral("Standard");
        QTest::newRow("unknown") << QStringLiteral("Embossed") << QStringLiteral("Standard");
        QTest::newRow("other case") << QStringLiteral("outline") << QStringLiteral("Standard");
    }
    void aStyleIsSetSilently()
    {
        QFETCH(QString, style);
        QFETCH(QString, key);
        for (const char* before : {"Normal", "Raised"}) {
            m_widget->setTextStyle(QLatin1String(before));
            m_widget->setTextStyle(style);
            QCOMPARE(box()->currentItemKey(), key);
            QCOMPARE(m_widget->textStyle(), key == QLatin1String("Standard") ? QStringLiteral("Normal") : key);
            QCOMPARE(isColorVisible(), key != QLatin1String("Standard"));
        }
        QCOMPARE(m_modified->count(), 0);
    }

    void aStyleIsChosenByKeyboard()
    {
        m_widget->setFocus();
        QCOMPARE(QApplication::focusWidget(), box());
        QTest::keyClick(box(), Qt::Key_Down);
        QCOMPARE(m_widget->textStyle(), QStringLiteral("Outline"));
        QVERIFY(isColorVisible());
        QCOMPARE(m_modified->count(), 1);
        QCOMPARE(m_widget->lastEdit(), TextStyleWidget::Edit::Style);
        QTest::keyClick(box(), Qt::Key_Up);
        QCOMPARE(m_widget->textStyle(), QStringLiteral("Normal"));
        QVERIFY(!isColorVisible());
        QTest::keyClick(box(), Qt::Key_Up);
        QCOMPARE(m_modified->count(), 2);
    }

    void aStyleIsChosenByMouse()
    {
        QTest::mouseClick(box(), Qt::LeftButton, {}, QPoint(box()->width() / 2, box()->height() / 2));
        QAbstractItemView* list = box()->view();
        QTRY_VERIFY(list->isVisible());
        // The list leaves a double click on the box out.
        QTest::qWait(2 * QApplication::doubleClickInterval());
        const QRect item = list->visualRect(box()->model()->index(3, 0));
        QTest::mouseMove(list->viewport(), item.center());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, item.center());
        QCOMPARE(m_widget->textStyle(), QStringLiteral("Sunken"));
        QVERIFY(isColorVisible());
        QCOMPARE(m_modified->count(), 1);
    }

    void aColorIsTyped()
    {
        m_widget->setTextStyle(QStringLiteral("Outline"));
        HexColorField* field = color()->textField();
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QStringLiteral("#102030"));
        QCOMPARE(m_modified->count(), 0);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(m_widget->color(), QColor(0x10, 0x20, 0x30));
        QCOMPARE(m_modified->count(), 1);
        QCOMPARE(m_widget->lastEdit(), TextStyleWidget::Edit::Color);
    }

    void theColorIsKeptWhileItIsHidden()
    {
        m_widget->setColor(Qt::blue);
        m_widget->setTextStyle(QStringLiteral("Raised"));
        m_widget->setTextStyle(QStringLiteral("Normal"));
        QCOMPARE(m_widget->color(), QColor(Qt::blue));
        QCOMPARE(m_modified->count(), 0);
    }

    void mixedStylesAndColorsShowNone()
    {
        m_widget->setMixed(true, true);
        QCOMPARE(box()->currentIndex(), -1);
        QVERIFY(m_widget->textStyle().isEmpty());
        QVERIFY(isColorVisible());
        QVERIFY(color()->isMixed());
        m_widget->setTextStyle(QString());
        QCOMPARE(m_widget->textStyle(), QStringLiteral("Normal"));
        QVERIFY(!isColorVisible());
        m_widget->setMixed(true, false);
        m_widget->setMixed(false, false);
        QCOMPARE(m_widget->textStyle(), QStringLiteral("Normal"));
        QVERIFY(!isColorVisible());
        QCOMPARE(m_modified->count(), 0);
    }

    void allPartsHaveNames()
    {
        QCOMPARE(color()->accessibleName(), QStringLiteral("Style Color"));
        QCOMPARE(label()->buddy(), color());
    }

private:
    [[nodiscard]] ComboBox* box() const { return m_widget->styleBox(); }
    [[nodiscard]] ColorWidget* color() const { return m_widget->colorWidget(); }
    [[nodiscard]] QLabel* label() const { return m_widget->findChild<QLabel*>(); }
    /// Label and colour are shown and hidden together.
    [[nodiscard]] bool isColorVisible() const
    {
        if (label()->isVisible() != color()->isVisible())
            qFatal("a label without its field");
        return color()->isVisible();
    }

    std::unique_ptr<QWidget> m_window;
    TextStyleWidget* m_widget = nullptr;
    std::unique_ptr<QSignalSpy> m_modified;
};

QTEST_MAIN(tst_TextStyleWidget)
#include "tst_TextStyleWidget.moc"
