#include "tests/tasks/GuidePictures.h"
#include "tests/tasks/TaskProgram.h"

#include "app/AppSettings.h"
#include "app/Appearance.h"
#include "app/CardGrid.h"
#include "app/CommandPalette.h"
#include "app/FindPanel.h"
#include "app/ImageList.h"
#include "app/ImagePanel.h"
#include "app/LiveDisplay.h"
#include "app/LivePreviewPanel.h"
#include "app/MainWindow.h"
#include "app/ProblemsPanel.h"
#include "app/ProjectThumbnails.h"
#include "app/ResultPanels.h"
#include "app/ScreenListModel.h"
#include "app/ScreensPanel.h"
#include "app/ShortcutsDialog.h"
#include "app/StartPage.h"
#include "app/Workspace.h"

#include "host/core/canvas/CanvasGuides.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/commands/ChangeRecording.h"
#include "host/core/editors/PropertyEditor.h"
#include "host/core/objects/Screen.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/PropertySheet.h"
#include "host/core/widgets/ColorSwatch.h"
#include "host/core/widgets/FontFamilyBox.h"
#include "host/core/widgets/PlainTextEdit.h"

#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QLineEdit>
#include <QTreeWidget>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::GuidePictures;
using Test::TaskFailure;
using Test::TaskProgram;
using Test::TaskUser;

/// Every picture of the user guide: the window in a state that real mouse and keys have brought about.
class tst_GuidePictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The live preview looks for the display beside the program.
        QVERIFY(QFile::exists(viewerLink()) || QFile::link(QStringLiteral(MERIDANE_VIEWER), viewerLink()));
    }
    void init()
    {
        // Every picture shows the program as it comes.
        AppSettings().clear();
        m_program = std::make_unique<TaskProgram>();
    }
    void cleanup()
    {
        m_program.reset();
        Appearance::apply(Appearance::Scheme::Light);
    }

    void startPage()
    {
        resizeWindow(QSize(1120, 780));
        const QString cluster = m_program->openCopy(QStringLiteral("cluster"));
        QTRY_VERIFY(!ProjectThumbnails::stored(cluster).isNull());
        const QString thermostat = m_program->openCopy(QStringLiteral("thermostat"));
        QTRY_VERIFY(!ProjectThumbnails::stored(thermostat).isNull());
        carryOut([this](const TaskUser& user) {
            user.command(QStringLiteral("Start Page"));
            user.waitUntil(QStringLiteral("pictures of the examples"), [this] {
                const CardGrid* examples = window()->startPage() ? window()->startPage()->examples() : nullptr;
                for (int row = 0; examples && row < examples->count(); ++row) {
                    if (examples->item(row)->data(CardGrid::SymbolRole).toBool())
                        return false;
                }
                return examples != nullptr;
            });
            save(user, QStringLiteral("start-page"), rectOf(window()));
        });
    }

    void firstScreen()
    {
        resizeWindow(QSize(1240, 760));
        window()->showStartPage();
        carryOut([this](const TaskUser& user) {
            const QRect size = user.placeOf(QStringLiteral("the sizes of panels"), [this]() -> QWidget* {
                return window()->startPage() ? window()->startPage()->panels()->viewport() : nullptr;
            });
            QPoint card;
            TaskUser::look([&] {
                const CardGrid* panels = window()->startPage()->panels();
                card = size.topLeft() + panels->visualItemRect(panels->item(1)).center();
            });
            user.click(card);
            user.waitUntil(QStringLiteral("a screen of 480 × 272"), [this] {
                return !window()->startPage() && session()->currentScreen()
                       && session()->currentScreen()->getProperty(QStringLiteral("size"))->valueString()
                              == QLatin1String("480,272");
            });
            user.key(QStringLiteral("ctrl+0"));
            user.draw(QStringLiteral("Rectangle"), QRectF(20, 20, 440, 150), QStringLiteral("rectangle1"));
            user.fill(QStringLiteral("color"), 0, QStringLiteral("#17303f"));
            user.fill(QStringLiteral("cornerRadius"), 0, QStringLiteral("16"));

            user.draw(QStringLiteral("TextBox"), QRectF(40, 45, 280, 100), QStringLiteral("textBox1"));
            const QRect text = user.partOf(QStringLiteral("text"), [](QWidget* editor) -> QWidget* {
                return editor->findChild<PlainTextEdit*>();
            });
            user.typeAt(text.center(), QStringLiteral("92 °C"), {});
            user.waitUntil(QStringLiteral("the text"),
                           [this] { return value("textBox1", "text") == QStringLiteral("92 °C"); });
            user.fill(QStringLiteral("color"), 0, QStringLiteral("#ffffff"));
            const QRect family = user.partOf(QStringLiteral("font"), [](QWidget* editor) -> QWidget* {
                return editor->findChild<FontFamilyBox*>();
            });
            user.typeAt(family.center() - QPoint(20, 0), QStringLiteral("DejaVu Sans"));
            user.waitUntil(QStringLiteral("the font"),
                           [this] { return value("textBox1", "font").contains(QLatin1String("DejaVu Sans")); });
            user.fill(QStringLiteral("font"), 1, QStringLiteral("48"));
            user.waitUntil(QStringLiteral("the size of the font"),
                           [this] { return value("textBox1", "font").contains(QLatin1String("48")); });

            user.draw(QStringLiteral("Ellipse"), QRectF(40, 190, 60, 60), QStringLiteral("ellipse1"));
            user.key(QStringLiteral("ctrl+F6"));
            user.key(QStringLiteral("ctrl+d"));
            user.waitUntil(QStringLiteral("the copy"), [this] { return isSelected("ellipse2"); });
            user.drag(center(user, "ellipse2"), user.onCanvas(240, 220));
            user.key(QStringLiteral("ctrl+d"));
            user.waitUntil(QStringLiteral("the second copy"), [this] { return isSelected("ellipse3"); });
            user.moveTo(QPoint(4, 4));
            save(user, QStringLiteral("first-screen"), rectOf(window()));
            demand(value("ellipse3", "position").startsWith(QLatin1String("3")),
                   "The copies do not keep their distance");
            user.key(QStringLiteral("ctrl+s"));
            user.chooseFile(m_program->folder() + QStringLiteral("/kettle"));
        });
    }

    void snapping()
    {
        resizeWindow(QSize(1500, 760));
        carryOut([this](const TaskUser& user) {
            user.key(QStringLiteral("ctrl+1"));
            user.waitUntil(QStringLiteral("one pixel a pixel"),
                           [this] { return window()->workspace()->canvas()->zoom() == 1; });
            user.draw(QStringLiteral("Rectangle"), QRectF(80, 100, 120, 90), QStringLiteral("rectangle1"));
            user.draw(QStringLiteral("Rectangle"), QRectF(260, 100, 120, 90), QStringLiteral("rectangle2"));
            user.draw(QStringLiteral("Rectangle"), QRectF(500, 240, 120, 90), QStringLiteral("rectangle3"));
            user.grabAndMove(center(user, "rectangle3"), user.onCanvas(502, 147));
            user.waitUntil(QStringLiteral("a place beside the others"), [this] {
                const QVector<PropertyChange> changes = window()->workspace()->canvas()->pendingChanges();
                return std::any_of(changes.begin(), changes.end(),
                                   [](const PropertyChange& each) { return each.after == QLatin1String("440,100"); });
            });
            save(user, QStringLiteral("snapping"), canvasAround(user, QRectF(40, 40, 640, 230)));
            user.key(QStringLiteral("Escape"));
            user.letGo();
        });
    }

    void guides()
    {
        openWith(QSize(1240, 600), QStringLiteral("thermostat"));
        carryOut([this](const TaskUser& user) {
            user.command(QStringLiteral("Fit Screen"));
            user.key(QStringLiteral("F8"));
            dragGuide(user, true, 24, 1);
            dragGuide(user, true, 776, 2);
            dragGuide(user, false, 80, 3);
            user.moveTo(user.onCanvas(60, 70));
            QRect canvas;
            TaskUser::look([&] { canvas = rectOf(window()->workspace()->canvas()); });
            save(user, QStringLiteral("guides"), QRect(canvas.topLeft(), QSize(540, 300)));
            user.key(QStringLiteral("F8"));
        });
    }

    void severalElements()
    {
        openWith(QSize(1240, 760), QStringLiteral("thermostat"));
        carryOut([this](const TaskUser& user) {
            user.key(QStringLiteral("ctrl+1"));
            user.command(QStringLiteral("Select setPointLamp01"));
            user.waitUntil(QStringLiteral("the first lamp"), [this] { return isSelected("setPointLamp01"); });
            user.command(QStringLiteral("Zoom to Selection"));
            user.key(QStringLiteral("ctrl+1"));
            for (int lamp = 2; lamp <= 8; ++lamp) {
                const QByteArray id = "setPointLamp0" + QByteArray::number(lamp);
                user.click(center(user, id.constData()), QStringLiteral("shift"));
            }
            user.waitUntil(QStringLiteral("eight lamps"), [this] { return session()->selection().size() == 8; });
            user.waitUntil(QStringLiteral("their properties"),
                           [this] { return window()->workspace()->sheet()->objects().size() == 8; });
            user.moveTo(QPoint(4, 4));
            save(user, QStringLiteral("several-frame"), canvasAround(user, QRectF(500, 80, 240, 200)));
            QRect sheet;
            TaskUser::look([&] { sheet = rectOf(window()->workspace()->sheet()); });
            save(user, QStringLiteral("mixed-values"), QRect(sheet.topLeft(), QSize(sheet.width(), 380)));
        });
    }

    void propertySheet()
    {
        openWith(QSize(1240, 860), QStringLiteral("thermostat"));
        carryOut([this](const TaskUser& user) {
            user.command(QStringLiteral("Select buttonPlus"));
            user.waitUntil(QStringLiteral("the button"), [this] { return isSelected("buttonPlus"); });
            user.moveTo(QPoint(4, 4));
            QRect sheet;
            TaskUser::look([&] { sheet = rectOf(window()->workspace()->sheet()); });
            save(user, QStringLiteral("property-sheet"), sheet);

            user.fill(QStringLiteral("cornerRadius"), 0, QStringLiteral("90"));
            user.moveTo(QPoint(4, 4));
            const QRect row = user.named(QStringLiteral("row_cornerRadius"));
            save(user, QStringLiteral("refused-value"), row.adjusted(-8, -6, 0, 6));
            user.key(QStringLiteral("Escape"));

            const QRect swatch = user.partOf(
                QStringLiteral("color"), [](QWidget* editor) -> QWidget* { return editor->findChild<ColorSwatch*>(); });
            user.click(swatch.center());
            const QRect popup =
                user.placeOf(QStringLiteral("the colors"), [] { return QApplication::activePopupWidget(); });
            save(user, QStringLiteral("color-popup"), popup);
            user.key(QStringLiteral("Escape"));
        });
    }

    void panelsOfTheProject()
    {
        openWith(QSize(1240, 860), QStringLiteral("cluster"));
        carryOut([this](const TaskUser& user) {
            user.click(user.tab(QStringLiteral("Screens")));
            user.waitUntil(QStringLiteral("pictures of the screens"), [this] {
                const auto* panel = window()->findChild<ScreensPanel*>();
                for (int row = 0; row < panel->screenModel()->rowCount(); ++row) {
                    if (panel->screenModel()
                            ->index(row, 0)
                            .data(ScreenListModel::ThumbnailRole)
                            .value<QImage>()
                            .isNull())
                        return false;
                }
                return true;
            });
            user.moveTo(QPoint(4, 4));
            save(user, QStringLiteral("screens-panel"), user.named(QStringLiteral("ScreensDock")));
            user.click(user.tab(QStringLiteral("Images")));
            const QRect list = user.placeOf(QStringLiteral("the images"), [this]() -> QWidget* {
                return window()->workspace()->images()->list()->viewport();
            });
            user.click(list.topLeft() + QPoint(40, 20));
            user.moveTo(QPoint(4, 4));
            save(user, QStringLiteral("image-panel"), user.named(QStringLiteral("ImagesDock")));
        });
    }

    void projectTree()
    {
        openWith(QSize(1240, 860), QStringLiteral("thermostat"));
        carryOut([this](const TaskUser& user) {
            user.command(QStringLiteral("Select buttonPlus"));
            user.waitUntil(QStringLiteral("the button"), [this] { return isSelected("buttonPlus"); });
            user.key(QStringLiteral("ctrl+F6"));
            user.key(QStringLiteral("ctrl+l"));
            user.waitUntil(QStringLiteral("the locked button"),
                           [this] { return session()->undoStack()->count() == 1; });
            user.command(QStringLiteral("Select buttonPlusBar"));
            user.key(QStringLiteral("ctrl+F6"));
            user.key(QStringLiteral("ctrl+h"));
            user.waitUntil(QStringLiteral("the hidden bar"), [this] { return session()->undoStack()->count() == 2; });
            user.click(user.tab(QStringLiteral("Project")));
            user.moveTo(QPoint(4, 4));
            save(user, QStringLiteral("project-tree"), user.named(QStringLiteral("TreeDock")));
        });
    }

    void problemsAndFinding()
    {
        openWith(QSize(1240, 760), QStringLiteral("thermostat"));
        carryOut([this](const TaskUser& user) {
            user.draw(QStringLiteral("TextBox"), QRectF(420, 120, 120, 60), QStringLiteral("textBox1"));
            user.fill(QStringLiteral("position"), 0, QStringLiteral("2000"));
            user.waitUntil(QStringLiteral("the problems"),
                           [this] { return window()->problemsPanel()->problems().size() >= 2; });
            user.key(QStringLiteral("F7"));
            user.waitUntil(QStringLiteral("the message"), [this] { return !session()->selection().isEmpty(); });
            const int count = int(window()->problemsPanel()->problems().size());
            user.click(user.button(QStringLiteral("%1 problems").arg(count)).center());
            user.waitUntil(QStringLiteral("the list of problems"),
                           [this] { return window()->problemsPanel()->isVisible(); });
            user.moveTo(QPoint(4, 4));
            save(user, QStringLiteral("problems"), user.named(QStringLiteral("ProblemsDock")));

            user.command(QStringLiteral("Find in Project"));
            user.waitUntil(QStringLiteral("the field"),
                           [] { return qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr; });
            user.type(QStringLiteral("#f8971d"));
            user.key(QStringLiteral("Return"));
            user.waitUntil(QStringLiteral("the places"), [this] {
                const auto* panel = window()->findChild<FindPanel*>();
                return panel && !panel->isSearching() && panel->results()->topLevelItemCount() > 0;
            });
            user.moveTo(QPoint(4, 4));
            save(user, QStringLiteral("find"), user.named(QStringLiteral("FindDock")));
        });
    }

    void results()
    {
        openWith(QSize(1240, 860), QStringLiteral("thermostat"));
        carryOut([this](const TaskUser& user) {
            user.command(QStringLiteral("Select buttonPlus"));
            user.key(QStringLiteral("ctrl+u"));
            user.waitUntil(QStringLiteral("the QML"), [this] { return window()->results()->qmlDock()->isVisible(); });
            user.moveTo(QPoint(4, 4));
            save(user, QStringLiteral("qml-panel"), user.named(QStringLiteral("QmlDock")));
            user.key(QStringLiteral("ctrl+u"));
            user.key(QStringLiteral("ctrl+F5"));
            makeRoom(user, QStringLiteral("DeviceDock"), QPoint(-140, -260));
            user.moveTo(QPoint(4, 4));
            save(user, QStringLiteral("as-on-panel"), user.named(QStringLiteral("DeviceDock")));
        });
    }

    void commandsAndKeys()
    {
        openWith(QSize(1240, 760), QStringLiteral("thermostat"));
        carryOut([this](const TaskUser& user) {
            user.command(QStringLiteral("Select buttonPlus"));
            user.waitUntil(QStringLiteral("the button"), [this] { return isSelected("buttonPlus"); });
            user.key(QStringLiteral("ctrl+k"));
            user.waitUntil(QStringLiteral("the command palette"),
                           [this] { return window()->commandPalette()->field()->hasFocus(); });
            user.type(QStringLiteral("align"));
            user.waitUntil(QStringLiteral("commands"), [this] {
                return window()->commandPalette()->field()->text() == QLatin1String("align")
                       && !window()->commandPalette()->found().isEmpty();
            });
            save(user, QStringLiteral("command-palette"), user.named(QStringLiteral("CommandPalette")));
            user.key(QStringLiteral("Escape"));
            user.key(QStringLiteral("ctrl+F1"));
            const QRect dialog = user.placeOf(QStringLiteral("the shortcuts"), []() -> QWidget* {
                return qobject_cast<ShortcutsDialog*>(QApplication::activeModalWidget());
            });
            user.type(QStringLiteral("zoom"));
            save(user, QStringLiteral("shortcuts-dialog"), dialog);
            user.key(QStringLiteral("Escape"));
        });
    }

    void wholeWindow_data()
    {
        QTest::addColumn<QString>("example");
        QTest::addColumn<QString>("element");
        QTest::addColumn<QString>("colors");
        QTest::newRow("designer-light") << "thermostat"
                                        << "buttonPlus"
                                        << "Light";
        QTest::newRow("designer-dark") << "cluster"
                                       << ""
                                       << "Dark";
    }

    void wholeWindow()
    {
        QFETCH(QString, example);
        QFETCH(QString, element);
        QFETCH(QString, colors);
        openWith(QSize(1440, 860), example);
        carryOut([&, this](const TaskUser& user) {
            if (colors == QLatin1String("Dark"))
                TaskUser::look([] { Appearance::apply(Appearance::Scheme::Dark); });
            user.key(QStringLiteral("shift+F5"));
            makeRoom(user, QStringLiteral("PreviewDock"), QPoint(-60, -60));
            user.waitUntil(QStringLiteral("the running display"), [this] {
                const LivePreviewPanel* preview = window()->results()->preview();
                return preview->isVisible() && !preview->display()->frame().isNull();
            });
            if (!element.isEmpty())
                user.command(QStringLiteral("Select ") + element);
            user.key(QStringLiteral("ctrl+0"));
            user.moveTo(QPoint(4, 4));
            save(user, QString::fromLatin1(QTest::currentDataTag()), rectOf(window()));
        });
    }

    void cleanupTestCase()
    {
        QFile::remove(viewerLink());
        QStringList expected = GuidePictures::names();
        expected.sort();
        m_made.sort();
        // One test that is run alone makes its own pictures.
        if (!QTest::currentTestFailed() && QCoreApplication::arguments().size() == 1)
            QCOMPARE(m_made, expected);
    }

private:
    [[nodiscard]] MainWindow* window() const { return m_program->window(); }
    [[nodiscard]] EditSession* session() const { return window()->workspace()->session(); }
    [[nodiscard]] DesignerObject* object(const char* id) const
    {
        return session()->currentScreen()->element(QString::fromLatin1(id));
    }
    [[nodiscard]] QString value(const char* id, const char* property) const
    {
        const DesignerObject* found = object(id);
        return found ? found->getProperty(QString::fromLatin1(property))->valueString() : QString();
    }
    [[nodiscard]] bool isSelected(const char* id) const
    {
        const QList<DesignerObject*>& selection = session()->selection();
        return selection.size() == 1 && selection.first()->getIdName() == QLatin1String(id);
    }
    [[nodiscard]] QPoint center(const TaskUser& user, const char* id) const
    {
        QPointF place;
        TaskUser::look([&] {
            const QStringList position = value(id, "position").split(QLatin1Char(','));
            const QStringList size = value(id, "size").split(QLatin1Char(','));
            if (position.size() == 2 && size.size() == 2)
                place = QPointF(position.at(0).toDouble() + size.at(0).toDouble() / 2,
                                position.at(1).toDouble() + size.at(1).toDouble() / 2);
        });
        return user.onCanvas(place.x(), place.y());
    }
    static QString viewerLink() { return QCoreApplication::applicationDirPath() + QStringLiteral("/meridane-viewer"); }
    static QRect rectOf(const QWidget* widget) { return {widget->mapToGlobal(QPoint(0, 0)), widget->size()}; }

    /// What the canvas shows of \a place, in pixels of the designed screen.
    [[nodiscard]] QRect canvasAround(const TaskUser& user, const QRectF& place) const
    {
        const QRect wanted(user.onCanvas(place.left(), place.top()), user.onCanvas(place.right(), place.bottom()));
        QRect canvas;
        TaskUser::look([&] { canvas = rectOf(window()->workspace()->canvas()->viewport()); });
        return wanted & canvas;
    }

    void resizeWindow(const QSize& size) const
    {
        window()->showNormal();
        window()->resize(size);
        window()->move(40, 40);
        QVERIFY(QTest::qWaitForWindowActive(window()));
        QTRY_COMPARE(window()->size(), size);
    }

    void openWith(const QSize& size, const QString& example) const
    {
        resizeWindow(size);
        QVERIFY(!m_program->openCopy(example).isEmpty());
    }

    /// Drags the edges of the panel \a dock, which stands at the lower right, by \a distance.
    void makeRoom(const TaskUser& user, const QString& dock, const QPoint& distance) const
    {
        QRect panel = user.named(dock);
        const QPoint left(panel.left() - 2, panel.center().y());
        user.drag(left, left + QPoint(distance.x(), 0));
        panel = user.named(dock);
        const QPoint top(panel.center().x() + 30, panel.top() - 2);
        user.drag(top, top + QPoint(0, distance.y()));
    }

    /// Drags a guide out of a ruler to \a place; it is the \a number th.
    void dragGuide(const TaskUser& user, bool vertical, double place, int number) const
    {
        QRect view;
        TaskUser::look([&] { view = rectOf(window()->workspace()->canvas()->viewport()); });
        const QPoint target = vertical ? QPoint(user.onCanvas(place, 0).x(), view.center().y())
                                       : QPoint(view.center().x(), user.onCanvas(0, place).y());
        const QPoint ruler =
            vertical ? QPoint(view.left() - 8, view.center().y()) : QPoint(view.center().x(), view.top() - 8);
        user.grabAndMove(ruler, target);
        user.waitUntil(QStringLiteral("the guide at the mouse"),
                       [this] { return window()->workspace()->canvas()->isGestureRunning(); });
        user.letGo();
        user.waitUntil(QStringLiteral("guide %1").arg(number),
                       [this, number] { return window()->workspace()->canvas()->guides()->list().size() == number; });
    }

    void carryOut(const std::function<void(const TaskUser& user)>& task) const
    {
        const QString failure = m_program->carryOut(task);
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
    }

    static void demand(bool holds, const char* what)
    {
        if (!holds)
            throw TaskFailure{QString::fromLatin1(what)};
    }

    /// Saves what the screen shows in \a area, in global pixels, as the picture \a name.
    void save(const TaskUser& user, const QString& name, const QRect& area)
    {
        demand(GuidePictures::names().contains(name), "An unknown picture");
        user.picture(name);
        const QString file = TaskUser::pictureFile(name);
        const QImage picture = QImage(file).copy(area);
        constexpr int Smallest = 0; // of PNG's files, at the price of time
        constexpr qint64 Enough = 40'000; // bytes that a picture with all its colors may take
        demand(!picture.isNull() && picture.save(file, "PNG", Smallest), "No picture");
        if (QFileInfo(file).size() > Enough)
            demand(GuidePictures::reduced(picture).save(file, "PNG", Smallest), "No smaller picture");
        m_made.append(name);
    }

    std::unique_ptr<TaskProgram> m_program;
    QStringList m_made;
};

int main(int argc, char* argv[])
{
    return TaskProgram::run(argc, argv, [] { return std::make_unique<tst_GuidePictures>(); });
}

#include "tst_GuidePictures.moc"
