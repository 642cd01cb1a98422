#include "host/core/widgets/LockToggle.h"

#include <QtTest/QtTest>

using namespace Korvex::Meridane::Designer;

class tst_LockToggle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settingIsSilent();
    void clicksAndKeysAreReported();
    void thePadlockTakesThePalette_data();
    void thePadlockTakesThePalette();
    void openAndClosedLookDifferent();
    void itHasANameAndATooltip();
};

void tst_LockToggle::settingIsSilent()
{
    LockToggle toggle;
    QSignalSpy modified(&toggle, &LockToggle::userModified);
    QVERIFY(!toggle.isLocked());
    toggle.setLocked(true);
    QVERIFY(toggle.isLocked());
    QCOMPARE(modified.count(), 0);
}

void tst_LockToggle::clicksAndKeysAreReported()
{
    LockToggle toggle;
    QSignalSpy modified(&toggle, &LockToggle::userModified);
    QTest::mouseClick(&toggle, Qt::LeftButton);
    QVERIFY(toggle.isLocked());
    QTest::keyClick(&toggle, Qt::Key_Space);
    QVERIFY(!toggle.isLocked());
    QCOMPARE(modified.count(), 2);
}

void tst_LockToggle::thePadlockTakesThePalette_data()
{
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("button");
    QTest::newRow("light") << QColor(20, 20, 20) << QColor(240, 240, 240);
    QTest::newRow("dark") << QColor(230, 230, 230) << QColor(40, 40, 40);
}

void tst_LockToggle::thePadlockTakesThePalette()
{
    QFETCH(QColor, text);
    QFETCH(QColor, button);
    LockToggle toggle;
    QPalette palette(button);
    palette.setColor(QPalette::ButtonText, text);
    toggle.setPalette(palette);
    toggle.resize(toggle.sizeHint());
    const QImage image = toggle.grab().toImage();
    bool found = false;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = image.height() / 2; y < image.height(); ++y) {
            found = found || image.pixelColor(x, y) == text;
        }
    }
    QVERIFY(found);
}

void tst_LockToggle::openAndClosedLookDifferent()
{
    LockToggle toggle;
    toggle.resize(toggle.sizeHint());
    const QImage open = toggle.grab().toImage();
    toggle.setLocked(true);
    QVERIFY(toggle.grab().toImage() != open);
}

void tst_LockToggle::itHasANameAndATooltip()
{
    const LockToggle toggle;
    QVERIFY(!toggle.accessibleName().isEmpty());
    QVERIFY(!toggle.toolTip().isEmpty());
}

QTEST_MAIN(tst_LockToggle)
#include "tst_LockToggle.moc"
