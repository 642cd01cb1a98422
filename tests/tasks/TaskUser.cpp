#include "tests/tasks/TaskUser.h"

#include "app/CommandPalette.h"
#include "app/ElementPalette.h"
#include "app/MainWindow.h"
#include "app/Workspace.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/editors/PropertyEditor.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/sheet/PropertySheet.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QListView>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QScrollArea>
#include <QTabBar>
#include <QThread>

#include <algorithm>

namespace Korvex::Meridane::Designer::Test {

namespace {

constexpr int Patience = 20000; // ms, for a slow machine
constexpr int LookInterval = 30; // ms between two looks

QString plain(QString text)
{
    return text.remove(QLatin1Char('&')).remove(QChar(0x2026));
}

QRect globalRect(const QWidget* widget)
{
    return {widget->mapToGlobal(QPoint(0, 0)), widget->size()};
}

/// The visible widgets, those of the window with the focus first.
QList<QWidget*> visibleWidgets()
{
    QList<QWidget*> tops = QApplication::topLevelWidgets();
    std::stable_partition(tops.begin(), tops.end(), [](const QWidget* top) {
        return top == QApplication::activePopupWidget() || top == QApplication::activeWindow();
    });
    QList<QWidget*> widgets;
    for (QWidget* top : std::as_const(tops)) {
        if (!top->isVisible())
            continue;
        widgets << top;
        const QList<QWidget*> below = top->findChildren<QWidget*>();
        std::copy_if(below.begin(), below.end(), std::back_inserter(widgets),
                     [](const QWidget* widget) { return widget->isVisible(); });
    }
    return widgets;
}

/// The fields of an editor in which something can be typed, from left to right.
QList<QWidget*> fieldsOf(QWidget* editor)
{
    QList<QWidget*> fields;
    const QList<QWidget*> below = editor->findChildren<QWidget*>();
    for (QWidget* widget : below) {
        const bool inner =
            qobject_cast<QAbstractSpinBox*>(widget->parentWidget()) || qobject_cast<QComboBox*>(widget->parentWidget());
        if (widget->isVisible() && !inner
            && (qobject_cast<QAbstractSpinBox*>(widget) || qobject_cast<QComboBox*>(widget)
                || qobject_cast<QLineEdit*>(widget) || widget->inherits("QPlainTextEdit")))
            fields << widget;
    }
    if (fields.isEmpty()) {
        std::copy_if(below.begin(), below.end(), std::back_inserter(fields),
                     [](const QWidget* widget) { return widget->isVisible() && widget->focusPolicy() != Qt::NoFocus; });
    }
    std::stable_sort(fields.begin(), fields.end(), [](const QWidget* a, const QWidget* b) {
        const QPoint first = a->mapToGlobal(QPoint(0, 0));
        const QPoint second = b->mapToGlobal(QPoint(0, 0));
        return qAbs(first.y() - second.y()) > 4 ? first.y() < second.y() : first.x() < second.x();
    });
    return fields;
}

} // namespace

TaskUser::TaskUser(MainWindow* window)
    : m_window(window)
{}

void TaskUser::look(const std::function<void()>& action)
{
    QMetaObject::invokeMethod(qApp, action, Qt::BlockingQueuedConnection);
}

void TaskUser::waitUntil(const QString& what, const std::function<bool()>& holds) const
{
    QElapsedTimer timer;
    timer.start();
    for (;;) {
        bool held = false;
        look([&held, &holds] { held = holds(); });
        if (held)
            return;
        if (timer.elapsed() > Patience)
            throw TaskFailure{QStringLiteral("Waited in vain for %1").arg(what)};
        QThread::msleep(LookInterval);
    }
}

QRect TaskUser::placeOf(const QString& what, const std::function<QWidget*()>& find) const
{
    QRect last;
    QRect place;
    waitUntil(what, [&] {
        const QWidget* widget = find();
        place = widget && widget->isVisible() ? globalRect(widget) : QRect();
        return place.isValid() && place == std::exchange(last, place);
    });
    return place;
}

QRect TaskUser::button(const QString& text) const
{
    return placeOf(QStringLiteral("the button \"%1\"").arg(text), [&text]() -> QWidget* {
        const QList<QWidget*> widgets = visibleWidgets();
        for (QWidget* widget : widgets) {
            const auto* found = qobject_cast<QAbstractButton*>(widget);
            if (found && found->isEnabled()
                && (plain(found->text()) == text || found->accessibleName() == text || plain(found->toolTip()) == text))
                return widget;
        }
        return nullptr;
    });
}

QPoint TaskUser::tab(const QString& text) const
{
    QPoint place;
    waitUntil(QStringLiteral("the tab \"%1\"").arg(text), [&] {
        const QList<QWidget*> widgets = visibleWidgets();
        for (const QWidget* widget : widgets) {
            const auto* bar = qobject_cast<const QTabBar*>(widget);
            for (int index = 0; bar && index < bar->count(); ++index) {
                if (plain(bar->tabText(index)) == text)
                    place = bar->mapToGlobal(bar->tabRect(index).center());
            }
        }
        return !place.isNull();
    });
    return place;
}

QRect TaskUser::named(const QString& objectName) const
{
    return placeOf(QStringLiteral("the widget \"%1\"").arg(objectName), [&objectName]() -> QWidget* {
        const QList<QWidget*> widgets = visibleWidgets();
        for (QWidget* widget : widgets) {
            if (widget->objectName() == objectName)
                return widget;
        }
        return nullptr;
    });
}

QPoint TaskUser::tile(const QString& className) const
{
    QPoint place;
    waitUntil(QStringLiteral("the palette's %1").arg(className), [&] {
        ElementPalette* palette = m_window->palettePanel();
        QListWidgetItem* item = palette->tile(className);
        if (!item || !palette->isVisible())
            return false;
        palette->scrollToItem(item);
        place = palette->viewport()->mapToGlobal(palette->visualItemRect(item).center());
        return true;
    });
    return place;
}

QRect TaskUser::partOf(const QString& propertyId, const std::function<QWidget*(QWidget* editor)>& find) const
{
    return placeOf(QStringLiteral("the field of \"%1\"").arg(propertyId), [&]() -> QWidget* {
        PropertySheet* sheet = m_window->workspace()->sheet();
        PropertyEditor* editor = sheet->editor(propertyId);
        QWidget* part = editor && editor->isVisible() ? find(editor) : nullptr;
        if (part)
            sheet->ensureWidgetVisible(part);
        return part;
    });
}

QPoint TaskUser::field(const QString& propertyId, int part) const
{
    const QRect place = partOf(propertyId, [part](QWidget* editor) { return fieldsOf(editor).value(part); });
    return {place.left() + std::min(place.width() / 2, 30), place.center().y()};
}

QPoint TaskUser::onCanvas(double x, double y) const
{
    QPoint place;
    look([&] {
        const CanvasView* canvas = m_window->workspace()->canvas();
        place = canvas->viewport()->mapToGlobal(canvas->viewportTransform().map(QPointF(x, y)).toPoint());
    });
    return place;
}

void TaskUser::moveTo(const QPoint& place) const
{
    input({QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())});
}

void TaskUser::click(const QPoint& place, const QString& modifier, int button) const
{
    moveTo(place);
    if (!modifier.isEmpty())
        input({QStringLiteral("keydown"), modifier});
    input({QStringLiteral("click"), QString::number(button)});
    if (!modifier.isEmpty())
        input({QStringLiteral("keyup"), modifier});
}

void TaskUser::doubleClick(const QPoint& place) const
{
    moveTo(place);
    input({QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("2"), QStringLiteral("--delay"),
           QStringLiteral("40"), QStringLiteral("1")});
}

void TaskUser::grabAndMove(const QPoint& from, const QPoint& to, const QString& modifier) const
{
    moveTo(from);
    if (!modifier.isEmpty())
        input({QStringLiteral("keydown"), modifier});
    QStringList arguments{QStringLiteral("mousedown"), QStringLiteral("1")};
    constexpr int Steps = 8;
    for (int step = 1; step <= Steps; ++step) {
        const QPoint at = from + (to - from) * step / Steps;
        arguments << QStringLiteral("mousemove") << QString::number(at.x()) << QString::number(at.y());
    }
    input(arguments);
}

void TaskUser::letGo(const QString& modifier) const
{
    input({QStringLiteral("mouseup"), QStringLiteral("1")});
    if (!modifier.isEmpty())
        input({QStringLiteral("keyup"), modifier});
}

void TaskUser::drag(const QPoint& from, const QPoint& to, const QString& modifier) const
{
    grabAndMove(from, to, modifier);
    letGo(modifier);
}

void TaskUser::wheel(const QPoint& place, int notches, const QString& modifier) const
{
    moveTo(place);
    if (!modifier.isEmpty())
        input({QStringLiteral("keydown"), modifier});
    input({QStringLiteral("click"), QStringLiteral("--repeat"), QString::number(qAbs(notches)),
           QString::number(notches > 0 ? 4 : 5)});
    if (!modifier.isEmpty())
        input({QStringLiteral("keyup"), modifier});
}

void TaskUser::key(const QString& keys) const
{
    input({QStringLiteral("key"), keys});
}

void TaskUser::type(const QString& text) const
{
    const bool onKeyboard = std::all_of(text.begin(), text.end(), [](QChar letter) { return letter.unicode() < 128; });
    if (onKeyboard) {
        input({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("2"), text});
        return;
    }
    // What no key gives is pasted.
    look([&text] { QGuiApplication::clipboard()->setText(text); });
    key(QStringLiteral("ctrl+v"));
}

void TaskUser::typeAt(const QPoint& place, const QString& text, const QString& end) const
{
    click(place);
    waitUntil(QStringLiteral("the cursor in the field at %1, %2").arg(place.x()).arg(place.y()), [&place] {
        const QWidget* focus = QApplication::focusWidget();
        return focus && globalRect(focus).adjusted(-30, -4, 30, 4).contains(place);
    });
    key(QStringLiteral("ctrl+a"));
    if (text.isEmpty())
        key(QStringLiteral("BackSpace"));
    else
        type(text);
    if (!end.isEmpty())
        key(end);
}

void TaskUser::fill(const QString& propertyId, int part, const QString& text) const
{
    typeAt(field(propertyId, part), text);
}

void TaskUser::draw(const QString& className, const QRectF& place, const QString& id) const
{
    click(tile(className));
    waitUntil(QStringLiteral("the armed %1").arg(className),
              [this, &className] { return m_window->workspace()->canvas()->placementClass() == className; });
    drag(onCanvas(place.left(), place.top()), onCanvas(place.right(), place.bottom()));
    waitUntil(QStringLiteral("the new %1").arg(id), [this, &id] {
        const QList<DesignerObject*>& selection = m_window->workspace()->session()->selection();
        return selection.size() == 1 && selection.first()->getIdName() == id;
    });
}

void TaskUser::command(const QString& words) const
{
    key(QStringLiteral("ctrl+k"));
    const auto palette = [this] { return m_window->findChild<CommandPalette*>(); };
    waitUntil(QStringLiteral("the cursor in the command palette"),
              [&palette] { return palette() && palette()->field()->hasFocus(); });
    type(words);
    waitUntil(QStringLiteral("a command for \"%1\"").arg(words),
              [&] { return palette()->field()->text() == words && !palette()->found().isEmpty(); });
    key(QStringLiteral("Return"));
    waitUntil(QStringLiteral("the end of the command palette"), [&palette] { return !palette()->isVisible(); });
}

void TaskUser::chooseFile(const QString& path) const
{
    waitUntil(QStringLiteral("a file dialog"), [] {
        return qobject_cast<QFileDialog*>(QApplication::activeModalWidget())
               && qobject_cast<QLineEdit*>(QApplication::focusWidget());
    });
    key(QStringLiteral("ctrl+a"));
    type(path);
    waitUntil(QStringLiteral("the typed path"), [&path] {
        const auto* edit = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        return edit && edit->text() == path;
    });
    key(QStringLiteral("Return"));
    waitUntil(QStringLiteral("the end of the file dialog"),
              [] { return !qobject_cast<QFileDialog*>(QApplication::activeModalWidget()); });
}

QString TaskUser::pictureFile(const QString& name)
{
    const QString folder = qEnvironmentVariable("MERIDANE_PICTURES", QStringLiteral(MERIDANE_TASK_PICTURES));
    return QDir(folder).filePath(name + QStringLiteral(".png"));
}

void TaskUser::picture(const QString& name) const
{
    const QString file = pictureFile(name);
    bool saved = false;
    // The same twice: whatever fades or repaints has come to rest.
    QImage last;
    waitUntil(QStringLiteral("a screen at rest"), [&last] {
        const QImage now = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
        return !now.isNull() && now == std::exchange(last, now);
    });
    look([&] { saved = QDir().mkpath(QFileInfo(file).path()) && last.save(file); });
    if (!saved)
        throw TaskFailure{QStringLiteral("%1 cannot be written").arg(file)};
}

void TaskUser::input(const QStringList& arguments) const
{
    QProcess tool;
    tool.start(QStringLiteral("xdotool"), arguments);
    if (!tool.waitForFinished(Patience) || tool.exitCode() != 0)
        throw TaskFailure{QStringLiteral("xdotool %1: %2")
                              .arg(arguments.join(QLatin1Char(' ')), QString::fromUtf8(tool.readAllStandardError()))};
}

} // namespace Korvex::Meridane::Designer::Test
