#include "host/core/widgets/ScreenColorOverlay.h"
#include "host/core/widgets/ScreenColorPicker.h"

#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtTest/QtTest>

using namespace Korvex::Meridane::Designer;

class tst_ScreenColorPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickPicksTheColorUnderIt();
    void keysMoveAndPick();
    void escapeCancels();
    void theRightButtonCancels();
    void aScreenThatCannotBeGrabbedCancels();
    void onePickAtATime();
    void devicePixelsAreFound();
    void destroyingThePickerClosesItsWindows();
};

namespace {
/** Red on the left half, blue on the right one. */
QPixmap halves(QScreen* screen)
{
    QPixmap picture(screen->size());
    picture.fill(Qt::red);
    QPainter painter(&picture);
    painter.fillRect(screen->size().width() / 2, 0, screen->size().width(), screen->size().height(), Qt::blue);
    return picture;
}

ScreenColorOverlay* overlay()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* found = qobject_cast<ScreenColorOverlay*>(widget); found && found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}
} // namespace

void tst_ScreenColorPicker::aClickPicksTheColorUnderIt()
{
    ScreenColorPicker picker(halves);
    QSignalSpy picked(&picker, &ScreenColorPicker::picked);
    picker.start();
    QVERIFY(picker.isActive());
    ScreenColorOverlay* window = overlay();
    QVERIFY(window);
    QTest::mouseMove(window, QPoint(10, 10));
    QVERIFY(!window->grab().isNull());
    QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(window->width() - 10, 10));
    QCOMPARE(picked.count(), 1);
    QCOMPARE(picked.first().first().value<QColor>(), QColor(Qt::blue));
    QVERIFY(!picker.isActive());
    QVERIFY(!overlay());
}

void tst_ScreenColorPicker::keysMoveAndPick()
{
    ScreenColorPicker picker(halves);
    QSignalSpy picked(&picker, &ScreenColorPicker::picked);
    picker.start();
    ScreenColorOverlay* window = overlay();
    QTest::mouseMove(window, QPoint(window->width() / 2 - 1, 20));
    QTest::keyClick(window, Qt::Key_Right);
    QTest::keyClick(window, Qt::Key_Return);
    QCOMPARE(picked.count(), 1);
    QCOMPARE(picked.first().first().value<QColor>(), QColor(Qt::blue));
}

void tst_ScreenColorPicker::escapeCancels()
{
    ScreenColorPicker picker(halves);
    QSignalSpy picked(&picker, &ScreenColorPicker::picked);
    QSignalSpy cancelled(&picker, &ScreenColorPicker::cancelled);
    picker.start();
    QTest::keyClick(overlay(), Qt::Key_Escape);
    QCOMPARE(cancelled.count(), 1);
    QCOMPARE(picked.count(), 0);
    QVERIFY(!picker.isActive());
}

void tst_ScreenColorPicker::theRightButtonCancels()
{
    ScreenColorPicker picker(halves);
    QSignalSpy cancelled(&picker, &ScreenColorPicker::cancelled);
    picker.start();
    QTest::mouseClick(overlay(), Qt::RightButton);
    QCOMPARE(cancelled.count(), 1);
}

void tst_ScreenColorPicker::aScreenThatCannotBeGrabbedCancels()
{
    ScreenColorPicker picker([](QScreen*) { return QPixmap(); });
    QSignalSpy cancelled(&picker, &ScreenColorPicker::cancelled);
    picker.start();
    QCOMPARE(cancelled.count(), 1);
    QVERIFY(!picker.isActive());
}

void tst_ScreenColorPicker::onePickAtATime()
{
    int grabs = 0;
    ScreenColorPicker picker([&](QScreen* screen) {
        ++grabs;
        return halves(screen);
    });
    picker.start();
    const int first = grabs;
    picker.start();
    QCOMPARE(grabs, first);
}

void tst_ScreenColorPicker::devicePixelsAreFound()
{
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setPixelColor(31, 11, Qt::green);
    QPixmap picture = QPixmap::fromImage(image);
    picture.setDevicePixelRatio(2);
    const ScreenColorOverlay window(QGuiApplication::primaryScreen(), picture);
    QCOMPARE(window.colorAt(QPointF(15.5, 5.5)), QColor(Qt::green));
    QCOMPARE(window.colorAt(QPointF(15.4, 5.5)), QColor(Qt::white));
    QVERIFY(!window.colorAt(QPointF(20, 5)).isValid());
    QVERIFY(!window.colorAt(QPointF(-0.1, 5)).isValid());
}

void tst_ScreenColorPicker::destroyingThePickerClosesItsWindows()
{
    {
        ScreenColorPicker picker(halves);
        picker.start();
        QVERIFY(overlay());
    }
    QVERIFY(!overlay());
}

QTEST_MAIN(tst_ScreenColorPicker)
#include "tst_ScreenColorPicker.moc"
