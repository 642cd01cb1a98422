#pragma once

#include <QListWidget>

namespace Korvex::Meridane::Designer {

/**
 * The elements that can be placed: a tile for each class that the loaded plug-ins offer.
 *
 * A tile can be dragged onto the canvas. A click arms it: the next click or drag on the canvas places an element of its
 * class; a second click or Escape disarms it. Enter or a double click asks for an element in the middle of the view.
 */
class ElementPalette : public QListWidget
{
    Q_OBJECT

public:
    explicit ElementPalette(QWidget* parent = nullptr);

    /// The class that is armed; empty for none.
    [[nodiscard]] const QString& armedClass() const { return m_armedClass; }
    /// The tile of \a className, or null.
    [[nodiscard]] QListWidgetItem* tile(const QString& className) const;

public Q_SLOTS:
    void disarm();

Q_SIGNALS:
    /// \a className is to be placed by the next click on the canvas; empty: no longer.
    void armed(const QString& className);
    /// An element of \a className is wanted without pointing at a place.
    void insertRequested(const QString& className);

protected:
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData* mimeData(const QList<QListWidgetItem*>& items) const override;
    void startDrag(Qt::DropActions actions) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] QSize sizeHint() const override;

private:
    void fill();
    void arm(const QString& className);
    [[nodiscard]] QSize tileSize(int width) const;
    void arrangeTiles();

    QString m_armedClass;
};

} // namespace Korvex::Meridane::Designer
