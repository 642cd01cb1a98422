#pragma once

#include "host/core/CoreExport.h"
#include "host/core/widgets/TransparentOption.h"

#include <QtGui/QColor>
#include <QtWidgets/QLineEdit>

namespace Korvex::Meridane::Designer {
/**
 * A line for a colour as text: `#rrggbb`, `#aarrggbb`, `#rgb`, the same without `#`, or a colour name. What is typed
 * counts on Enter and when the focus leaves; Escape brings the colour back. A text that is no colour stays where somebody
 * listens to inputRefused(), and is dropped otherwise.
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
    /** Shows the colour again, whatever was typed; silently. */
    void dropInput();

Q_SIGNALS:
    void userModified();
    /**
     * The typed text is no colour, as @p message tells the user; it stays in the field. When the field is in order again
     * userModified() follows, also when the colour is the one before.
     */
    void inputRefused(const QString& message);

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
    bool m_refused = false; // the text is no colour
};
} // namespace Korvex::Meridane::Designer
