#include "tests/tasks/TaskProgram.h"

#include "app/CommandPalette.h"
#include "app/MainWindow.h"
#include "app/Workspace.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QLineEdit>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::TaskProgram;
using Test::TaskUser;

/// Somebody who does not know where a command stands finds it by its name and uses it.
class tst_TaskCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void threeElementsAreDistributedByACommandFoundByItsName()
    {
        const QString failure = m_program.carryOut([this](const TaskUser& user) {
            user.key(QStringLiteral("ctrl+1"));
            user.draw(QStringLiteral("Rectangle"), QRectF(60, 100, 80, 60), QStringLiteral("rectangle1"));
            user.draw(QStringLiteral("Rectangle"), QRectF(190, 240, 80, 60), QStringLiteral("rectangle2"));
            user.draw(QStringLiteral("Rectangle"), QRectF(520, 330, 80, 60), QStringLiteral("rectangle3"));
            user.key(QStringLiteral("ctrl+a"));
            user.waitUntil(QStringLiteral("three selected"), [this] { return session()->selection().size() == 3; });
            // A few letters are enough.
            user.key(QStringLiteral("ctrl+k"));
            user.waitUntil(QStringLiteral("the command palette"), [this] {
                const auto* palette = m_program.window()->findChild<CommandPalette*>();
                return palette && palette->field()->hasFocus();
            });
            user.type(QStringLiteral("distr hor"));
            user.waitUntil(QStringLiteral("what is found"), [this] {
                const auto* palette = m_program.window()->findChild<CommandPalette*>();
                return palette->field()->text() == QLatin1String("distr hor") && !palette->found().isEmpty();
            });
            user.picture(QStringLiteral("command-found"));
            user.key(QStringLiteral("Return"));
            user.waitUntil(QStringLiteral("equal gaps"), [this] { return place(2) - place(1) == place(3) - place(2); });
            user.moveTo(QPoint(4, 4));
            user.picture(QStringLiteral("command-used"));
        });
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
        QCOMPARE(session()->undoStack()->count(), 4);
    }

private:
    [[nodiscard]] EditSession* session() const { return m_program.window()->workspace()->session(); }
    /// The left edge of a rectangle.
    [[nodiscard]] double place(int number) const
    {
        const DesignerObject* rectangle =
            session()->currentScreen()->element(QStringLiteral("rectangle%1").arg(number));
        return ValueConversion::toPoint(rectangle->getProperty(QStringLiteral("position"))->valueString()).x();
    }

    TaskProgram m_program;
};

int main(int argc, char* argv[])
{
    return TaskProgram::run(argc, argv, [] { return std::make_unique<tst_TaskCommand>(); });
}

#include "tst_TaskCommand.moc"
