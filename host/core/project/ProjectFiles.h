#pragma once

#include "host/core/project/ProjectFolder.h"
#include "host/core/project/ProjectFonts.h"
#include "host/core/project/ResourceFolder.h"

#include <QHash>
#include <QJsonObject>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QTemporaryDir>

#include <memory>
#include <optional>
#include <vector>

namespace Korvex::Meridane::Designer {

class Project;
class Screen;

/**
 * What ProjectStore knows about the files of one open project: what they held when they were read or written last, which
 * file each screen came from, and which images are the project's own. A child of the project.
 */
class ProjectFiles : public QObject
{
    Q_OBJECT

public:
    /// One screen, in the project or held by its history.
    struct ScreenFile
    {
        QPointer<Screen> screen;
        QString file; ///< the file that holds it; empty while there is none
        QByteArray unreadable; ///< the bytes of a file that could not be understood, kept when the file is removed
        QList<Problem> problems; ///< what was wrong with the file when it was read
    };

    /// Of \a project, made when there is none yet.
    [[nodiscard]] static ProjectFiles* of(Project* project);
    /// Of \a project, or null.
    [[nodiscard]] static const ProjectFiles* find(const Project* project);
    /// The project is closed: removes the images that a save has discarded, and takes back what was done to the images
    /// and fonts since.
    ~ProjectFiles() override;

    [[nodiscard]] ProjectFolder folder() const;
    /// The project lives in \a folder from now on; a temporary one before it goes.
    void setFolder(const QString& folder);

    /// The folder of a project that has not been saved yet; goes with it.
    void setTemporaryFolder(std::unique_ptr<QTemporaryDir> folder);

    /// \a screen is read from \a file when it is first needed.
    void addScreen(Screen* screen, const QString& file);
    /// The entry of \a screen; null for one that no file has held yet.
    [[nodiscard]] ScreenFile* screenFile(const Screen* screen);
    [[nodiscard]] std::vector<ScreenFile>& screenFiles() { return m_screens; }

    /// What project.json or the file of a screen held when it was read or written last; null when it has not been.
    [[nodiscard]] QByteArray content(const QString& file) const { return m_contents.value(file); }
    void setContent(const QString& file, const QByteArray& content) { m_contents.insert(file, content); }
    void forget(const QString& file) { m_contents.remove(file); }

    /// project.json as a save would have written it right after loading.
    [[nodiscard]] const QJsonObject& loadedProject() const { return m_loadedProject; }
    void setLoadedProject(const QJsonObject& object) { m_loadedProject = object; }

    /// What is wrong with project.json and the folder.
    [[nodiscard]] const QList<Problem>& problems() const { return m_problems; }
    void setProblems(const QList<Problem>& problems) { m_problems = problems; }
    /// What is wrong with all files that have been read.
    [[nodiscard]] QList<Problem> allProblems() const;

    /// Files in images/ and fonts/ that the user put there: offered, but neither listed in project.json nor removed.
    void setForeignResources(const QStringList& images, const QStringList& fonts);
    [[nodiscard]] const QStringList& foreignImages() const { return m_foreignImages; }
    [[nodiscard]] const QStringList& foreignFonts() const { return m_foreignFonts; }
    /// The user has handed an image of his own over to the program, by renaming or removing it there; or takes that back.
    void adoptForeignImage(const QString& image);
    void releaseForeignImage(const QString& image);

    /// Puts \a content into the image file \a fileName of the project's folder and announces it. False with a message
    /// that names the file when that is not possible.
    bool writeImage(const QString& fileName, const QByteArray& content, QString* message);
    /// The same for a font file.
    bool writeFont(const QString& fileName, const QByteArray& content, QString* message);
    /// What the image file \a fileName holds; null where there is none that may be read.
    [[nodiscard]] QByteArray readImage(const QString& fileName) const;
    [[nodiscard]] QByteArray readFont(const QString& fileName) const;
    /// The user has taken a font file from the project, or takes that back. The file goes when the project, saved without
    /// it, is closed.
    void setFontRemoved(const QString& fileName, bool removed);
    /// The image and font files of the folder are those of the saved project.
    void setResourcesSaved();
    /// Puts the image and font files of the folder, which the project is about to leave, back to what they were at its
    /// last save.
    void takeBackResources();

    /// Every image that has been the project's own since it was opened: those of project.json and those imported.
    [[nodiscard]] const QSet<QString>& ownImages() const { return m_ownImages; }
    /// Images of project.json that nothing has linked to yet. Somebody listed them by hand, to be used later.
    [[nodiscard]] const QSet<QString>& reservedImages() const { return m_reservedImages; }
    void setReservedImages(const QStringList& images);
    void addImageLinks(const QSet<QString>& images) { m_reservedImages -= images; }
    /// Own images that the saved project no longer names. They go when the project is closed: until then its history
    /// may ask for them.
    void setDiscardedImages(const QSet<QString>& images) { m_discardedImages = images; }

    [[nodiscard]] ProjectFonts& fonts() { return m_fonts; }

private:
    explicit ProjectFiles(Project* project);

    void readScreen(Screen* screen);
    [[nodiscard]] bool readScreenFile(ScreenFile& entry, Screen* screen, QString* error);
    void noteImages();
    void loadFonts();
    [[nodiscard]] std::optional<QSet<QString>> mentionedInFolder() const;
    void removeDiscardedFiles();

    QPointer<Project> m_project;
    QString m_folderPath; // for the time when the project is going
    std::unique_ptr<QTemporaryDir> m_temporaryFolder;
    std::vector<ScreenFile> m_screens;
    QHash<QString, QByteArray> m_contents;
    QJsonObject m_loadedProject;
    QList<Problem> m_problems;
    QStringList m_foreignImages;
    QStringList m_foreignFonts;
    QSet<QString> m_ownImages;
    QSet<QString> m_reservedImages;
    QSet<QString> m_discardedImages;
    QSet<QString> m_removedFonts;
    QSet<QString> m_discardedFonts; // those of m_removedFonts that the saved project no longer names
    ResourceFolder m_images{QStringLiteral("images")};
    ResourceFolder m_fontFiles{QStringLiteral("fonts")};
    ProjectFonts m_fonts;
};

} // namespace Korvex::Meridane::Designer
