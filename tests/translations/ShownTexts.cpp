#include "tests/translations/ShownTexts.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTreeView>
#include <QWidget>

namespace Korvex::Meridane::Translations {

namespace {

QString placeOf(const QWidget* widget)
{
    QStringList place;
    for (; widget && place.size() < 4; widget = widget->parentWidget())
        place.prepend(QString::fromLatin1(widget->metaObject()->className()).section(QLatin1String("::"), -1));
    return place.join(QLatin1String(" > "));
}

QStringList textsOf(const QAction* action)
{
    return {action->text(), action->toolTip(), action->statusTip()};
}

QStringList textsOf(QWidget* widget)
{
    QStringList texts{widget->toolTip(), widget->statusTip(), widget->accessibleName(),
                      widget->accessibleDescription()};
    if (widget->isWindow() || widget->inherits("QDockWidget"))
        texts << widget->windowTitle();
    if (const auto* label = qobject_cast<QLabel*>(widget))
        texts << label->text();
    if (const auto* button = qobject_cast<QAbstractButton*>(widget))
        texts << button->text();
    if (const auto* box = qobject_cast<QGroupBox*>(widget))
        texts << box->title();
    if (const auto* line = qobject_cast<QLineEdit*>(widget))
        texts << line->placeholderText();
    if (const auto* edit = qobject_cast<QPlainTextEdit*>(widget))
        texts << edit->placeholderText();
    if (const auto* spin = qobject_cast<QSpinBox*>(widget))
        texts << spin->suffix() << spin->prefix() << spin->specialValueText();
    if (const auto* spin = qobject_cast<QDoubleSpinBox*>(widget))
        texts << spin->suffix() << spin->prefix() << spin->specialValueText();
    if (const auto* menu = qobject_cast<QMenu*>(widget))
        texts << menu->title();
    if (const auto* tabs = qobject_cast<QTabBar*>(widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            texts << tabs->tabText(i) << tabs->tabToolTip(i);
    }
    if (const auto* box = qobject_cast<QComboBox*>(widget)) {
        for (int i = 0; i < box->count(); ++i)
            texts << box->itemText(i) << box->itemData(i, Qt::ToolTipRole).toString();
    }
    if (const auto* header = qobject_cast<QHeaderView*>(widget)) {
        for (int i = 0; i < header->count() && header->model(); ++i)
            texts << header->model()->headerData(i, header->orientation()).toString();
    }
    return texts;
}

} // namespace

QVector<ShownText> shownTexts(QWidget* window)
{
    QVector<ShownText> found;
    QList<QWidget*> widgets = window->findChildren<QWidget*>();
    widgets.prepend(window);
    for (QWidget* widget : qAsConst(widgets)) {
        for (const QString& text : textsOf(widget)) {
            if (!text.trimmed().isEmpty())
                found.append({text, placeOf(widget)});
        }
    }
    for (const QAction* action : window->findChildren<QAction*>()) {
        for (const QString& text : textsOf(action)) {
            if (!text.trimmed().isEmpty())
                found.append({text, QStringLiteral("action ") + action->objectName()});
        }
    }
    return found;
}

} // namespace Korvex::Meridane::Translations
