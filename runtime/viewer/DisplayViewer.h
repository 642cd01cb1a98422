#pragma once

#include <QtCore/QObject>
#include <QtQuick/QQuickView>

QT_BEGIN_NAMESPACE
class QQmlError;
QT_END_NAMESPACE

namespace Korvex::Meridane::Display {
struct ViewerOptions;

/**
 * The window that runs an export. It has the size of the display and cannot be resized. Errors and warnings of QML go to
 * the standard error and are remembered.
 */
class DisplayViewer : public QObject
{
    Q_OBJECT

public:
    explicit DisplayViewer(const ViewerOptions& options);

    /** Loads Main.qml of the export; false when there is none or it cannot be loaded. */
    [[nodiscard]] bool load();

    /** Shows the window. */
    void show();

    /**
     * Renders one frame and saves it as the PNG file @p fileName, which is replaced at once or not at all. False, with a
     * message on the standard error, when there is no frame or it cannot be written.
     */
    [[nodiscard]] bool grab(const QString& fileName);

    /** True when QML has reported an error or a warning so far. */
    [[nodiscard]] bool hasFailed() const;

private:
    void report(const QList<QQmlError>& errors);
    void fail(const QString& message);

    QQuickView m_view;
    QString m_folder;
    bool m_failed = false;
};
} // namespace Korvex::Meridane::Display
