#pragma once

#include "host/core/objects/VisualElement.h"

namespace Korvex::Meridane::Designer {

/// A block of text in a box: with a font, a colour, an alignment and a style (plain, outlined, raised or sunken letters).
class TextBox : public VisualElement
{
    Q_OBJECT

public:
    explicit TextBox(QObject* parent = nullptr);
    ~TextBox() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString displayName() const override;
    [[nodiscard]] QString qmlName() const override;
    /// The item can be resized but not turned.
    GraphicsItem* createGraphicsItem() override;
    bool initializeProperties() override;
    /// Derives "size" from a new "boundingSize" that was not written by the canvas item.
    void afterPropertyChanged(const DesignerProperty* property, const QString& oldValue) override;
    [[nodiscard]] QList<RuntimeProperty> runtimeProperties() const override;
    [[nodiscard]] QRectF getBoundingRect() const override;

private:
    QSharedPointer<DesignerProperty> m_size;
    QSharedPointer<DesignerProperty> m_boundingSize;
    QSharedPointer<DesignerProperty> m_keepRatio;
    QSharedPointer<DesignerProperty> m_text;
    QSharedPointer<DesignerProperty> m_alignment;
    QSharedPointer<DesignerProperty> m_color;
    QSharedPointer<DesignerProperty> m_font;
    QSharedPointer<DesignerProperty> m_textStyle;
};

} // namespace Korvex::Meridane::Designer
