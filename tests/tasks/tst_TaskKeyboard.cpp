#include "tests/tasks/TaskProgram.h"

#include "app/MainWindow.h"
#include "app/ProjectDocument.h"
#include "app/Workspace.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/editors/PropertyEditor.h"
#include "host/core/objects/Screen.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/PropertySheet.h"

#include <QApplication>
#include <QFileInfo>
#include <QLineEdit>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::TaskProgram;
using Test::TaskUser;

/// From New to Export without the mouse.
class tst_TaskKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDisplayIsMadeWithTheKeyboardAlone()
    {
        const QString exported = m_program.folder() + QStringLiteral("/export");
        QVERIFY(QDir().mkpath(exported));
        const QString failure = m_program.carryOut([&](const TaskUser& user) {
            user.moveTo(QPoint(4, 4));
            user.key(QStringLiteral("ctrl+n"));
            user.waitUntil(QStringLiteral("the question for the new project"),
                           [] { return qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr; });
            user.key(QStringLiteral("ctrl+a"));
            user.type(QStringLiteral("Kettle"));
            user.key(QStringLiteral("Return"));
            user.waitUntil(QStringLiteral("the new project"),
                           [this] { return m_program.window()->document()->name() == QLatin1String("Kettle"); });

            user.command(QStringLiteral("Insert Rectangle"));
            user.waitUntil(QStringLiteral("the rectangle"), [this] { return isSelected("rectangle1"); });
            goToCanvas(user);
            const QString place = value("rectangle1", "position");
            user.key(QStringLiteral("shift+Right"));
            user.key(QStringLiteral("Down"));
            user.waitUntil(QStringLiteral("the moved rectangle"),
                           [&] { return value("rectangle1", "position") != place; });

            user.command(QStringLiteral("Insert Text Box"));
            user.waitUntil(QStringLiteral("the text box"), [this] { return isSelected("textBox1"); });
            // To the first field of the sheet, and on by Tab to the text.
            user.key(QStringLiteral("F4"));
            user.waitUntil(QStringLiteral("the cursor in the sheet"), [this] {
                const PropertySheet* sheet = m_program.window()->workspace()->sheet();
                return QApplication::focusWidget() && sheet->isAncestorOf(QApplication::focusWidget());
            });
            for (int steps = 0; steps < 40 && !isTyping("text"); ++steps)
                user.key(QStringLiteral("Tab"));
            user.key(QStringLiteral("ctrl+a"));
            user.type(QStringLiteral("98.5"));
            user.waitUntil(QStringLiteral("the typed text"),
                           [this] { return value("textBox1", "text") == QLatin1String("98.5"); });

            goToCanvas(user);
            user.key(QStringLiteral("ctrl+a"));
            user.waitUntil(QStringLiteral("both selected"), [this] { return session()->selection().size() == 2; });
            user.command(QStringLiteral("Align Left"));
            user.waitUntil(QStringLiteral("one left edge"), [this] {
                return value("rectangle1", "position").section(QLatin1Char(','), 0, 0)
                       == value("textBox1", "position").section(QLatin1Char(','), 0, 0);
            });
            user.picture(QStringLiteral("keyboard-drawn"));

            user.key(QStringLiteral("ctrl+s"));
            user.chooseFile(m_program.folder() + QStringLiteral("/kettle"));
            user.waitUntil(QStringLiteral("the saved project"),
                           [this] { return !m_program.window()->document()->isModified(); });
            user.command(QStringLiteral("Export QML"));
            user.chooseFile(exported);
            user.waitUntil(QStringLiteral("the export"),
                           [&] { return QFileInfo::exists(exported + QStringLiteral("/Main.qml")); });
            user.picture(QStringLiteral("keyboard-exported"));
        });
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
        QVERIFY(QFileInfo::exists(exported + QStringLiteral("/screens/main.qml")));
        QVERIFY(QFileInfo::exists(m_program.folder() + QStringLiteral("/kettle/project.json")));
    }

private:
    [[nodiscard]] EditSession* session() const { return m_program.window()->workspace()->session(); }
    [[nodiscard]] bool isSelected(const char* id) const
    {
        const QList<DesignerObject*>& selection = session()->selection();
        return selection.size() == 1 && selection.first()->getIdName() == QLatin1String(id);
    }
    [[nodiscard]] QString value(const char* id, const char* property) const
    {
        const DesignerObject* object = session()->currentScreen()->element(QString::fromLatin1(id));
        return object ? object->getProperty(QString::fromLatin1(property))->valueString() : QString();
    }
    [[nodiscard]] bool isTyping(const char* property) const
    {
        bool typing = false;
        TaskUser::look([&] {
            const QWidget* editor = m_program.window()->workspace()->sheet()->editor(QString::fromLatin1(property));
            typing = editor && QApplication::focusWidget() && editor->isAncestorOf(QApplication::focusWidget());
        });
        return typing;
    }
    void goToCanvas(const TaskUser& user) const
    {
        user.command(QStringLiteral("Go to Canvas"));
        user.waitUntil(QStringLiteral("the focus on the canvas"),
                       [this] { return m_program.window()->workspace()->canvas()->hasFocus(); });
    }

    TaskProgram m_program;
};

int main(int argc, char* argv[])
{
    return TaskProgram::run(argc, argv, [] { return std::make_unique<tst_TaskKeyboard>(); });
}

#include "tst_TaskKeyboard.moc"
