#include "runtime/Image2.h"

#include "runtime/FileName.h"

#include "host/common/Picture.h"

#include <QtQml/QQmlContext>
#include <QtQml/QQmlFile>
#include <QtQml/QQmlInfo>

namespace Korvex::Meridane::Display {
Image2::Image2(QQuickItem* parent)
    : DisplayItem(parent)
    , m_picture(new Common::Picture(this))
{
    // The size of a new image element.
    setImplicitSize(200, 200);
    connect(m_picture, &Common::Picture::changed, this, &Image2::contentChanged);
}

QString Image2::source() const
{
    return m_source;
}

void Image2::setSource(const QString& source)
{
    if (source == m_source) {
        return;
    }
    m_source = source;
    if (isComponentComplete()) {
        load();
    }
    Q_EMIT sourceChanged();
}

void Image2::componentComplete()
{
    DisplayItem::componentComplete();
    load();
}

void Image2::itemChange(ItemChange change, const ItemChangeData& value)
{
    DisplayItem::itemChange(change, value);
    if (change == ItemVisibleHasChanged) {
        playWhileVisible();
    }
}

QRectF Image2::outerRect() const
{
    return m_picture->isNull() ? QRectF() : QRectF(QPointF(0, 0), size());
}

void Image2::paintContent(QPainter* painter) const
{
    m_picture->paint(size(), painter);
}

void Image2::load()
{
    const QQmlContext* context = qmlContext(this);
    QString file;
    if (context && isFileName(m_source)) {
        QUrl url;
        url.setPath(QLatin1String("../images/") + m_source, QUrl::DecodedMode);
        file = QQmlFile::urlToLocalFileOrQrc(context->resolvedUrl(url));
    }
    m_picture->setFile(file);
    if (m_picture->isNull() && !m_source.isEmpty()) {
        qmlWarning(this) << "source: \"" << m_source << "\" is no picture that can be shown";
    }
    playWhileVisible();
}

void Image2::playWhileVisible()
{
    if (isVisible()) {
        m_picture->start();
    } else {
        m_picture->pause();
    }
}
} // namespace Korvex::Meridane::Display
