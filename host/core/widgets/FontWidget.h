#pragma once

#include "host/core/CoreExport.h"
#include "host/core/values/NumberOperation.h"

#include <QtCore/QList>
#include <QtGui/QFont>
#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QToolButton;
QT_END_NAMESPACE

namespace Korvex::Meridane::Designer {
class ComboBox;
class FontFamilyBox;
class FontStyleButton;
class SpinBox;

/**
 * A font in rows: family; size with its unit and the weight; style buttons; letter and word spacing. An edit changes
 * the edited attribute alone: everything else of the font stays as it was set.
 */
class MERIDANE_CORE_EXPORT FontWidget : public QWidget
{
    Q_OBJECT

public:
    explicit FontWidget(QWidget* parent = nullptr);

    [[nodiscard]] const QFont& value() const { return m_font; }
    /** Shows @p font, silently. */
    void setValue(const QFont& font);

    [[nodiscard]] FontFamilyBox* familyBox() const { return m_family; }
    /** Beside the families, for whoever can import a font; disabled until somebody enables it. */
    [[nodiscard]] QToolButton* importButton() const { return m_import; }
    [[nodiscard]] SpinBox* sizeField() const { return m_size; }
    /** Keys "pointSize" and "pixelSize". A change of the unit keeps the size on the screen, rounded to whole pixels. */
    [[nodiscard]] ComboBox* unitBox() const { return m_unit; }
    /** The keys are the numbers from "100" to "900", and that of a font between them. */
    [[nodiscard]] ComboBox* weightBox() const { return m_weight; }
    [[nodiscard]] SpinBox* letterSpacingField() const { return m_letterSpacing; }
    [[nodiscard]] SpinBox* wordSpacingField() const { return m_wordSpacing; }
    [[nodiscard]] const QList<FontStyleButton*>& styleButtons() const { return m_styles; }
    /** What the last edit of a number field asked for; see SpinBox. The fields themselves show its result already. */
    [[nodiscard]] NumberOperation operation() const { return m_operation; }

Q_SIGNALS:
    /** The user has changed the font. */
    void userModified();
    void focusedIn();
    void focusedOut();

private:
    void showFont();
    void showWeight();
    void edit(const QFont& font);
    void editSize();
    void editUnit();
    void editLetterSpacing();
    void editWordSpacing();

    QFont m_font;
    NumberOperation m_operation;
    FontFamilyBox* m_family;
    QToolButton* m_import;
    SpinBox* m_size;
    ComboBox* m_unit;
    ComboBox* m_weight;
    SpinBox* m_letterSpacing;
    SpinBox* m_wordSpacing;
    QList<FontStyleButton*> m_styles;
};
} // namespace Korvex::Meridane::Designer
