#pragma once

#include "host/core/project/Problem.h"

#include <QHash>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;
class Project;
class ProjectFiles;
class Screen;

/**
 * Finds what is wrong with a project: every validator, every link, values that do not convert, elements off their
 * screen, missing fonts and images, unknown classes and keys, unreadable screens.
 *
 * Errors are what cannot be shown or exported as it was meant; warnings what can, but looks like an oversight: unknown
 * keys, elements off their screen, fonts that the machine at hand lacks, listed files that are missing, values beyond what
 * an editor takes, and what a property's advisor says.
 */
class MERIDANE_CORE_EXPORT ProjectChecker
{
public:
    [[nodiscard]] static QList<Problem> check(Project* project);

private:
    ProjectChecker(Project* project, ProjectFiles* files);

    void checkProject();
    void checkResources();
    void checkScreen(const Screen* screen);
    void checkElement(const DesignerObject* object, bool mayBeOffScreen);
    void checkProperty(const DesignerProperty& property);
    void checkFont(const DesignerProperty& property);
    [[nodiscard]] bool isKnown(const QString& family);
    void checkImageFile(const DesignerProperty& property);
    void checkPicture(const DesignerProperty& property, const QString& file);
    [[nodiscard]] bool isOffScreen(const DesignerObject* object) const;
    void report(Problem::Severity severity, const DesignerProperty& property, const QString& message);

    Project* m_project;
    ProjectFiles* m_files;
    const Screen* m_screen = nullptr;
    QString m_file; // that is being checked
    QHash<QString, bool> m_families; // whether texts find them
    QList<Problem> m_problems;
};

} // namespace Korvex::Meridane::Designer
