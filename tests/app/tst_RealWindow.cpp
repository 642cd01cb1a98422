#include "tests/app/DesignerWindow.h"

#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::DesignerWindow;
using Test::XServer;

/// The application as it is installed, in a real window of a virtual X server, driven by mouse and keyboard: what the
/// project's files say at each step is what was done.
class tst_RealWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        (void)DesignerFactory::instance()->loadInstalledPlugins();
        const std::unique_ptr<Project> project = ProjectStore::create(QStringLiteral("Kettle"), QSizeF(640, 400));
        Screen* screen = project->screens().first();
        QVERIFY(screen->changePropertyValue(screen->getProperty(QStringLiteral("color")), m_screenColor.name()));
        QString message;
        QVERIFY2(ProjectStore::save(project.get(), m_folder.filePath(QStringLiteral("kettle")), &message),
                 qPrintable(message));
        m_screenFile = m_folder.filePath(QStringLiteral("kettle/screens/main.json"));

        QVERIFY2(m_server.start(QSize(1280, 800)), qPrintable(m_server.error()));
        m_window = std::make_unique<DesignerWindow>(&m_server, m_folder.filePath(QStringLiteral("config")));
        QVERIFY2(m_window->start(m_folder.filePath(QStringLiteral("kettle"))), qPrintable(m_window->error()));
    }

    void cleanupTestCase() { m_window.reset(); }

    /// Each step starts from what the one before has left.
    void init() const
    {
        if (m_broken)
            QSKIP("An earlier step has failed.");
    }

    void cleanup()
    {
        if (!QTest::currentTestFailed() || m_broken)
            return;
        m_broken = true;
        const QString file = pictureFile();
        if (m_server.grab().save(file))
            qWarning("What the screen showed: %s", qPrintable(file));
    }

    void aRectangleIsPlacedFromThePalette()
    {
        // A screen that has come to rest: the same place twice.
        QRect last;
        const QImage picture =
            m_window->waitForPicture(QStringLiteral("the screen on the canvas"), [&](const QImage& now) {
                // The sheet shows the colour too, in a small field.
                m_canvas = DesignerWindow::find(now, m_screenColor, {}, 200);
                return m_canvas.isValid() && m_canvas == std::exchange(last, m_canvas);
            });
        QVERIFY2(!picture.isNull(), qPrintable(m_window->error()));
        m_scale = m_canvas.width() / 640.;
        QVERIFY2(qAbs(m_canvas.height() / 400. - m_scale) < 0.02, "The screen is covered or cut off.");

        // The palette's first tile, the rectangle, is what shows its colour left of the canvas first.
        const QRect left(0, 0, m_canvas.left(), picture.height());
        QPoint tile;
        for (int sum = 0; tile.isNull() && sum < left.width() + left.height(); ++sum) {
            for (int y = 0; tile.isNull() && y <= sum; ++y) {
                if (left.contains(sum - y, y)
                    && !DesignerWindow::find(picture, m_fillColor, QRect(sum - y, y, 1, 1)).isNull())
                    tile = QPoint(sum - y + 8, y + 8);
            }
        }
        QVERIFY2(!tile.isNull(), "No tile of the palette shows a rectangle.");
        QVERIFY2(m_window->click(tile), qPrintable(m_window->error()));
        QVERIFY2(m_window->drag(viewPoint(100, 80), viewPoint(260, 200)), qPrintable(m_window->error()));
        QVERIFY2(save(), qPrintable(m_window->error()));
        QCOMPARE(element().value(QLatin1String("class")).toString(), QStringLiteral("Rectangle"));
        compare(position(), QPointF(100, 80));
        compare(size(), QPointF(160, 120));
    }

    void itIsMoved()
    {
        const QPointF before = position();
        QVERIFY2(m_window->drag(viewPoint(180, 140), viewPoint(240, 180)), qPrintable(m_window->error()));
        QVERIFY2(save(), qPrintable(m_window->error()));
        compare(position(), before + QPointF(60, 40));
        compare(size(), QPointF(160, 120));
    }

    void aCornerResizesIt()
    {
        const QPointF corner = position() + size();
        const QPointF place = position();
        QVERIFY2(m_window->drag(viewPoint(corner.x(), corner.y()), viewPoint(corner.x() + 50, corner.y() + 30)),
                 qPrintable(m_window->error()));
        QVERIFY2(save(), qPrintable(m_window->error()));
        compare(size(), QPointF(210, 150));
        compare(position(), place);
    }

    void aWidthIsTypedIntoThePropertySheet()
    {
        const QPointF before = size();
        QVERIFY2(typeIntoRow(WidthRow, QStringLiteral("222")), qPrintable(m_window->error()));
        QVERIFY2(save(), qPrintable(m_window->error()));
        QCOMPARE(size(), QPointF(222, before.y()));
    }

    void whatWasTypedIsSavedWithoutEnter()
    {
        QVERIFY2(m_window->key(QStringLiteral("ctrl+a")) && m_window->type(QStringLiteral("231")),
                 qPrintable(m_window->error()));
        QVERIFY2(m_window->key(QStringLiteral("ctrl+s")), qPrintable(m_window->error()));
        QTRY_COMPARE_WITH_TIMEOUT(size().x(), 231., 20000);
        QVERIFY2(m_window->waitForModified(false), qPrintable(m_window->error()));
    }

    void undoAndRedoGoBackAndForth()
    {
        const QPointF last = size();
        QVERIFY2(m_window->key(QStringLiteral("ctrl+F6")) && m_window->key(QStringLiteral("ctrl+z")),
                 qPrintable(m_window->error()));
        QVERIFY2(save(), qPrintable(m_window->error()));
        QCOMPARE(size().x(), 222.);
        QVERIFY2(m_window->key(QStringLiteral("ctrl+shift+z")), qPrintable(m_window->error()));
        QVERIFY2(save(), qPrintable(m_window->error()));
        QCOMPARE(size(), last);
    }

    void itIsDuplicatedByItsKey()
    {
        QVERIFY2(m_window->key(QStringLiteral("ctrl+F6")) && m_window->key(QStringLiteral("ctrl+d")),
                 qPrintable(m_window->error()));
        QVERIFY2(save(), qPrintable(m_window->error()));
        QCOMPARE(elements().size(), 2);
        QVERIFY2(m_window->key(QStringLiteral("ctrl+z")), qPrintable(m_window->error()));
        QVERIFY2(save(), qPrintable(m_window->error()));
        QCOMPARE(elements().size(), 1);
    }

    void aCommandIsFoundByItsNameAndUsed()
    {
        QVERIFY2(command(QStringLiteral("rectangle1")), qPrintable(m_window->error()));
        QVERIFY2(command(QStringLiteral("clone")), qPrintable(m_window->error()));
        QVERIFY2(save(), qPrintable(m_window->error()));
        QCOMPARE(elements().size(), 2);
        QVERIFY2(m_window->key(QStringLiteral("ctrl+z")), qPrintable(m_window->error()));
        QVERIFY2(save(), qPrintable(m_window->error()));
        QCOMPARE(elements().size(), 1);
    }

    void theCanvasShowsWhatTheFileSays()
    {
        QVERIFY2(m_window->key(QStringLiteral("ctrl+F6")) && m_window->key(QStringLiteral("Escape")),
                 qPrintable(m_window->error()));
        const QRectF wanted(viewPoint(position().x(), position().y()),
                            viewPoint(position().x() + size().x(), position().y() + size().y()));
        QRect shown;
        const QImage picture = m_window->waitForPicture(QStringLiteral("the rectangle"), [&](const QImage& now) {
            shown = DesignerWindow::find(now, m_fillColor, m_canvas);
            return qAbs(shown.width() - wanted.width()) <= 3 && qAbs(shown.height() - wanted.height()) <= 3;
        });
        QVERIFY2(!picture.isNull(), qPrintable(m_window->error()));
        QVERIFY(qAbs(shown.left() - wanted.left()) <= 3 && qAbs(shown.top() - wanted.top()) <= 3);
        QVERIFY(picture.save(pictureFile()));
    }

    void quittingWithUnsavedChangesAsks()
    {
        QVERIFY2(m_window->key(QStringLiteral("ctrl+z")) && m_window->waitForModified(true)
                     && m_window->key(QStringLiteral("ctrl+q")) && m_window->waitForDialog(true),
                 qPrintable(m_window->error()));
        QVERIFY2(m_window->key(QStringLiteral("Escape")) && m_window->waitForDialog(false),
                 qPrintable(m_window->error()));
        QVERIFY(m_window->isRunning());
        QVERIFY2(m_window->key(QStringLiteral("ctrl+shift+z")) && m_window->waitForModified(false),
                 qPrintable(m_window->error()));
    }

    void theProgramEndsWithoutQuestionsWhenAllIsSaved()
    {
        QVERIFY2(m_window->key(QStringLiteral("ctrl+q")), qPrintable(m_window->error()));
        QCOMPARE(m_window->waitForEnd(), 0);
        QVERIFY(QFile::exists(m_folder.filePath(QStringLiteral("config/meridane/designer.ini"))));
    }

private:
    /// What takes the focus in the sheet before the width: id, heading, x, y, slider and number of the angle, its fixed point.
    static constexpr int WidthRow = 7;
    const QColor m_screenColor{0x20, 0x40, 0x60};
    const QColor m_fillColor{248, 151, 29};

    static QString pictureFile()
    {
        return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("tst_RealWindow.png"));
    }

    QPoint viewPoint(double x, double y) const
    {
        return m_canvas.topLeft() + QPoint(qRound(x * m_scale), qRound(y * m_scale));
    }

    /// Waits for the change that was made, saves it and waits for that.
    bool save()
    {
        return m_window->waitForModified(true) && m_window->key(QStringLiteral("ctrl+s"))
               && m_window->waitForModified(false);
    }

    /// Finds a command by \a words and does the first that is found.
    bool command(const QString& words)
    {
        if (!m_window->key(QStringLiteral("ctrl+k")) || !m_window->type(words))
            return false;
        const QImage picture =
            m_window->waitForPicture(QStringLiteral("the command that is chosen"), [](const QImage& now) {
                // Over the upper middle of the window, in the style's colour of selections.
                return DesignerWindow::find(now, QColor(48, 140, 198), QRect(300, 90, 700, 60), 200).isValid();
            });
        return !picture.isNull() && m_window->key(QStringLiteral("Return"));
    }

    bool typeIntoRow(int row, const QString& text)
    {
        bool done = m_window->key(QStringLiteral("F4"));
        for (int i = 0; i < row; ++i)
            done = done && m_window->key(QStringLiteral("Tab"));
        return done && m_window->key(QStringLiteral("ctrl+a")) && m_window->type(text)
               && m_window->key(QStringLiteral("Return"));
    }

    QJsonArray elements() const
    {
        QFile file(m_screenFile);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return QJsonDocument::fromJson(file.readAll()).object().value(QLatin1String("elements")).toArray();
    }

    QJsonObject element() const
    {
        const QJsonArray all = elements();
        return all.size() == 1 ? all.first().toObject() : QJsonObject();
    }

    QPointF position() const
    {
        return ValueConversion::toPoint(
            element().value(QLatin1String("properties")).toObject().value(QLatin1String("position")).toString());
    }

    QPointF size() const
    {
        const QSizeF size = ValueConversion::toSize(
            element().value(QLatin1String("properties")).toObject().value(QLatin1String("size")).toString());
        return {size.width(), size.height()};
    }

    /// Pointing is as exact as the pixels of the zoomed canvas.
    void compare(const QPointF& actual, const QPointF& expected) const
    {
        const double exactness = 2 + 1 / m_scale;
        QVERIFY2(qAbs(actual.x() - expected.x()) <= exactness && qAbs(actual.y() - expected.y()) <= exactness,
                 qPrintable(QStringLiteral("%1 instead of %2")
                                .arg(ValueConversion::toString(actual), ValueConversion::toString(expected))));
    }

    QTemporaryDir m_folder;
    QString m_screenFile;
    XServer m_server;
    std::unique_ptr<DesignerWindow> m_window;
    QRect m_canvas; // the screen on the canvas, in the X screen's pixels
    bool m_broken = false;
    double m_scale = 1; // pixels of the X screen for one of the display
};

int main(int argc, char* argv[])
{
    if (argc == 3 && qstrcmp(argv[1], XServer::GrabOption) == 0)
        return XServer::grabInto(argc, argv);
    QApplication application(argc, argv);
    tst_RealWindow test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_RealWindow.moc"
