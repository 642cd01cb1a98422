#include "cli/StandardOutput.h"

#include <unistd.h>

namespace Korvex::Meridane::Designer {

StandardOutput::StandardOutput()
{
    if (!m_file.open(STDOUT_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered))
        m_error = m_file.errorString();
}

StandardOutput::~StandardOutput() = default;

bool StandardOutput::write(const QByteArray& bytes)
{
    if (!hasFailed() && m_file.write(bytes) != bytes.size())
        m_error = m_file.errorString();
    return !hasFailed();
}

bool StandardOutput::writeLine(const QString& line)
{
    return write(line.toUtf8() + '\n');
}

} // namespace Korvex::Meridane::Designer
