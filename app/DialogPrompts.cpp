#include "app/DialogPrompts.h"

#include "app/CoreText.h"
#include "app/NewProjectDialog.h"

#include "host/core/project/ImageFormats.h"

#include <QFileDialog>
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

} // namespace Korvex::Meridane::Designer
