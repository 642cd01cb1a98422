#pragma once

#include "host/core/CoreExport.h"

#include <QtGui/QFont>
#include <QtWidgets/QToolButton>

namespace Korvex::Meridane::Designer {
/** A checkable button for one attribute of a font; its letter is drawn with that attribute. */
class MERIDANE_CORE_EXPORT FontStyleButton : public QToolButton
{
    Q_OBJECT

public:
    enum class Style
    {
        Bold,
        Italic,
        Underline,
        Overline,
        StrikeOut
    };

    explicit FontStyleButton(Style style, QWidget* parent = nullptr);

    /** Checks the button, silently, if @p font has the attribute. */
    void showFont(const QFont& font);
    /** @p font with the attribute as the button says. */
    [[nodiscard]] QFont appliedTo(const QFont& font) const;
    /** Shows a dash for several fonts that differ, until showFont() or a press, which gives all of them the attribute. */
    void setMixed(bool mixed);
    [[nodiscard]] bool isMixed() const { return m_mixed; }

Q_SIGNALS:
    /** The user has pressed the button. */
    void userModified();

protected:
    void nextCheckState() override;
    void paintEvent(QPaintEvent* event) override;

private:
    Style m_style;
    bool m_mixed = false;
};
} // namespace Korvex::Meridane::Designer
