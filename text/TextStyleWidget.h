#pragma once

#include <QColor>
#include <QWidget>

class QLabel;
class QSpacerItem;
class QVBoxLayout;

namespace Korvex::Meridane::Designer {

class ColorWidget;
class ComboBox;

/// A list of text styles and, for every style except the standard one, a colour. Only the user's edits emit
/// userModified().
class TextStyleWidget : public QWidget
{
    Q_OBJECT

public:
    /// What the user edited last.
    enum class Edit
    {
        Style,
        Color
    };

    /// Shows the standard style and, for the others, red.
    explicit TextStyleWidget(QWidget* parent = nullptr);
    ~TextStyleWidget() override;

    /// "Normal", "Outline", "Raised" or "Sunken"; empty while the styles are mixed.
    [[nodiscard]] QString textStyle() const;
    /// Shows a style, silently; every other text is the standard style.
    void setTextStyle(const QString& style);
    [[nodiscard]] const QColor& color() const;
    /// Sets the colour, silently; it is kept while the standard style hides it.
    void setColor(const QColor& color);

    /// Shows no style or no colour, for several texts that differ, until one is set or edited.
    void setMixed(bool styles, bool colors);

    [[nodiscard]] Edit lastEdit() const { return m_edit; }
    [[nodiscard]] ComboBox* styleBox() const { return m_style; }
    [[nodiscard]] ColorWidget* colorWidget() const { return m_color; }

    /// The same with and without the colour, so that the width of a column does not depend on the style.
    [[nodiscard]] QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Shows or hides the colour as the style asks.
    void onTextStyleChanged();

Q_SIGNALS:
    /// The user has changed the style or the colour.
    void userModified();

private:
    QVBoxLayout* m_layout;
    ComboBox* m_style;
    QSpacerItem* m_gap;
    QLabel* m_colorLabel;
    ColorWidget* m_color;
    Edit m_edit = Edit::Style;
};

} // namespace Korvex::Meridane::Designer
