#include "host/core/values/RotationInfo.h"
#include "host/core/widgets/NineGrid.h"

#include <QtTest/QtTest>

using namespace Korvex::Meridane::Designer;

class tst_NineGrid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theCentreIsChosenAtFirst();
    void settingAPointIsSilent();
    void unknownNamesChangeNothing();
    void clicksChooseThePointUnderThem();
    void arrowKeysGoToTheNeighbour();
    void mixedChoosesNothing();
    void focusIsReported();
    void theChosenPointIsDrawnInTheHighlight();
};

void tst_NineGrid::theCentreIsChosenAtFirst()
{
    const NineGrid grid;
    QCOMPARE(grid.fixedPoint(), QStringLiteral("Center"));
    QCOMPARE(grid.accessibleDescription(), QStringLiteral("Center"));
}

void tst_NineGrid::settingAPointIsSilent()
{
    NineGrid grid;
    QSignalSpy modified(&grid, &NineGrid::userModified);
    for (const QString& name : RotationInfo::fixedPointNames()) {
        grid.setFixedPoint(name);
        QCOMPARE(grid.fixedPoint(), name);
    }
    QCOMPARE(modified.count(), 0);
}

void tst_NineGrid::unknownNamesChangeNothing()
{
    NineGrid grid;
    grid.setFixedPoint(QStringLiteral("Bottom"));
    grid.setFixedPoint(QStringLiteral("Middle"));
    QCOMPARE(grid.fixedPoint(), QStringLiteral("Bottom"));
}

void tst_NineGrid::clicksChooseThePointUnderThem()
{
    NineGrid grid;
    grid.resize(grid.sizeHint());
    QSignalSpy modified(&grid, &NineGrid::userModified);
    const int third = grid.width() / 3;
    for (int index = 0; index < 9; ++index) {
        QTest::mouseClick(&grid, Qt::LeftButton, {},
                          QPoint(third * (index % 3) + third / 2, third * (index / 3) + third / 2));
        QCOMPARE(grid.fixedPoint(), RotationInfo::fixedPointNames().at(index));
    }
    QCOMPARE(modified.count(), 9);
    QTest::mouseClick(&grid, Qt::LeftButton, {}, grid.rect().bottomRight());
    QCOMPARE(modified.count(), 9); // the same point again
}

void tst_NineGrid::arrowKeysGoToTheNeighbour()
{
    NineGrid grid;
    QSignalSpy modified(&grid, &NineGrid::userModified);
    QTest::keyClick(&grid, Qt::Key_Left);
    QCOMPARE(grid.fixedPoint(), QStringLiteral("Left"));
    QTest::keyClick(&grid, Qt::Key_Left);
    QCOMPARE(grid.fixedPoint(), QStringLiteral("Left"));
    QTest::keyClick(&grid, Qt::Key_Up);
    QCOMPARE(grid.fixedPoint(), QStringLiteral("TopLeft"));
    QTest::keyClick(&grid, Qt::Key_End);
    QCOMPARE(grid.fixedPoint(), QStringLiteral("BottomRight"));
    QTest::keyClick(&grid, Qt::Key_Home);
    QTest::keyClick(&grid, Qt::Key_Right);
    QTest::keyClick(&grid, Qt::Key_Down);
    QCOMPARE(grid.fixedPoint(), QStringLiteral("Center"));
    QCOMPARE(modified.count(), 6);
}

void tst_NineGrid::mixedChoosesNothing()
{
    NineGrid grid;
    QSignalSpy modified(&grid, &NineGrid::userModified);
    grid.setMixed(true);
    QVERIFY(grid.isMixed());
    QTest::keyClick(&grid, Qt::Key_Space);
    QCOMPARE(modified.count(), 1);
    QVERIFY(!grid.isMixed());
    QCOMPARE(grid.fixedPoint(), QStringLiteral("Center"));
}

void tst_NineGrid::focusIsReported()
{
    NineGrid grid;
    QSignalSpy in(&grid, &NineGrid::focusedIn);
    QSignalSpy out(&grid, &NineGrid::focusedOut);
    grid.show();
    grid.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&grid));
    grid.setFocus();
    grid.clearFocus();
    QCOMPARE(in.count(), 1);
    QCOMPARE(out.count(), 1);
}

void tst_NineGrid::theChosenPointIsDrawnInTheHighlight()
{
    NineGrid grid;
    grid.resize(grid.sizeHint());
    QPalette palette = grid.palette();
    palette.setColor(QPalette::Highlight, QColor(1, 250, 3));
    grid.setPalette(palette);
    const QPoint center = grid.rect().center();
    QCOMPARE(grid.grab().toImage().pixelColor(center), QColor(1, 250, 3));
    grid.setMixed(true);
    QVERIFY(grid.grab().toImage().pixelColor(center) != QColor(1, 250, 3));
}

QTEST_MAIN(tst_NineGrid)
#include "tst_NineGrid.moc"
