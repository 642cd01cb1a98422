#pragma once

#include <QString>

class QMenu;

namespace Korvex::Meridane::Designer {

/// Texts of menus and buttons of the main window, whose mnemonics must leave some keys to the canvas.
class MenuText
{
public:
    /// The letters that canvas items use together with Alt; no mnemonic and no shortcut of the window takes them.
    static constexpr QLatin1String ReservedLetters{"bisuo"};

    /// \a text without its mnemonic mark where the marked letter is reserved; a translation may have chosen one.
    [[nodiscard]] static QString withoutReservedMnemonic(const QString& text);
    /// \a text as it is read: without mark, "&&" as one ampersand, and without the dots of what asks for more.
    [[nodiscard]] static QString plain(const QString& text);
    /// Takes the marks out of the entries of \a menu, and of the menus in it, whose letter an earlier entry has. Entries that
    /// are put into it later are not looked at.
    static void makeMnemonicsUnique(const QMenu* menu);
    /// The letter that \a text marks, in lower case, or a null character.
    [[nodiscard]] static QChar mnemonic(const QString& text);
};

} // namespace Korvex::Meridane::Designer
