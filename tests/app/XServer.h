#pragma once

#include <QImage>
#include <QProcess>

namespace Korvex::Meridane::Designer::Test {

/// A virtual X server of its own for a test, ended with it.
class XServer
{
public:
    XServer() = default;
    ~XServer();
    Q_DISABLE_COPY_MOVE(XServer)

    /// Starts a server with one screen of \a size on a display that is free. False with error() set.
    bool start(const QSize& size);
    [[nodiscard]] const QString& error() const { return m_error; }
    /// The environment of programs that are to show their windows there.
    [[nodiscard]] QProcessEnvironment environment() const;
    /// Runs xdotool and gives what it prints; a null text, with error() set, when it fails.
    QString xdotool(const QStringList& arguments);
    /// What the screen shows; null, with error() set, when it cannot be read.
    QImage grab();

    /// The part of grab() that runs in a program of its own (this one, called with GrabOption and a file name), which
    /// alone of the two is connected to the server. The exit status.
    static int grabInto(int argc, char* argv[]);
    static constexpr const char* GrabOption = "--grab-x-screen";

private:
    QProcess m_server;
    QString m_display;
    QString m_error;
};

} // namespace Korvex::Meridane::Designer::Test
