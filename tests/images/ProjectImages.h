#pragma once

#include "host/core/project/Project.h"

#include "tests/support/SamplePictures.h"

#include <QTemporaryDir>

namespace Korvex::Meridane::Designer::Test {

/// A folder for a project, with image files of every kind.
class ProjectImages
{
public:
    /// \a project lives in the folder from now on, and offers what add() puts there.
    void serve(Project* project)
    {
        m_project = project;
        project->setFolder(m_folder.path());
    }

    [[nodiscard]] QString path(const QString& name) const
    {
        return m_folder.filePath(QStringLiteral("images/") + name);
    }
    [[nodiscard]] QString outside(const QString& name) const { return m_elsewhere.filePath(name); }

    /// Writes an image file and offers it, unless that is done already; returns its name.
    QString add(const char* name, const QByteArray& content)
    {
        QString image = QString::fromUtf8(name);
        SamplePictures::write(path(image), content);
        offer(image);
        return image;
    }
    QString addPng(const char* name, const QSize& size) { return add(name, SamplePictures::quarters(size, "png")); }
    /// An animation of red, green and blue frames.
    QString addAnimation(const char* name, int delay = 3)
    {
        return add(name, SamplePictures::gif(QSize(40, 30), colors(), delay));
    }
    static QList<QColor> colors() { return {Qt::red, Qt::green, Qt::blue}; }

    /// Offers an image without a file.
    void offer(const QString& image)
    {
        if (!m_project->imageResources().contains(image))
            m_project->setImageResources(QStringList(m_project->imageResources()) << image);
    }

private:
    QTemporaryDir m_folder;
    QTemporaryDir m_elsewhere;
    Project* m_project = nullptr;
};

} // namespace Korvex::Meridane::Designer::Test
