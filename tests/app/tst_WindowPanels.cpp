#include "app/Appearance.h"
#include "app/CanvasPanel.h"
#include "app/DesignerStyle.h"
#include "app/WindowPanels.h"
#include "tests/app/TestWindow.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/sheet/PropertySheet.h"

#include <QDockWidget>
#include <QTabBar>
#include <QToolBar>

using namespace Korvex::Meridane::Designer;
using Test::TestWindow;

/// The panels around the canvas: their sizes, their arrangement, and the way of the keyboard through them.
class tst_WindowPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(TestWindow::isolate());
        QApplication::setStyle(new DesignerStyle);
        (void)DesignerFactory::instance()->loadInstalledPlugins();
    }

    void init()
    {
        m_test = std::make_unique<TestWindow>();
        QVERIFY(m_test->show());
        QTest::qWait(50); // the layout's second look at its sizes
    }

    void cleanup() { m_test.reset(); }

    void panelsGrowBackAfterTheWindowWasTiny()
    {
        const int left = dock("PaletteDock")->width();
        const int right = dock("SheetDock")->width();
        resize({420, 300});
        QVERIFY(dock("PaletteDock")->width() < left || dock("SheetDock")->width() < right);
        resize({1280, 800});
        QTRY_COMPARE(dock("PaletteDock")->width(), left);
        QTRY_COMPARE(dock("SheetDock")->width(), right);
    }

    void theyGrowBackStepByStepToo()
    {
        const int left = dock("PaletteDock")->width();
        const int right = dock("SheetDock")->width();
        for (int width = 1280; width > 400; width -= 88)
            resize({width, 700});
        for (int width = 400; width <= 1280; width += 88)
            resize({width, 700});
        QTRY_COMPARE(dock("PaletteDock")->width(), left);
        QTRY_COMPARE(dock("SheetDock")->width(), right);
    }

    void theWidthThatTheUserGivesIsKept()
    {
        dragEdge(-110);
        const int wide = dock("SheetDock")->width();
        QVERIFY2(qAbs(wide - 430) < 8, qPrintable(QString::number(wide)));
        resize({500, 300});
        resize({1400, 800});
        QTRY_COMPARE(dock("SheetDock")->width(), wide);
        // Narrower by choice stays narrower.
        dragEdge(80);
        const int narrow = dock("SheetDock")->width();
        QVERIFY(narrow < wide);
        resize({1500, 800});
        QTest::qWait(50);
        QCOMPARE(dock("SheetDock")->width(), narrow);
    }

    void tabsOfPanelsHaveRoomForLongWords()
    {
        dock("TreeDock")->setWindowTitle(QStringLiteral("Projekt"));
        dock("ImagesDock")->setWindowTitle(QStringLiteral("Bilder"));
        dock("ScreensDock")->setWindowTitle(QStringLiteral("Bildschirme"));
        dock("FontsDock")->setWindowTitle(QStringLiteral("Schriften"));
        QTest::qWait(50);
        int tabs = 0;
        const QList<QTabBar*> bars = m_test->window->findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
        for (const QTabBar* bar : bars) {
            for (int i = 0; bar->isVisible() && i < bar->count(); ++i, ++tabs) {
                const int words = bar->fontMetrics().horizontalAdvance(bar->tabText(i));
                QVERIFY2(bar->tabRect(i).width() >= words + 8, qPrintable(bar->tabText(i)));
            }
        }
        QVERIFY(tabs >= 4);
    }

    void theLayoutIsReset()
    {
        const QRect sheet = dock("SheetDock")->geometry();
        m_test->window->addDockWidget(Qt::LeftDockWidgetArea, dock("SheetDock"));
        dock("HistoryDock")->hide();
        dock("TreeDock")->setFloating(true);
        m_test->action("view.resetLayout")->trigger();
        QCOMPARE(m_test->window->dockWidgetArea(dock("SheetDock")), Qt::RightDockWidgetArea);
        QVERIFY(dock("HistoryDock")->isVisible());
        QVERIFY(!dock("TreeDock")->isFloating());
        QTRY_COMPARE(dock("SheetDock")->geometry(), sheet);
    }

    void f6GoesAroundThroughPanelsAndCanvas()
    {
        m_test->window->workspace()->canvas()->setFocus();
        QStringList forward;
        QWidget* start = QApplication::focusWidget();
        do {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
            QVERIFY(forward.size() < 20);
            forward.append(place());
        } while (QApplication::focusWidget() != start);
        QCOMPARE(forward.last(), QStringLiteral("Canvas"));
        for (const char* name : {"PaletteDock", "TreeDock", "SheetDock", "HistoryDock"})
            QVERIFY2(forward.contains(QLatin1String(name)), name);
        QStringList backward;
        do {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, Qt::ShiftModifier);
            QVERIFY(backward.size() < 20);
            backward.append(place());
        } while (QApplication::focusWidget() != start);
        std::reverse(forward.begin(), forward.end() - 1);
        QCOMPARE(backward, forward);
    }

    void f6ComesBackToWhatHadTheFocusInAPanel()
    {
        m_test->action("view.editProperties")->trigger();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const QWidget* field = QApplication::focusWidget();
        QVERIFY(m_test->window->workspace()->sheet()->isAncestorOf(field));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
        QVERIFY(QApplication::focusWidget() != field);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), field);
    }

    void closedPanelsAreLeftOut()
    {
        dock("HistoryDock")->hide();
        m_test->window->workspace()->canvas()->setFocus();
        for (int i = 0; i < 8; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
            QVERIFY(place() != QLatin1String("HistoryDock"));
        }
    }

    void theWindowFollowsTheColoursOfTheDesktopWhileItRuns()
    {
        const QToolBar* bar = m_test->window->findChild<QToolBar*>();
        const QWidget* button = bar->widgetForAction(m_test->action("file.open"));
        const auto grab = [this, button] {
            QCoreApplication::processEvents();
            return m_test->window->grab(QRect(button->mapTo(m_test->window.get(), QPoint(0, 0)), button->size()))
                .toImage();
        };
        QApplication::setPalette(Appearance::darkPalette());
        const QImage dark = grab();
        QApplication::setPalette(Appearance::lightPalette());
        const QImage light = grab();
        QApplication::setPalette(QPalette());
        QVERIFY(lightnessOf(dark, false) < 80 && lightnessOf(dark, true) > 200); // a light icon on dark ground
        QVERIFY(lightnessOf(light, true) > 200 && lightnessOf(light, false) < 80);
        QVERIFY(dark.pixelColor(1, 1).lightness() < 80 && light.pixelColor(1, 1).lightness() > 200);
    }

    void thePanelWithTheKeyboardSaysSo()
    {
        const auto mark = [this](const char* name) {
            QCoreApplication::processEvents();
            return dock(name)->grab(QRect(0, 0, 3, 8)).toImage().pixelColor(1, 4);
        };
        m_test->window->workspace()->canvas()->setFocus();
        const QColor none = mark("HistoryDock");
        dock("HistoryDock")->widget()->setFocus();
        QVERIFY(mark("HistoryDock") != none);
        QCOMPARE(mark("HistoryDock"), QApplication::palette().color(QPalette::Highlight));
        m_test->window->workspace()->canvas()->setFocus();
        QCOMPARE(mark("HistoryDock"), none);
    }

    void theirEntriesShowAndHideThem()
    {
        QAction* entry = m_test->action("panels.showHistoryDock");
        QVERIFY(entry->isChecked());
        entry->trigger();
        QVERIFY(!dock("HistoryDock")->isVisible());
        entry->trigger();
        QVERIFY(dock("HistoryDock")->isVisible());
    }

private:
    QDockWidget* dock(const char* name) const { return m_test->window->findChild<QDockWidget*>(QLatin1String(name)); }

    /// The lightness (0 to 255) of the lightest or darkest pixel.
    static int lightnessOf(const QImage& image, bool lightest)
    {
        int found = image.pixelColor(0, 0).lightness();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const int here = image.pixelColor(x, y).lightness();
                found = lightest ? qMax(found, here) : qMin(found, here);
            }
        }
        return found;
    }

    void resize(const QSize& size) const
    {
        m_test->window->resize(size);
        QCoreApplication::processEvents();
        QTest::qWait(1);
    }

    /// Moves the edge between canvas and property sheet by \a distance pixels.
    void dragEdge(int distance) const
    {
        QMainWindow* window = m_test->window.get();
        const QPoint edge(dock("SheetDock")->x() - 2, dock("SheetDock")->geometry().center().y());
        QTest::mouseMove(window, edge);
        QTest::mousePress(window, Qt::LeftButton, {}, edge);
        QTest::mouseMove(window, edge + QPoint(distance / 2, 0));
        QTest::qWait(20);
        QTest::mouseMove(window, edge + QPoint(distance, 0));
        QTest::qWait(20);
        QTest::mouseRelease(window, Qt::LeftButton, {}, edge + QPoint(distance, 0));
        QTest::qWait(20);
    }

    /// The name of the panel that has the focus.
    QString place() const
    {
        const QWidget* focused = QApplication::focusWidget();
        for (const QDockWidget* dock : m_test->window->findChildren<QDockWidget*>()) {
            if (dock->isAncestorOf(focused))
                return dock->objectName();
        }
        return m_test->window->workspace()->canvasPanel()->isAncestorOf(focused) ? QStringLiteral("Canvas")
                                                                                 : QStringLiteral("?");
    }

    std::unique_ptr<TestWindow> m_test;
};

QTEST_MAIN(tst_WindowPanels)
#include "tst_WindowPanels.moc"
