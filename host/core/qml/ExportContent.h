#pragma once

#include "host/core/CoreExport.h"
#include "host/core/output/WorkProgress.h"
#include "host/core/project/Problem.h"

#include <QByteArray>
#include <QMap>
#include <QStringList>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class Project;
class ProjectFiles;
class Screen;

/// The files of an export, composed in memory.
class MERIDANE_CORE_EXPORT ExportContent
{
public:
    explicit ExportContent(Project* project, const WorkProgress& progress = {});

    /// Whether the progress has ended it; there is nothing to be written then.
    [[nodiscard]] bool isEnded() const { return m_ended; }

    /// By path relative to the export's folder; of use only when there are no problems.
    [[nodiscard]] const QMap<QString, QByteArray>& files() const { return m_files; }
    [[nodiscard]] const QList<Problem>& problems() const { return m_problems; }

    /// What the file of a screen begins with, by lines.
    [[nodiscard]] static const QStringList& importLines();

private:
    void addMain();
    void addScreen(const Screen* screen);
    void addResources(const DesignerObject* object, const QString& screenFile);
    void addFonts(const DesignerObject* object);
    void addImage(const QString& fileName, const QString& screenFile, const QString& object, const QString& property);

    Project* m_project;
    ProjectFiles* m_projectFiles;
    QMap<QString, QByteArray> m_files;
    QList<Problem> m_problems;
    bool m_ended = false;
};

} // namespace Korvex::Meridane::Designer
