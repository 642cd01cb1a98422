#pragma once

#include <QListWidget>

namespace Korvex::Meridane::Designer {

/**
 * Cards side by side: a picture, a name, and a line about it. A click or Enter opens a card; Tab, and Down in the last row, go on
 * to what follows.
 *
 * The grid is as high as its cards need, so that the page around it scrolls, not the grid.
 */
class CardGrid : public QListWidget
{
    Q_OBJECT

public:
    /// What the items of the grid hold, beside text and icon.
    enum Role
    {
        DetailRole = Qt::UserRole, ///< the line about it
        DimmedRole, ///< true: it cannot be opened
        SymbolRole, ///< true: the picture is a symbol, which does not fill the place of a picture
        ValueRole ///< what it stands for
    };

    /// \a picture: the largest size of the pictures, in pixels.
    explicit CardGrid(const QSize& picture, QWidget* parent = nullptr);

    QListWidgetItem* addCard(const QIcon& icon, const QString& name, const QString& detail, const QVariant& value);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void opened(QListWidgetItem* item);
    /// The user wants \a item to go.
    void removalRequested(QListWidgetItem* item);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void arrange();
};

} // namespace Korvex::Meridane::Designer
