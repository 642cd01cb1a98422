#include "tests/cli/ProjectFixture.h"
#include "tests/support/SamplePictures.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <memory>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

/// The user and system time of all programs that have been started and have ended, in seconds.
double childrenTime()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval& time) { return double(time.tv_sec) + double(time.tv_usec) * 1e-6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// The memory that the largest of them has held, in MB.
long childrenMemory()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return usage.ru_maxrss / 1024;
}

#ifdef __SANITIZE_ADDRESS__
constexpr bool IsMeasured = false; // the sanitizer takes time and memory of its own
#else
constexpr bool IsMeasured = true;
#endif

QByteArray layers()
{
    const QByteArray group =
        "<g id=\"a\">" + QByteArray("<rect width=\"400\" height=\"400\" fill-opacity=\".5\"/>").repeated(90) + "</g>";
    return SamplePictures::drawing({400, 400}, group + QByteArray("<use href=\"#a\"/>").repeated(900));
}

QByteArray billionLaughs()
{
    QByteArray entities = "<!ENTITY a0 \"lol\">";
    for (int i = 1; i < 10; ++i) {
        const QByteArray before = "&a" + QByteArray::number(i - 1) + ';';
        entities += "<!ENTITY a" + QByteArray::number(i) + " \"" + before.repeated(10) + "\">";
    }
    return "<!DOCTYPE svg [" + entities + "]>" + SamplePictures::drawing({9, 9}, "<text>&a9;</text>");
}

QByteArray embedding(const QByteArray& picture)
{
    return SamplePictures::drawing({9, 9}, "<image width=\"9\" height=\"9\" xlink:href=\"data:image/png;base64,"
                                               + picture.toBase64() + "\"/>");
}

QByteArray texts()
{
    const QByteArray text = QByteArray("k\0\0", 3) + qCompress(QByteArray(7900000, 'a'), 9).sliced(4);
    QByteArray png = SamplePictures::quarters({60, 40}, "png");
    for (int i = 0; i < 100; ++i)
        png = SamplePictures::withPngChunk(png, "zTXt", text);
    return png;
}

} // namespace

/// What the programs make of projects with picture files that are missing, damaged, swapped or made to do harm.
class tst_ImageProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_project = std::make_unique<ProjectFixture>();
        QVERIFY(m_project->isValid());
    }
    void cleanup() { m_project.reset(); }

    void bombsAreRefusedInASecondAndWithLittleMemory_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        const auto row = [](const char* name, const QByteArray& content) {
            QTest::newRow(name) << QString::fromLatin1(name) << content;
        };
        constexpr QSize Bomb(60000, 60000);
        row("bomb.png", SamplePictures::greyPng(Bomb));
        row("33 million pixels.png", SamplePictures::greyPng({6000, 5500}));
        row("100 000 frames.gif", SamplePictures::gifOfFrames({10, 10}, 100000));
        row("large frames.gif", SamplePictures::gifOfFrames(Bomb, 10));
        row("drawing called.png", SamplePictures::drawnQuarters({40, 30}));
        row("packed.svgz", QByteArray::fromHex("1f8b0800000000000203b3292e4bb7b30300"));
        row("recursion.svg", SamplePictures::drawing({9, 9}, "<g id=\"a\"><use href=\"#a\"/><use href=\"#a\"/></g>"));
        row("nesting.svg",
            SamplePictures::drawing({9, 9}, QByteArray("<g>").repeated(500000) + QByteArray("</g>").repeated(500000)));
        row("entities.svg", billionLaughs());
        row("large picture in it.svg", embedding(SamplePictures::greyPng({30000, 30000})));
        row("another file.svg", SamplePictures::drawing({9, 9}, "<image href=\"/etc/hostname\"/>"));
        row("a style without end.svg",
            "<?xml-stylesheet type=\"text/css\" href=\"/dev/zero\"?>" + SamplePictures::drawing({9, 9}, "<rect/>"));
        row("layers.svg", layers());
        row("dashes.svg", SamplePictures::drawing(
                              {400, 400}, QByteArray("<path stroke=\"red\" stroke-width=\"3\" stroke-linecap=\"round\" "
                                                     "stroke-dasharray=\".2\" d=\"M0 0L400 399\"/>")
                                              .repeated(2000)));
    }

    void bombsAreRefusedInASecondAndWithLittleMemory()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        addImage(QString());
        const QImage placeholder = rendered();
        QVERIFY(!placeholder.isNull());
        const double idle = secondsOfRendering();
        write(name, content);
        link(name);
        const double start = childrenTime();
        QCOMPARE(rendered(), placeholder);
        if (IsMeasured) {
            QVERIFY2(childrenTime() - start < idle + 1, qPrintable(QString::number(childrenTime() - start)));
            QVERIFY2(childrenMemory() < 256, qPrintable(QString::number(childrenMemory())));
        }
        const auto check = m_project->run("check");
        QCOMPARE(check.status, 1);
        QVERIFY2(check.output.contains("images/" + name.toUtf8()), check.output.constData());
        if (IsMeasured)
            QVERIFY2(childrenMemory() < 256, qPrintable(QString::number(childrenMemory())));
        // Whatever it is, it is the user's.
        QCOMPARE(m_project->apply(R"([{"op": "set", "id": "image1", "property": "position", "value": "3,4"}])").status,
                 0);
        QCOMPARE(m_project->read(qPrintable(QStringLiteral("images/") + name)), content);
        QVERIFY(m_project->read("screens/main.json").contains("\"source\": \"" + name.toUtf8() + '"'));
    }

    void textsOfAPictureCostNothing()
    {
        addImage(QString());
        write(QStringLiteral("texts.png"), texts());
        link(QStringLiteral("texts.png"));
        const double start = childrenTime();
        QVERIFY(SamplePictures::isQuarters(rendered().copy(0, 0, 60, 40)));
        if (IsMeasured) {
            QVERIFY(childrenTime() - start < 1.5);
            QVERIFY2(childrenMemory() < 256, qPrintable(QString::number(childrenMemory())));
        }
        QCOMPARE(m_project->run("check").status, 0);
    }

    void theLargestPictureIsShown()
    {
        addImage(QString());
        write(QStringLiteral("large.png"), SamplePictures::greyPng({5600, 5700}));
        link(QStringLiteral("large.png"));
        QCOMPARE(rendered().pixelColor(30, 20), QColor(128, 128, 128));
        if (IsMeasured)
            QVERIFY2(childrenMemory() < 256, qPrintable(QString::number(childrenMemory())));
        QCOMPARE(m_project->run("check").status, 0);
    }

    void picturesOfEveryKindAreInOrder()
    {
        const QSize size(60, 40);
        write(QStringLiteral("a.png"), SamplePictures::quarters(size, "png"));
        write(QStringLiteral("b.JPG"), SamplePictures::quarters(size, "jpg"));
        write(QStringLiteral("c.webp"), SamplePictures::quarters(size, "webp"));
        write(QStringLiteral("d.bmp"), SamplePictures::quarters(size, "bmp"));
        write(QStringLiteral("e.gif"), SamplePictures::gifQuarters(size));
        write(QStringLiteral("f.GIF"), SamplePictures::gif(size, {Qt::red, Qt::green}));
        write(QStringLiteral("g.svg"), SamplePictures::drawnQuarters(size));
        write(QStringLiteral("\u00e9t\u00e9 50% #1 'x'.png"), SamplePictures::quarters(size, "png"));
        const QStringList names = QDir(m_project->folder() + QStringLiteral("/images")).entryList(QDir::Files);
        QCOMPARE(names.size(), 8);
        for (const QString& name : names) {
            addImage(name);
            QCOMPARE(m_project->run("check").status, 0);
            const QImage picture = rendered().copy(QRect({0, 0}, size));
            if (name == QLatin1String("f.GIF"))
                QCOMPARE(picture.pixelColor(30, 20), QColor(Qt::red));
            else
                QVERIFY2(SamplePictures::isQuarters(picture, 3), qPrintable(name));
        }
        const QString exported = m_project->path("export");
        QCOMPARE(m_project->run("export", {QStringLiteral("--output"), exported}).status, 0);
        QCOMPARE(QDir(exported + QStringLiteral("/images")).entryList(QDir::Files), names);
    }

    void aLostPictureIsReportedAndNothingElseIsLost_data()
    {
        QTest::addColumn<QString>("swap");
        QTest::addColumn<QByteArray>("message");
        QTest::newRow("missing") << QString() << QByteArray("is missing");
        QTest::newRow("a text") << QStringLiteral("text") << QByteArray("cannot be shown");
        QTest::newRow("empty") << QStringLiteral("empty") << QByteArray("cannot be shown");
        QTest::newRow("a folder") << QStringLiteral("folder") << QByteArray("not a regular file");
        QTest::newRow("a pipe") << QStringLiteral("pipe") << QByteArray("not a regular file");
        QTest::newRow("a link out of the project") << QStringLiteral("link") << QByteArray("leads out of the project");
        QTest::newRow("a link to nowhere") << QStringLiteral("dangling") << QByteArray("leads nowhere");
    }

    void aLostPictureIsReportedAndNothingElseIsLost()
    {
        QFETCH(QString, swap);
        QFETCH(QByteArray, message);
        const QByteArray png = SamplePictures::quarters({60, 40}, "png");
        addImage(QString());
        const QImage placeholder = rendered();
        SamplePictures::write(m_project->path("a.png"), png);
        apply({{QStringLiteral("op"), QStringLiteral("import-image")},
               {QStringLiteral("file"), m_project->path("a.png")}});
        link(QStringLiteral("a.png"));
        QCOMPARE(m_project->run("check").status, 0);
        const QString path = m_project->folder() + QStringLiteral("/images/a.png");
        QVERIFY(QFile::remove(path));
        const QString secret = m_project->path("secret.png");
        SamplePictures::write(secret, png);
        if (swap == QLatin1String("text"))
            write(QStringLiteral("a.png"), "hello");
        else if (swap == QLatin1String("empty"))
            write(QStringLiteral("a.png"), "");
        else if (swap == QLatin1String("folder"))
            QVERIFY(QDir().mkpath(path));
        else if (swap == QLatin1String("pipe"))
            QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        else if (swap == QLatin1String("link"))
            QVERIFY(QFile::link(secret, path));
        else if (swap == QLatin1String("dangling"))
            QVERIFY(QFile::link(QStringLiteral("nobody.png"), path));

        const auto check = m_project->run("check");
        QCOMPARE(check.status, 1);
        QVERIFY2(check.output.contains("images/a.png"), check.output.constData());
        QVERIFY2(check.output.contains("image1"), check.output.constData());
        QVERIFY2(check.output.contains(message), check.output.constData());
        QCOMPARE(rendered(), placeholder);
        // It is edited and saved, and keeps its link.
        QCOMPARE(m_project->apply(R"([{"op": "set", "id": "image1", "property": "size", "value": "30,20"}])").status,
                 0);
        QCOMPARE(m_project->readJson("project.json").value(QLatin1String("images")).toArray(),
                 QJsonArray{QStringLiteral("a.png")});
        QVERIFY(m_project->read("screens/main.json").contains("\"source\": \"a.png\""));
        // Put back it is shown as before.
        QDir().rmdir(path);
        QFile::remove(path);
        write(QStringLiteral("a.png"), png);
        QVERIFY(SamplePictures::isQuarters(rendered().copy(0, 0, 30, 20), 3));
        QCOMPARE(m_project->run("check").status, 0);
    }

    void aLinkThatLeavesTheFolderIsRefusedAndNeverFollowed_data()
    {
        QTest::addColumn<QString>("source");
        QTest::newRow("above") << QStringLiteral("../secret.png");
        QTest::newRow("above the project") << QStringLiteral("../../secret.png");
        QTest::newRow("a folder below") << QStringLiteral("below/secret.png");
        QTest::newRow("a path") << QStringLiteral("/secret.png");
        QTest::newRow("with the other slash") << QStringLiteral("..\\secret.png");
        QTest::newRow("an address") << QStringLiteral("file:secret.png");
    }

    void aLinkThatLeavesTheFolderIsRefusedAndNeverFollowed()
    {
        QFETCH(QString, source);
        addImage(QString());
        const QImage placeholder = rendered();
        for (const char* place : {"secret.png", "project/secret.png", "project/images/below/secret.png"})
            SamplePictures::write(m_project->path(place), SamplePictures::quarters({60, 40}, "png"));
        const QJsonObject edit{{QStringLiteral("op"), QStringLiteral("set")},
                               {QStringLiteral("id"), QStringLiteral("image1")},
                               {QStringLiteral("property"), QStringLiteral("source")},
                               {QStringLiteral("value"), source}};
        const auto refused = m_project->apply(QJsonDocument(QJsonArray{edit}).toJson());
        QCOMPARE(refused.status, 1);
        QVERIFY2(refused.line(0).value(QLatin1String("message")).toString().contains(source),
                 refused.output.constData());
        // The same in a file made by hand.
        m_project->setStoredValue(0, "source", source);
        QCOMPARE(rendered(), placeholder);
        const auto check = m_project->run("check");
        QCOMPARE(check.status, 1);
        QVERIFY2(check.output.contains(source.toUtf8()), check.output.constData());
        const QString exported = m_project->path("export");
        static_cast<void>(m_project->run("export", {QStringLiteral("--output"), exported}));
        QVERIFY(!QFile::exists(exported + QStringLiteral("/images/secret.png")));
        QVERIFY(!QFile::exists(exported + QStringLiteral("/secret.png")));
    }

private:
    void write(const QString& name, const QByteArray& content) const
    {
        SamplePictures::write(m_project->folder() + QStringLiteral("/images/") + name, content);
    }
    /// Adds an image of 60 × 40 in the top left corner, in front of all others.
    void addImage(const QString& source) const
    {
        QJsonObject properties{{QStringLiteral("size"), QStringLiteral("60,40")}};
        if (!source.isEmpty())
            properties.insert(QStringLiteral("source"), source);
        apply({{QStringLiteral("op"), QStringLiteral("add")},
               {QStringLiteral("class"), QStringLiteral("Image")},
               {QStringLiteral("properties"), properties}});
    }
    void link(const QString& source) const
    {
        apply({{QStringLiteral("op"), QStringLiteral("set")},
               {QStringLiteral("id"), QStringLiteral("image1")},
               {QStringLiteral("property"), QStringLiteral("source")},
               {QStringLiteral("value"), source}});
    }
    void apply(const QJsonObject& edit) const
    {
        const auto result = m_project->apply(QJsonDocument(QJsonArray{edit}).toJson());
        if (result.status != 0)
            qFatal("%s%s", result.output.constData(), result.errors.constData());
    }
    /// The screen as `meridane render` draws it; null when that fails.
    [[nodiscard]] QImage rendered() const
    {
        const QString folder = m_project->path("pictures");
        QDir(folder).removeRecursively();
        const auto result = m_project->run("render", {QStringLiteral("--output"), folder});
        if (result.status != 0)
            qWarning("%s", result.errors.constData());
        return QImage(folder + QStringLiteral("/main.png"));
    }
    [[nodiscard]] double secondsOfRendering() const
    {
        const double start = childrenTime();
        static_cast<void>(rendered());
        return childrenTime() - start;
    }

    std::unique_ptr<ProjectFixture> m_project;
};

QTEST_GUILESS_MAIN(tst_ImageProject)
#include "tst_ImageProject.moc"
