#pragma once

#include "runtime/DisplayItem.h"

namespace Korvex::Meridane::Common {
class Picture;
}

namespace Korvex::Meridane::Display {
/** A picture of the export's images folder, stretched over the item. Animations play while the item is visible. */
class Image2 : public Korvex::Meridane::Display::DisplayItem
{
    Q_OBJECT
    /**
     * The file name of the picture in the folder "images" beside that of the screens. A name that leads elsewhere and a file
     * that cannot be shown give a warning and an empty item.
     */
    Q_PROPERTY(QString source READ source WRITE setSource NOTIFY sourceChanged FINAL)
    QML_ELEMENT

public:
    explicit Image2(QQuickItem* parent = nullptr);

    [[nodiscard]] QString source() const;
    void setSource(const QString& source);

Q_SIGNALS:
    void sourceChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    QRectF outerRect() const override;
    void paintContent(QPainter* painter) const override;

private:
    void load();
    void playWhileVisible();

    QString m_source;
    Common::Picture* m_picture;
};
} // namespace Korvex::Meridane::Display
