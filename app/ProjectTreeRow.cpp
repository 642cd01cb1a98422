#include "app/ProjectTreeRow.h"

#include "app/CoreText.h"
#include "app/ProjectTreeModel.h"
#include "app/ThemedIcon.h"

#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Group.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/UnknownElement.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QFont>
#include <QGuiApplication>
#include <QIcon>
#include <QPalette>

namespace Korvex::Meridane::Designer {

bool ProjectTreeRow::isUnreadable() const
{
    const auto* screen = qobject_cast<const Screen*>(m_object);
    return screen && !screen->contentError().isEmpty();
}

QVariant ProjectTreeRow::nameData(int role) const
{
    const bool isUnknown = qobject_cast<const UnknownElement*>(m_object) != nullptr;
    switch (role) {
    case Qt::DisplayRole:
        return isUnreadable() ? coreText("%1 (unreadable)").arg(name()) : name();
    case Qt::EditRole:
        return name();
    case Qt::DecorationRole:
        return icon();
    case Qt::ToolTipRole:
        return toolTip();
    case Qt::FontRole: {
        if (!isUnknown)
            return {};
        QFont font;
        font.setItalic(true);
        return font;
    }
    case Qt::ForegroundRole:
        if (isUnknown || isUnreadable())
            return QGuiApplication::palette().brush(QPalette::PlaceholderText);
        return {};
    default:
        return {};
    }
}

QVariant ProjectTreeRow::markData(int column, int role) const
{
    const bool isHiding = column == ProjectTreeModel::HiddenColumn;
    const QString mark = isHiding ? EditorMarks::hidden() : EditorMarks::locked();
    if (!m_object->editorMarkKeys().contains(mark))
        return {};
    using Mark = ProjectTreeModel::Mark;
    const bool own = !m_object->editorMark(mark).isEmpty();
    const bool inherited = !own && (isHiding ? EditorMarks::isHidden(m_object) : EditorMarks::isLocked(m_object));
    switch (role) {
    case ProjectTreeModel::MarkRole:
        return int(own ? Mark::Own : inherited ? Mark::Inherited : Mark::None);
    case Qt::AccessibleTextRole:
        if (isHiding)
            return own || inherited ? coreText("Hidden on the canvas") : coreText("Shown on the canvas");
        return own || inherited ? coreText("Locked") : coreText("Not locked");
    case Qt::ToolTipRole:
        if (inherited) {
            return isHiding ? coreText("Hidden on the canvas with its group. Click to hide it by itself, too.")
                            : coreText("Locked with its group. Click to lock it by itself, too.");
        }
        if (isHiding) {
            return own ? coreText("Hidden on the canvas. Click to show it.")
                       : coreText("Click to hide it on the canvas. Exports show it all the same.");
        }
        return own ? coreText("Locked against the mouse. Click to unlock it.")
                   : coreText("Click to lock it against the mouse.");
    default:
        return {};
    }
}

QString ProjectTreeRow::name() const
{
    const auto* project = qobject_cast<const Project*>(m_object);
    return project ? project->name() : m_object->getIdName();
}

QVariant ProjectTreeRow::icon() const
{
    if (isUnreadable())
        return ThemedIcon::named(QStringLiteral("warning"));
    if (qobject_cast<const Project*>(m_object))
        return ThemedIcon::named(QStringLiteral("project"));
    if (qobject_cast<const Screen*>(m_object))
        return ThemedIcon::named(QStringLiteral("screen"));
    if (qobject_cast<const Group*>(m_object))
        return ThemedIcon::named(QStringLiteral("group"));
    return {};
}

/// The class and where the object is.
QString ProjectTreeRow::toolTip() const
{
    if (const auto* project = qobject_cast<const Project*>(m_object))
        return project->folder();
    if (const auto* screen = qobject_cast<const Screen*>(m_object)) {
        return isUnreadable() ? screen->contentError()
                              : coreText("%1, %2 × %3 px")
                                    .arg(screen->displayName())
                                    .arg(screen->size().width())
                                    .arg(screen->size().height());
    }
    if (const auto* unknown = qobject_cast<const UnknownElement*>(m_object)) {
        return coreText("No plug-in serves the class \"%1\". The element is kept as it is in the file.")
            .arg(unknown->wantedClassName());
    }
    const auto* element = qobject_cast<const VisualElement*>(m_object);
    if (!element || !element->position()->isConverted())
        return m_object->displayName();
    const QPointF place = ValueConversion::toPoint(element->position()->valueString());
    return coreText("%1 at %2, %3").arg(m_object->displayName()).arg(place.x()).arg(place.y());
}

} // namespace Korvex::Meridane::Designer
