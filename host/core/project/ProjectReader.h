#pragma once

#include "host/core/project/Problem.h"
#include "host/core/project/ProjectFolder.h"

#include <QJsonObject>
#include <QStringList>

#include <memory>

namespace Korvex::Meridane::Designer {

class Project;
class ProjectFiles;

/// Opens a project folder: reads project.json, and prepares the screens to be read when they are needed. Refuses what it
/// could not write back without loss.
class ProjectReader
{
public:
    explicit ProjectReader(const QString& folder);

    /// The project, or null; problems() then says why.
    [[nodiscard]] std::unique_ptr<Project> read();
    [[nodiscard]] const QList<Problem>& problems() const { return m_problems; }

private:
    [[nodiscard]] bool readObject();
    [[nodiscard]] bool checkVersion();
    [[nodiscard]] bool readNames(const QString& key, bool required, bool (*isUsable)(const QString& name),
                                 QStringList* names);
    void fillProperties(Project* project);
    void addScreens(Project* project, ProjectFiles* files);
    void addResources(Project* project, ProjectFiles* files);
    [[nodiscard]] QStringList unlisted(const QString& subfolder, const QStringList& listed,
                                       const QStringList& suffixes) const;
    void reportUnlistedScreens();
    bool refuse(const QString& message);

    ProjectFolder m_folder;
    QByteArray m_content; // of project.json
    QJsonObject m_object;
    QStringList m_screens;
    QStringList m_images;
    QStringList m_fonts;
    QList<Problem> m_problems;
};

} // namespace Korvex::Meridane::Designer
