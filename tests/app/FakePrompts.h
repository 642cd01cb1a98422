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

    QStringList chooseFonts(const QString&) override
    {
        asked << QStringLiteral("fonts");
        return fonts;
    }

    std::optional<PictureChoice> askPicture(const QSizeF& size, const PictureChoice&) override
    {
        asked << QStringLiteral("picture of %1 x %2").arg(size.width()).arg(size.height());
        return pictureChoice;
    }

    QString choosePictureFile(const QString& proposal) override
    {
        asked << QStringLiteral("picture file");
        proposedPicture = proposal;
        return pictureFile;
    }

    std::optional<ScreenSize> askScreenSize(const QString& name, const ScreenSize&) override
    {
        asked << QStringLiteral("size of ") + name;
        return screenSize;
    }

    SaveAnswer saveAnswer = SaveAnswer::Cancel;
    std::optional<NewProject> newProject;
    QString project;
    QString saveFolder;
    QString exportFolder;
    QString proposedFolder;
    QStringList images;
    QString replacement;
    QStringList fonts;
    std::optional<ScreenSize> screenSize;
    std::optional<PictureChoice> pictureChoice;
    QString pictureFile;
    QString proposedPicture;
    QStringList asked;
};

} // namespace Korvex::Meridane::Designer::Test
