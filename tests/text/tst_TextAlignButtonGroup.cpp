#include "text/TextAlignButtonGroup.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSvgRenderer>
#include <QToolButton>
#include <QtTest>

#include <memory>

using namespace Korvex::Meridane::Designer;

/// The nine buttons on their own.
class tst_TextAlignButtonGroup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        auto* layout = new QVBoxLayout(m_window.get());
        m_before = new QLineEdit;
        m_group = new TextAlignButtonGroup;
        m_after = new QLineEdit;
        for (QWidget* widget :
             {static_cast<QWidget*>(m_before), static_cast<QWidget*>(m_group), static_cast<QWidget*>(m_after)})
            layout->addWidget(widget);
        m_window->resize(300, 200);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_modified = std::make_unique<QSignalSpy>(m_group, &TextAlignButtonGroup::userModified);
    }

    void cleanup()
    {
        m_modified.reset();
        m_window.reset();
    }

    void everyButtonIsAsInTheTable_data() { addTable(); }
    void everyButtonIsAsInTheTable()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(QString, icon);
        QFETCH(QString, toolTip);
        QFETCH(int, alignment);
        const QToolButton* button = m_group->button(alignment);
        QVERIFY(button);
        QCOMPARE(grid()->itemAtPosition(row, column)->widget(), button);
        QCOMPARE(grid()->itemAtPosition(row, column)->alignment(), Qt::Alignment());
        QCOMPARE(button->parentWidget(), m_group);
        QCOMPARE(button->toolTip(), toolTip);
        QCOMPARE(button->accessibleName(), toolTip);
        QCOMPARE(button->size(), QSize(24, 24));
        QCOMPARE(button->minimumSize(), button->maximumSize());
        QCOMPARE(button->objectName(), QStringLiteral("textAlignment"));
        QVERIFY(button->isCheckable());
        QCOMPARE(button->isChecked(), alignment == 33);
        // The button shows the icon of that name and no other one.
        const QSize size(40, 40);
        QVERIFY(QSvgRenderer(icon).isValid());
        const QImage shown = button->icon().pixmap(size).toImage();
        QCOMPARE(shown.size(), size);
        QCOMPARE(shown, QIcon(icon).pixmap(size).toImage());
        for (const QToolButton* other : m_group->findChildren<QToolButton*>())
            QCOMPARE(other->icon().pixmap(size).toImage() == shown, other == button);
    }

    void theGridStaysAtTheLeft()
    {
        QCOMPARE(m_group->findChildren<QToolButton*>().size(), 9);
        const auto* row = qobject_cast<QHBoxLayout*>(m_group->layout());
        QVERIFY(row);
        QCOMPARE(row->contentsMargins(), QMargins());
        QCOMPARE(grid()->contentsMargins(), QMargins());
        QCOMPARE(row->stretch(0), 0);
        QVERIFY(row->itemAt(1)->spacerItem());
        QVERIFY(m_group->width() > 200);
        QCOMPARE(m_group->button(33)->x(), 0);
        QVERIFY(m_group->button(66)->geometry().right() < 100);
    }

    void leftIsLeftInLanguagesWrittenFromTheRight()
    {
        m_window->setLayoutDirection(Qt::RightToLeft);
        QCoreApplication::processEvents();
        QVERIFY(m_group->button(33)->x() < m_group->button(34)->x());
    }

    void aNewGroupIsTopLeft()
    {
        QCOMPARE(m_group->alignment(), 33);
        QCOMPARE(checked(), QList<int>{33});
    }

    void clickingAButtonChoosesItsAlignment_data() { addTable(); }
    void clickingAButtonChoosesItsAlignment()
    {
        QFETCH(int, alignment);
        m_group->setAlignment(alignment == 132 ? 33 : 132);
        QTest::mouseClick(m_group->button(alignment), Qt::LeftButton);
        QCOMPARE(m_group->alignment(), alignment);
        QCOMPARE(checked(), QList<int>{alignment});
        QCOMPARE(m_modified->count(), 1);
    }

    void clickingTheCheckedButtonLeavesItChecked()
    {
        m_group->setAlignment(130);
        for (int i = 0; i < 3; ++i) {
            QTest::mouseClick(m_group->button(130), Qt::LeftButton);
            QCOMPARE(checked(), QList<int>{130});
        }
        QCOMPARE(m_modified->count(), 0);
    }

    void settingAnAlignmentIsSilent()
    {
        for (const int alignment : {132, 132, 66, 33}) {
            m_group->setAlignment(alignment);
            QCOMPARE(m_group->alignment(), alignment);
            QCOMPARE(checked(), QList<int>{alignment});
        }
        QCOMPARE(m_modified->count(), 0);
    }

    void anAlignmentWithoutAButtonIsIgnored()
    {
        m_group->setAlignment(68);
        for (const int alignment : {0, -1, 1, 32, 40, 35, 37, 97, 161, 1000}) {
            m_group->setAlignment(alignment);
            QCOMPARE(m_group->alignment(), 68);
            QCOMPARE(checked(), QList<int>{68});
        }
    }

    void onlyAButtonChoosesByItsClick()
    {
        QVERIFY(QMetaObject::invokeMethod(m_group, "onButtonClicked"));
        QAction action;
        connect(&action, &QAction::triggered, m_group, &TextAlignButtonGroup::onButtonClicked);
        action.trigger();
        QCOMPARE(m_group->alignment(), 33);
        QCOMPARE(m_modified->count(), 0);
    }

    void whileMixedNoButtonIsCheckedAndEachCanBeChosen()
    {
        for (const int choice : {33, 66}) {
            m_group->setAlignment(33);
            m_group->setMixed(true);
            QCOMPARE(checked(), QList<int>());
            m_modified->clear();
            QTest::mouseClick(m_group->button(choice), Qt::LeftButton);
            QCOMPARE(checked(), QList<int>{choice});
            QCOMPARE(m_group->alignment(), choice);
            QVERIFY(!m_group->isMixed());
            QCOMPARE(m_modified->count(), 1);
        }
        m_group->setMixed(true);
        m_group->setMixed(false);
        QCOMPARE(checked(), QList<int>{66});
        m_group->setMixed(true);
        m_group->setAlignment(66);
        QCOMPARE(checked(), QList<int>{66});
    }

    void tabStopsOnceAtTheCheckedButton()
    {
        m_group->setAlignment(130);
        m_before->setFocus();
        QTest::keyClick(m_before, Qt::Key_Tab);
        QCOMPARE(focus(), m_group->button(130));
        QTest::keyClick(focus(), Qt::Key_Tab);
        QCOMPARE(focus(), m_after);
        QTest::keyClick(m_after, Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(focus(), m_group->button(130));
        m_before->setFocus();
        m_group->setFocus();
        QCOMPARE(focus(), m_group->button(130));
    }

    void arrowsChooseTheNeighbour_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("to");
        QTest::newRow("right") << 33 << int(Qt::Key_Right) << 36;
        QTest::newRow("right at the edge") << 34 << int(Qt::Key_Right) << 34;
        QTest::newRow("left") << 132 << int(Qt::Key_Left) << 129;
        QTest::newRow("left at the edge") << 129 << int(Qt::Key_Left) << 129;
        QTest::newRow("down") << 36 << int(Qt::Key_Down) << 132;
        QTest::newRow("down at the edge") << 68 << int(Qt::Key_Down) << 68;
        QTest::newRow("up") << 66 << int(Qt::Key_Up) << 130;
        QTest::newRow("up at the edge") << 34 << int(Qt::Key_Up) << 34;
        QTest::newRow("home") << 68 << int(Qt::Key_Home) << 33;
        QTest::newRow("end") << 129 << int(Qt::Key_End) << 66;
    }
    void arrowsChooseTheNeighbour()
    {
        QFETCH(int, from);
        QFETCH(int, key);
        QFETCH(int, to);
        m_group->setAlignment(from);
        m_group->setFocus();
        QTest::keyClick(focus(), static_cast<Qt::Key>(key));
        QCOMPARE(checked(), QList<int>{to});
        QCOMPARE(m_group->alignment(), to);
        QCOMPARE(focus(), m_group->button(to));
        QCOMPARE(m_modified->count(), from == to ? 0 : 1);
    }

    void arrowsWithAModifierAreNotForTheGroup()
    {
        m_group->setFocus();
        QTest::keyClick(focus(), Qt::Key_Right, Qt::AltModifier);
        QTest::keyClick(focus(), Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(m_group->alignment(), 33);
    }

    void spaceSettlesAMixedState()
    {
        m_group->setMixed(true);
        m_group->setFocus();
        QTest::keyClick(focus(), Qt::Key_Space);
        QCOMPARE(checked(), QList<int>{33});
        QCOMPARE(m_modified->count(), 1);
        QTest::keyClick(focus(), Qt::Key_Space);
        QCOMPARE(checked(), QList<int>{33});
        QCOMPARE(m_modified->count(), 1);
    }

    void theFocusStaysWithTheCheckedButton()
    {
        m_group->setFocus();
        m_group->setAlignment(65);
        QCOMPARE(focus(), m_group->button(65));
        m_before->setFocus();
        m_group->setAlignment(33);
        QCOMPARE(focus(), m_before);
    }

    void aClickTakesTheFocus()
    {
        m_before->setFocus();
        QTest::keyClicks(m_before, QStringLiteral("typed"));
        QSignalSpy finished(m_before, &QLineEdit::editingFinished);
        QTest::mouseClick(m_group->button(68), Qt::LeftButton);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(focus(), m_group->button(68));
    }

    void theIconsHaveTheColorsOfThePalette_data()
    {
        QTest::addColumn<QColor>("window");
        QTest::addColumn<QColor>("text");
        QTest::newRow("light") << QColor(0xf3, 0xf4, 0xf6) << QColor(0x1f, 0x27, 0x33);
        QTest::newRow("dark") << QColor(0x2b, 0x2f, 0x36) << QColor(0xe4, 0xe7, 0xec);
    }
    void theIconsHaveTheColorsOfThePalette()
    {
        QFETCH(QColor, window);
        QFETCH(QColor, text);
        QPalette palette(window, window);
        palette.setColor(QPalette::ButtonText, text);
        palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xb5));
        palette.setColor(QPalette::HighlightedText, Qt::white);
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x80, 0x80, 0x80));
        m_window->setPalette(palette);
        // Where the letters of a text at the top left stand in the icon: in its first line.
        QToolButton* button = m_group->button(33);
        const QPoint letters(8, 7);
        QCOMPARE(pictureOf(button).pixelColor(letters), QColor(Qt::white));
        QCOMPARE(pictureOf(button).pixelColor(QPoint(15, 16)), palette.color(QPalette::Highlight));
        m_group->setAlignment(66);
        QCOMPARE(pictureOf(button).pixelColor(letters), text);
        QCOMPARE(pictureOf(button).pixelColor(QPoint(15, 16)), window);
        QVERIFY(pictureOf(m_group->button(132)).pixelColor(letters) != text);
        m_group->setEnabled(false);
        QCOMPARE(pictureOf(button).pixelColor(letters), palette.color(QPalette::Disabled, QPalette::ButtonText));
    }

    void theFocusIsVisible()
    {
        const QImage without = pictureOf(m_group->button(33));
        m_group->setFocus();
        QVERIFY(pictureOf(m_group->button(33)) != without);
    }

private:
    static void addTable()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("icon");
        QTest::addColumn<QString>("toolTip");
        QTest::addColumn<int>("alignment");
        const auto add = [](int row, int column, const char* icon, const char* toolTip, int alignment) {
            QTest::newRow(icon) << row << column << QLatin1String(":/images/") + QLatin1String(icon)
                                << QString::fromLatin1(toolTip) << alignment;
        };
        add(0, 0, "alignTopLeft", "Align text to the top left corner", 33);
        add(0, 1, "alignTop", "Align text to the top", 36);
        add(0, 2, "alignTopRight", "Align text to the top right corner", 34);
        add(1, 0, "alignLeft", "Align text to the left", 129);
        add(1, 1, "alignCenter", "Align text to the center", 132);
        add(1, 2, "alignRight", "Align text to the right", 130);
        add(2, 0, "alignBottomLeft", "Align text to the bottom left corner", 65);
        add(2, 1, "alignBottom", "Align text to the bottom center", 68);
        add(2, 2, "alignBottomRight", "Align text to the bottom right corner", 66);
    }

    [[nodiscard]] QGridLayout* grid() const { return m_group->findChild<QGridLayout*>(); }
    [[nodiscard]] QList<int> checked() const
    {
        QList<int> alignments;
        for (const int alignment : {33, 36, 34, 129, 132, 130, 65, 68, 66}) {
            if (m_group->button(alignment)->isChecked())
                alignments.append(alignment);
        }
        return alignments;
    }
    static QWidget* focus() { return QApplication::focusWidget(); }
    static QImage pictureOf(QToolButton* button) { return button->grab().toImage(); }

    std::unique_ptr<QWidget> m_window;
    QLineEdit* m_before = nullptr;
    TextAlignButtonGroup* m_group = nullptr;
    QLineEdit* m_after = nullptr;
    std::unique_ptr<QSignalSpy> m_modified;
};

QTEST_MAIN(tst_TextAlignButtonGroup)
#include "tst_TextAlignButtonGroup.moc"
