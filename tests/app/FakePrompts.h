#pragma once

#include "app/UserPrompts.h"

#include <QStringList>

namespace Korvex::Meridane::Designer::Test {

/// Answers the window's questions as the test has prepared them, and remembers what was asked.
class FakePrompts : public UserPrompts
{
public:
    SaveAnswer askSaveChanges(const QString& name) override
    {
        asked << QStringLiteral("save ") + name;
        return saveAnswer;
    }

    std::optional<NewProject> askNewProject(const NewProject& proposal) override
    {
        asked << QStringLiteral("new ") + proposal.name;
        return newProject;
    }

    QString chooseProject(const QString&) override
    {
        asked << QStringLiteral("open");
        return project;
    }

    QString chooseSaveFolder(const QString& proposal) override
    {
        asked << QStringLiteral("folder");
        proposedFolder = proposal;
        return saveFolder;
    }

    QString chooseExportFolder(const QString&) override
    {
        asked << QStringLiteral("export");
        return exportFolder;
    }

    QStringList chooseImages(const QString&) override
    {
        asked << QStringLiteral("images");
        return images;
    }

    QString chooseReplacement(const QString& name, const QString&) override
    {
        asked << QStringLiteral("replace ") + name;
        return replacement;
    }

    SaveAnswer saveAnswer = SaveAnswer::Cancel;
    std::optional<NewProject> newProject;
    QString project;
    QString saveFolder;
    QString exportFolder;
    QString proposedFolder;
    QStringList images;
    QString replacement;
    QStringList asked;
};

} // namespace Korvex::Meridane::Designer::Test
