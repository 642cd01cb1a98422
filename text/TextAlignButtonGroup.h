#pragma once

#include <QList>
#include <QMap>
#include <QWidget>

class QToolButton;

namespace Korvex::Meridane::Designer {

/**
 * Nine buttons in a grid, one for each place of a text in its box; one of them is always checked.
 *
 * An alignment is one horizontal and one vertical flag of Qt::Alignment. The group is one stop of the Tab key; the arrow
 * keys choose the neighbour, Home the top left corner and End the bottom right one. Only the user's choices emit
 * userModified().
 */
class TextAlignButtonGroup : public QWidget
{
    Q_OBJECT

public:
    /// What a new group shows.
    static constexpr int InitialAlignment = Qt::AlignLeft | Qt::AlignTop;

    explicit TextAlignButtonGroup(QWidget* parent = nullptr);
    ~TextAlignButtonGroup() override;

    /// The chosen alignment; while the state is mixed, the one set before.
    [[nodiscard]] int alignment() const { return m_alignment; }
    /// Shows \a alignment, silently; one that has no button is ignored.
    void setAlignment(int alignment);

    /// Shows no button as checked, for several texts that differ, until setAlignment() or a click.
    void setMixed(bool mixed);
    [[nodiscard]] bool isMixed() const { return m_mixed; }

    /// The button of \a alignment, or null.
    [[nodiscard]] QToolButton* button(int alignment) const { return m_buttons.value(alignment); }

public Q_SLOTS:
    /// Chooses the alignment of the button that sent the signal.
    void onButtonClicked();

Q_SIGNALS:
    /// The user has chosen another alignment.
    void userModified();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QToolButton* createButton(const QString& icon, const QString& toolTip, int alignment);
    void showChecked(int alignment, bool checked);
    void moveTabStop(int from);

    QList<int> m_alignments; // row by row
    QMap<const QToolButton*, int> m_values;
    QMap<int, QToolButton*> m_buttons;
    int m_alignment = InitialAlignment;
    bool m_mixed = false;
};

} // namespace Korvex::Meridane::Designer
