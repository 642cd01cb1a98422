#pragma once

#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace Korvex::Meridane::Display {
/**
 * The root of an export: it shows one of the export's screens at a time. In QML it is used as Display, by way of
 * Display.qml.
 *
 * The screen NAME is the file screens/NAME.qml beside the file in which the Display stands; it is loaded when it is
 * first shown and let go when another one takes its place. Fonts in the folder fonts/ beside that file are made known
 * before the first screen is loaded. Whatever cannot be loaded is reported as a QML warning, and then no screen shows.
 */
class DisplayRoot : public QQuickItem
{
    Q_OBJECT
    /** The names of the screens, in order. A name stands for a file, so that it holds no path. */
    Q_PROPERTY(QStringList screens READ screens WRITE setScreens NOTIFY screensChanged FINAL)
    /** The name of the screen that is shown: the first one unless set. A name that is not in screens is refused. */
    Q_PROPERTY(QString currentScreen READ currentScreen WRITE setCurrentScreen NOTIFY currentScreenChanged FINAL)
    QML_ELEMENT

public:
    explicit DisplayRoot(QQuickItem* parent = nullptr);

    [[nodiscard]] QStringList screens() const;
    void setScreens(const QStringList& screens);
    [[nodiscard]] QString currentScreen() const;
    void setCurrentScreen(const QString& screen);

    /** The loaded root of the current screen, owned by the display; null when there is none. */
    [[nodiscard]] QQuickItem* screenItem() const;

Q_SIGNALS:
    void screensChanged();
    void currentScreenChanged();

protected:
    void componentComplete() override;

private:
    void updateScreen();
    void loadFonts();
    /** Loads the screen called @p name; null, after a warning, when that is not possible. */
    QQuickItem* loadScreen(const QString& name);

    QStringList m_screens;
    QString m_currentScreen;
    QString m_shownScreen;
    QPointer<QQuickItem> m_screenItem;
};
} // namespace Korvex::Meridane::Display
