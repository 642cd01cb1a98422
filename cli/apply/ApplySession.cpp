#include "cli/apply/ApplySession.h"

#include "cli/apply/CanvasInput.h"
#include "cli/apply/EditArguments.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/objects/QmlIdentifier.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

QString noObject(const QString& reference)
{
    return LocalizationHelper::coreString(QStringLiteral("There is no object \"%1\".")).arg(reference);
}

/// Why \a screen could not be read, naming its file; empty when it could.
QString unreadableReason(const Screen* screen)
{
    screen->readContent();
    if (screen->contentError().isEmpty())
        return {};
    return QStringLiteral("screens/%1.json: %2").arg(screen->getIdName(), screen->contentError());
}

} // namespace

ApplySession::ApplySession(std::unique_ptr<Project> project)
    : m_edits(std::move(project))
{}

ApplySession::~ApplySession() = default;

CanvasInput& ApplySession::input()
{
    if (!m_input)
        m_input = std::make_unique<CanvasInput>(&m_edits);
    return *m_input;
}

DesignerObject* ApplySession::findAnywhere(const QString& id, bool screensToo, QString* message)
{
    DesignerObject* found = nullptr;
    QStringList references;
    const QVector<Screen*> screens = project().screens();
    for (Screen* screen : screens) {
        if (DesignerObject* element = screen->element(id)) {
            found = element;
            references.append(screen->getIdName() + QLatin1Char('/') + id);
        }
    }
    if (references.size() > 1) {
        *message =
            LocalizationHelper::coreString(QStringLiteral("The id \"%1\" stands on several screens. Use one of: %2."))
                .arg(id, references.join(QLatin1String(", ")));
        return nullptr;
    }
    if (!found && screensToo)
        found = project().screen(id);
    if (!found)
        *message = noObject(id);
    return found;
}

DesignerObject* ApplySession::find(const QString& reference, bool screensToo, QString* message)
{
    DesignerObject* found = nullptr;
    const qsizetype slash = reference.indexOf(QLatin1Char('/'));
    if (slash == -1) {
        found = findAnywhere(reference, screensToo, message);
    } else {
        const QString id = reference.mid(slash + 1);
        if (Screen* screen = project().screen(reference.left(slash)))
            found = id.isEmpty() && screensToo ? screen : screen->element(id);
        if (!found)
            *message = noObject(reference);
    }
    if (!found)
        return nullptr;

    const QString unreadable = unreadableReason(ObjectTree::screenOf(found));
    if (!unreadable.isEmpty()) {
        *message = unreadable;
        return nullptr;
    }
    return found;
}

DesignerObject* ApplySession::find(EditArguments& arguments, bool screensToo)
{
    const QString reference = arguments.text(QLatin1String("id"));
    if (arguments.hasError())
        return nullptr;
    QString message;
    DesignerObject* found = find(reference, screensToo, &message);
    if (!found) {
        arguments.refuse(message);
        return nullptr;
    }
    m_edits.setCurrentScreen(ObjectTree::screenOf(found));
    m_edits.scene(ObjectTree::screenOf(found)); // an element without its item has not reported its outer size
    return found;
}

DesignerObject* ApplySession::object(EditArguments& arguments)
{
    return find(arguments, true);
}

DesignerObject* ApplySession::element(EditArguments& arguments)
{
    return find(arguments, false);
}

QList<DesignerObject*> ApplySession::objects(EditArguments& arguments, bool screensToo)
{
    if (arguments.has(QLatin1String("id")) && arguments.has(QLatin1String("ids"))) {
        arguments.refuse(
            LocalizationHelper::coreString(QStringLiteral("The arguments \"id\" and \"ids\" exclude each other.")));
        return {};
    }
    if (!arguments.has(QLatin1String("ids"))) {
        DesignerObject* single = screensToo ? object(arguments) : element(arguments);
        return single ? QList<DesignerObject*>{single} : QList<DesignerObject*>();
    }
    QList<DesignerObject*> found;
    const QStringList references = arguments.optionalTexts(QLatin1String("ids"));
    for (const QString& reference : references) {
        if (arguments.hasError())
            return {};
        QString message;
        DesignerObject* next = find(reference, screensToo, &message);
        if (!next)
            arguments.refuse(message);
        else if (!found.contains(next))
            found.append(next);
    }
    return found;
}

Screen* ApplySession::screen(EditArguments& arguments, QLatin1String name)
{
    const QString id = arguments.text(name);
    if (arguments.hasError())
        return nullptr;
    Screen* found = project().screen(id);
    if (!found)
        arguments.refuse(LocalizationHelper::coreString(QStringLiteral("There is no screen \"%1\".")).arg(id));
    requireReadable(found, arguments);
    return found;
}

void ApplySession::requireReadable(const Screen* screen, EditArguments& arguments)
{
    const QString reason = screen ? unreadableReason(screen) : QString();
    if (!reason.isEmpty())
        arguments.refuse(reason);
}

QString ApplySession::newId(EditArguments& arguments)
{
    QString id = arguments.text(QLatin1String("id"));
    QString reason;
    if (!arguments.hasError() && !isQmlIdentifier(id, &reason)) {
        arguments.refuse(
            LocalizationHelper::coreString(QStringLiteral("\"%1\" (argument \"id\") is no id: %2")).arg(id, reason));
    }
    return id;
}

ApplyResult ApplySession::result(const EditResult& edit, const QJsonObject& extra)
{
    if (edit.accepted)
        return ApplyResult::accepted(extra);
    return ApplyResult::refused(edit.message.isEmpty()
                                    ? LocalizationHelper::coreString(QStringLiteral("The edit was refused."))
                                    : edit.message);
}

} // namespace Korvex::Meridane::Designer
