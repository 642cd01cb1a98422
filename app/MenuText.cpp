#include "app/MenuText.h"

#include <QMenu>

namespace Korvex::Meridane::Designer {

namespace {

/// The index of the '&' that marks a mnemonic ("&&" is a plain ampersand), or -1.
qsizetype markIndex(const QString& text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) != QLatin1Char('&'))
            continue;
        if (text.at(i + 1) != QLatin1Char('&'))
            return i;
        ++i;
    }
    return -1;
}

} // namespace

QString MenuText::withoutReservedMnemonic(const QString& text)
{
    const QChar letter = mnemonic(text);
    if (letter.isNull() || !QString(ReservedLetters).contains(letter))
        return text;
    QString plain = text;
    return plain.remove(markIndex(text), 1);
}

QString MenuText::plain(const QString& text)
{
    QString read;
    read.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&') && i + 1 < text.size())
            ++i;
        read += text.at(i);
    }
    return read.remove(QChar(0x2026));
}

void MenuText::makeMnemonicsUnique(const QMenu* menu)
{
    QString taken;
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions) {
        const QChar letter = mnemonic(action->text());
        if (!letter.isNull() && taken.contains(letter)) {
            QString plain = action->text();
            action->setText(plain.remove(markIndex(action->text()), 1));
        }
        taken += letter;
        if (action->menu())
            makeMnemonicsUnique(action->menu());
    }
}

QChar MenuText::mnemonic(const QString& text)
{
    const qsizetype mark = markIndex(text);
    return mark < 0 ? QChar() : text.at(mark + 1).toLower();
}

} // namespace Korvex::Meridane::Designer
