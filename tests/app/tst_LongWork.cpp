#include "tests/app/TestWindow.h"

#include "app/LongWork.h"
#include "app/MessageBar.h"
#include "app/PreviewRunner.h"
#include "app/ProjectPanels.h"

#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/ProblemMonitor.h"
#include "host/core/project/Project.h"

#include <QDirIterator>
#include <QProgressDialog>
#include <QPushButton>
#include <QStandardPaths>

using namespace Korvex::Meridane::Designer;
using Test::TestWindow;

namespace {

/// What stands in the files of \a folder, by name.
QMap<QString, QByteArray> filesOf(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator names(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (names.hasNext()) {
        QFile file(names.next());
        if (file.open(QIODevice::ReadOnly))
            files.insert(file.fileName(), file.readAll());
    }
    return files;
}

} // namespace

/// What takes long says how far it has come, and can be ended with nothing half done.
class tst_LongWork : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(TestWindow::isolate());
        QStandardPaths::setTestModeEnabled(true);
        (void)DesignerFactory::instance()->loadInstalledPlugins();
    }

    void init()
    {
        m_window = std::make_unique<TestWindow>();
        QVERIFY(m_window->show());
        for (int i = 0; i < 60; ++i) {
            const QString position = QStringLiteral("%1,30").arg(i);
            session()->addElement(QStringLiteral("Rectangle"), session()->currentScreen(), {},
                                  {{QStringLiteral("position"), position}});
        }
        for (int i = 0; i < 12; ++i)
            session()->duplicateScreen(session()->currentScreen());
        LongWork::setPatience(0);
    }

    void cleanup()
    {
        LongWork::setPatience(500);
        m_window.reset();
    }

    void aSaveThatIsEndedLeavesTheFilesAlone()
    {
        m_window->prompts.saveFolder = m_window->path("kettle");
        m_window->action("file.save")->trigger();
        const QMap<QString, QByteArray> before = filesOf(m_window->path("kettle"));
        QCOMPARE(before.size(), 14); // the project and its screens
        const QVector<Screen*> screens = session()->project()->screens();
        for (Screen* screen : screens)
            session()->setProperty(screen, QStringLiteral("color"), QStringLiteral("#102030"));
        QVERIFY(m_window->window->isWindowModified());

        endNext();
        m_window->action("file.save")->trigger();
        QVERIFY(m_ended);
        QVERIFY(m_window->window->isWindowModified());
        QCOMPARE(filesOf(m_window->path("kettle")), before);
        QVERIFY(m_window->window->findChild<MessageBar*>()->isHidden());

        m_window->action("file.save")->trigger();
        QVERIFY(!m_window->window->isWindowModified());
        QVERIFY(filesOf(m_window->path("kettle")) != before);
    }

    void anUntitledProjectWhoseSaveIsEndedStaysUntitled()
    {
        m_window->prompts.saveFolder = m_window->path("kettle");
        endNext();
        m_window->action("file.saveAs")->trigger();
        QVERIFY(m_ended);
        QVERIFY(m_window->window->document()->isUntitled());
        QVERIFY(!QFileInfo::exists(m_window->path("kettle")));
        QCOMPARE(m_window->window->document()->name(), ProjectDocument::untitledName());
    }

    void aWindowWhoseSaveIsEndedStaysOpen()
    {
        m_window->prompts.saveFolder = m_window->path("kettle");
        m_window->prompts.saveAnswer = UserPrompts::SaveAnswer::Save;
        endNext();
        QVERIFY(!m_window->window->close());
        QVERIFY(m_window->window->isVisible());
    }

    void aCheckThatIsEndedGoesOnUnnoticed()
    {
        const ProblemMonitor* monitor = m_window->window->projectPanels()->monitor();
        // More than the check gets done before anybody could press Cancel.
        for (int i = 0; i < 100; ++i)
            session()->addElement(QStringLiteral("Rectangle"), session()->currentScreen(), {}, {});
        for (int doublings = 0; doublings < 5; ++doublings) {
            m_window->action("edit.selectAll")->trigger();
            m_window->action("edit.duplicate")->trigger();
        }
        endNext();
        m_window->action("project.check")->trigger();
        QVERIFY(m_ended);
        QVERIFY(!monitor->isCurrent());
        QTRY_VERIFY(monitor->isCurrent());
        m_window->action("project.check")->trigger();
        QVERIFY(monitor->isCurrent());
        const auto* messages = m_window->window->findChild<MessageBar*>();
        QVERIFY(messages->isVisible());
    }

    void aPreviewThatIsEndedDoesNotStart()
    {
        endNext();
        m_window->action("project.preview")->trigger();
        QVERIFY(m_ended);
        const auto* runner = m_window->window->findChild<PreviewRunner*>();
        QVERIFY(runner && !runner->isRunning());
        QVERIFY(m_window->window->findChild<MessageBar*>()->isHidden());
    }

    void anImportThatIsEndedTakesNoMoreImages()
    {
        for (int i = 0; i < 3; ++i) {
            QImage picture(10 + i, 10, QImage::Format_RGB32);
            picture.fill(Qt::red);
            m_window->prompts.images << m_window->folder.filePath(QStringLiteral("picture%1.png").arg(i));
            QVERIFY(picture.save(m_window->prompts.images.constLast()));
        }
        endNext();
        m_window->action("project.importImages")->trigger();
        QVERIFY(m_ended);
        QVERIFY(session()->project()->imageResources().isEmpty());
        m_window->action("project.importImages")->trigger();
        QCOMPARE(session()->project()->imageResources().size(), 3);
    }

private:
    /// Presses Cancel in the next window that shows progress.
    void endNext()
    {
        m_ended = false;
        auto* watch = new QTimer(m_window->window.get());
        connect(watch, &QTimer::timeout, this, [this, watch] {
            const QWidgetList windows = QApplication::topLevelWidgets();
            for (QWidget* window : windows) {
                auto* dialog = qobject_cast<QProgressDialog*>(window);
                if (!dialog || !dialog->isVisible())
                    continue;
                m_ended = true;
                watch->stop();
                dialog->findChild<QPushButton*>()->click();
                return;
            }
        });
        watch->start(0);
    }

    EditSession* session() const { return m_window->session(); }

    std::unique_ptr<TestWindow> m_window;
    bool m_ended = false;
};

QTEST_MAIN(tst_LongWork)
#include "tst_LongWork.moc"
