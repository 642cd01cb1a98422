#pragma once

#include "host/core/CoreExport.h"
#include "host/core/widgets/TransparentOption.h"

#include <QtGui/QColor>
#include <QtWidgets/QLineEdit>

namespace Korvex::Meridane::Designer {
/**
 * A line for a colour as text: `#rrggbb`, `#aarrggbb`, `#rgb`, the same without `#`, or a colour name. What is typed
 * counts on Enter and when the focus leaves; Escape, and a text that is no colour, bring the colour back.
 */
class MERIDANE_CORE_EXPORT HexColorField : public QLineEdit
{
    Q_OBJECT

public:
    /** Where only opaque colours are allowed, the alpha channel of a typed colour is dropped. */
    explicit HexColorField(TransparentOption transparency, QWidget* parent = nullptr);

    [[nodiscard]] const QColor& color() const { return m_color; }
    /** Shows @p color, silently. */
    void setColor(const QColor& color);
    /** Shows "—" until setColor() or an edit. */
    void setMixed(bool mixed);
    void commit();

Q_SIGNALS:
    void userModified();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void showColor();
    [[nodiscard]] QString shownText() const;
    [[nodiscard]] QColor typedColor() const;

    TransparentOption m_transparency;
    QColor m_color = QColor(Qt::black);
    bool m_mixed = false;
};
} // namespace Korvex::Meridane::Designer
