#include "app/FuzzyMatch.h"

#include <QVarLengthArray>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int LongestText = 200;
constexpr int Letter = 2; // points for a letter that fits
constexpr int WordStart = 10; // more for one at the start of a word
constexpr int Side = 8; // more for one that follows its predecessor at once
constexpr int TextStart = 6; // more for the first letter of the text
constexpr int Run = 4; // more for each letter where all stand side by side from the start of a word
constexpr int Whole = 30; // more where the text is the pattern
constexpr int NoFit = -1;

bool startsWord(QStringView text, qsizetype at)
{
    if (at == 0)
        return true;
    const QChar before = text.at(at - 1);
    const QChar letter = text.at(at);
    if (!letter.isLetterOrNumber())
        return false;
    return !before.isLetterOrNumber() || (letter.isUpper() && !before.isUpper())
           || (letter.isDigit() && !before.isDigit());
}

/// The points for \a pattern where it stands as it is in \a text, at the start of a word; NoFit where it does not.
int runPoints(QStringView pattern, QStringView text)
{
    int best = NoFit;
    for (qsizetype at = 0; at + pattern.size() <= text.size(); ++at) {
        if (startsWord(text, at) && text.mid(at, pattern.size()).compare(pattern, Qt::CaseInsensitive) == 0) {
            const int letters = int(pattern.size());
            best = qMax(best, WordStart + (at == 0 ? TextStart : 0) + (Letter + Run) * letters + Side * (letters - 1));
        }
    }
    return best;
}

/// The best that can be had up to a letter, and how many of the letters stand well in it.
struct Fit
{
    int points = NoFit;
    int well = 0;
};

Fit better(const Fit& a, const Fit& b)
{
    return a.points >= b.points ? a : b;
}

} // namespace

bool FuzzyMatch::contains(QStringView pattern, QStringView text)
{
    qsizetype found = 0;
    for (qsizetype i = 0; i < text.size() && found < pattern.size(); ++i) {
        if (text.at(i).toCaseFolded() == pattern.at(found).toCaseFolded())
            ++found;
    }
    return found == pattern.size();
}

int FuzzyMatch::score(QStringView pattern, QStringView text)
{
    if (text.size() > LongestText)
        text = text.first(LongestText);
    if (pattern.isEmpty() || !contains(pattern, text))
        return 0;
    const qsizetype length = text.size();
    // A row for each letter of the pattern: the best fit whose last letter stands at a place, and the best up to there.
    QVarLengthArray<Fit, LongestText> ending(length);
    QVarLengthArray<Fit, LongestText> before(length);
    QVarLengthArray<Fit, LongestText> best(length);
    for (qsizetype letter = 0; letter < pattern.size(); ++letter) {
        const QChar wanted = pattern.at(letter).toCaseFolded();
        before = ending;
        for (qsizetype at = 0; at < length; ++at) {
            Fit fit;
            if (text.at(at).toCaseFolded() == wanted) {
                const bool starts = startsWord(text, at);
                const int gain = Letter + (starts ? WordStart : 0) + (at == 0 ? TextStart : 0);
                if (letter == 0) {
                    fit = {gain, starts ? 1 : 0};
                } else if (at > 0) {
                    const Fit apart = best[at - 1];
                    if (apart.points != NoFit)
                        fit = {apart.points + gain, apart.well + (starts ? 1 : 0)};
                    const Fit side = before[at - 1];
                    if (side.points != NoFit)
                        fit = better({side.points + gain + Side, side.well + 1}, fit);
                }
            }
            ending[at] = fit;
        }
        for (qsizetype at = 0; at < length; ++at)
            best[at] = at == 0 ? ending[at] : better(best[at - 1], ending[at]);
    }
    Fit found = best[length - 1];
    found = better({runPoints(pattern, text), int(pattern.size())}, found);
    if (found.points == NoFit || found.well * 2 < pattern.size())
        return 0;
    const int whole = pattern.compare(text, Qt::CaseInsensitive) == 0 ? Whole : 0;
    return 1 + qMax(0, 2 * found.points + 2 * whole - int(length) / 4);
}

} // namespace Korvex::Meridane::Designer
