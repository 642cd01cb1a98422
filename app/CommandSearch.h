#pragma once

#include "app/Command.h"

#include <QList>
#include <QStringList>

namespace Korvex::Meridane::Designer {

/// Finds commands while their names are being typed: what was left over by the last letter is all that the next one looks at.
class CommandSearch
{
public:
    /// How many commands are found at most.
    static constexpr int Limit = 100;

    /// \a recent: the ids of the commands that were used last, the newest first.
    void setCommands(QList<Command> commands, const QStringList& recent);
    [[nodiscard]] const QList<Command>& commands() const { return m_commands; }

    /**
     * The indices of the commands that fit \a query, the best first. Each of its words must fit the name of the command, one
     * of its keywords or its path, in this order of weight. Among those that fit alike the ones that were used last come
     * first, then those that can be done at the moment, then the order in which they were given. An empty query is fit by
     * all.
     */
    [[nodiscard]] QList<int> find(const QString& query);
    /// How well \a command fits \a words: 0 for not at all.
    [[nodiscard]] static int score(const QStringList& words, const Command& command);

private:
    [[nodiscard]] QList<int> candidates(const QString& query, const QStringList& words);

    QList<Command> m_commands;
    QList<int> m_recency; // of each command: 0 for one that is not recent, else more for a newer one
    QString m_lastQuery;
    QList<int> m_lastCandidates;
};

} // namespace Korvex::Meridane::Designer
