#pragma once

#include "host/core/project/Problem.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include <memory>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;
class Screen;

/**
 * Fills objects from the JSON that ElementJson describes: every value is stored as it stands, without hooks, validators
 * or observers.
 *
 * Nothing in the JSON is lost. What cannot be taken as it stands is either carried along (unknown keys, unknown classes,
 * entries of a wrong form), or changed in memory and reported (ids that are missing, invalid or used twice; values that
 * are no texts), or, where neither is possible, refused.
 */
class ElementReader
{
public:
    /// \a file and \a screenId name the place in the reports.
    ElementReader(const QString& file, const QString& screenId);

    /// Fills \a screen, whose id has been given. False, with a message, for an entry that would lose something.
    [[nodiscard]] bool readScreen(const QJsonObject& entry, Screen* screen, QString* error);
    /// See ElementJson::read().
    [[nodiscard]] std::unique_ptr<DesignerObject> readDetached(const QJsonObject& entry);

    [[nodiscard]] const QList<Problem>& problems() const { return m_problems; }

private:
    /// An entry and where it stands: "elements[3].elements[0]".
    struct Place
    {
        QJsonObject entry;
        QString path;
    };

    [[nodiscard]] bool isWellFormed(const Place& place, bool hasChildren, QString* error) const;
    void fill(DesignerObject* object, const Place& place);
    [[nodiscard]] QJsonObject fillValues(DesignerObject* object, const Place& place, const QString& section,
                                         bool (*belongs)(const DesignerProperty& property));
    void addChildren(DesignerObject* object, const Place& place);
    [[nodiscard]] std::unique_ptr<DesignerObject> create(const Place& place);
    [[nodiscard]] std::unique_ptr<DesignerObject> createUnknown(const Place& place) const;
    void collectIds(const QJsonArray& elements, const QString& path);
    [[nodiscard]] QString usableId(const DesignerObject& object, const Place& place);
    [[nodiscard]] QString freeId(const DesignerObject& object);
    [[nodiscard]] QString elementName(const QString& id) const;
    void report(Problem::Severity severity, const QString& object, const QString& property, const QString& message);

    QString m_file;
    QString m_screenId;
    QList<Problem> m_problems;
    QHash<QString, QString> m_firstPlaces; // of every usable id in the file
    QHash<QString, int> m_lastNumbers; // of the ids made for a base
};

} // namespace Korvex::Meridane::Designer
