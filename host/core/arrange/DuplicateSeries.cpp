#include "host/core/arrange/DuplicateSeries.h"

#include "host/core/arrange/ElementClipboard.h"
#include "host/core/arrange/ElementPlaces.h"
#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/project/Project.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

QPointF originOf(const DesignerObject* object)
{
    return ElementPlaces::placeOf(object).toScene.map(QPointF());
}

bool stillStands(DesignerObject* object)
{
    return object && object->graphicsItem() && Project::parentProject(object);
}

} // namespace

EditResult DuplicateSeries::duplicate(EditSession* session, const QList<DesignerObject*>& objects)
{
    const QList<DesignerObject*> originals = ElementClipboard::copyable(objects);
    QList<DesignerObject*> copies;
    EditResult result = ElementClipboard::duplicate(session, originals, wayTo(originals), &copies);
    if (result.changed) {
        m_originals = {originals.cbegin(), originals.cend()};
        m_copies = {copies.cbegin(), copies.cend()};
    }
    return result;
}

/// The way that the copies of the last time have gone, when it is these that are duplicated.
std::optional<QPointF> DuplicateSeries::wayTo(const QList<DesignerObject*>& objects) const
{
    if (objects.isEmpty() || objects.size() != m_copies.size() || m_originals.size() != m_copies.size()
        || !std::equal(objects.cbegin(), objects.cend(), m_copies.cbegin()))
        return std::nullopt;
    if (!stillStands(m_originals.constFirst()) || !stillStands(m_copies.constFirst()))
        return std::nullopt;
    const QPointF way = withoutNoise(originOf(m_copies.constFirst()) - originOf(m_originals.constFirst()));
    return way.isNull() ? std::nullopt : std::optional(way);
}

} // namespace Korvex::Meridane::Designer
