#include <QDirIterator>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

/// The whole road: a project is exported, the export runs, and what runs looks like the canvas.
class tst_RunningExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        qputenv("XDG_RUNTIME_DIR", m_folder.path().toUtf8());
    }

    void rectanglesRunAsTheyStandOnTheCanvas()
    {
        const QString project = makeProject(QStringLiteral("straight"), straightRectangles());
        const auto [canvas, running] = pictures(project);
        QCOMPARE(running.size(), canvas.size());
        QVERIFY(distinctColors(canvas) > 20); // there is something to compare
        for (int y = 0; y < canvas.height(); ++y) {
            for (int x = 0; x < canvas.width(); ++x) {
                const int difference = channelDifference(canvas.pixel(x, y), running.pixel(x, y));
                QVERIFY2(difference <= Tolerance,
                         qPrintable(QStringLiteral("%1 at %2,%3").arg(difference).arg(x).arg(y)));
            }
        }
    }

    void rotatedRectanglesDifferAtTheirEdgesOnly()
    {
        const QString project = makeProject(QStringLiteral("rotated"), rotatedRectangles());
        const auto [canvas, running] = pictures(project);
        QCOMPARE(running.size(), canvas.size());
        QVERIFY(distinctColors(canvas) > 20);
        for (int y = 1; y < canvas.height() - 1; ++y) {
            for (int x = 1; x < canvas.width() - 1; ++x) {
                const int difference = channelDifference(canvas.pixel(x, y), running.pixel(x, y));
                QVERIFY2(difference <= Tolerance || isAtAnEdge(canvas, x, y),
                         qPrintable(QStringLiteral("%1 at %2,%3").arg(difference).arg(x).arg(y)));
            }
        }
    }

    void theExampleRunsAsItStandsOnTheCanvas()
    {
        const auto [canvas, running] = pictures(QStringLiteral(MERIDANE_THERMOSTAT));
        QCOMPARE(running.size(), canvas.size());
        QVERIFY(distinctColors(canvas) > 8);
        for (int y = 1; y < canvas.height() - 1; ++y) {
            for (int x = 1; x < canvas.width() - 1; ++x) {
                QVERIFY(channelDifference(canvas.pixel(x, y), running.pixel(x, y)) <= Tolerance
                        || isAtAnEdge(canvas, x, y));
            }
        }
    }

    void everyExportPassesTheLinterAndIsTheSameTwice_data()
    {
        QTest::addColumn<QString>("project");
        QTest::newRow("rectangles") << makeProject(QStringLiteral("lint"), straightRectangles());
        QTest::newRow("example") << QStringLiteral(MERIDANE_THERMOSTAT);
    }

    void everyExportPassesTheLinterAndIsTheSameTwice()
    {
        QFETCH(QString, project);
        const QString first = fresh(QStringLiteral("lint-a"));
        const QString second = fresh(QStringLiteral("lint-b"));
        QVERIFY(run(QStringLiteral(MERIDANE_PROGRAM),
                    {QStringLiteral("export"), project, QStringLiteral("--output"), first}));
        QVERIFY(run(QStringLiteral(MERIDANE_PROGRAM),
                    {QStringLiteral("export"), project, QStringLiteral("--output"), second}));
        const QStringList files = filesBelow(first);
        QVERIFY(files.contains(QLatin1String("Main.qml")));
        QCOMPARE(filesBelow(second), files);
        for (const QString& file : files) {
            QCOMPARE(bytes(second + QLatin1Char('/') + file), bytes(first + QLatin1Char('/') + file));
            if (file.endsWith(QLatin1String(".qml"))) {
                QVERIFY(run(QStringLiteral(MERIDANE_QMLLINT),
                            {QStringLiteral("-I"), QStringLiteral(MERIDANE_QML_DIR), first + QLatin1Char('/') + file}));
            }
        }
    }

private:
    static constexpr int Tolerance = 8;

    struct Pictures
    {
        QImage canvas;
        QImage running;
    };

    static QJsonObject rectangle(const QString& position, const QString& size, const QString& color,
                                 const QString& border, int radius, const QString& rotation = {})
    {
        QJsonObject properties{{QStringLiteral("position"), position},
                               {QStringLiteral("size"), size},
                               {QStringLiteral("color"), color},
                               {QStringLiteral("border"), border},
                               {QStringLiteral("cornerRadius"), QString::number(radius)}};
        if (!rotation.isEmpty())
            properties.insert(QStringLiteral("rotation"), rotation);
        return {{QStringLiteral("op"), QStringLiteral("add")},
                {QStringLiteral("class"), QStringLiteral("Rectangle")},
                {QStringLiteral("properties"), properties}};
    }

    /// Whole and broken positions and sizes, borders, radii, alpha, overlaps, parts outside of the screen.
    static QJsonArray straightRectangles()
    {
        QRandomGenerator random(7);
        const auto real = [&random](double low, double high) {
            return QString::number(low + random.bounded(high - low), 'f', random.bounded(3));
        };
        QJsonArray edits;
        for (int i = 0; i < 150; ++i) {
            const int width = 3 + int(random.bounded(90));
            const int height = 3 + int(random.bounded(60));
            edits.append(rectangle(QStringLiteral("%1,%2").arg(real(-20, 310), real(-20, 230)),
                                   QStringLiteral("%1,%2").arg(real(width, width + 1), real(height, height + 1)),
                                   QStringLiteral("#%1").arg(random.generate(), 8, 16, QLatin1Char('0')),
                                   QStringLiteral("width: %1; color: #%2;")
                                       .arg(random.bounded(7))
                                       .arg(random.generate(), 8, 16, QLatin1Char('0')),
                                   int(random.bounded(std::min({width, height, 100}) / 2 + 1))));
        }
        return edits;
    }

    static QJsonArray rotatedRectangles()
    {
        const char* origins[]{"TopLeft", "Top",        "TopRight", "Left",       "Center",
                              "Right",   "BottomLeft", "Bottom",   "BottomRight"};
        QJsonArray edits;
        for (int i = 0; i < 18; ++i) {
            edits.append(rectangle(QStringLiteral("%1,%2").arg(20 + i % 6 * 50).arg(25 + i / 6 * 75),
                                   QStringLiteral("30,22.5"), QColor::fromHsv(i * 20, 180, 230).name(),
                                   QStringLiteral("width: %1; color: #203040;").arg(i % 5), i % 4 * 3,
                                   QStringLiteral("angle: %1; fixedPoint: %2;")
                                       .arg(i % 3 == 0 ? i * 30 : i * 17)
                                       .arg(QLatin1String(origins[i % 9]))));
        }
        return edits;
    }

    QString fresh(const QString& name) const
    {
        const QString path = m_folder.filePath(name);
        QDir(path).removeRecursively();
        return path;
    }

    QString makeProject(const QString& name, const QJsonArray& edits)
    {
        const QString project = fresh(name);
        const QString file = project + QStringLiteral(".json");
        QFile out(file);
        if (!run(QStringLiteral(MERIDANE_PROGRAM),
                 {QStringLiteral("new"), project, QStringLiteral("--size"), QStringLiteral("320x240")})
            || !out.open(QIODevice::WriteOnly) || out.write(QJsonDocument(edits).toJson()) < 0)
            return {};
        out.close();
        run(QStringLiteral(MERIDANE_PROGRAM), {QStringLiteral("apply"), project, file});
        return project;
    }

    Pictures pictures(const QString& project) const
    {
        const QString exported = fresh(QStringLiteral("export"));
        const QString rendered = fresh(QStringLiteral("render"));
        const QString grabbed = m_folder.filePath(QStringLiteral("grab.png"));
        QFile::remove(grabbed);
        run(QStringLiteral(MERIDANE_PROGRAM),
            {QStringLiteral("export"), project, QStringLiteral("--output"), exported});
        run(QStringLiteral(MERIDANE_PROGRAM),
            {QStringLiteral("render"), project, QStringLiteral("--output"), rendered});
        run(QStringLiteral(MERIDANE_VIEWER), {exported, QStringLiteral("--grab"), grabbed});
        const auto rgb = [](const QString& file) { return QImage(file).convertToFormat(QImage::Format_RGB32); };
        return {rgb(rendered + QStringLiteral("/main.png")), rgb(grabbed)};
    }

    /// Runs a program to its end; false with its output in the log where it did not leave with 0.
    static bool run(const QString& program, const QStringList& arguments)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
        const bool finished = process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit;
        if (finished && process.exitCode() == 0)
            return true;
        qWarning("%s %s: exit code %d\n%s", qPrintable(program), qPrintable(arguments.join(QLatin1Char(' '))),
                 process.exitCode(), process.readAll().constData());
        return false;
    }

    static int channelDifference(QRgb a, QRgb b)
    {
        return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
    }

    static bool isAtAnEdge(const QImage& image, int x, int y)
    {
        for (int dy = -1; dy <= 1; ++dy) {
            for (int dx = -1; dx <= 1; ++dx) {
                if (channelDifference(image.pixel(x, y), image.pixel(x + dx, y + dy)) > Tolerance)
                    return true;
            }
        }
        return false;
    }

    static qsizetype distinctColors(const QImage& image)
    {
        QSet<QRgb> colors;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                colors.insert(image.pixel(x, y));
        }
        return colors.size();
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

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_RunningExport)
#include "tst_RunningExport.moc"
