#include "tests/tasks/TaskProgram.h"

#include "app/MainWindow.h"
#include "app/Workspace.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/PropertySheet.h"
#include "host/core/values/ValueConversion.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::TaskProgram;
using Test::TaskUser;

/// Ten lamps of the thermostat's dial get another look at once.
class tst_TaskRestyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(!m_program.openCopy(QStringLiteral("thermostat")).isEmpty()); }

    void tenElementsAreRestyledAtOnce()
    {
        const QString failure = m_program.carryOut([this](const TaskUser& user) {
            user.key(QStringLiteral("ctrl+1"));
            for (int lamp = 1; lamp <= 10; ++lamp)
                user.click(centerOf(user, lamp), lamp == 1 ? QString() : QStringLiteral("shift"));
            user.waitUntil(QStringLiteral("ten selected lamps"),
                           [this] { return session()->selection().size() == 10; });
            user.waitUntil(QStringLiteral("their properties"),
                           [this] { return m_program.window()->workspace()->sheet()->objects().size() == 10; });
            user.moveTo(QPoint(4, 4));
            user.picture(QStringLiteral("ten-selected"));
            user.fill(QStringLiteral("color"), 0, QStringLiteral("#3ecf8e"));
            user.fill(QStringLiteral("border"), 0, QStringLiteral("2"));
            user.fill(QStringLiteral("boundingSize"), 0, QStringLiteral("+=3"));
            user.waitUntil(QStringLiteral("the last edit"), [this] { return session()->undoStack()->count() == 3; });
            user.moveTo(QPoint(4, 4));
            user.picture(QStringLiteral("ten-restyled"));
        });
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
        for (int lamp = 1; lamp <= 10; ++lamp) {
            QCOMPARE(value(lamp, "color"), QStringLiteral("#3ecf8e"));
            QCOMPARE(ValueConversion::toBorderInfo(value(lamp, "border")).width(), 2.);
            QCOMPARE(ValueConversion::toSize(value(lamp, "boundingSize")), QSizeF(14, 11));
        }
        QVERIFY(value(11, "color") != QLatin1String("#3ecf8e"));
    }

    void threeUndosBringTheOldLookBack()
    {
        const QString failure = m_program.carryOut([this](const TaskUser& user) {
            for (int step = 0; step < 3; ++step)
                user.key(QStringLiteral("ctrl+z"));
            user.waitUntil(QStringLiteral("the old look"), [this] { return session()->undoStack()->isClean(); });
        });
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
        QCOMPARE(value(11, "color"), QStringLiteral("#ffc266"));
        QCOMPARE(ValueConversion::toSize(value(1, "size")), QSizeF(9, 9));
    }

private:
    [[nodiscard]] EditSession* session() const { return m_program.window()->workspace()->session(); }
    [[nodiscard]] QString value(int lamp, const char* property) const
    {
        const QString id = QStringLiteral("setPointLamp%1").arg(lamp, 2, 10, QLatin1Char('0'));
        const DesignerObject* object = session()->currentScreen()->element(id);
        return object ? object->getProperty(QString::fromLatin1(property))->valueString() : QString();
    }
    [[nodiscard]] QPoint centerOf(const TaskUser& user, int lamp) const
    {
        QPointF center;
        TaskUser::look([&] {
            const QSizeF size = ValueConversion::toSize(value(lamp, "size"));
            center = ValueConversion::toPoint(value(lamp, "position")) + QPointF(size.width(), size.height()) / 2;
        });
        return user.onCanvas(center.x(), center.y());
    }

    TaskProgram m_program;
};

int main(int argc, char* argv[])
{
    return TaskProgram::run(argc, argv, [] { return std::make_unique<tst_TaskRestyle>(); });
}

#include "tst_TaskRestyle.moc"
