#include "host/core/project/ProjectSearch.h"

#include "host/core/objects/Screen.h"
#include "host/core/objects/UnknownElement.h"
#include "host/core/project/ColorTexts.h"
#include "host/core/project/ImageReferences.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectFiles.h"
#include "host/core/properties/FontProperty.h"
#include "host/core/properties/LinkProperty.h"
#include "host/core/properties/StringProperty.h"

#include <QElapsedTimer>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace Korvex::Meridane::Designer {

namespace {

SearchMatch matchOf(const DesignerObject* object)
{
    const auto* unknown = qobject_cast<const UnknownElement*>(object);
    return {ObjectTree::name(object),
            unknown ? unknown->wantedClassName() : object->displayName(),
            {},
            {},
            object->getIdName()};
}

SearchMatch matchOf(const DesignerProperty& property)
{
    SearchMatch match = matchOf(property.parentObject());
    match.property = property.id();
    match.propertyName = property.name();
    match.value = property.valueString();
    return match;
}

/// Whether people know the property: it is saved, or stands in the sheet. Derived sizes and lists of objects are neither.
bool isSearched(const DesignerProperty& property)
{
    return (property.hasFlag(Stored) || property.hasFlag(Shown)) && !dynamic_cast<const ObjectListProperty*>(&property);
}

/// What a name can stand for.
struct Targets
{
    QSet<const DesignerObject*> objects;
    QString image;
    QStringList families; // in lower case
    QColor color;
};

QStringList familiesOf(Project* project, const QString& name)
{
    QStringList families{name.toLower()};
    if (project->fontResources().contains(name)) {
        const QByteArray content = ProjectFiles::of(project)->readFont(name);
        for (const QString& family : ProjectFonts::familiesIn(content))
            families.append(family.toLower());
    }
    return families;
}

Targets targetsOf(Project* project, const QString& name)
{
    Targets targets;
    for (const Screen* screen : project->screens()) {
        screen->readContent();
        const QString prefix = screen->getIdName() + QLatin1Char('/');
        if (screen->getIdName() == name)
            targets.objects.insert(screen);
        const QString id = name.startsWith(prefix) ? name.mid(prefix.size()) : name;
        if (const DesignerObject* element = screen->element(id))
            targets.objects.insert(element);
    }
    targets.image = name;
    targets.families = familiesOf(project, name);
    targets.color = ColorTexts::color(name);
    return targets;
}

bool refers(const DesignerProperty& property, const Targets& targets)
{
    if (const auto* link = dynamic_cast<const LinkProperty*>(&property)) {
        if (ImageReferences::isImageLink(*link))
            return link->valueString() == targets.image;
        return targets.objects.contains(link->linkedObject());
    }
    if (const auto* font = dynamic_cast<const FontProperty*>(&property))
        return font->isConverted() && targets.families.contains(font->value().family().toLower());
    return targets.color.isValid() && !dynamic_cast<const StringProperty*>(&property)
           && ColorTexts::contains(property.valueString(), targets.color);
}

} // namespace

ProjectSearch::ProjectSearch(Project* project, Visitor visit)
    : m_project(project)
    , m_visit(std::move(visit))
{}

ProjectSearch::~ProjectSearch() = default;
ProjectSearch::ProjectSearch(ProjectSearch&& other) noexcept = default;
ProjectSearch& ProjectSearch::operator=(ProjectSearch&& other) noexcept = default;

ProjectSearch ProjectSearch::forText(Project* project, const QString& text)
{
    return {project, [text](const DesignerObject* object, QList<SearchMatch>& matches) {
                if (text.isEmpty())
                    return;
                const auto contains = [&text](const QString& value) {
                    return value.contains(text, Qt::CaseInsensitive);
                };
                const SearchMatch own = matchOf(object);
                if (contains(own.value) || contains(own.className) || contains(object->className()))
                    matches.append(own);
                for (const auto& property : object->properties()) {
                    if (isSearched(*property) && contains(property->valueString()))
                        matches.append(matchOf(*property));
                }
            }};
}

ProjectSearch ProjectSearch::forReferences(Project* project, const QString& name)
{
    const Targets targets = targetsOf(project, name);
    return {project, [targets](const DesignerObject* object, QList<SearchMatch>& matches) {
                for (const auto& property : object->properties()) {
                    if (isSearched(*property) && refers(*property, targets))
                        matches.append(matchOf(*property));
                }
                // What this version does not understand may name an image.
                const auto* unknown = qobject_cast<const UnknownElement*>(object);
                const QSet<QString> texts = ImageReferences::texts(object->unknownKeys())
                                            + ImageReferences::texts(unknown ? unknown->entry() : QJsonObject());
                if (!targets.image.isEmpty() && targets.image.contains(QLatin1Char('.'))
                    && texts.contains(targets.image))
                    matches.append(matchOf(object));
            }};
}

bool ProjectSearch::proceed(int milliseconds)
{
    if (!m_project)
        return true;
    if (!std::exchange(m_begun, true))
        m_waiting.append(m_project.data());
    QElapsedTimer clock;
    clock.start();
    while (!m_waiting.isEmpty()) {
        const QPointer<const DesignerObject> object = m_waiting.takeLast();
        // What has been taken out of the project meanwhile is no match any more.
        if (!object || Project::parentProject(object.data()) != m_project)
            continue;
        m_visit(object, m_matches);
        if (m_limit >= 0 && m_matches.size() > m_limit) {
            m_matches.resize(m_limit);
            m_cut = true;
            m_waiting.clear();
            break;
        }
        if (const ObjectListProperty* list = object->childList()) {
            const auto& children = list->items();
            std::copy(children.crbegin(), children.crend(), std::back_inserter(m_waiting));
        }
        if (milliseconds == 0 || (milliseconds > 0 && clock.hasExpired(milliseconds)))
            break;
    }
    return m_waiting.isEmpty();
}

} // namespace Korvex::Meridane::Designer
