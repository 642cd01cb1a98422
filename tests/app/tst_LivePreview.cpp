#include "app/LiveDisplay.h"
#include "app/LivePreviewPanel.h"
#include "app/LiveView.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/ScreenRenderer.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"

#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

#include <csignal>

using namespace Korvex::Meridane::Designer;

namespace {

constexpr int Patience = 20000; // ms; the machine may be busy

} // namespace

/// The display beside the canvas shows what the canvas shows, and nothing that happens to it touches the designer.
class tst_LivePreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QString message;
        QVERIFY2(DesignerFactory::instance()->loadPlugin(QStringLiteral(MERIDANE_PLUGIN_FILE), &message),
                 qPrintable(message));
    }

    void init()
    {
        auto made = std::make_unique<Project>();
        QVERIFY(made->initialize());
        m_session = std::make_unique<EditSession>(std::move(made));
        QVERIFY(m_session->addScreen(QStringLiteral("main"), QSizeF(800, 480), &m_screen).accepted);
        m_session->setProperty(m_screen, QStringLiteral("color"), QStringLiteral("#204060"));
        m_canvas = std::make_unique<CanvasView>(m_session.get());
        m_canvas->resize(900, 600);
        m_canvas->show();
    }

    void cleanup()
    {
        m_panel.reset();
        m_canvas.reset();
        m_session.reset();
    }

    void theDisplayShowsTheCurrentScreen()
    {
        add("Rectangle", QStringLiteral("100,50"), QStringLiteral("200,100"), QStringLiteral("#ff0000"));
        add("Ellipse", QStringLiteral("300,200"), QStringLiteral("200,200"), QStringLiteral("#00ff00"));
        showPanel();
        QVERIFY(shows(QPoint(110, 60), Qt::red));
        compareWithCanvas();
        QVERIFY2(m_panel->message().isEmpty(), qPrintable(m_panel->message()));
    }

    void itFollowsEditsUndoAndOtherScreens()
    {
        DesignerObject* element =
            add("Rectangle", QStringLiteral("100,50"), QStringLiteral("200,100"), QStringLiteral("#ff0000"));
        showPanel();
        QVERIFY(shows(QPoint(110, 60), Qt::red));
        m_session->setProperty(element, QStringLiteral("color"), QStringLiteral("#0000ff"));
        QVERIFY(shows(QPoint(110, 60), Qt::blue));
        m_session->undo();
        QVERIFY(shows(QPoint(110, 60), Qt::red));
        DesignerObject* front =
            add("Rectangle", QStringLiteral("0,0"), QStringLiteral("400,300"), QStringLiteral("#ffff00"));
        QVERIFY(shows(QPoint(110, 60), Qt::yellow));
        m_session->reorder(front, 0);
        QVERIFY(shows(QPoint(110, 60), Qt::red));
        m_session->removeElements({element});
        QVERIFY(shows(QPoint(110, 60), Qt::yellow));
        Screen* other = nullptr;
        m_session->addScreen(QStringLiteral("other"), QSizeF(800, 480), &other);
        m_session->setProperty(other, QStringLiteral("color"), QStringLiteral("#00ffff"));
        m_session->setCurrentScreen(other);
        QVERIFY(shows(QPoint(110, 60), Qt::cyan));
        m_session->setCurrentScreen(m_screen);
        QVERIFY(shows(QPoint(110, 60), Qt::yellow));
    }

    void anElementThatChangesStaysBetweenItsNeighbours()
    {
        add("Rectangle", QStringLiteral("0,0"), QStringLiteral("400,300"), QStringLiteral("#ffff00"));
        DesignerObject* middle =
            add("Rectangle", QStringLiteral("50,50"), QStringLiteral("200,200"), QStringLiteral("#ff0000"));
        add("Rectangle", QStringLiteral("100,100"), QStringLiteral("50,50"), QStringLiteral("#0000ff"));
        showPanel();
        QVERIFY(shows(QPoint(60, 60), Qt::red));
        m_session->setProperty(middle, QStringLiteral("color"), QStringLiteral("#00ff00"));
        QVERIFY(shows(QPoint(60, 60), Qt::green));
        QVERIFY(shows(QPoint(120, 120), Qt::blue));
        QVERIFY(shows(QPoint(10, 10), Qt::yellow));
    }

    void aDragIsSeenBeforeItEndsAndGoneWhenItIsTakenBack()
    {
        DesignerObject* element =
            add("Rectangle", QStringLiteral("100,50"), QStringLiteral("100,100"), QStringLiteral("#ff0000"));
        showPanel();
        QVERIFY(shows(QPoint(110, 60), Qt::red));
        const int steps = m_session->undoStack()->count();
        const auto at = [this](double x, double y) { return m_canvas->mapFromScene(QPointF(x, y)); };
        QTest::mousePress(m_canvas->viewport(), Qt::LeftButton, Qt::NoModifier, at(150, 100));
        QTest::mouseMove(m_canvas->viewport(), at(250, 150));
        QTest::mouseMove(m_canvas->viewport(), at(450, 300));
        QVERIFY(m_canvas->isGestureRunning());
        QVERIFY(shows(QPoint(450, 300), Qt::red));
        QVERIFY(shows(QPoint(110, 60), QColor(0x20, 0x40, 0x60)));
        // Shown, and nothing more.
        QCOMPARE(element->getProperty(QStringLiteral("position"))->valueString(), QStringLiteral("100,50"));
        QCOMPARE(m_session->undoStack()->count(), steps);
        QTest::keyClick(m_canvas.get(), Qt::Key_Escape);
        QVERIFY(!m_canvas->isGestureRunning());
        QVERIFY(shows(QPoint(110, 60), Qt::red));
        QVERIFY(shows(QPoint(450, 300), QColor(0x20, 0x40, 0x60)));
        QTest::mouseRelease(m_canvas->viewport(), Qt::LeftButton, Qt::NoModifier, at(450, 300));
    }

    void aDisplayThatDiesComesBackByItself()
    {
        add("Rectangle", QStringLiteral("100,50"), QStringLiteral("100,100"), QStringLiteral("#ff0000"));
        showPanel();
        QVERIFY(shows(QPoint(110, 60), Qt::red));
        QSignalSpy failures(m_panel->display(), &LiveDisplay::failed);
        const qint64 process = m_panel->display()->processId();
        QVERIFY(process > 0);
        ::kill(pid_t(process), SIGKILL);
        QTRY_COMPARE_WITH_TIMEOUT(failures.size(), 1, Patience);
        QVERIFY(!m_panel->message().isEmpty());
        QVERIFY(!failures.constFirst().at(1).toBool());
        QTRY_VERIFY_WITH_TIMEOUT(m_panel->display()->processId() > 0 && m_panel->display()->processId() != process
                                     && m_panel->message().isEmpty(),
                                 Patience);
        m_session->setProperty(m_screen, QStringLiteral("color"), QStringLiteral("#ffffff"));
        QVERIFY(shows(QPoint(5, 5), Qt::white));
        QVERIFY(shows(QPoint(110, 60), Qt::red));
    }

    void aDisplayThatHangsIsEndedAndStartedAnew()
    {
        showPanel();
        QVERIFY(shows(QPoint(5, 5), QColor(0x20, 0x40, 0x60)));
        m_panel->display()->setPatience(300);
        QSignalSpy failures(m_panel->display(), &LiveDisplay::failed);
        const qint64 process = m_panel->display()->processId();
        ::kill(pid_t(process), SIGSTOP);
        m_session->setProperty(m_screen, QStringLiteral("color"), QStringLiteral("#ffffff"));
        QTRY_VERIFY_WITH_TIMEOUT(!failures.isEmpty(), Patience);
        m_panel->display()->setPatience(LiveDisplay::AnswerPatience);
        QVERIFY(shows(QPoint(5, 5), Qt::white));
        QVERIFY(m_panel->display()->processId() != process);
    }

    void whatCannotBeStartedIsGivenUpAndCanBeRestarted()
    {
        LiveDisplay display(QStringLiteral("/nowhere/meridane-viewer"));
        QSignalSpy failures(&display, &LiveDisplay::failed);
        display.start();
        QTRY_COMPARE_WITH_TIMEOUT(failures.size(), LiveDisplay::MostFailures, Patience);
        QVERIFY(failures.constFirst().at(0).toString().contains(QStringLiteral("/nowhere/meridane-viewer")));
        QVERIFY(!failures.at(LiveDisplay::MostFailures - 2).at(1).toBool());
        QVERIFY(failures.constLast().at(1).toBool());
        QTest::qWait(300);
        QCOMPARE(failures.size(), LiveDisplay::MostFailures);
        display.restart();
        QTRY_COMPARE_WITH_TIMEOUT(failures.size(), LiveDisplay::MostFailures + 1, Patience);
        QVERIFY(!failures.constLast().at(1).toBool());
    }

    void thePanelOffersARestart()
    {
        showPanel(QStringLiteral("/nowhere/meridane-viewer"));
        auto* restart = m_panel->findChild<QToolButton*>();
        QVERIFY(restart);
        QTRY_VERIFY_WITH_TIMEOUT(restart->isVisible(), Patience);
        QVERIFY(m_panel->message().contains(QStringLiteral("/nowhere/meridane-viewer")));
        QSignalSpy failures(m_panel->display(), &LiveDisplay::failed);
        restart->click();
        QTRY_VERIFY_WITH_TIMEOUT(!failures.isEmpty(), Patience);
    }

    void anErrorInTheQmlIsToldAndTheDisplayGoesOn()
    {
        LiveDisplay display(QStringLiteral(MERIDANE_VIEWER));
        QSignalSpy complaints(&display, &LiveDisplay::complained);
        QSignalSpy failures(&display, &LiveDisplay::failed);
        bool isStarted = false;
        connect(&display, &LiveDisplay::started, this, [&isStarted] { isStarted = true; });
        display.start();
        QTRY_VERIFY_WITH_TIMEOUT(isStarted, Patience);
        display.openProject(QDir::tempPath(), QSizeF(40, 30));
        display.showScreen(QStringLiteral("main"),
                           "import Meridane.Display\nScreen {\n\twidth: 40\n\theight: 30\n\tRectangle2 { id: a }\n}\n",
                           {QStringLiteral("a")});
        QTRY_VERIFY_WITH_TIMEOUT(display.isReady(), Patience);
        QCOMPARE(complaints.takeLast().constFirst().toStringList(), QStringList());
        display.replaceElements({{QStringLiteral("a"), "import Meridane.Display\nRectangle2 { breadth: 3 }\n"}});
        QVERIFY(!display.isReady());
        QTRY_VERIFY_WITH_TIMEOUT(display.isReady(), Patience);
        const QStringList told = complaints.takeLast().constFirst().toStringList();
        QCOMPARE(told.size(), 1);
        QVERIFY2(told.constFirst().contains(QStringLiteral("breadth")), qPrintable(told.constFirst()));
        display.replaceElements({{QStringLiteral("a"), "import Meridane.Display\nRectangle2 { width: 3 }\n"}});
        QTRY_VERIFY_WITH_TIMEOUT(display.isReady(), Patience);
        QCOMPARE(complaints.takeLast().constFirst().toStringList(), QStringList());
        QVERIFY(failures.isEmpty());
    }

    void whatIsWrongIsToldUntilItIsMended()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("logo.png"));
        QImage picture(20, 20, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(file));
        QString id;
        QVERIFY(m_session->importImage(file, &id).accepted);
        DesignerObject* image = nullptr;
        QVERIFY(m_session->addElement(QStringLiteral("Image"), m_screen, {}, {{QStringLiteral("source"), id}}, &image)
                    .accepted);
        DesignerObject* other =
            add("Rectangle", QStringLiteral("100,50"), QStringLiteral("200,100"), QStringLiteral("#ff0000"));
        DesignerObject* third =
            add("Rectangle", QStringLiteral("400,50"), QStringLiteral("200,100"), QStringLiteral("#ff0000"));
        QVERIFY(QFile::remove(QDir(m_session->project()->folder()).filePath(QStringLiteral("images/") + id)));
        showPanel();
        QTRY_VERIFY_WITH_TIMEOUT(m_panel->message().contains(id), Patience);
        for (const QColor& color : {QColor(Qt::blue), QColor(Qt::green)}) {
            m_session->setProperty(other, QStringLiteral("color"), color.name());
            QVERIFY(shows(QPoint(110, 60), color));
            QTRY_VERIFY_WITH_TIMEOUT(m_panel->display()->isReady(), Patience);
            QVERIFY2(m_panel->message().contains(id), qPrintable(m_panel->message()));
        }
        QVERIFY(m_session->removeElements({image}).accepted);
        m_session->setProperty(third, QStringLiteral("color"), QStringLiteral("#00ffff"));
        QVERIFY(shows(QPoint(410, 60), Qt::cyan));
        QTRY_VERIFY_WITH_TIMEOUT(m_panel->message().isEmpty(), Patience);
    }

    void theMouseReachesTheDisplay()
    {
        LiveDisplay display(QStringLiteral(MERIDANE_VIEWER));
        bool isStarted = false;
        connect(&display, &LiveDisplay::started, this, [&isStarted] { isStarted = true; });
        display.start();
        QTRY_VERIFY_WITH_TIMEOUT(isStarted, Patience);
        display.openProject(QDir::tempPath(), QSizeF(40, 30));
        display.showScreen(QStringLiteral("main"),
                           "import QtQuick\nimport Meridane.Display\nScreen {\n\twidth: 40\n\theight: 30\n"
                           "\tcolor: area.pressed ? \"#ff0000\" : \"#0000ff\"\n"
                           "\tMouseArea { id: area; x: 20; width: 20; height: 30 }\n}\n",
                           {});
        const auto pixel = [&display] {
            return display.frame().isNull() ? QColor() : display.frame().pixelColor(5, 5);
        };
        QTRY_COMPARE_WITH_TIMEOUT(pixel(), QColor(Qt::blue), Patience);
        display.sendMouse(QEvent::MouseButtonPress, QPointF(30, 10), Qt::LeftButton, Qt::LeftButton, {});
        QTRY_COMPARE_WITH_TIMEOUT(pixel(), QColor(Qt::red), Patience);
        display.sendMouse(QEvent::MouseButtonRelease, QPointF(30, 10), Qt::LeftButton, Qt::NoButton, {});
        QTRY_COMPARE_WITH_TIMEOUT(pixel(), QColor(Qt::blue), Patience);
    }

    void aLargerPanelGetsMorePixels()
    {
        add("Rectangle", QStringLiteral("100,50"), QStringLiteral("100,100"), QStringLiteral("#ff0000"));
        showPanel();
        QVERIFY(shows(QPoint(110, 60), Qt::red));
        QCOMPARE(m_panel->display()->frame().size(), QSize(800, 480));
        m_panel->resize(1600, 960);
        QTRY_COMPARE_WITH_TIMEOUT(m_panel->display()->frame().size(), QSize(1600, 960), Patience);
        QTRY_COMPARE_WITH_TIMEOUT(m_panel->display()->frame().pixelColor(202, 102), QColor(Qt::red), Patience);
        QCOMPARE(m_panel->view()->picturePlace(), QRectF(0, 0, 1600, 960));
    }

    void aHiddenPanelComputesNothing()
    {
        showPanel();
        QVERIFY(shows(QPoint(5, 5), QColor(0x20, 0x40, 0x60)));
        m_panel->hide();
        QSignalSpy answers(m_panel->display(), &LiveDisplay::complained);
        m_session->setProperty(m_screen, QStringLiteral("color"), QStringLiteral("#ffffff"));
        QTest::qWait(200);
        QVERIFY(answers.isEmpty());
        m_panel->show();
        QVERIFY(shows(QPoint(5, 5), Qt::white));
    }

    void aProjectWithoutScreensSaysSo()
    {
        showPanel();
        QVERIFY(shows(QPoint(5, 5), QColor(0x20, 0x40, 0x60)));
        m_session->removeScreen(m_screen);
        QTRY_VERIFY_WITH_TIMEOUT(m_panel->message().contains(QStringLiteral("no screen")), Patience);
        m_session->undo();
        QTRY_VERIFY_WITH_TIMEOUT(m_panel->message().isEmpty(), Patience);
    }

private:
    DesignerObject* add(const char* className, const QString& position, const QString& size, const QString& color)
    {
        DesignerObject* element = nullptr;
        const EditResult result = m_session->addElement(
            QString::fromLatin1(className), m_screen, {},
            {{QStringLiteral("position"), position}, {QStringLiteral("size"), size}, {QStringLiteral("color"), color}},
            &element);
        if (!result.accepted)
            qFatal("%s", qPrintable(result.message));
        return element;
    }

    void showPanel(const QString& program = QStringLiteral(MERIDANE_VIEWER))
    {
        m_panel = std::make_unique<LivePreviewPanel>(m_session.get(), m_canvas.get(), program);
        m_panel->resize(800, 480);
        m_panel->show();
    }

    bool shows(const QPoint& place, const QColor& color)
    {
        return QTest::qWaitFor(
            [&] {
                const QImage& frame = m_panel->display()->frame();
                return frame.rect().contains(place) && frame.pixelColor(place) == color;
            },
            Patience);
    }

    void compareWithCanvas()
    {
        const QImage canvas = ScreenRenderer::render(m_session->scene(m_session->currentScreen()));
        const QImage frame = m_panel->display()->frame();
        QCOMPARE(frame.size(), canvas.size());
        int differing = 0;
        for (int y = 0; y < canvas.height(); ++y) {
            for (int x = 0; x < canvas.width(); ++x)
                differing += std::abs(qRed(canvas.pixel(x, y)) - qRed(frame.pixel(x, y))) > 8;
        }
        QVERIFY2(differing < 50, qPrintable(QString::number(differing)));
    }

    std::unique_ptr<EditSession> m_session;
    std::unique_ptr<CanvasView> m_canvas;
    std::unique_ptr<LivePreviewPanel> m_panel;
    Screen* m_screen = nullptr;
};

QTEST_MAIN(tst_LivePreview)
#include "tst_LivePreview.moc"
