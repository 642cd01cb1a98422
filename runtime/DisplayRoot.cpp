#include "runtime/DisplayRoot.h"

#include "runtime/FileName.h"

#include "host/common/DisplayFont.h"

#include <QtCore/QDir>
#include <QtCore/QSet>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlFile>
#include <QtQml/QQmlInfo>
#include <QtQml/qqml.h>

#include <memory>

namespace Korvex::Meridane::Display {
DisplayRoot::DisplayRoot(QQuickItem* parent)
    : QQuickItem(parent)
{
    setImplicitSize(800, 480);
}

QStringList DisplayRoot::screens() const
{
    return m_screens;
}

void DisplayRoot::setScreens(const QStringList& screens)
{
    if (screens == m_screens) {
        return;
    }
    m_screens = screens;
    updateScreen();
    Q_EMIT screensChanged();
}

QString DisplayRoot::currentScreen() const
{
    return m_currentScreen;
}

void DisplayRoot::setCurrentScreen(const QString& screen)
{
    if (screen == m_currentScreen) {
        return;
    }
    if (isComponentComplete() && !m_screens.contains(screen)) {
        qmlWarning(this) << "there is no screen \"" << screen << '"';
        return;
    }
    m_currentScreen = screen;
    Q_EMIT currentScreenChanged();
    updateScreen();
}

QQuickItem* DisplayRoot::screenItem() const
{
    return m_screenItem;
}

void DisplayRoot::componentComplete()
{
    QQuickItem::componentComplete();
    loadFonts();
    updateScreen();
}

void DisplayRoot::updateScreen()
{
    if (!isComponentComplete()) {
        return;
    }
    QString wanted = m_currentScreen;
    if (!m_screens.contains(wanted)) {
        if (!wanted.isEmpty()) {
            qmlWarning(this) << "there is no screen \"" << wanted << '"';
        }
        wanted = m_screens.value(0);
    }
    if (wanted != m_currentScreen) {
        m_currentScreen = wanted;
        Q_EMIT currentScreenChanged();
    }
    if (wanted == m_shownScreen) {
        return;
    }
    m_shownScreen = wanted;
    if (m_screenItem) {
        // Code of the old screen may be what switches screens, so that it goes later.
        m_screenItem->setParentItem(nullptr);
        m_screenItem->deleteLater();
    }
    m_screenItem = wanted.isEmpty() ? nullptr : loadScreen(wanted);
}

void DisplayRoot::loadFonts()
{
    const QQmlContext* context = qmlContext(this);
    if (!context) {
        return;
    }
    // A font stays known for as long as the program runs.
    static QSet<QString> known;
    const QDir folder(QQmlFile::urlToLocalFileOrQrc(context->resolvedUrl(QUrl(QStringLiteral("fonts")))));
    const QStringList files = folder.entryList(QDir::Files, QDir::Name);
    for (const QString& name : files) {
        const QString path = folder.absoluteFilePath(name);
        if (known.contains(path)) {
            continue;
        }
        if (Common::addFontFile(path) < 0) {
            qmlWarning(this) << "the font " << path << " cannot be loaded";
        } else {
            known.insert(path);
        }
    }
}

QQuickItem* DisplayRoot::loadScreen(const QString& name)
{
    QQmlContext* context = qmlContext(this);
    if (!context) {
        return nullptr;
    }
    if (!isFileName(name) || name.startsWith(QLatin1Char('.'))) {
        qmlWarning(this) << '"' << name << "\" is no name of a screen";
        return nullptr;
    }
    const QByteArray path = "screens/" + QUrl::toPercentEncoding(name) + ".qml";
    QQmlComponent component(context->engine(), context->resolvedUrl(QUrl::fromEncoded(path)),
                            QQmlComponent::PreferSynchronous);
    std::unique_ptr<QObject> object(component.isReady() ? component.create(context) : nullptr);
    if (!object) {
        qmlWarning(this, component.errors()) << "the screen \"" << name << "\" cannot be loaded";
        return nullptr;
    }
    auto* item = qobject_cast<QQuickItem*>(object.get());
    if (!item) {
        qmlWarning(this) << "the screen \"" << name << "\" is nothing that can be shown";
        return nullptr;
    }
    object.release()->setParent(this);
    item->setParentItem(this);
    return item;
}
} // namespace Korvex::Meridane::Display
