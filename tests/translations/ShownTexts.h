#pragma once

#include <QString>
#include <QVector>

class QWidget;

namespace Korvex::Meridane::Translations {

/** A text that a window shows or tells. */
struct ShownText
{
    QString text;
    QString place; ///< The widget, or the action, that has it.
};

/** The texts of labels, buttons, menus, tabs, headings, lists to choose from, tips and accessible names in @p window. */
[[nodiscard]] QVector<ShownText> shownTexts(QWidget* window);

} // namespace Korvex::Meridane::Translations
