#pragma once

#include "host/core/CoreExport.h"

#include <QtWidgets/QFontComboBox>

namespace Korvex::Meridane::Designer {
/**
 * A list of the installed font families with a field to type into. A family that is not installed is kept and shown
 * with a warning, never replaced by another. The wheel acts only on the focused box.
 */
class MERIDANE_CORE_EXPORT FontFamilyBox : public QFontComboBox
{
    Q_OBJECT

public:
    explicit FontFamilyBox(QWidget* parent = nullptr);

    [[nodiscard]] const QString& family() const { return m_family; }
    /** Shows @p family, silently. */
    void setFamily(const QString& family);

    /** Shows "—" for several families that differ, until setFamily() or an edit. */
    void setMixed(bool mixed);

    /** Whether the family shown is installed. */
    [[nodiscard]] bool isInstalled() const;

Q_SIGNALS:
    /** The user has chosen or typed another family. */
    void userModified();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void commit();
    void showFamily();

    QString m_family;
    bool m_mixed = false;
};
} // namespace Korvex::Meridane::Designer
