#pragma once

#include "host/core/canvas/GraphicsFrameItem.h"

#include "host/common/TextBoxLayout.h"

#include <QFont>
#include <QPen>

namespace Korvex::Meridane::Designer {

/// The canvas item of the text box. Alt with B, I, S, U, O, - or = changes the font from the keyboard.
class GraphicsTextBox : public GraphicsFrameItem
{
public:
    explicit GraphicsTextBox(DesignerObject* dataObject);
    ~GraphicsTextBox() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;
    UndoCommand* updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent) override;

protected:
    void paintContent(QPainter* painter) override;
    /// A box is at least 1 × 1; the item keeps its size where the element's is smaller.
    [[nodiscard]] bool acceptsSize(const QSizeF& size) const override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void setText(const QString& text);
    void setColor(const QString& value);
    void setFont(const QString& value);
    void setAlignment(const QString& value);
    void setStyle(const QString& value);

    QString m_text = QStringLiteral("[text]");
    QPen m_pen;
    QFont m_font;
    int m_alignment = Qt::AlignLeft | Qt::AlignTop;
    QString m_textStyle = QStringLiteral("Normal");
    QPen m_stylePen;
    Common::TextBoxLayout m_layout; // of the values above
};

} // namespace Korvex::Meridane::Designer
