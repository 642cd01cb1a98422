#pragma once

#include <QString>
#include <QStringList>

#include <csignal>

namespace Korvex::Meridane::Designer {

/**
 * Another program that does this one's work for a while.
 *
 * While an object of this class lives, an interrupt or a request to end does not kill this process: it is handed on to
 * the other program, running or about to run, so that what was made for it can be tidied up. One object at a time.
 */
class ForegroundProgram
{
public:
    ForegroundProgram();
    ~ForegroundProgram();
    Q_DISABLE_COPY_MOVE(ForegroundProgram)

    /**
     * Runs \a program to its end. It shares our standard input, output and error.
     *
     * @param offscreen the program is to use Qt's "offscreen" platform
     * @return false with a message when it cannot be started, is ended by a signal or gives another exit status than 0
     */
    [[nodiscard]] bool run(const QString& program, const QStringList& arguments, bool offscreen, QString* message);

private:
    static constexpr int SignalCount = 3;
    static constexpr int Signals[SignalCount] = {SIGINT, SIGTERM, SIGHUP};
    struct sigaction m_before[SignalCount] = {};
};

} // namespace Korvex::Meridane::Designer
