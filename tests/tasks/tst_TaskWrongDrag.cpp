#include "tests/tasks/TaskProgram.h"

#include "app/MainWindow.h"
#include "app/Workspace.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/Screen.h"
#include "host/core/properties/DesignerProperty.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::TaskProgram;
using Test::TaskUser;

/// Somebody drags what was not meant to be dragged, and gets it back.
class tst_TaskWrongDrag : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void escapeTakesBackADragUnderWay()
    {
        const QString failure = m_program.carryOut([this](const TaskUser& user) {
            user.draw(QStringLiteral("Rectangle"), QRectF(100, 80, 200, 120), QStringLiteral("rectangle1"));
            user.grabAndMove(user.onCanvas(200, 140), user.onCanvas(450, 300));
            user.waitUntil(QStringLiteral("the dragged rectangle"),
                           [this] { return !session()->undoStack()->isBlocked() ? false : !pending().isEmpty(); });
            user.picture(QStringLiteral("drag-under-way"));
            user.key(QStringLiteral("Escape"));
            user.waitUntil(QStringLiteral("the end of the drag"),
                           [this] { return !m_program.window()->workspace()->canvas()->isGestureRunning(); });
            user.letGo();
            user.waitUntil(QStringLiteral("the rectangle in its place"),
                           [this] { return value("position") == QLatin1String("100,80"); });
            user.picture(QStringLiteral("drag-taken-back"));
        });
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
        QCOMPARE(session()->undoStack()->count(), 1);
    }

    void undoTakesBackADragThatHasEnded()
    {
        const QString failure = m_program.carryOut([this](const TaskUser& user) {
            user.drag(user.onCanvas(200, 140), user.onCanvas(460, 310));
            user.waitUntil(QStringLiteral("the moved rectangle"),
                           [this] { return value("position") != QLatin1String("100,80"); });
            user.key(QStringLiteral("ctrl+z"));
            user.waitUntil(QStringLiteral("the rectangle in its place"),
                           [this] { return value("position") == QLatin1String("100,80"); });
            user.picture(QStringLiteral("drag-undone"));
            user.key(QStringLiteral("ctrl+shift+z"));
            user.waitUntil(QStringLiteral("the moved rectangle"),
                           [this] { return value("position") != QLatin1String("100,80"); });
        });
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
        QCOMPARE(session()->undoStack()->count(), 2);
    }

private:
    [[nodiscard]] EditSession* session() const { return m_program.window()->workspace()->session(); }
    [[nodiscard]] QVector<PropertyChange> pending() const
    {
        return m_program.window()->workspace()->canvas()->pendingChanges();
    }
    [[nodiscard]] QString value(const char* property) const
    {
        const DesignerObject* rectangle = session()->currentScreen()->element(QStringLiteral("rectangle1"));
        return rectangle->getProperty(QString::fromLatin1(property))->valueString();
    }

    TaskProgram m_program;
};

int main(int argc, char* argv[])
{
    return TaskProgram::run(argc, argv, [] { return std::make_unique<tst_TaskWrongDrag>(); });
}

#include "tst_TaskWrongDrag.moc"
