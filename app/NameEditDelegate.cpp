#include "app/NameEditDelegate.h"

#include <QWidget>

namespace Korvex::Meridane::Designer {

namespace {

constexpr char ShownName[] = "shownName"; // property of an editor

} // namespace

void NameEditDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QVariant name = index.data(Qt::EditRole);
    if (editor->property(ShownName) == name)
        return;
    editor->setProperty(ShownName, name);
    QStyledItemDelegate::setEditorData(editor, index);
}

void NameEditDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                            const QModelIndex&) const
{
    const QRect text = textRect(option.rect, option.fontMetrics);
    const int height = editor->sizeHint().height();
    editor->setGeometry(text.left() - 5, option.rect.center().y() - height / 2 + 1, text.width() + 8, height);
}

} // namespace Korvex::Meridane::Designer
