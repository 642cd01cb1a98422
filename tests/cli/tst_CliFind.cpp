#include "tests/cli/ProjectFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <memory>

/// find, and the operations of apply on whole screens and fonts.
class tst_CliFind : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_project = std::make_unique<ProjectFixture>();
        QVERIFY(m_project->isValid());
        const auto result = m_project->apply("[{\"op\":\"add\",\"class\":\"Rectangle\",\"id\":\"tile\",\"properties\":"
                                             "{\"color\":\"#123456\",\"position\":\"10,20\",\"size\":\"30,40\"}},"
                                             "{\"op\":\"add\",\"class\":\"TextBox\",\"id\":\"label\",\"properties\":"
                                             "{\"text\":\"Warm Light\"}}]");
        QCOMPARE(result.status, 0);
    }

    void aTextIsFoundInIdsAndValues()
    {
        auto result = m_project->run("find", {QStringLiteral("warm light")});
        QCOMPARE(result.status, 0);
        QCOMPARE(result.output, QByteArray("main/label.text: Warm Light\n"));
        result = m_project->run("find", {QStringLiteral("tile")});
        QCOMPARE(result.output, QByteArray("main/tile\n"));
    }

    void nothingFoundIsStatusOne()
    {
        const auto result = m_project->run("find", {QStringLiteral("nowhere")});
        QCOMPARE(result.status, 1);
        QVERIFY(result.output.isEmpty());
    }

    void referencesToAColorAreFoundAsJson()
    {
        const auto result = m_project->run("find", {QStringLiteral("#123456"), QStringLiteral("--references"),
                                                    QStringLiteral("--format"), QStringLiteral("json")});
        QCOMPARE(result.status, 0);
        const QJsonArray found = QJsonDocument::fromJson(result.output).array();
        QCOMPARE(found.size(), 1);
        QCOMPARE(found.at(0).toObject(), (QJsonObject{{QStringLiteral("object"), QStringLiteral("main/tile")},
                                                      {QStringLiteral("property"), QStringLiteral("color")},
                                                      {QStringLiteral("value"), QStringLiteral("#123456")}}));
    }

    void aWrongFormatIsWrongUsage()
    {
        QCOMPARE(
            m_project->run("find", {QStringLiteral("a"), QStringLiteral("--format"), QStringLiteral("xml")}).status, 2);
        QCOMPARE(m_project->run("find", {}).status, 2);
    }

    void aScreenIsDuplicatedWithItsContent()
    {
        auto result = m_project->apply("[{\"op\":\"duplicate-screen\",\"id\":\"main\",\"as\":\"night\"},"
                                       "{\"op\":\"get\",\"id\":\"night/tile\",\"property\":\"color\"},"
                                       "{\"op\":\"undo-count\"}]");
        QCOMPARE(result.status, 0);
        QVERIFY2(result.output.contains("\"id\":\"night\""), result.output.constData());
        QVERIFY2(result.output.contains("\"value\":\"#123456\""), result.output.constData());
        QVERIFY2(result.output.contains("\"count\":1"), result.output.constData());
        result = m_project->apply("[{\"op\":\"duplicate-screen\",\"id\":\"main\",\"as\":\"night\"}]");
        QCOMPARE(result.status, 1);
        QVERIFY2(result.output.contains("already used"), result.output.constData());
    }

    void aScreenIsResizedWithOrWithoutItsContent()
    {
        auto result =
            m_project->apply("[{\"op\":\"resize-screen\",\"id\":\"main\",\"size\":\"1600,960\"},"
                             "{\"op\":\"get\",\"id\":\"tile\",\"property\":\"position\"},"
                             "{\"op\":\"undo\"},"
                             "{\"op\":\"set\",\"id\":\"main\",\"property\":\"size\",\"value\":\"800,480\"},"
                             "{\"op\":\"resize-screen\",\"id\":\"main\",\"size\":\"1600,960\",\"content\":\"scale\"},"
                             "{\"op\":\"get\",\"id\":\"tile\",\"property\":\"position\"},"
                             "{\"op\":\"get\",\"id\":\"tile\",\"property\":\"size\"}]");
        QCOMPARE(result.status, 0);
        QVERIFY2(result.output.contains("\"value\":\"10,20\""), result.output.constData());
        QVERIFY2(result.output.contains("\"value\":\"20,40\""), result.output.constData());
        QVERIFY2(result.output.contains("\"value\":\"60,80\""), result.output.constData());
        for (const char* edit : {"\"size\":\"wide\"", "\"size\":\"0,0\"", "\"size\":\"9,9\",\"content\":\"stretch\""}) {
            result = m_project->apply(QByteArray("[{\"op\":\"resize-screen\",\"id\":\"main\",") + edit + "}]");
            QCOMPARE(result.status, 1);
        }
    }

    void aFontIsRemovedUnlessItIsUsed()
    {
        const QByteArray import = QByteArray("{\"op\":\"import-font\",\"file\":\"") + MERIDANE_FONT + "\"}";
        QCOMPARE(m_project->apply('[' + import + ']').status, 0);
        const QByteArray use = "{\"op\":\"set\",\"id\":\"label\",\"property\":\"font\",\"value\":"
                               "\"family: Panel Segments; pixelSize: 40;\"}";
        const QByteArray remove = "{\"op\":\"remove-font\",\"id\":\"PanelSegments.otf\"}";
        auto result = m_project->apply('[' + use + ',' + remove + ']');
        QCOMPARE(result.status, 1);
        QVERIFY2(result.output.contains("main/label"), result.output.constData());
        QCOMPARE(m_project->apply('[' + remove + ']').status, 0);
        QCOMPARE(m_project->apply('[' + remove + ']').status, 1); // it is gone, with its file
    }

private:
    std::unique_ptr<ProjectFixture> m_project;
};

QTEST_GUILESS_MAIN(tst_CliFind)
#include "tst_CliFind.moc"
