#include "tests/display/PictureComparison.h"
#include "tests/display/Programs.h"
#include "tests/display/sheets/Sheets.h"

#include <QDirIterator>
#include <QtTest>

/// The whole road: a project is exported, the export runs, and what runs looks like the canvas.
class tst_RunningExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_programs.isValid());
        const QStringList all = projects();
        QVERIFY(!all.contains(QString()));
        QVERIFY(all.size() > m_sheets.size());
    }

    void theComparisonNoticesWhatAPersonWould()
    {
        const QImage canvas = m_programs.canvas(m_sheets.constFirst(), QStringLiteral("main"));
        QVERIFY(!canvas.isNull());
        QCOMPARE(PictureComparison::difference(canvas, canvas), QString());
        const QRect all = canvas.rect();
        QVERIFY(!PictureComparison::difference(canvas, canvas.copy(all.translated(1, 0))).isEmpty());
        QVERIFY(!PictureComparison::difference(canvas, canvas.copy(all.translated(0, -1))).isEmpty());
        QVERIFY(!PictureComparison::difference(canvas, canvas.copy(all.adjusted(0, 0, 1, 0))).isEmpty());
        QImage plain(all.size(), QImage::Format_RGB32);
        plain.fill(Qt::gray);
        QImage speck = plain;
        speck.setPixel(100, 100, QColor(Qt::gray).lighter().rgb());
        QVERIFY(!PictureComparison::difference(plain, speck).isEmpty());
        QVERIFY(!PictureComparison::difference(QImage(), QImage()).isEmpty());
    }

    void everyScreenRunsAsItStandsOnTheCanvas_data()
    {
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("screen");
        for (const QString& project : projects()) {
            for (const QString& screen : Programs::screens(project))
                QTest::addRow("%s, %s", qPrintable(nameOf(project)), qPrintable(screen)) << project << screen;
        }
    }

    void everyScreenRunsAsItStandsOnTheCanvas()
    {
        QFETCH(QString, project);
        QFETCH(QString, screen);
        const QImage canvas = m_programs.canvas(project, screen);
        QVERIFY(PictureComparison::distinctColors(canvas) > 20); // there is something to compare
        const QString difference = PictureComparison::difference(canvas, m_programs.running(project, screen));
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }

    void everyExportPassesTheLinterAndIsTheSameTwice_data() { addProjects(projects()); }

    void everyExportPassesTheLinterAndIsTheSameTwice()
    {
        QFETCH(QString, project);
        const QString first = m_programs.fresh(QStringLiteral("first"));
        const QString second = m_programs.fresh(QStringLiteral("second"));
        QVERIFY(Programs::exportProject(project, first));
        QVERIFY(Programs::exportProject(project, second));
        const QStringList files = filesBelow(first);
        QVERIFY(files.contains(QLatin1String("Main.qml")));
        QCOMPARE(filesBelow(second), files);
        for (const QString& file : files) {
            QCOMPARE(bytes(second + QLatin1Char('/') + file), bytes(first + QLatin1Char('/') + file));
            if (file.endsWith(QLatin1String(".qml")))
                QVERIFY(Programs::lint(first + QLatin1Char('/') + file));
        }
    }

    void everyExampleIsInOrder_data() { addProjects(examples()); }

    void everyExampleIsInOrder()
    {
        QFETCH(QString, project);
        QVERIFY(Programs::check(project));
    }

    void thePicturesInTheDocumentationShowTheExamples_data()
    {
        QStringList sheets = examples();
        sheets.removeIf([](const QString& project) { return !nameOf(project).startsWith(QLatin1String("sheets/")); });
        QVERIFY(!sheets.isEmpty());
        addProjects(sheets);
    }

    void thePicturesInTheDocumentationShowTheExamples()
    {
        QFETCH(QString, project);
        const QString file = QStringLiteral(MERIDANE_DOCS "/pictures/%1.png").arg(QDir(project).dirName());
        QVERIFY2(QFile::exists(file), qPrintable(file));
        QVERIFY(QFileInfo(file).size() < 300000);
        const QImage picture = QImage(file).convertToFormat(QImage::Format_RGB32);
        const QString difference =
            PictureComparison::difference(m_programs.canvas(project, Programs::screens(project).constFirst()), picture);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }

private:
    /// The folders of the example projects.
    static QStringList examples()
    {
        QStringList folders;
        QDirIterator files(QStringLiteral(MERIDANE_EXAMPLES), {QStringLiteral("project.json")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            folders.append(QFileInfo(files.next()).path());
        folders.sort();
        return folders;
    }

    /// The folders of a project for each sheet, made when first asked for, and of the examples.
    QStringList projects()
    {
        if (m_sheets.isEmpty()) {
            const QList<Sheet> sheets = allSheets();
            for (const Sheet& sheet : sheets)
                m_sheets.append(m_programs.makeProject(sheet.name, sheet.edits));
        }
        return m_sheets + examples();
    }

    static QString nameOf(const QString& project)
    {
        const QString name = QDir(QStringLiteral(MERIDANE_EXAMPLES)).relativeFilePath(project);
        return name.startsWith(QLatin1String("..")) ? QDir(project).dirName() : name;
    }

    static void addProjects(const QStringList& projects)
    {
        QTest::addColumn<QString>("project");
        for (const QString& project : projects)
            QTest::newRow(qPrintable(nameOf(project))) << project;
    }

    static QStringList filesBelow(const QString& folder)
    {
        QStringList files;
        QDirIterator iterator(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (iterator.hasNext())
            files.append(QDir(folder).relativeFilePath(iterator.next()));
        files.sort();
        return files;
    }

    static QByteArray bytes(const QString& file)
    {
        QFile in(file);
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }

    const Programs m_programs;
    QStringList m_sheets;
};

QTEST_GUILESS_MAIN(tst_RunningExport)
#include "tst_RunningExport.moc"
