#pragma once

#include <QHash>
#include <QIconEngine>

#include <memory>

class QGraphicsItem;

namespace Korvex::Meridane::Designer {

class DesignerObject;

/// Draws an element of its own through the element's canvas item, on a light card as a new screen is.
class ElementIconEngine : public QIconEngine
{
public:
    /// Takes \a object over and makes its canvas item; isUsable() is false where there is none.
    explicit ElementIconEngine(std::unique_ptr<DesignerObject> object);
    ~ElementIconEngine() override;
    Q_DISABLE_COPY_MOVE(ElementIconEngine)

    [[nodiscard]] bool isUsable() const;

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    [[nodiscard]] QIconEngine* clone() const override;

private:
    struct Model;
    explicit ElementIconEngine(const std::shared_ptr<Model>& model);

    [[nodiscard]] QPixmap drawn(const QSize& pixels, QIcon::Mode mode) const;

    std::shared_ptr<Model> m_model;
};

} // namespace Korvex::Meridane::Designer
