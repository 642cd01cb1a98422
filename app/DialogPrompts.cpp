#include "app/DialogPrompts.h"

#include "app/CoreText.h"
#include "app/NewProjectDialog.h"
#include "app/PictureDialog.h"
#include "app/ScreenSizeDialog.h"

#include "host/core/project/ImageFormats.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace Korvex::Meridane::Designer {

UserPrompts::SaveAnswer DialogPrompts::askSaveChanges(const QString& name)
{
    QMessageBox box(QMessageBox::Warning, coreText("Unsaved Changes"),
                    coreText("Save the changes of \"%1\"?").arg(name),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, m_window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(coreText("What is not saved is lost when the project is closed."));
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return SaveAnswer::Save;
    case QMessageBox::Discard:
        return SaveAnswer::Discard;
    default:
        return SaveAnswer::Cancel;
    }
}

std::optional<NewProject> DialogPrompts::askNewProject(const NewProject& proposal)
{
    NewProjectDialog dialog(proposal, m_window);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.newProject();
}

QString DialogPrompts::chooseProject(const QString& startFolder)
{
    return QFileDialog::getOpenFileName(m_window, coreText("Open Project"), startFolder,
                                        coreText("Meridane projects (project.json)"));
}

QString DialogPrompts::chooseSaveFolder(const QString& proposal)
{
    return QFileDialog::getSaveFileName(m_window, coreText("Save Project As a New Folder"), proposal);
}

QString DialogPrompts::chooseExportFolder(const QString& startFolder)
{
    return QFileDialog::getExistingDirectory(m_window, coreText("Export QML Into an Empty Folder or an Earlier Export"),
                                             startFolder);
}

QStringList DialogPrompts::chooseImages(const QString& startFolder)
{
    return QFileDialog::getOpenFileNames(m_window, coreText("Import Images"), startFolder, ImageFormats::fileFilter());
}

QString DialogPrompts::chooseReplacement(const QString& name, const QString& startFolder)
{
    return QFileDialog::getOpenFileName(m_window, coreText("Replace \"%1\"").arg(name), startFolder,
                                        ImageFormats::fileFilter());
}

QStringList DialogPrompts::chooseFonts(const QString& startFolder)
{
    return QFileDialog::getOpenFileNames(m_window, coreText("Import Fonts"), startFolder,
                                         coreText("Fonts (*.ttf *.otf *.ttc)"));
}

std::optional<PictureChoice> DialogPrompts::askPicture(const QSizeF& size, const PictureChoice& proposal)
{
    PictureDialog dialog(size, proposal, m_window);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.choice();
}

QString DialogPrompts::choosePictureFile(const QString& proposal)
{
    const QFileInfo proposed(proposal);
    const bool isDrawing = proposed.suffix() == QLatin1String("svg");
    QFileDialog dialog(m_window, coreText("Export Picture"), proposed.absolutePath(),
                       isDrawing ? coreText("SVG drawings (*.svg)") : coreText("PNG pictures (*.png)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // With it a name without an ending is asked for as the file that would be written.
    dialog.setDefaultSuffix(proposed.suffix());
    dialog.selectFile(proposed.fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

std::optional<ScreenSize> DialogPrompts::askScreenSize(const QString& name, const ScreenSize& proposal)
{
    ScreenSizeDialog dialog(name, proposal, m_window);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.screenSize();
}

} // namespace Korvex::Meridane::Designer
