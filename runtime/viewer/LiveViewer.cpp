#include "runtime/viewer/LiveViewer.h"

#include "runtime/viewer/StandardStreams.h"
#include "runtime/viewer/ViewerOptions.h"

#include "host/common/LiveMessage.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QMap>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QMouseEvent>
#include <QtGui/QWheelEvent>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlError>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickRenderTarget>

#include <cmath>
#include <cstring>

namespace Korvex::Meridane::Display {
using Common::LiveMessage;

namespace {
/** Frames are this far apart, in milliseconds: more a second are seen by nobody. */
constexpr int FrameInterval = 15;
/** A display that complains without end is not listened to without end. */
constexpr qsizetype MostComplaints = 50;
constexpr double LongestSide = 16000;

/** The part of @p image that differs from @p before, which has the same size. */
QRect changedPart(const QImage& image, const QImage& before)
{
    int top = 0;
    int bottom = image.height() - 1;
    const qsizetype bytes = qsizetype(image.width()) * 4;
    const auto same = [&](int y) { return std::memcmp(image.constScanLine(y), before.constScanLine(y), bytes) == 0; };
    while (top <= bottom && same(top)) {
        ++top;
    }
    while (bottom > top && same(bottom)) {
        --bottom;
    }
    return QRect(0, top, image.width(), bottom - top + 1);
}
} // namespace

LiveViewer::LiveViewer(const ViewerOptions& options)
    : m_window(&m_control)
{
    m_engine.setOutputWarningsToStandardError(false);
    connect(&m_engine, &QQmlEngine::warnings, this, &LiveViewer::report);
    m_engine.addImportPath(QCoreApplication::applicationDirPath() + QLatin1String("/../qml"));
    for (const QString& path : options.importPaths) {
        m_engine.addImportPath(QDir(path).absolutePath());
    }
    m_window.setColor(Qt::transparent);
    m_renderTimer.setSingleShot(true);
    m_renderTimer.setInterval(FrameInterval);
    m_renderTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_renderTimer, &QTimer::timeout, this, &LiveViewer::render);
    connect(&m_control, &QQuickRenderControl::renderRequested, this, &LiveViewer::renderSoon);
    connect(&m_control, &QQuickRenderControl::sceneChanged, this, &LiveViewer::renderSoon);
}

LiveViewer::~LiveViewer()
{
    m_root.reset();
}

void LiveViewer::start()
{
    StandardStreams::readMessages(this, [this](const LiveMessage& message) { handle(message); });
}

void LiveViewer::handle(const LiveMessage& message)
{
    QString text;
    QByteArray qml;
    QStringList ids;
    QMap<QString, QByteArray> elements;
    QSizeF size;
    QPointF place;
    QPoint angle;
    double scale = 1;
    quint32 number = 0;
    quint32 button = 0;
    quint32 buttons = 0;
    quint32 modifiers = 0;
    quint8 type = 0;
    const QScopedValueRollback working(m_working, true);
    switch (message.kind) {
    case LiveMessage::Kind::Project:
        if (message.read(text, size)) {
            openProject(text, size);
        }
        break;
    case LiveMessage::Kind::Screen:
        if (message.read(number, text, qml, ids)) {
            showScreen(text, qml, ids);
            finish(number);
        }
        break;
    case LiveMessage::Kind::Elements:
        if (message.read(number, elements)) {
            for (auto element = elements.cbegin(); element != elements.cend(); ++element) {
                replaceElement(element.key(), element.value());
            }
            finish(number);
        }
        break;
    case LiveMessage::Kind::Scale:
        if (message.read(scale)) {
            setScale(scale);
        }
        break;
    case LiveMessage::Kind::Mouse:
        if (message.read(type, place, button, buttons, modifiers)) {
            QMouseEvent event(QEvent::Type(type), place, place, Qt::MouseButton(button), Qt::MouseButtons(buttons),
                              Qt::KeyboardModifiers(modifiers));
            QCoreApplication::sendEvent(&m_window, &event);
        }
        break;
    case LiveMessage::Kind::Wheel:
        if (message.read(place, angle, buttons, modifiers)) {
            QWheelEvent event(place, place, {}, angle, Qt::MouseButtons(buttons), Qt::KeyboardModifiers(modifiers),
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&m_window, &event);
        }
        break;
    case LiveMessage::Kind::FrameTaken:
        m_frameUnderWay = false;
        if (!m_renderTimer.isActive()) {
            m_renderTimer.start(0);
        }
        break;
    default:
        break;
    }
}

void LiveViewer::openProject(const QString& folder, const QSizeF& size)
{
    m_folder = QDir(folder).absolutePath();
    m_size = size;
    m_elements.clear();
    m_screen = nullptr;
    m_root.reset();
    // The root makes the project's fonts known; screens are put into it as they come.
    QQmlComponent component(&m_engine);
    component.setData(QStringLiteral("import Meridane.Display\n\nDisplay {\n\twidth: %1\n\theight: %2\n}\n")
                          .arg(size.width())
                          .arg(size.height())
                          .toUtf8(),
                      QUrl::fromLocalFile(m_folder + QStringLiteral("/Main.qml")));
    std::unique_ptr<QObject> object(component.isReady() ? component.create() : nullptr);
    m_root.reset(qobject_cast<QQuickItem*>(object.get()));
    if (!m_root) {
        report(component.errors());
        return;
    }
    (void)object.release();
    m_root->setParentItem(m_window.contentItem());
    makeImage();
}

QQuickItem* LiveViewer::create(const QByteArray& qml)
{
    // Images are found beside the folder of the screens.
    QQmlComponent component(&m_engine);
    component.setData(qml, QUrl::fromLocalFile(m_folder + QStringLiteral("/screens/%1.qml").arg(m_screenId)));
    std::unique_ptr<QObject> object(component.isReady() ? component.create(qmlContext(m_root.get())) : nullptr);
    auto* item = qobject_cast<QQuickItem*>(object.get());
    if (!item) {
        report(component.errors());
        return nullptr;
    }
    (void)object.release();
    return item;
}

void LiveViewer::showScreen(const QString& id, const QByteArray& qml, const QStringList& elements)
{
    if (!m_root) {
        return;
    }
    m_screenId = id;
    QQuickItem* screen = create(qml);
    if (!screen) {
        return;
    }
    m_elements.clear();
    delete m_screen.data();
    m_screen = screen;
    const QList<QQuickItem*> items = screen->childItems();
    if (items.size() == elements.size()) {
        for (qsizetype i = 0; i < items.size(); ++i) {
            m_elements.insert(elements.at(i), items.at(i));
        }
    }
    screen->setParent(m_root.get());
    screen->setParentItem(m_root.get());
}

void LiveViewer::replaceElement(const QString& id, const QByteArray& qml)
{
    QQuickItem* before = m_elements.value(id);
    QQuickItem* item = before && m_screen ? create(qml) : nullptr;
    if (!item) {
        return;
    }
    item->setParent(m_screen);
    item->setParentItem(m_screen);
    item->stackBefore(before);
    delete before;
    m_elements.insert(id, item);
}

void LiveViewer::setScale(double scale)
{
    if (scale > 0 && scale != m_scale) {
        m_scale = scale;
        makeImage();
    }
}

/** Gives the window a picture of its size to be painted on. */
void LiveViewer::makeImage()
{
    const QSize size(std::max(qRound(m_size.width()), 1), std::max(qRound(m_size.height()), 1));
    const double scale = std::min(m_scale, LongestSide / std::max(size.width(), size.height()));
    QImage image(qRound(size.width() * scale), qRound(size.height() * scale), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
        return;
    }
    image.fill(Qt::transparent);
    m_image = image;
    m_image.setDevicePixelRatio(scale);
    m_window.setGeometry(QRect(QPoint(0, 0), size));
    m_window.contentItem()->setSize(size);
    QQuickRenderTarget target = QQuickRenderTarget::fromPaintDevice(&m_image);
    target.setDevicePixelRatio(scale);
    m_window.setRenderTarget(target);
    m_window.contentItem()->update();
    renderSoon();
}

void LiveViewer::report(const QList<QQmlError>& errors)
{
    for (const QQmlError& error : errors) {
        if (m_complaints.size() < MostComplaints) {
            // Files are none of the project's business here: they were never written.
            m_complaints.append(QStringLiteral("%1: %2").arg(error.line()).arg(error.description()));
        }
    }
    if (!m_working && !m_complaints.isEmpty()) {
        StandardStreams::write(LiveMessage::compose(LiveMessage::Kind::Warnings, std::exchange(m_complaints, {})));
    }
}

void LiveViewer::finish(quint32 number)
{
    StandardStreams::write(LiveMessage::compose(LiveMessage::Kind::Done, number, std::exchange(m_complaints, {})));
}

void LiveViewer::renderSoon()
{
    if (!m_renderTimer.isActive() && !m_frameUnderWay) {
        m_renderTimer.start(FrameInterval);
    }
}

void LiveViewer::render()
{
    if (m_frameUnderWay || m_image.isNull() || !m_root) {
        return;
    }
    m_control.polishItems();
    m_control.sync();
    m_control.render();
    const QRect whole = m_image.rect();
    const QRect part = m_sent.size() == m_image.size() ? changedPart(m_image, m_sent) : whole;
    if (part.isEmpty()) {
        return;
    }
    m_sent = m_image.copy();
    const qsizetype lineBytes = qsizetype(part.width()) * 4;
    QByteArray pixels;
    pixels.reserve(lineBytes * part.height());
    for (int y = part.top(); y <= part.bottom(); ++y) {
        pixels.append(reinterpret_cast<const char*>(m_image.constScanLine(y)), lineBytes);
    }
    m_frameUnderWay = true;
    StandardStreams::write(LiveMessage::compose(LiveMessage::Kind::Frame, m_image.size(), part, pixels));
}
} // namespace Korvex::Meridane::Display
