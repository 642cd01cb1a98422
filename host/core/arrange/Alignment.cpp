#include "host/core/arrange/Alignment.h"

#include "host/core/arrange/ElementPlaces.h"
#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/commands/ChangeProperty.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <QSet>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// Ways shorter than this, in pixels, are noise of the arithmetic.
constexpr double Noise = 1e-9;

/// The elements that are arranged together, and the coordinates in which that happens.
struct Arrangement
{
    QList<DesignerObject*> elements;
    QTransform fromScene; ///< into the common coordinates

    [[nodiscard]] QTransform place(const DesignerObject* element) const
    {
        return ElementPlaces::placeOf(element).toScene * fromScene;
    }
    [[nodiscard]] QRectF bounds(const DesignerObject* element) const
    {
        return ElementPlaces::outerBounds(element, place(element));
    }
    [[nodiscard]] QRectF bounds() const
    {
        QRectF all;
        for (const DesignerObject* element : elements)
            all |= bounds(element);
        return all;
    }
};

/// \a objects in the coordinates of their parent, or of the screen where they have several or \a onScreen says so.
Arrangement arrangementOf(const QList<DesignerObject*>& objects, bool onScreen)
{
    Arrangement arrangement{ElementPlaces::roots(objects), {}};
    const auto& elements = arrangement.elements;
    if (elements.isEmpty() || onScreen)
        return arrangement;
    DesignerObject* parent = elements.constFirst()->parentObject();
    const bool together = std::all_of(elements.cbegin(), elements.cend(), [parent](const DesignerObject* element) {
        return element->parentObject() == parent;
    });
    if (together)
        arrangement.fromScene = ElementPlaces::placeOf(parent).toScene.inverted();
    return arrangement;
}

/// Collects moves of elements into one step.
class Moves
{
public:
    Moves(EditSession* session, const Arrangement& arrangement)
        : m_session(session)
        , m_arrangement(arrangement)
        , m_selected(session->selection().cbegin(), session->selection().cend())
        , m_command(std::make_unique<UndoCommand>())
    {}

    /// Moves \a object by \a way; \a toWholePixels when it stands on them.
    void add(DesignerObject* object, QPointF way, bool toWholePixels)
    {
        const auto* element = qobject_cast<const VisualElement*>(object);
        bool ok = false;
        const QPointF position =
            element ? ValueConversion::toPoint(element->position()->valueString(), &ok) : QPointF();
        if (!ok || EditorMarks::isLocked(object))
            return;
        // From the coordinates of the arrangement to those of the element's parent: turned, not moved.
        const QTransform toScene = m_arrangement.fromScene.inverted();
        const QTransform fromScene = ElementPlaces::placeOf(object->parentObject()).toScene.inverted();
        way = fromScene.map(toScene.map(way)) - fromScene.map(toScene.map(QPointF()));
        if (toWholePixels) {
            way.setX(whole(position.x(), way.x()));
            way.setY(whole(position.y(), way.y()));
        }
        if (std::abs(way.x()) < Noise && std::abs(way.y()) < Noise)
            return;
        new ChangeProperty(element->position(), ValueConversion::toString(withoutNoise(position + way)),
                           m_selected.contains(object), m_command.get());
    }

    EditResult execute(const QString& text)
    {
        if (m_command->childCommandCount() == 0)
            return {true, false, {}};
        m_command->setText(text);
        m_command->setAllOrNothing(true);
        return m_session->project()->execute(std::move(m_command));
    }

private:
    /// The way from \a position that ends on a whole pixel when it begins on one.
    static double whole(double position, double way)
    {
        return position == std::round(position) ? std::round(position + withoutNoise(way)) - position : way;
    }

    EditSession* m_session;
    const Arrangement& m_arrangement;
    QSet<DesignerObject*> m_selected;
    std::unique_ptr<UndoCommand> m_command;
};

QString alignText(AlignEdge edge)
{
    switch (edge) {
    case AlignEdge::Left:
        return LocalizationHelper::coreString(QStringLiteral("Align Left Edges"));
    case AlignEdge::Center:
        return LocalizationHelper::coreString(QStringLiteral("Align Centers"));
    case AlignEdge::Right:
        return LocalizationHelper::coreString(QStringLiteral("Align Right Edges"));
    case AlignEdge::Top:
        return LocalizationHelper::coreString(QStringLiteral("Align Top Edges"));
    case AlignEdge::Middle:
        return LocalizationHelper::coreString(QStringLiteral("Align Middles"));
    case AlignEdge::Bottom:
        return LocalizationHelper::coreString(QStringLiteral("Align Bottom Edges"));
    }
    return {};
}

QSharedPointer<DesignerProperty> outerSizeOf(const DesignerObject* object)
{
    const auto property = object->getProperty(QStringLiteral("boundingSize"));
    return property && property->isConverted() ? property : QSharedPointer<DesignerProperty>();
}

/// The elements among \a objects that have an outer size of their own.
QList<DesignerObject*> sized(const QList<DesignerObject*>& objects)
{
    QList<DesignerObject*> elements = ElementPlaces::roots(objects);
    elements.removeIf([](const DesignerObject* object) { return !outerSizeOf(object); });
    return elements;
}

EditResult tooFew(const QString& message)
{
    return {false, false, message};
}

} // namespace

EditResult Alignment::align(EditSession* session, const QList<DesignerObject*>& objects, AlignEdge edge)
{
    const bool alone = ElementPlaces::roots(objects).size() == 1;
    const Arrangement arrangement = arrangementOf(objects, alone);
    if (arrangement.elements.isEmpty())
        return tooFew(LocalizationHelper::coreString(QStringLiteral("There is no element to align.")));
    const QRectF reference =
        alone ? QRectF(QPointF(0, 0), ObjectTree::screenOf(objects.constFirst())->size()) : arrangement.bounds();
    Moves moves(session, arrangement);
    const bool middle = edge == AlignEdge::Center || edge == AlignEdge::Middle;
    for (DesignerObject* element : arrangement.elements)
        moves.add(element, alignedOffset(arrangement.bounds(element), reference, edge), middle);
    return moves.execute(alignText(edge));
}

EditResult Alignment::distribute(EditSession* session, const QList<DesignerObject*>& objects,
                                 Qt::Orientation orientation, SpacingKind kind)
{
    Arrangement arrangement = arrangementOf(objects, false);
    arrangement.elements = ElementPlaces::movable(arrangement.elements);
    if (arrangement.elements.size() < 3)
        return tooFew(LocalizationHelper::coreString(
            QStringLiteral("Three or more elements that can be moved can be distributed.")));
    QList<QRectF> rects;
    for (const DesignerObject* element : std::as_const(arrangement.elements))
        rects.append(arrangement.bounds(element));
    const QList<QPointF> offsets = distributedOffsets(rects, orientation, kind);
    Moves moves(session, arrangement);
    for (qsizetype i = 0; i < offsets.size(); ++i)
        moves.add(arrangement.elements.at(i), offsets.at(i), !offsets.at(i).isNull());
    return moves.execute(orientation == Qt::Horizontal
                             ? LocalizationHelper::coreString(QStringLiteral("Distribute Horizontally"))
                             : LocalizationHelper::coreString(QStringLiteral("Distribute Vertically")));
}

EditResult Alignment::centerOnScreen(EditSession* session, const QList<DesignerObject*>& objects)
{
    Arrangement arrangement = arrangementOf(objects, true);
    arrangement.elements = ElementPlaces::movable(arrangement.elements);
    if (arrangement.elements.isEmpty())
        return tooFew(LocalizationHelper::coreString(QStringLiteral("There is no element to center.")));
    QPointF way = QRectF(QPointF(0, 0), ObjectTree::screenOf(arrangement.elements.constFirst())->size()).center()
                  - arrangement.bounds().center();
    // All go the same way, so that they keep their distances: to whole pixels when all stand on them.
    const bool whole =
        std::all_of(arrangement.elements.cbegin(), arrangement.elements.cend(), [](const DesignerObject* object) {
            const auto* element = qobject_cast<const VisualElement*>(object);
            const QPointF position = ValueConversion::toPoint(element->position()->valueString());
            return position.x() == std::round(position.x()) && position.y() == std::round(position.y())
                   && ElementPlaces::placeOf(object->parentObject()).toScene.type() <= QTransform::TxTranslate;
        });
    if (whole) {
        const auto* first = qobject_cast<const VisualElement*>(arrangement.elements.constFirst());
        const QPointF from = ValueConversion::toPoint(first->position()->valueString());
        const QPointF to = withoutNoise(from + way);
        way = QPointF(std::round(to.x()), std::round(to.y())) - from;
    }
    Moves moves(session, arrangement);
    for (DesignerObject* element : std::as_const(arrangement.elements))
        moves.add(element, way, false);
    return moves.execute(LocalizationHelper::coreString(QStringLiteral("Center on Screen")));
}

EditResult Alignment::makeSameSize(EditSession* session, const QList<DesignerObject*>& objects, Dimension dimension)
{
    const QList<DesignerObject*> elements = sized(objects);
    if (elements.size() < 2)
        return tooFew(LocalizationHelper::coreString(
            QStringLiteral("Two or more elements that have a size can be made the same size.")));
    const QSizeF wanted = ValueConversion::toSize(outerSizeOf(elements.constLast())->valueString());
    const QSet<DesignerObject*> selected(session->selection().cbegin(), session->selection().cend());
    auto command = std::make_unique<UndoCommand>();
    for (DesignerObject* element : elements) {
        if (EditorMarks::isLocked(element))
            continue;
        const auto property = outerSizeOf(element);
        QSizeF size = ValueConversion::toSize(property->valueString());
        if (dimension != Dimension::Height)
            size.setWidth(wanted.width());
        if (dimension != Dimension::Width)
            size.setHeight(wanted.height());
        const QString value = ValueConversion::toString(size);
        if (!property->equalsValue(value))
            new ChangeProperty(property, value, selected.contains(element), command.get());
    }
    if (command->childCommandCount() == 0)
        return {true, false, {}};
    command->setText(dimension == Dimension::Width ? LocalizationHelper::coreString(QStringLiteral("Make Same Width"))
                     : dimension == Dimension::Height
                         ? LocalizationHelper::coreString(QStringLiteral("Make Same Height"))
                         : LocalizationHelper::coreString(QStringLiteral("Make Same Size")));
    command->setAllOrNothing(true);
    return session->project()->execute(std::move(command));
}

bool Alignment::canAlign(const QList<DesignerObject*>& objects)
{
    return !ElementPlaces::movable(ElementPlaces::roots(objects)).isEmpty();
}

bool Alignment::canDistribute(const QList<DesignerObject*>& objects)
{
    return ElementPlaces::movable(ElementPlaces::roots(objects)).size() > 2;
}

bool Alignment::canMakeSameSize(const QList<DesignerObject*>& objects)
{
    const QList<DesignerObject*> elements = sized(objects);
    const bool anyIsFree = std::any_of(elements.cbegin(), elements.cend(),
                                       [](const DesignerObject* element) { return !EditorMarks::isLocked(element); });
    return elements.size() > 1 && anyIsFree;
}

} // namespace Korvex::Meridane::Designer
