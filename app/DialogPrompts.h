#pragma once

#include "app/UserPrompts.h"

#include <QPointer>
#include <QWidget>

namespace Korvex::Meridane::Designer {

/// Asks the user with dialogs.
class DialogPrompts : public UserPrompts
{
public:
    /// The window that the dialogs belong to.
    void setWindow(QWidget* window) { m_window = window; }

    SaveAnswer askSaveChanges(const QString& name) override;
    std::optional<NewProject> askNewProject(const NewProject& proposal) override;
    QString chooseProject(const QString& startFolder) override;
    QString chooseSaveFolder(const QString& proposal) override;
    QString chooseExportFolder(const QString& startFolder) override;
    QStringList chooseImages(const QString& startFolder) override;
    QString chooseReplacement(const QString& name, const QString& startFolder) override;
    QStringList chooseFonts(const QString& startFolder) override;
    std::optional<PictureChoice> askPicture(const QSizeF& size, const PictureChoice& proposal) override;
    QString choosePictureFile(const QString& proposal) override;
    std::optional<ScreenSize> askScreenSize(const QString& name, const ScreenSize& proposal) override;

private:
    QPointer<QWidget> m_window;
};

} // namespace Korvex::Meridane::Designer
