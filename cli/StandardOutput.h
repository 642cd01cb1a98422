#pragma once

#include <QFile>
#include <QString>

namespace Korvex::Meridane::Designer {

/**
 * Where results go. Nothing is buffered: a full disk or a closed pipe is known as soon as it happens, and a command can
 * leave its work unsaved.
 */
class StandardOutput
{
public:
    StandardOutput();
    ~StandardOutput();
    Q_DISABLE_COPY_MOVE(StandardOutput)

    /// False when the bytes could not be written, now or earlier; nothing more is written after a failure.
    bool write(const QByteArray& bytes);
    /// \a line in UTF-8 and a line break.
    bool writeLine(const QString& line);

    [[nodiscard]] bool hasFailed() const { return !m_error.isEmpty(); }
    /// Why writing failed, in the system's words; empty while it did not.
    [[nodiscard]] const QString& error() const { return m_error; }

private:
    QFile m_file;
    QString m_error;
};

} // namespace Korvex::Meridane::Designer
