#pragma once

#include "host/core/output/WorkProgress.h"
#include "host/core/project/ProjectFolder.h"
#include "host/core/project/SaveTransaction.h"

#include <QHash>
#include <QJsonObject>
#include <QSet>

namespace Korvex::Meridane::Designer {

class Project;
class ProjectFiles;
class Screen;

/**
 * One save of a project into a folder. Everything is compared and composed first, then written in one transaction; only
 * files whose meaning changed are written.
 */
class ProjectWriter
{
public:
    ProjectWriter(Project* project, const QString& folder);

    /// False with a message that names the file, without one when \a progress, which hears of each screen, has ended it;
    /// nothing has been changed then.
    [[nodiscard]] bool save(QString* message, const WorkProgress& progress = {});

    /// project.json of \a project without the images \a discarded.
    [[nodiscard]] static QJsonObject projectObject(const Project* project, const QSet<QString>& discarded = {});

private:
    [[nodiscard]] bool rescueRemovedScreens(QString* message);
    [[nodiscard]] bool planScreens(QString* message, const WorkProgress& progress);
    [[nodiscard]] bool planScreen(Screen* screen, const QString& file, QString* message);
    [[nodiscard]] bool planUnreadableScreen(Screen* screen, const QString& file, QString* message);
    [[nodiscard]] bool planCopy(const QString& file, QString* message);
    [[nodiscard]] bool planFile(const QString& file, const QByteArray& content, const Screen* screen, QString* message);
    void planScreenRemovals();
    void findDiscardedImages();
    [[nodiscard]] bool planResourceCopies(QString* message);
    [[nodiscard]] bool planProjectFile(QString* message);
    [[nodiscard]] bool meansTheSame(const QByteArray& text, const Screen* screen, const QByteArray& content) const;
    [[nodiscard]] QSet<QString> imagesOfUnreadScreens(bool* certain) const;
    [[nodiscard]] bool isIntoOwnFolder() const;
    void leaveUnusedImages();
    void adoptResult();

    Project* m_project;
    ProjectFiles* m_files;
    ProjectFolder m_source;
    ProjectFolder m_target;
    bool m_own; // the target is the folder that the project lives in
    SaveTransaction m_transaction;
    QHash<const Screen*, QString> m_screenFiles; // where each screen stands after the save
    QHash<QString, QByteArray> m_contents; // of the files that this save has written or found as it wants them
    QSet<QString> m_writtenFiles;
    QSet<QString> m_mentionedImages; // by any screen, read or not
    QSet<QString> m_discardedImages;
    QJsonObject m_projectObject;
};

} // namespace Korvex::Meridane::Designer
