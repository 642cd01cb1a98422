#include "app/CommandSearch.h"

#include "app/FuzzyMatch.h"

#include <QHash>

#include <algorithm>
#include <numeric>

namespace Korvex::Meridane::Designer {

namespace {

// How much a fit counts, by where it was found.
constexpr int NameWeight = 4;
constexpr int KeywordWeight = 2;
constexpr int PathWeight = 1;
constexpr int RecencyStep = 6; // points for each place in the list of recent commands
constexpr int DisabledHandicap = 20;
constexpr int WholeName = 1000; // more than having been used last counts

QStringList wordsOf(const QString& query)
{
    return query.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// The best fit of \a word to one of the \a keywords.
int keywordScore(QStringView word, const QString& keywords)
{
    int best = 0;
    const auto all = QStringView(keywords).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QStringView keyword : all)
        best = qMax(best, FuzzyMatch::score(word, keyword));
    return best;
}

} // namespace

void CommandSearch::setCommands(QList<Command> commands, const QStringList& recent)
{
    m_commands = std::move(commands);
    m_lastQuery.clear();
    m_lastCandidates.clear();
    QHash<QString, int> places;
    for (qsizetype i = 0; i < recent.size(); ++i)
        places.insert(recent.at(i), int(recent.size() - i));
    m_recency.clear();
    m_recency.reserve(m_commands.size());
    for (const Command& command : std::as_const(m_commands))
        m_recency.append(places.value(command.id));
}

QList<int> CommandSearch::find(const QString& query)
{
    struct Found
    {
        int index;
        int score;
    };
    const QStringList words = wordsOf(query);
    const QString name = query.simplified();
    const QList<int> open = candidates(query, words);
    QList<Found> found;
    for (const int index : open) {
        const Command& command = m_commands.at(index);
        int score = words.isEmpty() ? 1 : CommandSearch::score(words, command);
        if (score == 0)
            continue;
        if (command.text.compare(name, Qt::CaseInsensitive) == 0)
            score += WholeName;
        score += RecencyStep * m_recency.at(index) - command.handicap - (command.enabled ? 0 : DisabledHandicap);
        found.append({index, score});
    }
    const auto isBetter = [](const Found& a, const Found& b) {
        return a.score != b.score ? a.score > b.score : a.index < b.index;
    };
    const auto shown = found.begin() + qMin<qsizetype>(found.size(), Limit);
    std::partial_sort(found.begin(), shown, found.end(), isBetter);
    QList<int> indices;
    std::transform(found.begin(), shown, std::back_inserter(indices), [](const Found& each) { return each.index; });
    return indices;
}

int CommandSearch::score(const QStringList& words, const Command& command)
{
    int sum = 0;
    for (const QString& word : words) {
        const int best = std::max({NameWeight * FuzzyMatch::score(word, command.text),
                                   KeywordWeight * keywordScore(word, command.keywords),
                                   PathWeight * FuzzyMatch::score(word, command.path)});
        if (best == 0)
            return 0;
        sum += best;
    }
    return words.isEmpty() ? 0 : sum / int(words.size());
}

QList<int> CommandSearch::candidates(const QString& query, const QStringList& words)
{
    QList<int> open;
    if (!m_lastQuery.isEmpty() && query.startsWith(m_lastQuery)) {
        open = m_lastCandidates;
    } else {
        open.resize(m_commands.size());
        std::iota(open.begin(), open.end(), 0);
    }
    // What has not all the letters cannot fit however the words go on.
    open.removeIf([this, &words](int index) {
        const Command& command = m_commands.at(index);
        return !std::all_of(words.cbegin(), words.cend(), [&command](const QString& word) {
            return FuzzyMatch::contains(word, command.text) || FuzzyMatch::contains(word, command.keywords)
                   || FuzzyMatch::contains(word, command.path);
        });
    });
    m_lastQuery = query;
    m_lastCandidates = open;
    return open;
}

} // namespace Korvex::Meridane::Designer
