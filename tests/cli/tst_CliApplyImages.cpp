#include "tests/cli/ProjectFixture.h"
#include "tests/support/TestPictures.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTest>

#include <memory>

using namespace Korvex::Meridane::Designer;

namespace {

QByteArray edit(const char* op, const QMap<QString, QString>& arguments)
{
    QJsonObject object{{QStringLiteral("op"), QString::fromLatin1(op)}};
    for (auto argument = arguments.cbegin(); argument != arguments.cend(); ++argument)
        object.insert(argument.key(), argument.value());
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QByteArray edits(const QList<QByteArray>& list)
{
    return '[' + list.join(',') + ']';
}

QString text(const MeridaneProgram::Result& result, int line, const char* key)
{
    return result.line(line).value(QLatin1String(key)).toString(QStringLiteral("nothing"));
}

} // namespace

/// import-image, rename-image, replace-image, remove-image.
class tst_CliApplyImages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void everyFormatIsImportedUnderTheEndingOfItsContent();
    void aRenameTakesTheLinksAlongAndLeavesOneFile();
    void aReplacementIsRenderedAndExported();
    void anUnusedImageIsRemoved();
    void eachEditIsOneStepAndComesBack();
    void whatIsRefusedSaysWhyAndChangesNothing_data();
    void whatIsRefusedSaysWhyAndChangesNothing();
    void nothingIsLeftOfWhatIsNotSaved_data();
    void nothingIsLeftOfWhatIsNotSaved();

private:
    QString file(const char* name, const QByteArray& bytes) const
    {
        QFile file(m_project->path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return {};
        return file.fileName();
    }
    QByteArray import(const QString& file) const { return edit("import-image", {{QStringLiteral("file"), file}}); }
    static QByteArray rename(const char* id, const char* name)
    {
        return edit("rename-image",
                    {{QStringLiteral("id"), QString::fromUtf8(id)}, {QStringLiteral("name"), QString::fromUtf8(name)}});
    }
    static QByteArray replace(const char* id, const QString& file)
    {
        return edit("replace-image", {{QStringLiteral("id"), QString::fromUtf8(id)}, {QStringLiteral("file"), file}});
    }
    static QByteArray remove(const char* id)
    {
        return edit("remove-image", {{QStringLiteral("id"), QString::fromUtf8(id)}});
    }
    static QByteArray addImage(const char* id, const char* source)
    {
        const QJsonObject properties{{QStringLiteral("source"), QLatin1String(source)},
                                     {QStringLiteral("size"), QStringLiteral("40,40")}};
        const QJsonObject object{{QStringLiteral("op"), QStringLiteral("add")},
                                 {QStringLiteral("class"), QStringLiteral("Image")},
                                 {QStringLiteral("id"), QLatin1String(id)},
                                 {QStringLiteral("properties"), properties}};
        return QJsonDocument(object).toJson(QJsonDocument::Compact);
    }
    QStringList images() const { return QDir(m_project->folder() + QStringLiteral("/images")).entryList(QDir::Files); }

    std::unique_ptr<ProjectFixture> m_project;
};

void tst_CliApplyImages::init()
{
    m_project = std::make_unique<ProjectFixture>();
    QVERIFY(m_project->isValid());
}

void tst_CliApplyImages::everyFormatIsImportedUnderTheEndingOfItsContent()
{
    const QList<QPair<QString, QString>> files{
        {file("a.png", Test::pictureBytes(Qt::red)), QStringLiteral("a.png")},
        {file("b.svg", Test::pictureBytes(Qt::red)), QStringLiteral("b.png")},
        {file("c.jpg", Test::pictureBytes(Qt::red, {8, 8}, "JPEG")), QStringLiteral("c.jpg")},
        {file("d.bmp", Test::pictureBytes(Qt::red, {8, 8}, "BMP")), QStringLiteral("d.bmp")},
        {file("e.gif", Test::animationBytes()), QStringLiteral("e.gif")},
        {file("f.png", Test::drawingBytes(Qt::red)), QStringLiteral("f.svg")},
    };
    QList<QByteArray> list;
    for (const auto& file : files)
        list.append(import(file.first));
    const auto result = m_project->apply(edits(list));
    QVERIFY2(result.status == 0, result.errors.constData());
    QStringList expected;
    for (int i = 0; i < files.size(); ++i) {
        QCOMPARE(text(result, i, "id"), files.at(i).second);
        expected.append(files.at(i).second);
    }
    QCOMPARE(images(), expected);
    QCOMPARE(m_project->run("check").status, 0);
}

void tst_CliApplyImages::aRenameTakesTheLinksAlongAndLeavesOneFile()
{
    const QString logo = file("logo.png", Test::pictureBytes(Qt::red));
    QCOMPARE(m_project->apply(edits({import(logo), addImage("one", "logo.png")})).status, 0);
    const auto result = m_project->apply(edits({R"({"op":"add-screen","id":"other"})",
                                                R"({"op":"add","class":"Image","screen":"other","id":"two",
                                                    "properties":{"source":"logo.png"}})",
                                                rename("logo.png", "brand")}));
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(text(result, 2, "id"), QStringLiteral("brand.png"));
    QCOMPARE(images(), QStringList{QStringLiteral("brand.png")});
    for (const char* screen : {"screens/main.json", "screens/other.json"})
        QVERIFY(m_project->read(screen).contains(R"("source": "brand.png")"));
    QVERIFY(!m_project->read("project.json").contains("logo.png"));
    QCOMPARE(m_project->run("check").status, 0);
}

void tst_CliApplyImages::aReplacementIsRenderedAndExported()
{
    const QString red = file("logo.png", Test::pictureBytes(Qt::red));
    QCOMPARE(m_project->apply(edits({import(red), addImage("one", "logo.png")})).status, 0);
    const auto result = m_project->apply(edits({replace("logo.png", file("new.svg", Test::drawingBytes(Qt::blue)))}));
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(text(result, 0, "id"), QStringLiteral("logo.svg"));
    QCOMPARE(images(), QStringList{QStringLiteral("logo.svg")});
    QCOMPARE(m_project->run("render", {QStringLiteral("--output"), m_project->path("pictures")}).status, 0);
    QCOMPARE(QImage(m_project->path("pictures/main.png")).pixelColor(20, 20), QColor(Qt::blue));
    QCOMPARE(m_project->run("export", {QStringLiteral("--output"), m_project->path("export")}).status, 0);
    QVERIFY(QFile::exists(m_project->path("export/images/logo.svg")));
}

void tst_CliApplyImages::anUnusedImageIsRemoved()
{
    const QString logo = file("logo.png", Test::pictureBytes(Qt::red));
    QCOMPARE(m_project->apply(edits({import(logo)})).status, 0);
    QCOMPARE(m_project->apply(edits({remove("logo.png")})).status, 0);
    QCOMPARE(images(), QStringList());
    QVERIFY(!m_project->read("project.json").contains("logo.png"));
}

void tst_CliApplyImages::eachEditIsOneStepAndComesBack()
{
    const QString logo = file("logo.png", Test::pictureBytes(Qt::red));
    const QString spare = file("spare.png", Test::pictureBytes(Qt::green));
    const QString blue = file("blue.png", Test::pictureBytes(Qt::blue));
    QCOMPARE(m_project->apply(edits({import(logo), import(spare), addImage("one", "logo.png")})).status, 0);
    const auto before = m_project->content();
    const QByteArray count = R"({"op":"undo-count"})";
    const QByteArray undo = R"({"op":"undo"})";
    const auto result =
        m_project->apply(edits({rename("logo.png", "brand"), replace("brand.png", blue), remove("spare.png"), count,
                                undo, undo, undo, R"({"op":"set","id":"one","property":"size","value":"41,40"})",
                                R"({"op":"set","id":"one","property":"size","value":"40,40"})"}));
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(result.line(3).value(QLatin1String("count")).toInt(), 3);
    QCOMPARE(text(result, 4, "text"), QStringLiteral("Remove spare.png"));
    QCOMPARE(text(result, 5, "text"), QStringLiteral("Replace brand.png"));
    QCOMPARE(text(result, 6, "text"), QStringLiteral("Rename logo.png"));
    QCOMPARE(m_project->content(), before);
}

void tst_CliApplyImages::whatIsRefusedSaysWhyAndChangesNothing_data()
{
    QTest::addColumn<QByteArray>("refused");
    QTest::addColumn<QString>("reason");
    QTest::newRow("in use") << remove("logo.png") << "main/one";
    QTest::newRow("no such image") << remove("gone.png") << "no image \"gone.png\"";
    QTest::newRow("taken") << rename("logo.png", "later.png") << "already an image";
    QTest::newRow("taken but for capitals") << rename("logo.png", "LATER") << "capitals";
    QTest::newRow("out of the folder") << rename("logo.png", "../../x.png") << "plain file name";
    QTest::newRow("another kind") << rename("logo.png", "logo.svg") << "\".png\"";
    QTest::newRow("no file") << replace("logo.png", QStringLiteral("/nowhere.png")) << "/nowhere.png";
    QTest::newRow("rename without name") << edit("rename-image", {{QStringLiteral("id"), QStringLiteral("logo.png")}})
                                         << "\"name\"";
    QTest::newRow("rename without id") << edit("rename-image", {{QStringLiteral("name"), QStringLiteral("x.png")}})
                                       << "\"id\"";
    QTest::newRow("replace without file")
        << edit("replace-image", {{QStringLiteral("id"), QStringLiteral("logo.png")}}) << "\"file\"";
    QTest::newRow("remove without id") << edit("remove-image", {}) << "\"id\"";
    QTest::newRow("an argument too many") << edit("remove-image", {{QStringLiteral("id"), QStringLiteral("spare.png")},
                                                                   {QStringLiteral("force"), QStringLiteral("yes")}})
                                          << "\"force\"";
}

void tst_CliApplyImages::whatIsRefusedSaysWhyAndChangesNothing()
{
    QFETCH(QByteArray, refused);
    QFETCH(QString, reason);
    const QString logo = file("logo.png", Test::pictureBytes(Qt::red));
    const QString spare = file("spare.png", Test::pictureBytes(Qt::green));
    QCOMPARE(m_project->apply(edits({import(logo), import(spare), addImage("one", "logo.png")})).status, 0);
    const auto before = m_project->content();
    const auto result = m_project->apply(edits({rename("spare.png", "later"), refused}));
    QCOMPARE(result.status, 1);
    QVERIFY2(text(result, 1, "message").contains(reason), qUtf8Printable(text(result, 1, "message")));
    QVERIFY(result.saysError(qUtf8Printable(text(result, 1, "message"))));
    QCOMPARE(m_project->content(), before);
}

void tst_CliApplyImages::nothingIsLeftOfWhatIsNotSaved_data()
{
    QTest::addColumn<QByteArray>("last");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("status");
    QTest::newRow("a refusal at the end") << QByteArray(R"({"op":"redo"})") << QStringList() << 1;
    QTest::newRow("a dry run") << QByteArray(R"({"op":"undo-count"})") << QStringList{QStringLiteral("--dry-run")} << 0;
}

void tst_CliApplyImages::nothingIsLeftOfWhatIsNotSaved()
{
    QFETCH(QByteArray, last);
    QFETCH(QStringList, options);
    QFETCH(int, status);
    const QString logo = file("logo.png", Test::pictureBytes(Qt::red));
    const QString blue = file("blue.png", Test::pictureBytes(Qt::blue));
    const QString drawing = file("drawing.svg", Test::drawingBytes(Qt::blue));
    QCOMPARE(m_project->apply(edits({import(logo), addImage("one", "logo.png")})).status, 0);
    const auto before = m_project->content();
    const auto result = m_project->apply(edits({replace("logo.png", blue), import(blue), rename("blue.png", "sky"),
                                                replace("logo.png", drawing), rename("logo.svg", "brand"), last}),
                                         options);
    QVERIFY2(result.status == status, result.errors.constData());
    QCOMPARE(m_project->content(), before);
}

QTEST_GUILESS_MAIN(tst_CliApplyImages)
#include "tst_CliApplyImages.moc"
