#pragma once

#include "host/core/output/WorkProgress.h"
#include "host/core/project/Problem.h"

#include <QObject>
#include <QSizeF>

#include <memory>

namespace Korvex::Meridane::Designer {

class EditSession;
class ImageWatcher;
class Project;

/**
 * The project that is open in the window, with its editing session: creates, opens and saves it. There is always one.
 *
 * It follows what other programs do to the project's images. It asks the user nothing; see FileActions for that.
 */
class ProjectDocument : public QObject
{
    Q_OBJECT

public:
    /// The display size of a new project, in pixels.
    static constexpr QSizeF DefaultDisplaySize{800, 480};

    explicit ProjectDocument(QObject* parent = nullptr);
    ~ProjectDocument() override;

    /// The session of the open project; null before the first create() or open().
    [[nodiscard]] EditSession* session() const { return m_session.get(); }
    [[nodiscard]] Project* project() const;
    /// Whether the project has never been saved: it lives in a temporary folder.
    [[nodiscard]] bool isUntitled() const { return m_untitled; }
    [[nodiscard]] bool isModified() const;
    /// The name that the window shows.
    [[nodiscard]] QString name() const;
    [[nodiscard]] static QString untitledName();

    /// Replaces the open project by a new one with one empty screen.
    void create(const QString& name, const QSizeF& displaySize);
    /// Replaces the open project by the one in \a path, a project's folder or its project.json. When it cannot be
    /// opened the present project stays and false is returned; \a problems tells why. An opened project may have
    /// problems too.
    bool open(const QString& path, QList<Problem>* problems);
    /// Replaces the open project by a copy of the one in \a path, which belongs to no folder until it is saved.
    bool openCopy(const QString& path, QList<Problem>* problems);
    /// Saves into the project's own folder. False with a message when that cannot be done, without one
    /// when \a progress, which hears of each screen, has ended it; nothing is lost then.
    bool save(QString* message, const WorkProgress& progress = {});
    /// Saves into \a folder, which becomes the project's own. A folder that holds anything else already is refused.
    bool saveAs(const QString& folder, QString* message, const WorkProgress& progress = {});

Q_SIGNALS:
    /// The session is about to be deleted; whoever shows it lets go of it now.
    void sessionAboutToClose();
    void sessionChanged(EditSession* session);
    /// Name, folder or state of being modified may have changed.
    void titleChanged();

private:
    void replaceSession(std::unique_ptr<Project> project, bool untitled);
    void nameAfter(const QString& folder) const;

    std::unique_ptr<EditSession> m_session;
    std::unique_ptr<ImageWatcher> m_imageWatcher; // goes before the session
    bool m_untitled = true;
};

} // namespace Korvex::Meridane::Designer
