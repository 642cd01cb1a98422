#pragma once

#include "host/core/properties/TypedProperty.h"
#include "host/core/values/ObjectLinkInfo.h"

namespace Korvex::Meridane::Designer {

/// A property that holds a link to another object, by its id. QML: `<id>: "object id"`; links start without the Exported flag.
class MERIDANE_CORE_EXPORT LinkProperty : public TypedProperty<ObjectLinkInfo>
{
public:
    LinkProperty(DesignerObject* parent, const QString& id, const QString& name, const ObjectLinkInfo& value);
    ~LinkProperty() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString convertToQml(int indent) const override;

    /// The linked object exists, if there is one, and is of a class that the link filters on.
    [[nodiscard]] bool validateObjectValue(QString& message) const override;
    /// The object that the link names, or null.
    [[nodiscard]] DesignerObject* linkedObject() const;

protected:
    [[nodiscard]] ObjectLinkInfo parse(const QString& valueString, bool* ok) const override;
    [[nodiscard]] QString write(const ObjectLinkInfo& value) const override;
};

} // namespace Korvex::Meridane::Designer
