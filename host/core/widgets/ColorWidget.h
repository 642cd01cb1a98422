#pragma once

#include "host/core/CoreExport.h"
#include "host/core/widgets/TransparentOption.h"

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

namespace Korvex::Meridane::Designer {
class ColorPopup;
class ColorSwatch;
class HexColorField;

/**
 * A colour field: a swatch that opens a ColorPopup and, unless it is compact, the colour as text beside it. The popup
 * offers the colours of the nearest ColorSource among the parents.
 */
class MERIDANE_CORE_EXPORT ColorWidget : public QWidget
{
    Q_OBJECT

public:
    /**
     * @param transparency whether the user may pick translucent colours; one that is set is shown in any case
     * @param compact true: the swatch alone, for narrow rows; false: with the text
     */
    ColorWidget(TransparentOption transparency, bool compact, QWidget* parent = nullptr);

    [[nodiscard]] const QColor& color() const { return m_color; }
    /** Shows @p color, silently. */
    void setColor(const QColor& color);

    /** Shows "—" for several colours that differ, until setColor() or an edit. color() stays what was set. */
    void setMixed(bool mixed);
    [[nodiscard]] bool isMixed() const { return m_mixed; }

    /** Names the swatch for assistive programs, for example after the property that is edited. */
    void setAccessibleLabel(const QString& label);

    [[nodiscard]] ColorSwatch* swatch() const { return m_swatch; }
    /** Null in a compact field. */
    [[nodiscard]] HexColorField* textField() const { return m_text; }
    /** Made when it is first opened; null before. */
    [[nodiscard]] ColorPopup* popup() const { return m_popup; }

Q_SIGNALS:
    /** The user has changed the colour; during a drag in the popup once for every change. */
    void userModified();
    /** What was typed is no colour; see HexColorField. */
    void inputRefused(const QString& message);
    void focusedIn();
    void focusedOut();
    /** The popup opens and closes; what is modified between belongs together. */
    void sliderPressed();
    void sliderReleased();
    /** Escape in the popup: what was modified since it opened is to be taken back. sliderReleased() follows. */
    void cancelled();

private:
    void openPopup();
    void edit(const QColor& color);

    TransparentOption m_transparency;
    QColor m_color = QColor(Qt::black);
    bool m_mixed = false;
    ColorSwatch* m_swatch;
    HexColorField* m_text = nullptr;
    ColorPopup* m_popup = nullptr;
};
} // namespace Korvex::Meridane::Designer
