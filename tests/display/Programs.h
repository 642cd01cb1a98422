#pragma once

#include <QImage>
#include <QJsonArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// Uses the built programs as a user does, in a temporary folder. What fails says so in the log.
class Programs
{
public:
    Programs();

    [[nodiscard]] bool isValid() const { return m_folder.isValid(); }

    /// A path for new files called \a name; what stood there is gone.
    [[nodiscard]] QString fresh(const QString& name) const;
    /// The folder of a new project of 320 × 240 with \a edits on its screen "main"; empty when an edit was refused.
    [[nodiscard]] QString makeProject(const QString& name, const QJsonArray& edits) const;
    /// The ids of the screens of \a project.
    [[nodiscard]] static QStringList screens(const QString& project);

    [[nodiscard]] static bool exportProject(const QString& project, const QString& folder);
    [[nodiscard]] static bool check(const QString& project);
    [[nodiscard]] static bool lint(const QString& qmlFile);

    /// A screen as it stands on the canvas; null when that failed.
    [[nodiscard]] QImage canvas(const QString& project, const QString& screen) const;
    /// A screen as the exported display shows it; null when that failed.
    [[nodiscard]] QImage running(const QString& project, const QString& screen) const;

private:
    QTemporaryDir m_folder;
};
