#include "tests/canvas/CanvasFixture.h"

#include "host/core/canvas/ScreenRenderer.h"
#include "host/core/project/ProjectChecker.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

/// Lines of a project file with values that nobody would type: they neither harm nor get lost.
class tst_LineProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { const CanvasFixture loadsThePlugIn; }

    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void cleanup()
    {
        m_view.reset();
        m_session.reset();
        m_folder.reset();
    }

    void absurdValuesDoNoHarmAndAreKept_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isLine"); // whether there is something to be seen
        const auto row = [](const char* id, const char* text, bool isLine) {
            QTest::addRow("%s \"%s\"", id, text) << QString::fromLatin1(id) << QString::fromLatin1(text) << isLine;
        };
        for (const char* text : {"0", "-1", "-1e+300"})
            row("length", text, false);
        for (const char* text :
             {"0.001", "1e-300", "10000", "1000000000", "1e+300", "1.7e+308", "", "long", "nan", "inf", "1e400"})
            row("length", text, true);
        for (const char* text : {"-30", "360", "1000000000", "1e+300", "-1.7e+308", "", "steep", "nan", "-inf"})
            row("angle", text, true);
        for (const char* text : {"0", "-5", "-2147483648"})
            row("width", text, false);
        for (const char* text : {"101", "2147483647", "2147483648", "2.5", "", "thick"})
            row("width", text, true);
        for (const char* text : {"", "red-ish", "#1234"})
            row("color", text, true);
    }

    void absurdValuesDoNoHarmAndAreKept()
    {
        QFETCH(QString, id);
        QFETCH(QString, text);
        QFETCH(bool, isLine);
        open({{id, text}});
        QCOMPARE(value(id), text);
        QVERIFY(!m_session->project()->undoStack()->canUndo());

        const GraphicsItem* item = m_line->graphicsItem();
        const QRectF outline = item->outerRect();
        QVERIFY(std::isfinite(outline.width()) && std::isfinite(outline.height()));
        QCOMPARE(outline.isEmpty(), !isLine);
        const QSizeF outer = ValueConversion::toSize(value(QStringLiteral("boundingSize")));
        QVERIFY(std::abs(outer.width() - outline.width()) <= 1e-6 + 1e-9 * outline.width());
        QVERIFY(std::isfinite(item->getShape().boundingRect().width()));
        QVERIFY(!m_view->grab().isNull());
        QVERIFY(!ScreenRenderer::render(m_view->canvasScene()).isNull());
        QVERIFY(m_line->toQml(0).startsWith(QLatin1String("Line {")));

        // Handles are asked for, a size is typed, the line is moved: what does not convert stays as it stands.
        m_session->setSelection({m_line});
        bool handled = false;
        (void)m_line->graphicsItem()->getResizePointHandle({300, 200}, &handled);
        (void)m_line->graphicsItem()->getResizeHandle({300, 200}, &handled);
        QVERIFY(!m_view->grab().isNull());
        const QString before = m_line->toQml(0);
        QVERIFY(m_session->moveElements({m_line}, QPointF(7, 8)).accepted);
        QCOMPARE(value(QStringLiteral("position")), QStringLiteral("307,208"));
        QCOMPARE(value(id), text);
        m_session->undo();
        QCOMPARE(m_line->toQml(0), before);
        QVERIFY(m_session->setProperty(m_line, QStringLiteral("boundingSize"), QStringLiteral("150,90")).accepted);
        m_session->undo();
        QCOMPARE(value(id), text);
        QCOMPARE(m_line->toQml(0), before);

        // Saved and opened again it is the same.
        QString message;
        QVERIFY2(ProjectStore::save(m_session->project(), m_folder->path(), &message), qPrintable(message));
        openFolder();
        QCOMPARE(value(id), text);
        QCOMPARE(m_line->toQml(0), before);
    }

    void aTextThatDoesNotConvertIsDrawnAsItsDefaultAndNotExported_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("line");
        QTest::newRow("length") << QStringLiteral("length") << QStringLiteral("length:");
        QTest::newRow("angle") << QStringLiteral("angle") << QStringLiteral("angle:");
        QTest::newRow("width") << QStringLiteral("width") << QStringLiteral("lineWidth:");
        QTest::newRow("color") << QStringLiteral("color") << QStringLiteral("color:");
    }

    void aTextThatDoesNotConvertIsDrawnAsItsDefaultAndNotExported()
    {
        QFETCH(QString, id);
        QFETCH(QString, line);
        open({});
        const QImage usual = ScreenRenderer::render(m_view->canvasScene());
        QVERIFY(m_line->toQml(0).contains(QLatin1Char('\t') + line));
        open({{id, QStringLiteral("broken")}});
        QCOMPARE(ScreenRenderer::render(m_view->canvasScene()), usual);
        QVERIFY(!m_line->toQml(0).contains(QLatin1Char('\t') + line));
        // It is reported.
        const QList<Problem> problems = ProjectChecker::check(m_session->project());
        QCOMPARE(problems.size(), 1);
        QCOMPARE(problems.first().severity, Problem::Severity::Error);
        QCOMPARE(problems.first().object, QStringLiteral("main/hand"));
        QCOMPARE(problems.first().property, id);
    }

    void aRatioLockAndItsValueComeBack()
    {
        open({});
        m_session->setProperty(m_line, QStringLiteral("keepRatio"), QStringLiteral("50"));
        QString message;
        QVERIFY(ProjectStore::save(m_session->project(), m_folder->path(), &message));
        openFolder();
        QCOMPARE(value(QStringLiteral("keepRatio")), QStringLiteral("50"));
        QCOMPARE(value(QStringLiteral("boundingSize")), QStringLiteral("100,2"));
        QVERIFY(!m_session->project()->undoStack()->canUndo());
    }

private:
    [[nodiscard]] QString value(const QString& id) const { return m_line->getProperty(id)->valueString(); }

    /// Opens a project with one line at (300, 200) that has these values and else the defaults.
    void open(const QMap<QString, QString>& values)
    {
        m_view.reset();
        m_session.reset();
        QByteArray properties = R"("position": "300,200")";
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            properties += ", \"" + it.key().toUtf8() + "\": \"" + it.value().toUtf8() + '"';
        write("project.json", R"({"formatVersion": 1, "name": "Lines", "screens": ["main"]})");
        write("screens/main.json", R"({"class": "Screen", "id": "main", "elements": [
              {"class": "Line", "id": "hand", "properties": {)"
                                       + properties + "}}]}");
        openFolder();
    }

    void openFolder()
    {
        m_view.reset();
        m_session.reset();
        m_session = std::make_unique<EditSession>(ProjectStore::load(m_folder->path()).project);
        m_view = std::make_unique<CanvasView>(m_session.get());
        m_view->resize(900, 600);
        m_view->show();
        m_line = m_session->currentScreen()->childList()->items().first();
        QCOMPARE(m_line->getIdName(), QStringLiteral("hand"));
    }

    void write(const char* name, const QByteArray& content) const
    {
        const QString path = m_folder->filePath(QString::fromLatin1(name));
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", name);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<EditSession> m_session;
    std::unique_ptr<CanvasView> m_view;
    DesignerObject* m_line = nullptr;
};

QTEST_MAIN(tst_LineProject)
#include "tst_LineProject.moc"
