#pragma once

#include "host/core/objects/Element.h"

#include <QJsonObject>

namespace Korvex::Meridane::Designer {

/// An element of a class that no plug-in serves: it carries its file entry and is written back as it was. It has no
/// properties, no canvas item and no QML.
class MERIDANE_CORE_EXPORT UnknownElement : public Element
{
    Q_OBJECT

public:
    explicit UnknownElement(QObject* parent = nullptr);
    ~UnknownElement() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString displayName() const override;
    GraphicsItem* createGraphicsItem() override;
    [[nodiscard]] QString toQml(int indent) const override;

    /// The whole file entry, "class" and "id" included.
    [[nodiscard]] const QJsonObject& entry() const { return m_entry; }
    void setEntry(const QJsonObject& entry) { m_entry = entry; }
    /// The class name that the entry asks for.
    [[nodiscard]] QString wantedClassName() const;

private:
    QJsonObject m_entry;
};

} // namespace Korvex::Meridane::Designer
