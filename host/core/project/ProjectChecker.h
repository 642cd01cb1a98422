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
    /// Everything at once: what was wrong with the files when they were read, the project, then screen by screen.
    [[nodiscard]] static QList<Problem> check(Project* project);

    // The same in steps, for a check while somebody works. A checker remembers which fonts are there: one that is older
    // than a change of the fonts goes by the old ones. The project outlives it.
    explicit ProjectChecker(Project* project);

    /// What was wrong with the files when they were read.
    [[nodiscard]] QList<Problem> fileProblems() const;
    /// Checks the project itself and its resources.
    [[nodiscard]] QList<Problem> checkProject();
    /// Begins with \a screen, which is read if it has not been; what another screen was found to have is forgotten.
    void beginScreen(const Screen* screen);
    /// Checks the screen for \a milliseconds or a little longer (negative: without a limit). True when it is done; objects
    /// of the screen must not come or go before.
    bool continueScreen(int milliseconds = -1);
    /// What has been found on the screen.
    [[nodiscard]] QList<Problem> takeScreenProblems();

private:
    /// An object that is still to be checked.
    struct Waiting
    {
        const DesignerObject* object;
        bool mayBeOffScreen;
    };

    void checkResources();
    void checkElement(const Waiting& waiting);
    void checkProperty(const DesignerProperty& property);
    void checkFont(const DesignerProperty& property);
    [[nodiscard]] bool isKnown(const QString& family);
    void checkImageFile(const DesignerProperty& property);
    void checkPicture(const DesignerProperty& property, const QString& file);
    [[nodiscard]] bool isOffScreen(const DesignerObject* object) const;
    void report(Problem::Severity severity, const DesignerProperty& property, const QString& message,
                Problem::Kind kind = Problem::Kind::Other);

    Project* m_project;
    ProjectFiles* m_files;
    const Screen* m_screen = nullptr;
    QString m_file; // that is being checked
    QList<Waiting> m_waiting; // the next one stands last
    QHash<QString, bool> m_families; // whether texts find them
    QList<Problem> m_problems;
};

} // namespace Korvex::Meridane::Designer
