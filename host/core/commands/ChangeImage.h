#pragma once

#include "host/core/commands/UndoCommand.h"

#include <QByteArray>

namespace Korvex::Meridane::Designer {

class Project;

/**
 * Changes one image resource of a project: its name, its picture, or that it is there at all.
 *
 * The images folder only gains files by it: a file that changes its name or goes stays until the project is closed,
 * because the history may ask for it. Links to the image are the business of child commands, which run after the image
 * has its new name.
 */
class MERIDANE_CORE_EXPORT ChangeImage : public UndoCommand
{
public:
    /// Renames \a image to \a name, with what its file then holds. The name is free.
    [[nodiscard]] static std::unique_ptr<ChangeImage> rename(Project* project, const QString& image,
                                                             const QString& name);
    /// Lets \a image hold \a bytes, under \a name, which is its own or a free one.
    [[nodiscard]] static std::unique_ptr<ChangeImage> replace(Project* project, const QString& image,
                                                              const QString& name, const QByteArray& bytes);
    /// Takes \a image from the project's resources.
    [[nodiscard]] static std::unique_ptr<ChangeImage> remove(Project* project, const QString& image);
    ~ChangeImage() override;

    [[nodiscard]] bool isValid() const override;

protected:
    void execute() override;
    void undoStructure() override;
    void redoStructure() override;
    [[nodiscard]] bool structureChanged() const override;

private:
    ChangeImage(Project* project, const QString& image, const QString& name, const QByteArray& bytes);

    [[nodiscard]] bool writeFile(const QString& fileName, const QByteArray& bytes, QString* message);
    void changeList();
    void changeListBack();
    void report(const QString& message) const;

    Project* m_project; // owns the history, and so the command
    QString m_image;
    QString m_name; // empty: the image goes
    QByteArray m_bytes; // null: those of the image's file as it is then
    QByteArray m_written; // what the file of the new name was given; null: nothing
    QByteArray m_overwritten; // what that file held before; null: there was none
    qsizetype m_index = -1; // the image's place among the resources
    bool m_wasForeign = false;
    bool m_changed = false;
};

} // namespace Korvex::Meridane::Designer
