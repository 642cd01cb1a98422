#include "app/FileActions.h"

#include "app/AppSettings.h"
#include "app/CoreText.h"
#include "app/LongWork.h"
#include "app/MessageBar.h"
#include "app/PendingEdit.h"
#include "app/ProjectDocument.h"
#include "app/RecentFiles.h"
#include "app/UserPrompts.h"
#include "app/WindowAction.h"

#include "host/core/project/Project.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QStandardPaths>

namespace Korvex::Meridane::Designer {

namespace {

const QString ProjectsFolderKey = QStringLiteral("paths/projects");

/// Shows that the program is busy for as long as it lives.
class BusyCursor
{
public:
    BusyCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyCursor() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(BusyCursor)
};

/// \a path as a menu entry: an ampersand in it is no mnemonic.
QString menuEntry(const QString& path)
{
    QString text = QDir::toNativeSeparators(path);
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

FileActions::FileActions(ProjectDocument* document, UserPrompts* prompts, MessageBar* messages, QObject* parent)
    : QObject(parent)
    , m_document(document)
    , m_prompts(prompts)
    , m_messages(messages)
    , m_recent(new RecentFiles(this))
    , m_startPage(new WindowAction(QStringLiteral("start-page"), coreText("Start Pa&ge"),
                                   {QKeySequence(Qt::ALT | Qt::Key_Home)}, this))
    , m_new(new WindowAction(QStringLiteral("file-new"), coreText("&New…"), QKeySequence::New, this))
    , m_open(new WindowAction(QStringLiteral("file-open"), coreText("O&pen…"), QKeySequence::Open, this))
    , m_save(new WindowAction(QStringLiteral("file-save"), coreText("Sa&ve"), QKeySequence::Save, this))
    , m_saveAs(new WindowAction(QStringLiteral("file-save-as"), coreText("Save &As…"),
                                {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)}, this))
    , m_close(new WindowAction(QStringLiteral("file-close"), coreText("&Close"), QKeySequence::Close, this))
    , m_quit(new WindowAction(QStringLiteral("quit"), coreText("&Quit"), {QKeySequence(Qt::CTRL | Qt::Key_Q)}, this))
{
    m_startPage->setObjectName(QStringLiteral("file.startPage"));
    m_new->setObjectName(QStringLiteral("file.new"));
    m_open->setObjectName(QStringLiteral("file.open"));
    m_save->setObjectName(QStringLiteral("file.save"));
    m_saveAs->setObjectName(QStringLiteral("file.saveAs"));
    m_close->setObjectName(QStringLiteral("file.close"));
    m_quit->setObjectName(QStringLiteral("file.quit"));
    connect(m_startPage, &QAction::triggered, this, &FileActions::startPageRequested);
    connect(m_new, &QAction::triggered, this, &FileActions::createProject);
    connect(m_open, &QAction::triggered, this, &FileActions::chooseAndOpen);
    connect(m_save, &QAction::triggered, this, &FileActions::save);
    connect(m_saveAs, &QAction::triggered, this, &FileActions::saveAs);
    connect(m_close, &QAction::triggered, this, &FileActions::closeProject);
}

void FileActions::addTo(QMenu* menu)
{
    menu->addAction(m_new);
    menu->addAction(m_open);
    m_recentMenu = menu->addMenu(coreText("Open &Recent"));
    m_recentMenu->setObjectName(QStringLiteral("RecentMenu"));
    connect(m_recentMenu, &QMenu::aboutToShow, this, &FileActions::fillRecentMenu);
    connect(m_recent, &RecentFiles::changed, this,
            [this] { m_recentMenu->setEnabled(!m_recent->folders().isEmpty()); });
    m_recentMenu->setEnabled(!m_recent->folders().isEmpty());
    menu->addAction(m_startPage);
    menu->addSeparator();
    menu->addAction(m_save);
    menu->addAction(m_saveAs);
}

void FileActions::addEndTo(QMenu* menu)
{
    menu->addAction(m_close);
    menu->addAction(m_quit);
}

bool FileActions::mayClose()
{
    PendingEdit::finish();
    if (!m_document->isModified())
        return true;
    switch (m_prompts->askSaveChanges(m_document->name())) {
    case UserPrompts::SaveAnswer::Save:
        return save();
    case UserPrompts::SaveAnswer::Discard:
        return true;
    case UserPrompts::SaveAnswer::Cancel:
        break;
    }
    return false;
}

bool FileActions::openPath(const QString& path)
{
    if (!mayClose())
        return false;
    QList<Problem> problems;
    bool opened = false;
    {
        const BusyCursor busy;
        opened = m_document->open(path, &problems);
    }
    if (!opened) {
        if (!QFileInfo::exists(path))
            m_recent->remove(path);
        Q_EMIT problemsFound(problems, coreText("The project has not been opened."));
        return false;
    }
    m_messages->hide();
    m_recent->add(m_document->project()->folder());
    rememberFolder(m_document->project()->folder());
    Q_EMIT problemsFound(problems, QString());
    Q_EMIT projectStored();
    return true;
}

bool FileActions::openExample(const QString& folder)
{
    if (!mayClose())
        return false;
    QList<Problem> problems;
    const bool opened = m_document->openCopy(folder, &problems);
    if (opened)
        m_messages->hide();
    Q_EMIT problemsFound(problems, opened ? QString() : coreText("The project has not been opened."));
    return opened;
}

void FileActions::createSized(const QSizeF& size)
{
    if (!size.isValid()) {
        createProject();
    } else if (mayClose()) {
        m_messages->hide();
        m_document->create(ProjectDocument::untitledName(), size);
        Q_EMIT problemsFound({}, QString());
    }
}

bool FileActions::save()
{
    if (m_document->isUntitled())
        return saveAs();
    PendingEdit::finish();
    return store(
        [this](QString* message, const WorkProgress& progress) { return m_document->save(message, progress); });
}

bool FileActions::saveAs()
{
    PendingEdit::finish();
    const QString start =
        m_document->isUntitled() ? projectsFolder() : QFileInfo(m_document->project()->folder()).absolutePath();
    QString name = m_document->name().toLower();
    for (QChar& letter : name) {
        if (!letter.isLetterOrNumber() && letter != QLatin1Char('-') && letter != QLatin1Char('_'))
            letter = QLatin1Char('-');
    }
    const QString folder = m_prompts->chooseSaveFolder(QDir(start).filePath(name));
    if (folder.isEmpty())
        return false;
    return store([this, &folder](QString* message, const WorkProgress& progress) {
        return m_document->saveAs(folder, message, progress);
    });
}

/// Saves by \a save and says how that went; nothing when the user has ended it.
template <typename Save>
bool FileActions::store(const Save& save)
{
    QString message;
    bool done = false;
    {
        const BusyCursor busy;
        LongWork work(coreText("Saving the project…"));
        done = save(&message, [&work](int step, int total) { return work.step(step, total); });
        if (work.isEnded())
            return false;
    }
    return reportSave(done, message);
}

void FileActions::createProject()
{
    const std::optional<NewProject> wanted =
        m_prompts->askNewProject({ProjectDocument::untitledName(), ProjectDocument::DefaultDisplaySize});
    if (wanted && mayClose()) {
        m_messages->hide();
        m_document->create(wanted->name, wanted->displaySize);
        Q_EMIT problemsFound({}, QString());
    }
}

void FileActions::chooseAndOpen()
{
    const QString path = m_prompts->chooseProject(projectsFolder());
    if (!path.isEmpty())
        openPath(path);
}

void FileActions::closeProject()
{
    if (!mayClose())
        return;
    m_messages->hide();
    m_document->create(ProjectDocument::untitledName(), ProjectDocument::DefaultDisplaySize);
    Q_EMIT problemsFound({}, QString());
}

void FileActions::fillRecentMenu()
{
    m_recentMenu->clear();
    const QStringList folders = m_recent->folders();
    for (const QString& folder : folders)
        connect(m_recentMenu->addAction(menuEntry(folder)), &QAction::triggered, this,
                [this, folder] { openPath(folder); });
    m_recentMenu->addSeparator();
    QAction* clear = m_recentMenu->addAction(coreText("&Clear List"));
    clear->setObjectName(QStringLiteral("file.clearRecent"));
    connect(clear, &QAction::triggered, m_recent, &RecentFiles::clear);
}

bool FileActions::reportSave(bool done, const QString& message)
{
    if (!done) {
        m_messages->showMessage(coreText("The project has not been saved. %1").arg(message), MessageBar::Kind::Error,
                                coreText("Save As…"), [this] { saveAs(); });
        return false;
    }
    const QString folder = m_document->project()->folder();
    m_recent->add(folder);
    rememberFolder(folder);
    // An earlier complaint about saving is settled; other messages go by themselves.
    if (m_messages->kind() == MessageBar::Kind::Error)
        m_messages->hide();
    Q_EMIT projectStored();
    return true;
}

QString FileActions::projectsFolder() const
{
    const QString known = AppSettings().value(ProjectsFolderKey).toString();
    if (!known.isEmpty() && QDir(known).exists())
        return known;
    // A dialog that is sent to a folder that does not exist begins wherever the program was started.
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documents).exists() ? documents : QDir::homePath();
}

void FileActions::rememberFolder(const QString& folder)
{
    AppSettings().setValue(ProjectsFolderKey, QFileInfo(folder).absolutePath());
}

} // namespace Korvex::Meridane::Designer
