#include "app/PictureExport.h"

#include "app/AppSettings.h"
#include "app/CoreText.h"
#include "app/LongWork.h"
#include "app/MessageBar.h"
#include "app/PendingEdit.h"
#include "app/WindowAction.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/ScreenRenderer.h"
#include "host/core/objects/Screen.h"
#include "host/core/output/ScreenSvg.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSaveFile>
#include <QStandardPaths>

namespace Korvex::Meridane::Designer {

namespace {

const QString FolderKey = QStringLiteral("paths/pictures");

QString startFolder()
{
    QString last = AppSettings().value(FolderKey).toString();
    if (!last.isEmpty() && QDir(last).exists())
        return last;
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return QDir(pictures).exists() ? pictures : QDir::homePath();
}

/// Writes \a content in the place of what stands at \a path, all of it or nothing.
bool write(const QString& path, const QByteArray& content, QString* message)
{
    if (const QFileInfo target(path); target.exists() && !target.isFile()) {
        *message = coreText("This is no file that can be replaced.");
        return false;
    }
    QSaveFile file(path);
    // A full disk shows when the data is flushed; committing alone may hide it.
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush())
        file.cancelWriting();
    if (file.commit())
        return true;
    *message = file.errorString();
    return false;
}

} // namespace

PictureExport::PictureExport(UserPrompts* prompts, MessageBar* messages, QObject* parent)
    : QObject(parent)
    , m_prompts(prompts)
    , m_messages(messages)
    , m_screen(new WindowAction(QStringLiteral("export-picture"), coreText("Export Screen as &Picture…"),
                                {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E)}, this))
    , m_selection(new WindowAction(QStringLiteral("export-picture"), coreText("Export Se&lection as Picture…"),
                                   QList<QKeySequence>(), this))
{
    m_screen->setObjectName(QStringLiteral("project.exportPicture"));
    m_selection->setObjectName(QStringLiteral("project.exportSelectionPicture"));
    connect(m_screen, &QAction::triggered, this, [this] {
        if (const Screen* screen = m_session ? m_session->currentScreen() : nullptr)
            run({}, screen->getIdName());
    });
    connect(m_selection, &QAction::triggered, this, [this] {
        const QList<DesignerObject*> elements = selectedElements();
        if (!elements.isEmpty())
            run(elements, elements.constFirst()->getIdName());
    });
    updateActions();
}

void PictureExport::addTo(QMenu* menu)
{
    menu->addAction(m_screen);
    menu->addAction(m_selection);
}

void PictureExport::setSession(EditSession* session)
{
    if (m_session)
        m_session->disconnect(this);
    m_session = session;
    if (session) {
        connect(session, &EditSession::selectionChanged, this, &PictureExport::updateActions);
        connect(session, &EditSession::currentScreenChanged, this, &PictureExport::updateActions);
    }
    updateActions();
}

void PictureExport::updateActions()
{
    m_screen->setEnabled(m_session && m_session->currentScreen());
    m_selection->setEnabled(!selectedElements().isEmpty());
}

QList<DesignerObject*> PictureExport::selectedElements() const
{
    if (!m_session || !m_session->currentScreen())
        return {};
    QList<DesignerObject*> elements = m_session->selection();
    elements.removeIf([](const DesignerObject* object) { return object->graphicsItem() == nullptr; });
    elements.removeOne(m_session->currentScreen());
    return elements;
}

void PictureExport::run(const QList<DesignerObject*>& only, const QString& name)
{
    PendingEdit::finish();
    CanvasScene* scene = m_session->scene(m_session->currentScreen());
    RenderOptions options;
    options.only = only;
    const auto choice = m_prompts->askPicture(ScreenRenderer::area(scene, options).size(), m_choice);
    if (!choice)
        return;
    m_choice = *choice;
    const QString suffix = choice->isDrawing ? QStringLiteral(".svg") : QStringLiteral(".png");
    const QString path = m_prompts->choosePictureFile(QDir(startFolder()).filePath(name + suffix));
    if (path.isEmpty())
        return;
    AppSettings().setValue(FolderKey, QFileInfo(path).absolutePath());
    QString message;
    QByteArray content;
    if (ProjectStore::isProjectFolder(m_session->project(), QFileInfo(path).absolutePath())) {
        message = coreText("This folder belongs to the project itself. Choose another one.");
    } else {
        content = compose(only, *choice, &message);
        if (content.isEmpty() && message.isEmpty())
            return; // ended by the user
    }
    if (message.isEmpty() && write(path, content, &message)) {
        m_messages->showMessage(coreText("The picture has been saved as \"%1\".").arg(QDir::toNativeSeparators(path)),
                                MessageBar::Kind::Information);
    } else {
        m_messages->showMessage(
            coreText("\"%1\" has not been written. %2").arg(QDir::toNativeSeparators(path), message),
            MessageBar::Kind::Error);
    }
}

QByteArray PictureExport::compose(const QList<DesignerObject*>& only, const PictureChoice& choice,
                                  QString* message) const
{
    CanvasScene* scene = m_session->scene(m_session->currentScreen());
    const RenderOptions options{choice.scale, choice.ground, only};
    LongWork work(coreText("Drawing the picture…"));
    const auto progress = [&work](int done, int total) { return work.step(done, total); };
    QByteArray content;
    if (choice.isDrawing) {
        content = ScreenSvg::draw(scene, options, progress);
        if (content.isEmpty() && !work.isEnded())
            *message = coreText("There is nothing to be drawn.");
        return content;
    }
    const QImage picture = ScreenRenderer::render(scene, options, progress);
    if (work.isEnded())
        return {};
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    if (picture.isNull() || !picture.save(&buffer, "PNG")) {
        *message = coreText("A picture of this scale is too large.");
        return {};
    }
    return content;
}

} // namespace Korvex::Meridane::Designer
