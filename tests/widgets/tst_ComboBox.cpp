#include "host/core/widgets/ComboBox.h"

#include <QtTest/QtTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

using namespace Korvex::Meridane::Designer;

class tst_ComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theFirstChoiceIsCurrent();
    void settingAKeyIsSilent();
    void anUnknownKeyLeavesNoChoice();
    void choosingIsReportedWhenItChanges();
    void keysMayDifferInCaseOnly();
    void mixedShowsNoChoice();
    void theWheelActsOnTheFocusedBoxOnly();
    void focusIsReported();
    void addedItemsKeepTheirOrder();

private:
    std::unique_ptr<QWidget> m_window;
    ComboBox* m_box = nullptr;
    QLineEdit* m_other = nullptr;
};

void tst_ComboBox::init()
{
    m_window = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(m_window.get());
    m_box = new ComboBox({{QStringLiteral("Outline"), QStringLiteral("Umriss")},
                          {QStringLiteral("Raised"), QStringLiteral("Erhaben")},
                          {QStringLiteral("Standard"), QStringLiteral("Normal")}});
    m_other = new QLineEdit;
    layout->addWidget(m_box);
    layout->addWidget(m_other);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_box->setFocus();
}

void tst_ComboBox::cleanup()
{
    m_window.reset();
}

void tst_ComboBox::theFirstChoiceIsCurrent()
{
    QCOMPARE(m_box->currentItemKey(), QStringLiteral("Outline"));
    QCOMPARE(m_box->currentText(), QStringLiteral("Umriss"));
    QVERIFY(ComboBox({}).currentItemKey().isEmpty());
}

void tst_ComboBox::settingAKeyIsSilent()
{
    QSignalSpy modified(m_box, &ComboBox::userModified);
    m_box->setCurrentItemKey(QStringLiteral("Standard"));
    QCOMPARE(m_box->currentText(), QStringLiteral("Normal"));
    QCOMPARE(m_box->currentItemKey(), QStringLiteral("Standard"));
    QCOMPARE(modified.count(), 0);
}

void tst_ComboBox::anUnknownKeyLeavesNoChoice()
{
    m_box->setCurrentItemKey(QStringLiteral("Sunken"));
    QCOMPARE(m_box->currentIndex(), -1);
    QVERIFY(m_box->currentItemKey().isEmpty());
}

void tst_ComboBox::choosingIsReportedWhenItChanges()
{
    QSignalSpy modified(m_box, &ComboBox::userModified);
    QTest::keyClick(m_box, Qt::Key_Down);
    QCOMPARE(m_box->currentItemKey(), QStringLiteral("Raised"));
    QCOMPARE(modified.count(), 1);
    Q_EMIT m_box->activated(1); // the same choice again
    QCOMPARE(modified.count(), 1);
    QTest::keyClicks(m_box, QStringLiteral("n"));
    QCOMPARE(m_box->currentItemKey(), QStringLiteral("Standard"));
    QCOMPARE(modified.count(), 2);
}

void tst_ComboBox::keysMayDifferInCaseOnly()
{
    ComboBox box({{QStringLiteral("A"), QStringLiteral("large")}, {QStringLiteral("a"), QStringLiteral("small")}});
    box.setCurrentItemKey(QStringLiteral("a"));
    QCOMPARE(box.currentText(), QStringLiteral("small"));
}

void tst_ComboBox::mixedShowsNoChoice()
{
    QSignalSpy modified(m_box, &ComboBox::userModified);
    m_box->setCurrentItemKey(QStringLiteral("Raised"));
    m_box->setMixed(true);
    QVERIFY(m_box->isMixed());
    QCOMPARE(m_box->currentIndex(), -1);
    m_box->setMixed(false);
    QCOMPARE(m_box->currentItemKey(), QStringLiteral("Raised"));
    m_box->setMixed(true);
    QTest::keyClick(m_box, Qt::Key_Down);
    QVERIFY(!m_box->isMixed());
    QCOMPARE(m_box->currentItemKey(), QStringLiteral("Outline"));
    QCOMPARE(modified.count(), 1);
    m_box->setMixed(true);
    m_box->setCurrentItemKey(QStringLiteral("Standard"));
    QVERIFY(!m_box->isMixed());
}

void tst_ComboBox::theWheelActsOnTheFocusedBoxOnly()
{
    const auto turn = [this] {
        const QPointF center = QRectF(m_box->rect()).center();
        QWheelEvent event(center, m_box->mapToGlobal(center), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_box, &event);
        return event.isAccepted();
    };
    m_other->setFocus();
    QVERIFY(!turn());
    QCOMPARE(m_box->currentIndex(), 0);
    m_box->setFocus();
    QVERIFY(turn());
    QCOMPARE(m_box->currentIndex(), 1);
}

void tst_ComboBox::focusIsReported()
{
    QSignalSpy in(m_box, &ComboBox::focusedIn);
    QSignalSpy out(m_box, &ComboBox::focusedOut);
    m_other->setFocus();
    m_box->setFocus();
    QCOMPARE(in.count(), 1);
    QCOMPARE(out.count(), 1);
}

void tst_ComboBox::addedItemsKeepTheirOrder()
{
    ComboBox box({});
    box.addKeyedItem(QStringLiteral("z"), QStringLiteral("first"));
    box.addKeyedItem(QStringLiteral("a"), QStringLiteral("second"));
    QCOMPARE(box.currentItemKey(), QStringLiteral("z"));
    QCOMPARE(box.itemText(1), QStringLiteral("second"));
}

QTEST_MAIN(tst_ComboBox)
#include "tst_ComboBox.moc"
