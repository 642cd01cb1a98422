#include "app/AppSettings.h"
#include "app/DevicePanel.h"
#include "app/DevicePicture.h"
#include "app/LivePreviewPanel.h"
#include "app/LongWork.h"
#include "app/MainWindow.h"
#include "app/MessageBar.h"
#include "app/OutputActions.h"
#include "app/PictureDialog.h"
#include "app/PictureExport.h"
#include "app/QmlPanel.h"
#include "app/QmlTextView.h"
#include "app/ResultPanels.h"
#include "app/Workspace.h"
#include "tests/app/FakePrompts.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/ScreenRenderer.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/sheet/PropertySheet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressDialog>
#include <QScreen>
#include <QScrollArea>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::FakePrompts;

/// What becomes of the work, from the window: panels that open and close, pictures that are exported.
class tst_ResultPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        (void)DesignerFactory::instance()->loadInstalledPlugins();
    }

    void init()
    {
        QFile::remove(AppSettings::filePath());
        m_folder = std::make_unique<QTemporaryDir>();
        m_prompts = std::make_unique<FakePrompts>();
        m_window = std::make_unique<MainWindow>(m_prompts.get());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        add(QStringLiteral("Rectangle"), QStringLiteral("40,30"), QStringLiteral("#f80000"));
    }

    void cleanup()
    {
        m_window.reset();
        LongWork::setPatience(500);
    }

    void panelsAreOpenedAndClosedByTheirActions_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("dock");
        QTest::newRow("QML") << QStringLiteral("view.showQml") << QStringLiteral("QmlDock");
        QTest::newRow("preview") << QStringLiteral("view.showLivePreview") << QStringLiteral("PreviewDock");
        QTest::newRow("panel") << QStringLiteral("view.showAsOnPanel") << QStringLiteral("DeviceDock");
    }

    void panelsAreOpenedAndClosedByTheirActions()
    {
        QFETCH(QString, action);
        QFETCH(QString, dock);
        auto* shown = m_window->findChild<QDockWidget*>(dock);
        auto* toggle = m_window->findChild<QAction*>(action);
        QVERIFY(shown && toggle);
        QVERIFY(shown->isHidden());
        QVERIFY(!toggle->isChecked());
        const int steps = session()->undoStack()->count();
        toggle->trigger();
        QTRY_VERIFY(shown->isVisible() && !shown->visibleRegion().isEmpty());
        QVERIFY(toggle->isChecked());
        toggle->trigger();
        QVERIFY(shown->isHidden());
        QVERIFY(!toggle->isChecked());
        toggle->trigger();
        shown->close();
        QVERIFY(!toggle->isChecked());
        QCOMPARE(session()->undoStack()->count(), steps);
        QVERIFY(!toggle->shortcut().isEmpty());
        QVERIFY(!toggle->icon().isNull());
    }

    void aPictureOpenedInAFlatPlaceGetsRoom()
    {
        m_window->resize(1000, 800);
        auto* history = m_window->findChild<QDockWidget*>(QStringLiteral("HistoryDock"));
        auto* sheet = m_window->findChild<QDockWidget*>(QStringLiteral("SheetDock"));
        m_window->resizeDocks({sheet, history}, {600, 120}, Qt::Vertical);
        QTRY_VERIFY(history->height() < 200);
        m_window->findChild<QAction*>(QStringLiteral("view.showLivePreview"))->trigger();
        QTRY_VERIFY(results()->previewDock()->height() >= 280);
        // What is large enough is left as it is.
        m_window->resizeDocks({sheet, results()->previewDock()}, {300, 420}, Qt::Vertical);
        QTRY_VERIFY(results()->previewDock()->height() > 350);
        const int height = results()->previewDock()->height();
        m_window->findChild<QAction*>(QStringLiteral("view.showAsOnPanel"))->trigger();
        QTRY_VERIFY(results()->deviceDock()->isVisible());
        QTest::qWait(50);
        QVERIFY(qAbs(results()->deviceDock()->height() - height) <= 2);
    }

    void noShortcutIsTakenTwice()
    {
        QMap<QString, QString> taken;
        const QList<QAction*> actions = m_window->findChildren<QAction*>();
        for (const QAction* action : actions) {
            if (action->objectName().isEmpty())
                continue;
            for (const QKeySequence& key : action->shortcuts()) {
                const QString before = taken.value(key.toString(), action->objectName());
                QVERIFY2(before == action->objectName(),
                         qPrintable(QStringLiteral("%1: %2 and %3").arg(key.toString(), before, action->objectName())));
                taken.insert(key.toString(), action->objectName());
            }
        }
    }

    void panelsShowTheProjectThatIsOpenedNext()
    {
        results()->qmlDock()->show();
        QTRY_VERIFY(results()->qml()->text()->toPlainText().contains(QStringLiteral("Rectangle2")));
        m_prompts->saveAnswer = UserPrompts::SaveAnswer::Discard;
        QVERIFY(m_window->openProject(QStringLiteral(MERIDANE_EXAMPLES "/thermostat")));
        QTRY_VERIFY(results()->qml()->text()->toPlainText().contains(QStringLiteral("houseRoof")));
        QVERIFY(results()->qml()->isVisible());
    }

    void thePanelHasTheColorsThatWereChosen()
    {
        results()->deviceDock()->show();
        DevicePanel* panel = results()->device();
        const auto pixel = [panel](int x, int y) {
            const QImage& picture = panel->picture()->picture();
            return picture.rect().contains(x, y) ? picture.pixelColor(x, y) : QColor();
        };
        panel->setFormat(PanelFormat::Rgb565);
        QTRY_COMPARE(pixel(45, 35), QColor(247, 0, 0)); // level 30 of 31
        panel->setFormat(PanelFormat::Full);
        QTRY_COMPARE(pixel(45, 35), QColor(0xf8, 0, 0));
        panel->setFormat(PanelFormat::Grey);
        QTRY_VERIFY(pixel(45, 35).isValid() && pixel(45, 35).red() == pixel(45, 35).green());
        panel->setFormat(PanelFormat::Full);
        session()->setProperty(session()->currentScreen(), QStringLiteral("color"), QStringLiteral("#00ff00"));
        QTRY_COMPARE(pixel(1, 1), QColor(Qt::green));
    }

    void thePanelIsTurnedAsItIsMounted()
    {
        results()->deviceDock()->show();
        DevicePanel* panel = results()->device();
        panel->setFormat(PanelFormat::Full);
        const QImage upright = ScreenRenderer::render(session()->scene(session()->currentScreen()));
        for (const int degrees : {90, 180, 270, 0}) {
            panel->setRotation(degrees);
            const QImage turned =
                upright.convertToFormat(QImage::Format_RGB32).transformed(QTransform().rotate(degrees));
            QTRY_COMPARE(panel->picture()->picture().size(), turned.size());
            QTRY_COMPARE(panel->picture()->picture().convertToFormat(QImage::Format_RGB32), turned);
        }
    }

    void theWholePanelIsSeenInANarrowDock()
    {
        results()->deviceDock()->show();
        DevicePanel* panel = results()->device();
        QTRY_VERIFY(!panel->picture()->picture().isNull());
        const auto* area = panel->findChild<QScrollArea*>();
        const auto isSeenWhole = [&] {
            const QSizeF room = area->maximumViewportSize();
            const QSizeF shown = panel->picture()->shownSize();
            return shown.width() <= room.width() + 0.01 && shown.height() <= room.height() + 0.01
                   && qAbs(shown.width() / shown.height() - 800.0 / 480) < 0.001;
        };
        for (const int width : {300, 420}) {
            m_window->resizeDocks({results()->deviceDock()}, {width}, Qt::Horizontal);
            QTRY_VERIFY(isSeenWhole());
        }
        panel->setFitting(false);
        QTRY_COMPARE(panel->picture()->shownSize(), QSizeF(800, 480));
        auto* button = panel->findChild<QToolButton*>();
        QVERIFY(!button->isChecked());
        button->click();
        QTRY_VERIFY(isSeenWhole());
    }

    void findInTheQmlKeepsItsKey()
    {
        results()->qmlDock()->show();
        QmlPanel* panel = results()->qml();
        QApplication::setActiveWindow(m_window.get());
        panel->text()->setFocus();
        QTest::keyClick(panel->text(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(panel->searchField()->hasFocus());
        // Elsewhere it is the window's.
        m_window->workspace()->canvas()->setFocus();
        QTest::keyClick(m_window->workspace()->canvas(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(!panel->searchField()->hasFocus());
        QVERIFY(m_window->workspace()->sheet()->isAncestorOf(QApplication::focusWidget()));
    }

    void thePhysicalSizeAsksForTheDensityOnce()
    {
        results()->deviceDock()->show();
        auto* physical = results()->device()->findChild<QCheckBox*>();
        auto* density = results()->device()->findChildren<QDoubleSpinBox*>().constFirst();
        QVERIFY(!density->isVisible());
        const QSizeF before = results()->device()->picture()->shownSize();
        physical->click();
        QTRY_VERIFY(density->isVisible() && density->hasFocus());
        density->selectAll();
        QTest::keyClicks(density, QStringLiteral("200"));
        QTest::keyClick(density, Qt::Key_Return);
        const double wanted = m_window->screen()->physicalDotsPerInch() / 200;
        QTRY_VERIFY(qAbs(results()->device()->picture()->shownSize().width() - 800 * wanted) < 0.01);
        QVERIFY(results()->device()->picture()->shownSize() != before);
        // Remembered for the next window.
        m_window = std::make_unique<MainWindow>(m_prompts.get());
        m_window->show();
        results()->deviceDock()->show();
        QTRY_VERIFY(qAbs(results()->device()->picture()->shownSize().width() - 800 * wanted) < 0.01);
    }

    void physicalSizesAreThoseOfARuler()
    {
        // Two inches of a panel of 150 pixels an inch are two inches of a screen of 96.
        QCOMPARE(300 * DevicePanel::physicalScale(150, 96, 1), 192.0);
        QCOMPARE(300 * DevicePanel::physicalScale(150, 96, 1.5), 288.0);
        QCOMPARE(DevicePanel::physicalScale(0, 96, 1), 0.0);
    }

    void aScreenIsExportedAsAPicture()
    {
        m_prompts->pictureChoice = PictureChoice{false, 2, true};
        m_prompts->pictureFile = m_folder->filePath(QStringLiteral("out.png"));
        QAction* action = m_window->outputActions()->pictureExport()->screenAction();
        QVERIFY(action->isEnabled());
        const int steps = session()->undoStack()->count();
        action->trigger();
        const QImage picture(m_prompts->pictureFile);
        QCOMPARE(picture.size(), QSize(1600, 960));
        QCOMPARE(picture.pixelColor(90, 70), QColor(0xf8, 0, 0));
        QCOMPARE(picture.pixelColor(1, 1), QColor(Qt::white));
        QVERIFY(m_prompts->proposedPicture.endsWith(session()->currentScreen()->getIdName() + QStringLiteral(".png")));
        QCOMPARE(m_window->messageBar()->kind(), MessageBar::Kind::Information);
        QCOMPARE(session()->undoStack()->count(), steps);
        m_prompts->pictureChoice = PictureChoice{false, 1, false};
        action->trigger();
        QCOMPARE(QImage(m_prompts->pictureFile).pixelColor(1, 1).alpha(), 0);
    }

    void aSelectionIsExportedAsADrawing()
    {
        QAction* action = m_window->outputActions()->pictureExport()->selectionAction();
        session()->setSelection({});
        QVERIFY(!action->isEnabled());
        session()->setSelection({session()->currentScreen()});
        QVERIFY(!action->isEnabled());
        session()->setSelection({session()->currentScreen()->element(QStringLiteral("rectangle1"))});
        QVERIFY(action->isEnabled());
        m_prompts->pictureChoice = PictureChoice{true, 1, true};
        m_prompts->pictureFile = m_folder->filePath(QStringLiteral("out.svg"));
        action->trigger();
        QFile file(m_prompts->pictureFile);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray svg = file.readAll();
        QVERIFY(svg.contains("<svg width=\"60\" height=\"40\""));
        QVERIFY(svg.contains("#f80000"));
        QVERIFY(m_prompts->asked.contains(QStringLiteral("picture of 60 x 40")));
    }

    void whoCancelsGetsNoFile()
    {
        QAction* action = m_window->outputActions()->pictureExport()->screenAction();
        m_prompts->pictureFile = m_folder->filePath(QStringLiteral("out.png"));
        action->trigger(); // no choice
        QVERIFY(!m_prompts->asked.contains(QStringLiteral("picture file")));
        m_prompts->pictureChoice = PictureChoice();
        const QString path = std::exchange(m_prompts->pictureFile, QString());
        action->trigger(); // no file
        QVERIFY(!QFile::exists(path));
    }

    void whatCannotBeWrittenIsToldAndLeavesWhatWasThere()
    {
        m_prompts->pictureChoice = PictureChoice();
        QAction* action = m_window->outputActions()->pictureExport()->screenAction();
        for (const QString& path : {m_folder->path(), m_folder->filePath(QStringLiteral("none/out.png")),
                                    session()->project()->folder() + QStringLiteral("/out.png")}) {
            m_prompts->pictureFile = path;
            action->trigger();
            QCOMPARE(m_window->messageBar()->kind(), MessageBar::Kind::Error);
            QVERIFY2(m_window->messageBar()->text().contains(QStringLiteral("has not been written")),
                     qPrintable(m_window->messageBar()->text()));
            QVERIFY(!QFileInfo(path).isFile());
            m_window->messageBar()->hide();
        }
    }

    void longWorkCanBeEnded()
    {
        for (int i = 0; i < 30; ++i)
            add(QStringLiteral("Rectangle"), QStringLiteral("%1,1").arg(i), QStringLiteral("#00ff00"));
        LongWork::setPatience(0);
        m_prompts->pictureChoice = PictureChoice{true, 1, true};
        m_prompts->pictureFile = m_folder->filePath(QStringLiteral("out.svg"));
        bool seen = false;
        QTimer::singleShot(0, this, [this, &seen] {
            auto* dialog = m_window->findChild<QProgressDialog*>();
            if (!dialog) {
                const QWidgetList windows = QApplication::topLevelWidgets();
                for (QWidget* window : windows) {
                    if (auto* found = qobject_cast<QProgressDialog*>(window))
                        dialog = found;
                }
            }
            seen = dialog != nullptr;
            if (dialog)
                dialog->cancel();
        });
        m_window->outputActions()->pictureExport()->screenAction()->trigger();
        QVERIFY(seen);
        QVERIFY(!QFile::exists(m_prompts->pictureFile));
        QVERIFY(m_window->messageBar()->kind() != MessageBar::Kind::Error || m_window->messageBar()->isHidden());
    }

    void theDialogTellsThePixels()
    {
        PictureDialog dialog(QSizeF(800, 480), PictureChoice{false, 1.5, false});
        const auto texts = [&dialog] {
            QStringList all;
            const QList<QLabel*> labels = dialog.findChildren<QLabel*>();
            for (const QLabel* label : labels)
                all.append(label->text());
            return all;
        };
        QVERIFY(texts().contains(QStringLiteral("1200 × 720 px")));
        dialog.findChild<QDoubleSpinBox*>()->setValue(3);
        QVERIFY(texts().contains(QStringLiteral("2400 × 1440 px")));
        dialog.findChild<QComboBox*>()->setCurrentIndex(1);
        const PictureChoice choice = dialog.choice();
        QVERIFY(choice.isDrawing);
        QCOMPARE(choice.scale, 3.0);
        QVERIFY(!choice.ground);
    }

private:
    EditSession* session() const { return m_window->workspace()->session(); }
    ResultPanels* results() const { return m_window->results(); }

    void add(const QString& className, const QString& position, const QString& color)
    {
        const EditResult result =
            session()->addElement(className, session()->currentScreen(), {},
                                  {{QStringLiteral("position"), position},
                                   {QStringLiteral("size"), QStringLiteral("60,40")},
                                   {QStringLiteral("border"), QStringLiteral("width: 0; color: #000000;")},
                                   {QStringLiteral("color"), color}});
        if (!result.accepted)
            qFatal("%s", qPrintable(result.message));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FakePrompts> m_prompts;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(tst_ResultPanels)
#include "tst_ResultPanels.moc"
