#include "tests/app/RandomUser.h"

#include "app/CanvasPanel.h"
#include "app/EditActions.h"
#include "app/ElementPalette.h"
#include "app/MainWindow.h"
#include "app/ProjectTree.h"
#include "app/ScreenTabs.h"
#include "app/Workspace.h"

#include "host/core/canvas/CanvasRuler.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/sheet/PropertySheet.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGraphicsItem>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <array>

namespace Korvex::Meridane::Designer::Test {

namespace {

/// What ends the run, leaves the project, or starts another program.
bool isLeftOut(const QString& action)
{
    static const QStringList names{QStringLiteral("file.new"),        QStringLiteral("file.open"),
                                   QStringLiteral("file.close"),      QStringLiteral("file.quit"),
                                   QStringLiteral("project.preview"), QStringLiteral("help.showGuide")};
    return names.contains(action) || action.startsWith(QLatin1String("file.recent"))
           || action.startsWith(QLatin1String("preview."));
}

/// Closes what waits for an answer.
void closeDialogs(const QWidget* window)
{
    if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
        return;
    }
    if (QWidget* modal = QApplication::activeModalWidget()) {
        if (auto* dialog = qobject_cast<QDialog*>(modal))
            dialog->reject();
        else
            modal->close();
        return;
    }
    for (QWidget* other : QApplication::topLevelWidgets()) {
        const auto* dialog = qobject_cast<QDialog*>(other);
        if (other != window && other->isVisible() && other->isWindow() && dialog)
            other->close();
    }
}

} // namespace

RandomUser::RandomUser(MainWindow* window)
    : m_window(window)
{
    // Some of them wait in an event loop of their own.
    auto* closer = new QTimer(window);
    QObject::connect(closer, &QTimer::timeout, window, [window] { closeDialogs(window); });
    closer->start(20);
}

QVector<RandomStep> RandomUser::steps(quint32 seed, int count)
{
    // Of a hundred steps.
    constexpr std::array<int, RandomStep::KindCount> Shares{11, 14, 11, 3, 14, 14, 8, 4, 5, 5, 6, 2, 3};
    std::mt19937 random(seed);
    QVector<RandomStep> steps;
    for (int i = 0; i < count; ++i) {
        int left = int(random() % 100);
        int kind = 0;
        while (kind + 1 < RandomStep::KindCount && left >= Shares.at(std::size_t(kind))) {
            left -= Shares.at(std::size_t(kind));
            ++kind;
        }
        steps.append({RandomStep::Kind(kind), quint32(random())});
    }
    return steps;
}

void RandomUser::perform(const RandomStep& step)
{
    m_random.seed(step.seed);
    m_description.clear();
    switch (step.kind) {
    case RandomStep::DragOnCanvas:
        dragOnCanvas();
        break;
    case RandomStep::DragSelected:
        dragSelected();
        break;
    case RandomStep::ClickOnCanvas:
        clickOnCanvas();
        break;
    case RandomStep::Wheel:
        turnWheel();
        break;
    case RandomStep::Key:
        pressKey();
        break;
    case RandomStep::TriggerAction:
        triggerAction();
        break;
    case RandomStep::EditField:
        editField();
        break;
    case RandomStep::PressInSheet:
        pressInSheet();
        break;
    case RandomStep::ClickInTree:
        clickInTree();
        break;
    case RandomStep::ChooseTile:
        chooseTile();
        break;
    case RandomStep::UndoOrRedo:
        undoOrRedo();
        break;
    case RandomStep::ChangeTab:
        changeTab();
        break;
    case RandomStep::DragFromRuler:
        dragFromRuler();
        break;
    case RandomStep::KindCount:
        break;
    }
    settle();
}

void RandomUser::finish()
{
    m_description = QStringLiteral("the end");
    QTest::keyClick(canvas(), Qt::Key_Escape);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
        if (m_buttons & button)
            mouse(QEvent::MouseButtonRelease, QPointF(5, 5), button, {});
    }
    canvas()->setFocus();
    settle();
    settle();
}

int RandomUser::below(int end)
{
    return end <= 1 ? 0 : int(m_random() % quint32(end));
}

bool RandomUser::chance(int percent)
{
    return below(100) < percent;
}

QPointF RandomUser::randomPlace()
{
    const QSize size = canvas()->viewport()->size();
    return {double(below(size.width())), double(below(size.height()))};
}

Qt::KeyboardModifiers RandomUser::randomModifiers()
{
    static constexpr std::array<Qt::KeyboardModifiers, 4> Some{Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier,
                                                               Qt::ControlModifier | Qt::ShiftModifier};
    return chance(60) ? Qt::KeyboardModifiers() : Some.at(std::size_t(below(int(Some.size()))));
}

QString RandomUser::randomText()
{
    static const QStringList texts{QStringLiteral("0"),
                                   QStringLiteral("-5"),
                                   QStringLiteral("12.5"),
                                   QStringLiteral("100"),
                                   QStringLiteral("+=10"),
                                   QStringLiteral("*2"),
                                   QStringLiteral("3*7"),
                                   QStringLiteral("1/0"),
                                   QStringLiteral("99999999"),
                                   QStringLiteral("#ff8800"),
                                   QStringLiteral("red"),
                                   QStringLiteral("no such"),
                                   QString(),
                                   QStringLiteral("Wärme 21°"),
                                   QStringLiteral("dial"),
                                   QStringLiteral("a\"b\\c")};
    return texts.at(below(int(texts.size())));
}

CanvasView* RandomUser::canvas() const
{
    return m_window->workspace()->canvas();
}

DesignerObject* RandomUser::selectedElement()
{
    const QList<DesignerObject*>& selection = m_window->workspace()->session()->selection();
    return selection.isEmpty() ? nullptr : selection.at(below(int(selection.size())));
}

QList<QWidget*> RandomUser::shownFields() const
{
    QList<QWidget*> fields;
    const PropertySheet* sheet = m_window->workspace()->sheet();
    for (QWidget* widget : sheet->findChildren<QWidget*>()) {
        const bool isText = qobject_cast<QLineEdit*>(widget) || qobject_cast<QPlainTextEdit*>(widget);
        if (isText && widget->isVisible() && widget->isEnabled())
            fields.append(widget);
    }
    return fields;
}

void RandomUser::mouse(int type, const QPointF& place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick)
        m_buttons |= button;
    else if (type == QEvent::MouseButtonRelease)
        m_buttons &= ~Qt::MouseButtons(button);
    QWidget* viewport = canvas()->viewport();
    const QPoint global = viewport->mapToGlobal(place.toPoint());
    QMouseEvent event(QEvent::Type(type), place, global, type == QEvent::MouseMove ? Qt::NoButton : button, m_buttons,
                      modifiers);
    QApplication::sendEvent(viewport, &event);
}

void RandomUser::drag(const QPointF& from, const QPointF& to, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    const int moves = 1 + below(4);
    const int escapeAt = chance(15) ? below(moves) : -1;
    m_description += QStringLiteral(" from %1,%2 to %3,%4 in %5, button %6, modifiers %7%8")
                         .arg(from.x())
                         .arg(from.y())
                         .arg(to.x())
                         .arg(to.y())
                         .arg(moves)
                         .arg(int(button))
                         .arg(int(modifiers), 0, 16)
                         .arg(escapeAt >= 0 ? QStringLiteral(", Escape after %1").arg(escapeAt + 1) : QString());
    mouse(QEvent::MouseMove, from, Qt::NoButton, modifiers);
    mouse(QEvent::MouseButtonPress, from, button, modifiers);
    for (int i = 1; i <= moves; ++i) {
        mouse(QEvent::MouseMove, from + (to - from) * i / moves, Qt::NoButton, modifiers);
        if (i - 1 == escapeAt)
            QTest::keyClick(canvas(), Qt::Key_Escape);
        if (chance(20))
            QCoreApplication::processEvents();
    }
    mouse(QEvent::MouseButtonRelease, to, button, modifiers);
}

void RandomUser::dragOnCanvas()
{
    m_description = QStringLiteral("drag");
    const QPointF from = randomPlace();
    const QPointF to = randomPlace();
    const Qt::MouseButton button = chance(90) ? Qt::LeftButton : chance(50) ? Qt::MiddleButton : Qt::RightButton;
    drag(from, to, button, randomModifiers());
}

/// Takes hold of the selected element itself, or of a place on its frame, where its handles are.
void RandomUser::dragSelected()
{
    const DesignerObject* element = selectedElement();
    const GraphicsItem* item = element ? element->graphicsItem() : nullptr;
    if (!item)
        return dragOnCanvas();
    const QRectF frame = item->graphic()->sceneBoundingRect();
    const QPointF at(frame.x() + frame.width() * below(3) / 2., frame.y() + frame.height() * below(3) / 2.);
    const QPointF from = canvas()->viewportTransform().map(at).toPoint();
    const QPointF to = chance(70) ? from + QPointF(below(121) - 60, below(121) - 60) : randomPlace();
    m_description = QStringLiteral("drag %1").arg(element->getIdName());
    drag(from, to, Qt::LeftButton, randomModifiers());
}

void RandomUser::clickOnCanvas()
{
    QPointF place = randomPlace();
    const DesignerObject* element = selectedElement();
    if (element && element->graphicsItem() && chance(40)) {
        const QPointF center = element->graphicsItem()->graphic()->sceneBoundingRect().center();
        place = canvas()->viewportTransform().map(center).toPoint();
    }
    const Qt::KeyboardModifiers modifiers = randomModifiers();
    const Qt::MouseButton button = chance(85) ? Qt::LeftButton : Qt::RightButton;
    m_description = QStringLiteral("click %1,%2 button %3 modifiers %4")
                        .arg(place.x())
                        .arg(place.y())
                        .arg(int(button))
                        .arg(int(modifiers), 0, 16);
    mouse(QEvent::MouseMove, place, Qt::NoButton, modifiers);
    mouse(QEvent::MouseButtonPress, place, button, modifiers);
    mouse(QEvent::MouseButtonRelease, place, button, modifiers);
    if (button == Qt::RightButton) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place.toPoint(),
                                canvas()->viewport()->mapToGlobal(place.toPoint()), modifiers);
        QApplication::sendEvent(canvas()->viewport(), &event);
    } else if (chance(20)) {
        m_description += QStringLiteral(" twice");
        mouse(QEvent::MouseButtonDblClick, place, button, modifiers);
        mouse(QEvent::MouseButtonRelease, place, button, modifiers);
    }
}

void RandomUser::turnWheel()
{
    const Qt::KeyboardModifiers modifiers = chance(60) ? Qt::ControlModifier : Qt::NoModifier;
    const QPointF place = randomPlace();
    const int turn = chance(50) ? 120 : -120;
    m_description = QStringLiteral("wheel %1").arg(turn);
    QWheelEvent event(place, canvas()->viewport()->mapToGlobal(place), QPoint(), QPoint(0, turn), m_buttons, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(canvas()->viewport(), &event);
}

void RandomUser::pressKey()
{
    static constexpr std::array<Qt::Key, 24> Keys{
        Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,   Qt::Key_Down,   Qt::Key_Left, Qt::Key_Right,
        Qt::Key_Up,   Qt::Key_Down,  Qt::Key_Tab,  Qt::Key_Escape, Qt::Key_A,    Qt::Key_D,
        Qt::Key_C,    Qt::Key_X,     Qt::Key_V,    Qt::Key_Delete, Qt::Key_G,    Qt::Key_Return,
        Qt::Key_F2,   Qt::Key_B,     Qt::Key_Plus, Qt::Key_Minus,  Qt::Key_Home, Qt::Key_Space};
    const Qt::Key key = Keys.at(std::size_t(below(int(Keys.size()))));
    const bool isLetter = key >= Qt::Key_A && key <= Qt::Key_Z;
    const Qt::KeyboardModifiers modifiers = isLetter ? Qt::ControlModifier : randomModifiers();
    QWidget* focused = QApplication::focusWidget();
    if (!focused || chance(50)) {
        canvas()->setFocus();
        focused = canvas();
    }
    const int times = 1 + below(3);
    m_description = QStringLiteral("key %1 %2× in %3")
                        .arg(QKeySequence(int(modifiers) | key).toString())
                        .arg(times)
                        .arg(QLatin1String(focused->metaObject()->className()));
    for (int i = 0; i < times; ++i) {
        if (QWidget* now = QApplication::focusWidget())
            QTest::keyClick(now, key, modifiers);
        QCoreApplication::processEvents(); // as between the keys of a person
    }
}

void RandomUser::triggerAction()
{
    QList<QAction*> actions;
    for (QAction* action : m_window->findChildren<QAction*>()) {
        const QString& name = action->objectName();
        if (name.contains(QLatin1Char('.')) && action->isEnabled() && !action->menu() && !isLeftOut(name))
            actions.append(action);
    }
    if (actions.isEmpty())
        return;
    std::sort(actions.begin(), actions.end(),
              [](const QAction* one, const QAction* other) { return one->objectName() < other->objectName(); });
    QAction* action = actions.at(below(int(actions.size())));
    m_description = QStringLiteral("action %1").arg(action->objectName());
    action->trigger();
}

void RandomUser::editField()
{
    const QList<QWidget*> fields = shownFields();
    if (fields.isEmpty())
        return;
    QWidget* field = fields.at(below(int(fields.size())));
    const QString text = randomText();
    m_description = QStringLiteral("type \"%1\" into %2 %3")
                        .arg(text, QLatin1String(field->metaObject()->className()), field->accessibleName());
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        QTest::keyClick(field, Qt::Key_Backspace);
    for (const QChar letter : text) {
        QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }
    static constexpr std::array<Qt::Key, 5> Ends{Qt::Key_Return, Qt::Key_Tab, Qt::Key_Escape, Qt::Key_Up, Qt::Key_Down};
    const int end = below(int(Ends.size()) + 2);
    if (end < int(Ends.size())) {
        m_description += QStringLiteral(", then %1").arg(QKeySequence(Ends.at(std::size_t(end))).toString());
        QTest::keyClick(field, Ends.at(std::size_t(end)));
    }
}

void RandomUser::pressInSheet()
{
    QList<QWidget*> targets;
    for (QWidget* widget : m_window->workspace()->sheet()->findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->isEnabled()
            && (qobject_cast<QAbstractButton*>(widget) || qobject_cast<QComboBox*>(widget)))
            targets.append(widget);
    }
    if (targets.isEmpty())
        return;
    QWidget* target = targets.at(below(int(targets.size())));
    m_description =
        QStringLiteral("press %1 %2").arg(QLatin1String(target->metaObject()->className()), target->accessibleName());
    if (auto* button = qobject_cast<QAbstractButton*>(target)) {
        target->setFocus();
        QTest::keyClick(button, Qt::Key_Space);
    } else {
        target->setFocus();
        QTest::keyClick(target, chance(50) ? Qt::Key_Down : Qt::Key_Up);
    }
}

void RandomUser::clickInTree()
{
    ProjectTree* tree = m_window->workspace()->tree();
    tree->expandAll();
    QList<QModelIndex> rows;
    for (QModelIndex index = tree->model()->index(0, 0); index.isValid(); index = tree->indexBelow(index))
        rows.append(index);
    if (rows.isEmpty())
        return;
    const QModelIndex index = rows.at(below(int(rows.size())));
    tree->scrollTo(index);
    const Qt::KeyboardModifiers modifiers = chance(60) ? Qt::NoModifier : Qt::ControlModifier;
    m_description = QStringLiteral("click row %1").arg(index.data().toString());
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, modifiers, tree->visualRect(index).center());
    if (chance(20)) {
        m_description += QStringLiteral(" and rename it");
        QCoreApplication::processEvents();
        QTest::keyClick(tree, Qt::Key_F2);
        QCoreApplication::processEvents();
        if (auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget())) {
            line->setText(chance(50) ? QStringLiteral("renamed%1").arg(below(100)) : randomText());
            QTest::keyClick(line, chance(80) ? Qt::Key_Return : Qt::Key_Escape);
        }
    }
}

void RandomUser::chooseTile()
{
    ElementPalette* palette = m_window->palettePanel();
    QListWidgetItem* tile = palette->item(below(palette->count()));
    if (!tile)
        return;
    palette->scrollToItem(tile);
    m_description = QStringLiteral("place %1").arg(tile->text());
    if (chance(20)) {
        palette->setCurrentItem(tile);
        QTest::keyClick(palette, Qt::Key_Return);
        return;
    }
    QTest::mouseClick(palette->viewport(), Qt::LeftButton, {}, palette->visualItemRect(tile).center());
    const QPointF from = randomPlace();
    drag(from, chance(50) ? from : randomPlace(), Qt::LeftButton, {});
}

void RandomUser::undoOrRedo()
{
    const bool redo = chance(50);
    const int times = 1 + below(5);
    m_description = QStringLiteral("%1 %2×").arg(redo ? QStringLiteral("redo") : QStringLiteral("undo")).arg(times);
    for (int i = 0; i < times; ++i) {
        QAction* action = redo ? m_window->editActions()->redoAction() : m_window->editActions()->undoAction();
        if (action->isEnabled())
            action->trigger();
    }
}

void RandomUser::changeTab()
{
    const auto* tabs = m_window->findChild<ScreenTabs*>();
    if (!tabs || tabs->count() == 0)
        return;
    const int index = below(tabs->count());
    m_description = QStringLiteral("tab %1").arg(index);
    QTest::mouseClick(const_cast<ScreenTabs*>(tabs), Qt::LeftButton, {}, tabs->tabRect(index).center());
}

/// Pulls a guide out of a ruler; where the rulers are hidden it is only a drag along the edge.
void RandomUser::dragFromRuler()
{
    const QList<CanvasRuler*> rulers = canvas()->findChildren<CanvasRuler*>();
    if (rulers.isEmpty())
        return;
    CanvasRuler* ruler = rulers.at(below(int(rulers.size())));
    const QPoint to = ruler->mapFromGlobal(canvas()->viewport()->mapToGlobal(randomPlace().toPoint()));
    m_description = QStringLiteral("pull a guide");
    if (!ruler->isVisible())
        return;
    QTest::mousePress(ruler, Qt::LeftButton, {}, ruler->rect().center());
    for (int i = 1; i <= 3; ++i)
        QTest::mouseMove(ruler, ruler->rect().center() + (to - ruler->rect().center()) * i / 3);
    if (chance(15)) {
        m_description += QStringLiteral(", Escape");
        QTest::keyClick(canvas(), Qt::Key_Escape);
    }
    QTest::mouseRelease(ruler, Qt::LeftButton, {}, to);
}

/// Lets everything that is due happen, and closes what has opened.
void RandomUser::settle()
{
    QCoreApplication::processEvents();
    closeDialogs(m_window);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    if (QApplication::activeWindow() != m_window)
        QApplication::setActiveWindow(m_window);
}

} // namespace Korvex::Meridane::Designer::Test
