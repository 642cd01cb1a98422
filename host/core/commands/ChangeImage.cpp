#include "host/core/commands/ChangeImage.h"

#include "host/core/project/Project.h"
#include "host/core/project/ProjectFiles.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

namespace {

QString textFor(const char* source, const QString& image)
{
    return Common::LocalizationHelper::coreString(QString::fromUtf8(source)).arg(image);
}

/// \a name takes the place of \a old in \a images; the last one where that is gone since.
void replaceName(QStringList* images, const QString& old, const QString& name)
{
    const qsizetype index = images->indexOf(old);
    if (index < 0)
        images->append(name);
    else
        images->replace(index, name);
}

} // namespace

ChangeImage::ChangeImage(Project* project, const QString& image, const QString& name, const QByteArray& bytes)
    : m_project(project)
    , m_image(image)
    , m_name(name)
    , m_bytes(bytes)
{
    setAllOrNothing(true);
}

std::unique_ptr<ChangeImage> ChangeImage::rename(Project* project, const QString& image, const QString& name)
{
    std::unique_ptr<ChangeImage> command(new ChangeImage(project, image, name, {}));
    command->setText(textFor("Rename %1", image));
    return command;
}

std::unique_ptr<ChangeImage> ChangeImage::replace(Project* project, const QString& image, const QString& name,
                                                  const QByteArray& bytes)
{
    std::unique_ptr<ChangeImage> command(new ChangeImage(project, image, name, bytes));
    command->setText(textFor("Replace %1", image));
    return command;
}

std::unique_ptr<ChangeImage> ChangeImage::remove(Project* project, const QString& image)
{
    std::unique_ptr<ChangeImage> command(new ChangeImage(project, image, {}, {}));
    command->setText(textFor("Remove %1", image));
    return command;
}

ChangeImage::~ChangeImage() = default;

bool ChangeImage::isValid() const
{
    return m_project && m_project->imageResources().contains(m_image);
}

void ChangeImage::execute()
{
    const ProjectFiles* files = ProjectFiles::of(m_project);
    m_wasForeign = files->foreignImages().contains(m_image);
    m_index = m_project->imageResources().indexOf(m_image);
    if (!m_name.isEmpty()) {
        m_written = m_bytes.isNull() ? files->readImage(m_image) : m_bytes;
        m_overwritten = files->readImage(m_name);
        QString message;
        if (!writeFile(m_name, m_written, &message)) {
            setRefusal(message);
            return;
        }
    }
    m_changed = m_name != m_image || m_written != m_overwritten;
    changeList();
}

void ChangeImage::undoStructure()
{
    QString message;
    const ProjectFiles* files = ProjectFiles::of(m_project);
    changeListBack();
    bool done = true;
    if (!m_name.isEmpty() && m_name != m_image) {
        // What another program has done to the picture meanwhile goes along with it.
        const QByteArray present = files->readImage(m_name);
        if (present != m_written)
            done = writeFile(m_image, present, &message);
    }
    if (done && !m_overwritten.isNull())
        done = writeFile(m_name, m_overwritten, &message);
    if (!done)
        report(message);
}

void ChangeImage::redoStructure()
{
    QString message;
    const ProjectFiles* files = ProjectFiles::of(m_project);
    if (!m_name.isEmpty()) {
        m_written = m_bytes.isNull() ? files->readImage(m_image) : m_bytes;
        if (!writeFile(m_name, m_written, &message))
            report(message);
    }
    changeList();
}

bool ChangeImage::structureChanged() const
{
    return m_changed;
}

/// Does nothing for a file that holds \a bytes already, and for the file of an image that is missing itself.
bool ChangeImage::writeFile(const QString& fileName, const QByteArray& bytes, QString* message)
{
    ProjectFiles* files = ProjectFiles::of(m_project);
    return bytes.isNull() || files->readImage(fileName) == bytes || files->writeImage(fileName, bytes, message);
}

void ChangeImage::changeList()
{
    if (m_name == m_image)
        return;
    QStringList images = m_project->imageResources();
    if (m_name.isEmpty())
        images.removeAll(m_image);
    else
        replaceName(&images, m_image, m_name);
    if (m_wasForeign)
        ProjectFiles::of(m_project)->adoptForeignImage(m_image);
    m_project->setImageResources(images);
}

void ChangeImage::changeListBack()
{
    if (m_name == m_image)
        return;
    QStringList images = m_project->imageResources();
    if (m_name.isEmpty())
        images.insert(qMin(m_index, images.size()), m_image);
    else
        replaceName(&images, m_name, m_image);
    if (m_wasForeign)
        ProjectFiles::of(m_project)->releaseForeignImage(m_image);
    m_project->setImageResources(images);
}

/// A step of the history cannot be refused any more.
void ChangeImage::report(const QString& message) const
{
    Q_EMIT m_project->userModificationRefused(message);
}

} // namespace Korvex::Meridane::Designer
