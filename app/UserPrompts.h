#pragma once

#include <QSizeF>
#include <QString>
#include <QStringList>

#include <optional>

namespace Korvex::Meridane::Designer {

/// What a new project is made of.
struct NewProject
{
    QString name;
    QSizeF displaySize; ///< pixels
};

/// A screen's new size, and whether what is on the screen follows it.
struct ScreenSize
{
    QSizeF size; ///< pixels
    bool scales = false;
};

/// How a screen, or what is selected on it, becomes a picture.
struct PictureChoice
{
    bool isDrawing = false; ///< SVG; else PNG
    double scale = 1; ///< picture pixels for one of the display
    bool ground = true; ///< with the screen's colour; else transparent
};

/// The questions that stop the user. The window asks through this interface, so that tests can answer.
class UserPrompts
{
public:
    enum class SaveAnswer
    {
        Save,
        Discard,
        Cancel
    };

    virtual ~UserPrompts() = default;

    /// Whether the changes of the project \a name are to be saved before it is closed.
    virtual SaveAnswer askSaveChanges(const QString& name) = 0;
    /// Name and size of a new project, starting from \a proposal; none when the user cancels.
    virtual std::optional<NewProject> askNewProject(const NewProject& proposal) = 0;
    // Each of these gives an absolute path, or an empty text when the user cancels.
    /// The project.json, or the folder, of a project to open.
    virtual QString chooseProject(const QString& startFolder) = 0;
    /// A new folder to save the project in.
    virtual QString chooseSaveFolder(const QString& proposal) = 0;
    /// The folder to export to.
    virtual QString chooseExportFolder(const QString& startFolder) = 0;
    /// Image files to import; none when the user cancels.
    virtual QStringList chooseImages(const QString& startFolder) = 0;
    /// The file to be shown in the place of the image \a name.
    virtual QString chooseReplacement(const QString& name, const QString& startFolder) = 0;
    /// Font files to import; none when the user cancels.
    virtual QStringList chooseFonts(const QString& startFolder) = 0;
    /// How the picture of \a size (pixels of the display) is to be, starting from \a proposal; none when the user cancels.
    virtual std::optional<PictureChoice> askPicture(const QSizeF& size, const PictureChoice& proposal) = 0;
    /// The file for a picture, starting from \a proposal; one that exists only when the user has agreed to replace it.
    virtual QString choosePictureFile(const QString& proposal) = 0;
    /// The new size of the screen \a name, starting from \a proposal; none when the user cancels.
    virtual std::optional<ScreenSize> askScreenSize(const QString& name, const ScreenSize& proposal) = 0;
};

} // namespace Korvex::Meridane::Designer
