#pragma once

#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/IdRegistry.h"
#include "host/core/objects/ObjectContainer.h"

#include <QSizeF>

#include <functional>

namespace Korvex::Meridane::Designer {

/**
 * One screen of the display: name, size, background colour, and its elements from back to front.
 *
 * A screen is the scope "Screen": the ids of all elements below it are unique in it. Its content is read when it is
 * first needed (setContentReader()).
 */
class MERIDANE_CORE_EXPORT Screen : public DesignerObject, public ObjectContainer
{
    Q_OBJECT

public:
    explicit Screen(QObject* parent = nullptr);
    ~Screen() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString displayName() const override;
    bool initializeProperties() override;
    GraphicsItem* createGraphicsItem() override;
    /// An unreadable screen refuses every edit: none of it could be saved.
    bool beforePropertyChanged(const DesignerProperty* property, const QString& newValue) override;
    bool beforeListItemAdded(const DesignerProperty* property, const DesignerObject* object) override;
    [[nodiscard]] IdRegistry* containedIds() override;
    /// Reads the content first if that has not been done.
    [[nodiscard]] ObjectListProperty* containedObjects() const override;

    /// Width and height in pixels; the default of a new screen is the project's display size.
    [[nodiscard]] QSizeF size() const;
    /// The element of that id at any depth, or null.
    [[nodiscard]] DesignerObject* element(const QString& id) const;

    /// Reads the screen's content when it is first asked for. While unread, the screen is saved as its file stands.
    void setContentReader(std::function<void(Screen*)> reader);
    [[nodiscard]] bool isContentRead() const { return !m_reader; }
    void readContent() const;
    /// Why the screen's file could not be read; empty when it could. An unreadable screen is empty, refuses edits and
    /// is never written.
    [[nodiscard]] const QString& contentError() const { return m_contentError; }
    void setContentError(const QString& message) { m_contentError = message; }

private:
    QSharedPointer<ObjectListProperty> m_elements;
    IdRegistry m_ids;
    mutable std::function<void(Screen*)> m_reader;
    QString m_contentError;
};

} // namespace Korvex::Meridane::Designer
