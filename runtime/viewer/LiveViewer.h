#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QSizeF>
#include <QtCore/QStringList>
#include <QtCore/QTimer>
#include <QtGui/QImage>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickRenderControl>
#include <QtQuick/QQuickWindow>

#include <memory>

QT_BEGIN_NAMESPACE
class QQmlError;
class QQuickItem;
QT_END_NAMESPACE

namespace Korvex::Meridane::Common {
struct LiveMessage;
} // namespace Korvex::Meridane::Common

namespace Korvex::Meridane::Display {
struct ViewerOptions;

/**
 * A display without a window: it reads from the standard input what it is to show (see LiveMessage), runs it, and writes
 * its frames to the standard output. One frame is under way at a time; the next is rendered when that one has been taken.
 * It ends with the standard input.
 */
class LiveViewer : public QObject
{
    Q_OBJECT

public:
    explicit LiveViewer(const ViewerOptions& options);
    ~LiveViewer() override;

    /** Begins to read. */
    void start();

private:
    void handle(const Common::LiveMessage& message);
    void openProject(const QString& folder, const QSizeF& size);
    void showScreen(const QString& id, const QByteArray& qml, const QStringList& elements);
    void replaceElement(const QString& id, const QByteArray& qml);
    void setScale(double scale);
    /** Makes the item that @p qml describes; null, with the reasons reported, when that is not possible. */
    [[nodiscard]] QQuickItem* create(const QByteArray& qml);
    void report(const QList<QQmlError>& errors);
    void finish(quint32 number);
    void renderSoon();
    void render();
    void makeImage();

    QQmlEngine m_engine;
    QQuickRenderControl m_control;
    QQuickWindow m_window;
    QImage m_image;
    QImage m_sent;
    QTimer m_renderTimer;
    std::unique_ptr<QQuickItem> m_root;
    QPointer<QQuickItem> m_screen;
    QHash<QString, QPointer<QQuickItem>> m_elements;
    QString m_folder;
    QString m_screenId;
    QSizeF m_size;
    double m_scale = 1;
    QStringList m_complaints;
    bool m_working = false; // on a message that is answered
    bool m_frameUnderWay = false;
};
} // namespace Korvex::Meridane::Display
