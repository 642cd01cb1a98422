#include "tests/tasks/TaskProgram.h"

#include "app/FileActions.h"
#include "app/MainWindow.h"
#include "app/ProjectDocument.h"
#include "app/Workspace.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/editors/FontEditor.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/ElementJson.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/PropertySheet.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/ColorSwatch.h"
#include "host/core/widgets/ComboBox.h"
#include "host/core/widgets/FontWidget.h"
#include "host/core/widgets/HexColorField.h"
#include "host/core/widgets/NineGrid.h"
#include "host/core/widgets/PlainTextEdit.h"
#include "host/core/widgets/SpinBox.h"

#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QToolButton>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::TaskFailure;
using Test::TaskProgram;
using Test::TaskUser;

namespace {

QString plainNumber(double value)
{
    return ValueConversion::toQmlString(value, 6);
}

} // namespace

/// The first screen of the thermostat, drawn from an empty project as a person draws it: by the palette, the mouse and the
/// property sheet. In the end its file is the example's.
class tst_TaskThermostat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstScreenIsDrawnFromAnEmptyProject()
    {
        QFile file(QStringLiteral(MERIDANE_EXAMPLES "/thermostat/screens/main.json"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonObject wanted = QJsonDocument::fromJson(file.readAll()).object();
        const QString failure = m_program.carryOut([this, &wanted](const TaskUser& user) {
            m_user = &user;
            makeProject();
            setUpScreen(wanted.value(QLatin1String("properties")).toObject());
            const QJsonArray elements = wanted.value(QLatin1String("elements")).toArray();
            for (const auto& element : elements)
                drawElement(element.toObject());
            user.key(QStringLiteral("ctrl+F6"));
            user.key(QStringLiteral("Escape"));
            user.moveTo(QPoint(4, 4));
            user.picture(QStringLiteral("thermostat-drawn"));
            user.key(QStringLiteral("ctrl+s"));
            user.chooseFile(m_program.folder() + QStringLiteral("/thermostat"));
            user.waitUntil(QStringLiteral("the saved project"),
                           [this] { return !m_program.window()->document()->isModified(); });
        });
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
        QCOMPARE(drawn(m_program.folder() + QStringLiteral("/thermostat/screens/main.json")), asDrawn(wanted));
    }

private:
    [[nodiscard]] EditSession* session() const { return m_program.window()->workspace()->session(); }
    [[nodiscard]] DesignerObject* selected() const { return session()->selection().value(0); }

    [[nodiscard]] QString value(const QString& property) const
    {
        QString text;
        TaskUser::look([&] {
            const auto found = selected() ? selected()->getProperty(property) : QSharedPointer<DesignerProperty>();
            text = found ? found->valueString() : QString();
        });
        return text;
    }

    void makeProject() const
    {
        m_user->key(QStringLiteral("ctrl+n"));
        m_user->waitUntil(QStringLiteral("the question for the new project"),
                          [] { return qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr; });
        m_user->key(QStringLiteral("ctrl+a"));
        m_user->type(QStringLiteral("Thermostat"));
        m_user->key(QStringLiteral("Return"));
        m_user->waitUntil(QStringLiteral("the new project"), [this] {
            return m_program.window()->document()->name() == QLatin1String("Thermostat")
                   && !QApplication::activeModalWidget();
        });
        m_user->key(QStringLiteral("ctrl+1"));
    }

    /// With nothing selected the sheet shows the screen.
    void setUpScreen(const QJsonObject& properties) const
    {
        m_user->fill(QStringLiteral("color"), 0, properties.value(QLatin1String("color")).toString());
        m_user->fill(QStringLiteral("name"), 0, properties.value(QLatin1String("name")).toString());
    }

    void drawElement(const QJsonObject& element)
    {
        const QString id = element.value(QLatin1String("id")).toString();
        const QString className = element.value(QLatin1String("class")).toString();
        const QJsonObject wanted = element.value(QLatin1String("properties")).toObject();
        const auto text = [&wanted](const char* property) {
            return wanted.value(QString::fromLatin1(property)).toString();
        };
        const QPointF position = ValueConversion::toPoint(text("position"));
        const QSizeF size = text("size").isEmpty() ? QSizeF() : ValueConversion::toSize(text("size"));
        if (className == QLatin1String("TextBox") && m_textBoxDrawn)
            copyTextBox(id);
        else
            place(className, QRectF(position, size), id);

        typeText(QStringLiteral("text"), text("text"));
        setAlignment(text("alignment"));
        setFont(text("font"));
        typeNumber(QStringLiteral("edges"), text("edges"));
        typeNumber(QStringLiteral("edgeLength"), text("edgeLength"));
        setBorder(text("border"));
        if (size.isValid()) {
            const double border =
                className == QLatin1String("TextBox") ? 0 : ValueConversion::toBorderInfo(text("border")).width();
            typePair(QStringLiteral("boundingSize"), {size.width() + border, size.height() + border});
        }
        typeNumber(QStringLiteral("cornerRadius"), text("cornerRadius"));
        if (!text("color").isEmpty() && value(QStringLiteral("color")) != text("color"))
            m_user->fill(QStringLiteral("color"), 0, text("color"));
        turn(text("rotation"));
        typePair(QStringLiteral("position"), position);
        for (auto property = wanted.constBegin(); property != wanted.constEnd(); ++property) {
            m_user->waitUntil(
                QStringLiteral("%1 of %2 to be %3 (it is %4)")
                    .arg(property.key(), id, property->toString(), value(property.key())),
                [&] {
                    return selected() && selected()->getProperty(property.key())->valueString() == property->toString();
                });
        }
    }

    /// Clicks the tile, drags on the canvas (Ctrl lets nothing snap), and gives the element its name.
    void place(const QString& className, const QRectF& where, const QString& id)
    {
        DesignerObject* before = nullptr;
        TaskUser::look([&] { before = selected(); });
        m_user->click(m_user->tile(className));
        m_user->waitUntil(QStringLiteral("the armed %1").arg(className),
                          [&] { return m_program.window()->workspace()->canvas()->placementClass() == className; });
        const QRectF dragged = where.size().isValid() ? where : QRectF(where.topLeft(), QSizeF(20, 20));
        m_user->drag(m_user->onCanvas(dragged.left(), dragged.top()),
                     m_user->onCanvas(dragged.right(), dragged.bottom()), QStringLiteral("ctrl"));
        m_user->waitUntil(QStringLiteral("the new %1").arg(id),
                          [&] { return selected() && selected() != before && selected()->className() == className; });
        name(id);
        m_textBoxDrawn = m_textBoxDrawn || className == QLatin1String("TextBox");
    }

    /// The first text box has the font: the others are copies of it.
    void copyTextBox(const QString& id)
    {
        DesignerObject* before = nullptr;
        TaskUser::look([&] { before = selected(); });
        m_user->command(QStringLiteral("Select clock"));
        m_user->waitUntil(QStringLiteral("the selected clock"),
                          [this] { return selected() && selected()->getIdName() == QLatin1String("clock"); });
        m_user->key(QStringLiteral("ctrl+c"));
        m_user->key(QStringLiteral("ctrl+v"));
        m_user->waitUntil(QStringLiteral("the copied text box"), [&] {
            return selected() && selected() != before && selected()->getIdName() != QLatin1String("clock");
        });
        name(id);
    }

    void name(const QString& id) const
    {
        TaskUser::look([this] { m_program.window()->workspace()->sheet()->ensureVisible(0, 0); });
        const QRect field = m_user->named(QStringLiteral("sheetId"));
        m_user->typeAt(field.center(), id);
        m_user->waitUntil(QStringLiteral("the name %1").arg(id),
                          [&] { return selected() && selected()->getIdName() == id; });
    }

    void typeNumber(const QString& property, const QString& wanted) const
    {
        if (!wanted.isEmpty() && value(property) != wanted)
            m_user->fill(property, 0, wanted);
    }

    void typePair(const QString& property, const QPointF& wanted) const
    {
        const QPointF present = ValueConversion::toPoint(value(property));
        if (present.x() != wanted.x())
            m_user->fill(property, 0, plainNumber(wanted.x()));
        if (present.y() != wanted.y())
            m_user->fill(property, 1, plainNumber(wanted.y()));
    }

    void typeText(const QString& property, const QString& wanted) const
    {
        if (wanted.isEmpty() || value(property) == wanted)
            return;
        const QRect field =
            m_user->partOf(property, [](QWidget* editor) -> QWidget* { return editor->findChild<PlainTextEdit*>(); });
        m_user->typeAt(field.center(), wanted, {});
    }

    void setAlignment(const QString& wanted) const
    {
        if (wanted.isEmpty() || value(QStringLiteral("alignment")) == wanted)
            return;
        // Three rows of three: from top left to bottom right.
        const Qt::Alignment alignment(wanted.toInt());
        const auto third = [&alignment](Qt::AlignmentFlag middle, Qt::AlignmentFlag last) {
            return alignment.testFlag(last) ? 2 : alignment.testFlag(middle) ? 1 : 0;
        };
        const int column = third(Qt::AlignHCenter, Qt::AlignRight);
        const int row = third(Qt::AlignVCenter, Qt::AlignBottom);
        const QRect button = m_user->partOf(QStringLiteral("alignment"), [&](QWidget* editor) -> QWidget* {
            return editor->findChildren<QToolButton*>(QStringLiteral("textAlignment")).value(3 * row + column);
        });
        m_user->click(button.center());
    }

    void setFont(const QString& wanted) const
    {
        if (wanted.isEmpty() || value(QStringLiteral("font")) == wanted)
            return;
        const QString font = QStringLiteral("font");
        const QFont present = ValueConversion::toFont(value(font));
        if (present.family() != ValueConversion::toFont(wanted).family()) {
            const QRect import = m_user->partOf(font, [](QWidget* editor) -> QWidget* {
                return qobject_cast<FontEditor*>(editor)->fontWidget()->importButton();
            });
            m_user->click(import.center());
            m_user->chooseFile(QStringLiteral(MERIDANE_EXAMPLES "/thermostat/fonts/PanelSegments.otf"));
            const QRect unit = m_user->partOf(font, [](QWidget* editor) -> QWidget* {
                return qobject_cast<FontEditor*>(editor)->fontWidget()->unitBox();
            });
            m_user->click(unit.center());
            m_user->waitUntil(QStringLiteral("the list of units"), [] { return QApplication::activePopupWidget(); });
            m_user->key(QStringLiteral("Down"));
            m_user->key(QStringLiteral("Return"));
            m_user->waitUntil(QStringLiteral("a size in pixels"), [this] {
                return selected()
                    ->getProperty(QStringLiteral("font"))
                    ->valueString()
                    .contains(QLatin1String("pixelSize"));
            });
        }
        const QRect size = m_user->partOf(font, [](QWidget* editor) -> QWidget* {
            return qobject_cast<FontEditor*>(editor)->fontWidget()->sizeField();
        });
        m_user->typeAt(QPoint(size.left() + 20, size.center().y()),
                       QString::number(ValueConversion::toFont(wanted).pixelSize()));
    }

    void setBorder(const QString& wanted) const
    {
        const QString border = QStringLiteral("border");
        if (wanted.isEmpty() || value(border) == wanted)
            return;
        const BorderInfo info = ValueConversion::toBorderInfo(wanted);
        m_user->fill(border, 0, QString::number(info.width()));
        if (ValueConversion::toBorderInfo(value(border)).color() == info.color())
            return;
        const QRect swatch =
            m_user->partOf(border, [](QWidget* editor) -> QWidget* { return editor->findChild<ColorSwatch*>(); });
        m_user->click(swatch.center());
        const QRect hex = m_user->placeOf(QStringLiteral("the field of the colour"), []() -> QWidget* {
            const QWidget* popup = QApplication::activePopupWidget();
            return popup ? popup->findChild<HexColorField*>() : nullptr;
        });
        m_user->typeAt(hex.center(), info.color().name());
        m_user->waitUntil(QStringLiteral("the colour of the border"), [&] {
            return ValueConversion::toBorderInfo(selected()->getProperty(border)->valueString()).color()
                   == info.color();
        });
        if (popupIsOpen())
            m_user->key(QStringLiteral("Return"));
        m_user->waitUntil(QStringLiteral("the end of the colours"), [] { return !QApplication::activePopupWidget(); });
    }

    static bool popupIsOpen()
    {
        bool open = false;
        TaskUser::look([&open] { open = QApplication::activePopupWidget() != nullptr; });
        return open;
    }

    void turn(const QString& wanted) const
    {
        const QString rotation = QStringLiteral("rotation");
        if (wanted.isEmpty() || value(rotation) == wanted)
            return;
        const RotationInfo info = ValueConversion::toRotationInfo(wanted);
        if (info.fixedPoint() == QLatin1String("BottomRight")) {
            const QRect grid =
                m_user->partOf(rotation, [](QWidget* editor) -> QWidget* { return editor->findChild<NineGrid*>(); });
            m_user->click(grid.bottomRight() - QPoint(5, 5));
        }
        m_user->fill(rotation, 0, plainNumber(info.angle()));
    }

    /// The screen's file without what the designer keeps for itself.
    static QJsonObject asDrawn(QJsonObject screen)
    {
        QJsonArray elements = screen.value(QLatin1String("elements")).toArray();
        for (QJsonValueRef entry : elements) {
            QJsonObject element = entry.toObject();
            element.remove(QLatin1String("editor"));
            entry = element;
        }
        screen.insert(QLatin1String("elements"), elements);
        return screen;
    }

    static QJsonObject drawn(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? asDrawn(QJsonDocument::fromJson(file.readAll()).object())
                                              : QJsonObject();
    }

    TaskProgram m_program;
    const TaskUser* m_user = nullptr;
    bool m_textBoxDrawn = false;
};

int main(int argc, char* argv[])
{
    return TaskProgram::run(argc, argv, [] { return std::make_unique<tst_TaskThermostat>(); });
}

#include "tst_TaskThermostat.moc"
