#include "tests/cli/ProjectFixture.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTest>

#include <memory>

class tst_CliRender : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void everyScreenGetsAPictureOfItsSize();
    void elementsStandWhereTheyAre();
    void handlesAndSelectionAreNotDrawn();
    void aScaleMultipliesThePixels();
    void oneScreenCanBeChosen();
    void anUnknownScreenIsNamed();
    void anUnreadableScreenLeavesNothing();
    void anEarlierPictureIsReplaced();
    void whatCannotBeWrittenLeavesNothing_data();
    void whatCannotBeWrittenLeavesNothing();
    void aPictureBeyondAllMemoryIsRefused();

    void aDrawingIsWrittenInstead();
    void elementsCanBeDrawnAlone();
    void theGroundCanBeLeftOut();
    void aPanelsColorsAreThoseOfThePanel();
    void optionsThatContradictEachOtherAreRefused_data();
    void optionsThatContradictEachOtherAreRefused();

    void equalPicturesAgree();
    void differentPicturesDoNot();
    void theToleranceIsTheGreatestChannelDifference();
    void aMissingReferenceIsADifference();
    void aReferenceOfAnotherSizeIsADifference();
    void aReferenceThatIsNoPictureIsADifference();

private:
    MeridaneProgram::Result render(const char* folder, const QStringList& options = {}) const
    {
        return m_project->run("render", QStringList{QStringLiteral("--output"), m_project->path(folder)} + options);
    }
    MeridaneProgram::Result compare(const QStringList& options = {}) const
    {
        return render("new", QStringList{QStringLiteral("--compare"), m_project->path("old")} + options);
    }

    std::unique_ptr<ProjectFixture> m_project;
};

void tst_CliRender::init()
{
    m_project = std::make_unique<ProjectFixture>();
    QVERIFY(m_project->isValid());
    QCOMPARE(m_project->apply(ProjectFixture::addBox()).status, 0);
}

void tst_CliRender::everyScreenGetsAPictureOfItsSize()
{
    QCOMPARE(m_project
                 ->apply(R"([{"op":"add-screen","id":"wide"},
                                  {"op":"set","id":"wide","property":"size","value":"300,50"}])")
                 .status,
             0);
    const auto result = render("p");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(QImage(m_project->path("p/main.png")).size(), QSize(200, 100));
    QCOMPARE(QImage(m_project->path("p/wide.png")).size(), QSize(300, 50));
    QCOMPARE(ProjectFixture::content(m_project->path("p")).size(), 2);
}

void tst_CliRender::elementsStandWhereTheyAre()
{
    QCOMPARE(render("p").status, 0);
    const QImage picture(m_project->path("p/main.png"));
    const QColor box(248, 151, 29);
    const QColor ground(Qt::white);
    for (const QPoint inside : {QPoint(20, 10), QPoint(69, 10), QPoint(20, 49), QPoint(69, 49), QPoint(45, 30)})
        QCOMPARE(picture.pixelColor(inside), box);
    for (const QPoint outside : {QPoint(19, 10), QPoint(70, 10), QPoint(20, 9), QPoint(20, 50), QPoint(0, 0)})
        QCOMPARE(picture.pixelColor(outside), ground);
}

void tst_CliRender::handlesAndSelectionAreNotDrawn()
{
    QCOMPARE(render("p").status, 0);
    const QImage picture(m_project->path("p/main.png"));
    int others = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor color = picture.pixelColor(x, y);
            others += color == QColor(248, 151, 29) || color == QColor(Qt::white) ? 0 : 1;
        }
    }
    QCOMPARE(others, 0);
}

void tst_CliRender::aScaleMultipliesThePixels()
{
    QCOMPARE(render("p", {QStringLiteral("--scale"), QStringLiteral("2.5")}).status, 0);
    const QImage picture(m_project->path("p/main.png"));
    QCOMPARE(picture.size(), QSize(500, 250));
    QCOMPARE(picture.pixelColor(50, 25), QColor(248, 151, 29));
    QCOMPARE(picture.pixelColor(49, 24), QColor(Qt::white));
}

void tst_CliRender::oneScreenCanBeChosen()
{
    QCOMPARE(m_project->apply(R"([{"op":"add-screen","id":"other"}])").status, 0);
    QCOMPARE(render("p", {QStringLiteral("--screen"), QStringLiteral("other")}).status, 0);
    QCOMPARE(ProjectFixture::content(m_project->path("p")).keys(), QStringList{QStringLiteral("/other.png")});
}

void tst_CliRender::anUnknownScreenIsNamed()
{
    const auto result = render("p", {QStringLiteral("--screen"), QStringLiteral("nowhere")});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.saysError("nowhere"), result.errors.constData());
    QVERIFY(!QFileInfo::exists(m_project->path("p")));
}

void tst_CliRender::anUnreadableScreenLeavesNothing()
{
    QCOMPARE(m_project->apply(R"([{"op":"add-screen","id":"other"}])").status, 0);
    m_project->write("screens/other.json", "[]");
    const auto result = render("p");
    QCOMPARE(result.status, 1);
    QVERIFY2(result.saysError("screens/other.json"), result.errors.constData());
    QVERIFY(!QFileInfo::exists(m_project->path("p")));
    QCOMPARE(render("p", {QStringLiteral("--screen"), QStringLiteral("main")}).status, 0);
}

void tst_CliRender::anEarlierPictureIsReplaced()
{
    QCOMPARE(render("p").status, 0);
    QCOMPARE(m_project->apply(R"([{"op":"set","id":"box","property":"color","value":"#0000ff"}])").status, 0);
    QCOMPARE(render("p").status, 0);
    QCOMPARE(QImage(m_project->path("p/main.png")).pixelColor(45, 30), QColor(Qt::blue));
}

void tst_CliRender::whatCannotBeWrittenLeavesNothing_data()
{
    QTest::addColumn<QString>("script");
    QTest::newRow("below a file") << QStringLiteral("touch \"$2/file\"; \"$M\" render \"$1\" --output \"$2/file/out\"");
    QTest::newRow("in a system folder") << QStringLiteral("\"$M\" render \"$1\" --output /proc/out");
    QTest::newRow("file size limit") << QStringLiteral("ulimit -f 0; \"$M\" render \"$1\" --output \"$2/out\"");
}

void tst_CliRender::whatCannotBeWrittenLeavesNothing()
{
    QFETCH(QString, script);
    const auto result = MeridaneProgram::script(script, {m_project->folder(), m_project->path("")});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(script.contains(QLatin1String("/proc")) ? "/proc" : m_project->path("").toUtf8()),
             result.errors.constData());
    QVERIFY(!QFileInfo::exists(m_project->path("out")));
}

void tst_CliRender::aPictureBeyondAllMemoryIsRefused()
{
    QCOMPARE(m_project->apply(R"([{"op":"set","id":"main","property":"size","value":"20000,20000"}])").status, 0);
    const auto result = render("p", {QStringLiteral("--scale"), QStringLiteral("100")});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.saysError("main"), result.errors.constData());
    QVERIFY(!QFileInfo::exists(m_project->path("p")));
}

void tst_CliRender::aDrawingIsWrittenInstead()
{
    const auto result = render(
        "p", {QStringLiteral("--format"), QStringLiteral("svg"), QStringLiteral("--scale"), QStringLiteral("2")});
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(ProjectFixture::content(m_project->path("p")).size(), 1);
    QFile file(m_project->path("p/main.svg"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray svg = file.readAll();
    QVERIFY(svg.contains("<svg width=\"400\" height=\"200\""));
    QVERIFY(svg.contains("#f8971d"));
}

void tst_CliRender::elementsCanBeDrawnAlone()
{
    QCOMPARE(render("p", {QStringLiteral("--screen"), QStringLiteral("main"), QStringLiteral("--elements"),
                          QStringLiteral("box")})
                 .status,
             0);
    const QImage picture(m_project->path("p/main.png"));
    QCOMPARE(picture.size(), QSize(50, 40));
    QCOMPARE(picture.pixelColor(0, 0), QColor(248, 151, 29));
    const auto unknown = render("q", {QStringLiteral("--screen"), QStringLiteral("main"), QStringLiteral("--elements"),
                                      QStringLiteral("box,nobody")});
    QCOMPARE(unknown.status, 1);
    QVERIFY2(unknown.errors.contains("\"nobody\""), unknown.errors.constData());
    QVERIFY(!QFileInfo::exists(m_project->path("q")));
}

void tst_CliRender::theGroundCanBeLeftOut()
{
    QCOMPARE(render("p", {QStringLiteral("--transparent")}).status, 0);
    const QImage picture(m_project->path("p/main.png"));
    QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(picture.pixelColor(30, 20), QColor(248, 151, 29));
}

void tst_CliRender::aPanelsColorsAreThoseOfThePanel()
{
    QCOMPARE(render("p", {QStringLiteral("--panel"), QStringLiteral("rgb565")}).status, 0);
    const QImage picture(m_project->path("p/main.png"));
    // 248 is level 30 of 31, 151 level 37 of 63, 29 level 4 of 31 (33) or 3 (24): 33 is nearer.
    QCOMPARE(picture.pixelColor(30, 20), QColor(247, 150, 33));
    QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::white));
    QCOMPARE(render("q", {QStringLiteral("--panel"), QStringLiteral("rgb565-dithered")}).status, 0);
    const QImage dithered(m_project->path("q/main.png"));
    bool isEven = true;
    for (int x = 20; x < 70; ++x)
        isEven &= dithered.pixel(x, 20) == dithered.pixel(20, 20);
    QVERIFY(!isEven);
}

void tst_CliRender::optionsThatContradictEachOtherAreRefused_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("named");
    QTest::newRow("format") << QStringList{QStringLiteral("--format"), QStringLiteral("gif")} << QByteArray("gif");
    QTest::newRow("panel") << QStringList{QStringLiteral("--panel"), QStringLiteral("rgb111")} << QByteArray("rgb111");
    QTest::newRow("drawing on a panel") << QStringList{QStringLiteral("--format"), QStringLiteral("svg"),
                                                       QStringLiteral("--panel"), QStringLiteral("grey")}
                                        << QByteArray("--panel");
    QTest::newRow("drawing compared") << QStringList{QStringLiteral("--format"), QStringLiteral("svg"),
                                                     QStringLiteral("--compare"), QStringLiteral("x")}
                                      << QByteArray("--compare");
    QTest::newRow("transparent panel") << QStringList{QStringLiteral("--transparent"), QStringLiteral("--panel"),
                                                      QStringLiteral("grey")}
                                       << QByteArray("transparent");
    QTest::newRow("elements of all screens")
        << QStringList{QStringLiteral("--elements"), QStringLiteral("box")} << QByteArray("--screen");
}

void tst_CliRender::optionsThatContradictEachOtherAreRefused()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, named);
    const auto result = render("p", options);
    QCOMPARE(result.status, 2);
    QVERIFY2(result.errors.contains(named), result.errors.constData());
    QVERIFY(!QFileInfo::exists(m_project->path("p")));
}

void tst_CliRender::equalPicturesAgree()
{
    QCOMPARE(render("old").status, 0);
    const auto result = compare();
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QByteArray("main: maximum 0, differing 0\n"));
    QCOMPARE(result.errors, QByteArray());
    QVERIFY(!QFileInfo::exists(m_project->path("new/main.diff.png")));
}

void tst_CliRender::differentPicturesDoNot()
{
    QCOMPARE(render("old").status, 0);
    QCOMPARE(m_project->apply(R"([{"op":"set","id":"box","property":"position","value":"30,10"}])").status, 0);
    auto result = compare();
    QCOMPARE(result.status, 1);
    // 10 columns of 40 pixels at either side, of 200 x 100.
    QCOMPARE(result.output, QByteArray("main: maximum 226, differing 0.04\n"));
    QVERIFY2(result.saysError("old/main.png"), result.errors.constData());
    QVERIFY(QFileInfo::exists(m_project->path("new/main.png")));
    const QImage difference(m_project->path("new/main.diff.png"));
    QCOMPARE(difference.size(), QSize(200, 100));
    const auto isMarked = [](const QColor& color) { return color.red() == 255 && color.green() < 200; };
    QVERIFY(isMarked(difference.pixelColor(25, 30)));
    QVERIFY(isMarked(difference.pixelColor(75, 30)));
    QVERIFY(!isMarked(difference.pixelColor(45, 30)));
    QVERIFY(!isMarked(difference.pixelColor(5, 5)));

    // When the difference is gone, so is its picture.
    QCOMPARE(m_project->apply(R"([{"op":"set","id":"box","property":"position","value":"20,10"}])").status, 0);
    result = compare();
    QCOMPARE(result.status, 0);
    QVERIFY(!QFileInfo::exists(m_project->path("new/main.diff.png")));
}

void tst_CliRender::theToleranceIsTheGreatestChannelDifference()
{
    QCOMPARE(render("old").status, 0);
    QCOMPARE(m_project->apply(R"([{"op":"set","id":"box","property":"color","value":"#f89a1d"}])").status, 0); // +3
    for (const auto& [tolerance, status] : {std::pair("3", 0), std::pair("255", 0), std::pair("2.9", 1)}) {
        const auto result = compare({QStringLiteral("--tolerance"), QString::fromLatin1(tolerance)});
        QCOMPARE(result.status, status);
        QCOMPARE(result.output, QByteArray("main: maximum 3, differing 0.1\n"));
        QVERIFY(QFileInfo::exists(m_project->path("new/main.diff.png")));
    }
}

void tst_CliRender::aMissingReferenceIsADifference()
{
    const auto result = compare();
    QCOMPARE(result.status, 1);
    QVERIFY2(result.saysError("old/main.png"), result.errors.constData());
    QVERIFY(QFileInfo::exists(m_project->path("new/main.png")));
}

void tst_CliRender::aReferenceOfAnotherSizeIsADifference()
{
    QCOMPARE(render("old", {QStringLiteral("--scale"), QStringLiteral("2")}).status, 0);
    const auto result = compare({QStringLiteral("--tolerance"), QStringLiteral("255")});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.saysError("400 x 200"), result.errors.constData());
}

void tst_CliRender::aReferenceThatIsNoPictureIsADifference()
{
    QCOMPARE(render("old").status, 0);
    QFile file(m_project->path("old/main.png"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("no picture");
    file.close();
    const auto result = compare();
    QCOMPARE(result.status, 1);
    QVERIFY2(result.saysError("old/main.png"), result.errors.constData());
}

QTEST_GUILESS_MAIN(tst_CliRender)
#include "tst_CliRender.moc"
