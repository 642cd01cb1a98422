#pragma once

#include <QObject>
#include <QStringList>

namespace Korvex::Meridane::Designer {

/// The project folders that were opened or saved last, the newest first; at most ten, kept in the settings.
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    static constexpr int Limit = 10;

    explicit RecentFiles(QObject* parent = nullptr);

    /// Absolute paths of folders.
    [[nodiscard]] const QStringList& folders() const { return m_folders; }
    void add(const QString& folder);
    void remove(const QString& folder);
    void clear();

Q_SIGNALS:
    void changed();

private:
    void store();

    QStringList m_folders;
};

} // namespace Korvex::Meridane::Designer
