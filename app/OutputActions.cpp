#include "app/OutputActions.h"

#include "app/AppSettings.h"
#include "app/CoreText.h"
#include "app/LongWork.h"
#include "app/MessageBar.h"
#include "app/PendingEdit.h"
#include "app/PictureExport.h"
#include "app/PreviewRunner.h"
#include "app/ProjectDocument.h"
#include "app/UserPrompts.h"
#include "app/WindowAction.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/qml/QmlExporter.h"

#include <QDir>
#include <QMenu>
#include <QStandardPaths>

namespace Korvex::Meridane::Designer {

namespace {

const QString ExportFolderKey = QStringLiteral("paths/export");

} // namespace

OutputActions::OutputActions(ProjectDocument* document, UserPrompts* prompts, MessageBar* messages, QObject* parent)
    : QObject(parent)
    , m_document(document)
    , m_prompts(prompts)
    , m_messages(messages)
    , m_runner(new PreviewRunner({}, this))
    , m_picture(new PictureExport(prompts, messages, this))
    , m_export(new WindowAction(QStringLiteral("export"), coreText("&Export QML…"),
                                {QKeySequence(Qt::CTRL | Qt::Key_E)}, this))
    , m_preview(new WindowAction(QStringLiteral("preview"), coreText("Pre&view"), {QKeySequence(Qt::Key_F5)}, this))
    , m_check(new WindowAction(QStringLiteral("check"), coreText("Chec&k Project"), {QKeySequence(Qt::Key_F7)}, this))
{
    m_export->setObjectName(QStringLiteral("project.exportQml"));
    m_preview->setObjectName(QStringLiteral("project.preview"));
    m_check->setObjectName(QStringLiteral("project.check"));
    connect(m_export, &QAction::triggered, this, &OutputActions::exportQml);
    connect(m_preview, &QAction::triggered, this, &OutputActions::preview);
    connect(m_check, &QAction::triggered, this, &OutputActions::checkRequested);
    connect(m_runner, &PreviewRunner::failed, this,
            [this](const QString& message) { m_messages->showMessage(message, MessageBar::Kind::Error); });
}

void OutputActions::addTo(QMenu* menu)
{
    menu->addAction(m_export);
    m_picture->addTo(menu);
    menu->addSeparator();
    menu->addAction(m_preview);
    menu->addAction(m_check);
}

void OutputActions::setSession(EditSession* session)
{
    m_picture->setSession(session);
}

void OutputActions::exportQml()
{
    PendingEdit::finish();
    QString start = AppSettings().value(ExportFolderKey).toString();
    if (start.isEmpty() || !QDir(start).exists())
        start = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QDir(start).exists())
        start = QDir::homePath();
    const QString folder = m_prompts->chooseExportFolder(start);
    if (folder.isEmpty())
        return;
    AppSettings().setValue(ExportFolderKey, folder);
    LongWork work(coreText("Exporting the QML…"));
    const QList<Problem> problems = QmlExporter::exportProject(
        m_document->project(), folder, [&work](int done, int total) { return work.step(done, total); });
    if (work.isEnded())
        return;
    if (problems.isEmpty()) {
        m_messages->showMessage(coreText("The QML has been exported to \"%1\".").arg(QDir::toNativeSeparators(folder)),
                                MessageBar::Kind::Information);
    }
    Q_EMIT problemsFound(problems, coreText("The project has not been exported."));
}

void OutputActions::preview()
{
    PendingEdit::finish();
    QList<Problem> problems;
    const Screen* screen = m_document->session()->currentScreen();
    {
        LongWork work(coreText("Preparing the preview…"));
        m_runner->start(m_document->project(), screen ? screen->getIdName() : QString(), &problems,
                        [&work](int done, int total) { return work.step(done, total); });
    }
    if (!problems.isEmpty())
        Q_EMIT problemsFound(problems, coreText("There is no preview of the project."));
}

} // namespace Korvex::Meridane::Designer
