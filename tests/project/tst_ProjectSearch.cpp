#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/ColorTexts.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectSearch.h"
#include "host/core/properties/DesignerProperty.h"
#include "tests/project/ProjectTestSupport.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

/// JSON that is written with single quotes.
QByteArray json(QByteArray text)
{
    return text.replace('\'', '"');
}

} // namespace

/// Finding things in a project, and what refers to them.
class tst_ProjectSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<ProjectFixture>();
        m_fixture->writeProject({QStringLiteral("main"), QStringLiteral("second")}, json(", 'images': ['logo.png']"));
        m_fixture->writeScreen("main",
                               json("{'class': 'AllTypes', 'id': 'lamp', 'properties': {'text': 'Warm Light', "
                                    "'color': '#ff0000', 'border': 'width: 2; color: #00ff00;'}}, "
                                    "{'class': 'AllTypes', 'id': 'pointer', "
                                    "'properties': {'target': 'lamp', 'image': 'logo.png'}}, "
                                    "{'class': 'Group', 'id': 'box', 'elements': ["
                                    "{'class': 'AllTypes', 'id': 'dial', 'properties': {"
                                    "'text': '#ff0000 is red', 'font': 'family: Panel Sans; pixelSize: 10;'}}]}"));
        m_fixture->writeScreen("second", json("{'class': 'AllTypes', 'id': 'lamp'}, "
                                              "{'class': 'AllTypes', 'id': 'other', 'properties': {'target': 'lamp'}}, "
                                              "{'class': 'Hologram', 'id': 'strange', "
                                              "'properties': {'picture': 'logo.png'}}"));
        m_session = std::make_unique<EditSession>(load(m_fixture->folder()));
    }
    void cleanup() { m_session.reset(); }

    void textIsFoundInIdsClassesAndValues()
    {
        QCOMPARE(found("dial"), QStringList{QStringLiteral("main/dial")});
        QCOMPARE(found("WARM light"), QStringList{QStringLiteral("main/lamp.text")});
        QCOMPARE(found("hologram"), QStringList{QStringLiteral("second/strange")});
        QCOMPARE(found("#00ff00"), QStringList{QStringLiteral("main/lamp.border")});
        QCOMPARE(found("lamp"), (QStringList{QStringLiteral("main/lamp"), QStringLiteral("main/pointer.target"),
                                             QStringLiteral("second/lamp"), QStringLiteral("second/other.target")}));
        QVERIFY(found("").isEmpty());
        QVERIFY(found("nothing has this").isEmpty());
    }

    void linksToAnElementAreFoundOnItsScreenAlone()
    {
        QCOMPARE(references("main/lamp"), QStringList{QStringLiteral("main/pointer.target")});
        QCOMPARE(references("second/lamp"), QStringList{QStringLiteral("second/other.target")});
        QCOMPARE(references("lamp").size(), 2);
        QVERIFY(references("main/dial").isEmpty());
    }

    void usesOfAnImageAreFoundAlsoWhereItIsNotUnderstood()
    {
        QCOMPARE(references("logo.png"),
                 (QStringList{QStringLiteral("main/pointer.image"), QStringLiteral("second/strange")}));
    }

    void usesOfAFontAndOfAColorAreFound()
    {
        QCOMPARE(references("panel sans"), QStringList{QStringLiteral("main/dial.font")});
        // A colour that a text speaks of is none.
        QCOMPARE(references("#f00"), QStringList{QStringLiteral("main/lamp.color")});
        QCOMPARE(references("#ff00ff00"), QStringList{QStringLiteral("main/lamp.border")});
        QVERIFY(references("#80ff0000").isEmpty());
    }

    void aSearchInSlicesFindsTheSame()
    {
        ProjectSearch search = ProjectSearch::forText(project(), QStringLiteral("lamp"));
        int slices = 1;
        while (!search.proceed(0))
            ++slices;
        QVERIFY(slices > 3);
        ProjectSearch whole = ProjectSearch::forText(project(), QStringLiteral("lamp"));
        QVERIFY(whole.proceed());
        QCOMPARE(search.matches(), whole.matches());
    }

    void whatGoesDuringASearchIsPassedOver()
    {
        ProjectSearch search = ProjectSearch::forText(project(), QStringLiteral("lamp"));
        (void)search.proceed(0);
        (void)search.proceed(0); // the elements of the first screen are waiting
        m_session->removeScreen(project()->screen(QStringLiteral("main")));
        m_session->undoStack()->clear(); // and nothing keeps them any more
        QVERIFY(search.proceed());
        for (const SearchMatch& match : search.matches())
            QVERIFY(match.object.startsWith(QLatin1String("second")));
    }

    void tooManyMatchesAreCut()
    {
        for (int i = 0; i < ProjectSearch::MostMatches + 5; ++i)
            addElement(project(), project()->screen(QStringLiteral("main")));
        ProjectSearch search = ProjectSearch::forText(project(), QStringLiteral("allTypes"));
        QVERIFY(search.proceed());
        QVERIFY(search.isCut());
        QCOMPARE(search.matches().size(), ProjectSearch::MostMatches);
    }

    void colorsAreReadFromValueStrings()
    {
        QCOMPARE(ColorTexts::color(QStringLiteral("#f80")), QColor(0xff, 0x88, 0x00));
        QCOMPARE(ColorTexts::color(QStringLiteral("#80ff8800")), QColor(0xff, 0x88, 0x00, 0x80));
        QVERIFY(!ColorTexts::color(QStringLiteral("red")).isValid());
        QVERIFY(!ColorTexts::color(QStringLiteral("#12")).isValid());
        QVERIFY(!ColorTexts::color(QStringLiteral("#1234567")).isValid());
        QCOMPARE(ColorTexts::colors(QStringLiteral("0:#000000;1:#ffff0000")),
                 (QList<QColor>{QColor(Qt::black), QColor(Qt::red)}));
    }

    void linksFollowARename()
    {
        DesignerObject* lamp = project()->screen(QStringLiteral("main"))->element(QStringLiteral("lamp"));
        const DesignerObject* pointer = project()->screen(QStringLiteral("main"))->element(QStringLiteral("pointer"));
        (void)project()->screen(QStringLiteral("second"))->childList();
        QVERIFY(m_session->rename(lamp, QStringLiteral("bulb")).changed);
        QCOMPARE(m_session->undoStack()->count(), 1);
        QCOMPARE(valueOf(pointer, "target"), QStringLiteral("bulb"));
        const DesignerObject* other = project()->screen(QStringLiteral("second"))->element(QStringLiteral("other"));
        QCOMPARE(valueOf(other, "target"), QStringLiteral("lamp"));
        m_session->undo();
        QCOMPARE(valueOf(pointer, "target"), QStringLiteral("lamp"));
        m_session->redo();
        QCOMPARE(valueOf(pointer, "target"), QStringLiteral("bulb"));
        // A name that is refused leaves the links alone.
        QVERIFY(!m_session->rename(lamp, QStringLiteral("box")).accepted);
        QCOMPARE(valueOf(pointer, "target"), QStringLiteral("bulb"));
    }

private:
    Project* project() const { return m_session->project(); }
    static QStringList places(ProjectSearch search)
    {
        QStringList places;
        (void)search.proceed();
        for (const SearchMatch& match : search.matches())
            places.append(match.property.isEmpty() ? match.object : match.object + QLatin1Char('.') + match.property);
        return places;
    }
    QStringList found(const char* text) const
    {
        return places(ProjectSearch::forText(project(), QString::fromUtf8(text)));
    }
    QStringList references(const char* name) const
    {
        return places(ProjectSearch::forReferences(project(), QString::fromUtf8(name)));
    }

    AllTypesFactory m_factory;
    std::unique_ptr<ProjectFixture> m_fixture;
    std::unique_ptr<EditSession> m_session;
};

QTEST_MAIN(tst_ProjectSearch)
#include "tst_ProjectSearch.moc"
