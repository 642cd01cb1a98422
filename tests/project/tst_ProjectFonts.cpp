#include "host/common/PaintHelper.h"
#include "host/common/TextBoxLayout.h"
#include "host/core/commands/RemoveFont.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/FontImporter.h"
#include "host/core/project/FontReferences.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectChecker.h"
#include "host/core/project/ProjectStore.h"
#include "tests/project/ProjectTestSupport.h"
#include "tests/support/RenamedFont.h"

#include <QDir>
#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <QPen>
#include <QtTest>

using namespace Korvex::Meridane;
using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// The fonts of a project: how they come into it, and that texts use them while it is open. The font of the tests is
/// installed nowhere.
class tst_ProjectFonts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void anImportedFontIsListedAndUsed();
    void theSameFontIsImportedOnce();
    void theNameIsMadePlainAndEndsAsTheContentAsks();
    void whatIsNoFontIsRefused_data();
    void whatIsNoFontIsRefused();
    void anImportThatIsNotSavedIsTakenBack();
    void aFailingCopyLeavesNothing();
    void nothingIsWrittenThroughALink();
    void saveAsTakesTheFontsAlong();
    void fontsAreKnownWhileTheirProjectIsOpen();
    void aFontThatLeavesTheListIsUsedNoMore();
    void textsThatWereDrawnBeforeFollow();
    void aVersionOfTheProjectGoesBeforeTheInstalledOne();
    void aMissingFontIsReportedUntilItIsImported();
    void aWeightThatNoDisplayShowsIsReported();
    void aFontIsRemovedAsAStepAndItsFileWhenTheSavedProjectIsClosed();
    void aRemovedFontComesBackWithUndoAlsoAfterASave();
    void aRemovalThatIsNotSavedLeavesTheFile();
    void aFontInUseIsNotRemoved();

private:
    QString import(const QString& file)
    {
        return FontImporter::importFont(m_project.get(), file, &m_families, &m_message);
    }
    QString importSegments() { return import(QStringLiteral(MERIDANE_FONT)); }
    static bool isKnown() { return QFontDatabase::hasFamily(QStringLiteral("Panel Segments")); }
    QStringList fonts() const { return QDir(m_fixture->folder() + QStringLiteral("/fonts")).entryList(QDir::Files); }
    bool save(const QString& folder) { return ProjectStore::save(m_project.get(), folder, &m_message); }
    EditResult remove(const QString& font)
    {
        return m_project->execute(std::make_unique<RemoveFont>(m_project.get(), font));
    }
    QString problems() const { return textOf(ProjectChecker::check(m_project.get())); }

    AllTypesFactory m_factory;
    std::unique_ptr<ProjectFixture> m_fixture;
    std::unique_ptr<Project> m_project;
    QStringList m_families;
    QString m_message;
};

/// A text in \a family, as it is drawn now; with \a layout, that keeps it.
static QImage picture(Common::TextBoxLayout* layout = nullptr, const char* family = "Panel Segments")
{
    QFont font;
    font.setFamilies({QString::fromLatin1(family)});
    font.setPixelSize(20);
    QImage image(100, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    Common::TextBoxLayout own;
    Common::PaintHelper::paintTextBox(QSizeF(100, 40), font, QPen(Qt::black), QStringLiteral("21.5 A"), 33, {},
                                      QPen(Qt::red), &painter, layout ? layout : &own);
    return image;
}

void tst_ProjectFonts::initTestCase()
{
    QVERIFY(!isKnown());
}

void tst_ProjectFonts::init()
{
    m_fixture = std::make_unique<ProjectFixture>();
    m_fixture->writeProject({QStringLiteral("main")});
    m_fixture->writeScreen("main", R"({"class": "AllTypes", "id": "lamp",
        "properties": {"font": "family: Panel Segments; pixelSize: 20;"}})");
    m_project = load(m_fixture->folder());
    QVERIFY(m_project);
}

void tst_ProjectFonts::cleanup()
{
    m_project.reset();
    QVERIFY(!isKnown());
}

void tst_ProjectFonts::anImportedFontIsListedAndUsed()
{
    QVERIFY(!m_project->isModified());
    QCOMPARE(importSegments(), QStringLiteral("PanelSegments.otf"));
    QCOMPARE(m_families, QStringList{QStringLiteral("Panel Segments")});
    QVERIFY(isKnown());
    QVERIFY(m_project->isModified());
    QVERIFY2(save(m_fixture->folder()), qUtf8Printable(m_message));
    QVERIFY(m_fixture->read("project.json").simplified().contains(R"("fonts": [ "PanelSegments.otf" ])"));
    QCOMPARE(m_fixture->read("fonts/PanelSegments.otf"), readFile(QStringLiteral(MERIDANE_FONT)));
    m_project = load(m_fixture->folder());
    QCOMPARE(m_project->fontResources(), QStringList{QStringLiteral("PanelSegments.otf")});
    QVERIFY(isKnown());
}

void tst_ProjectFonts::theSameFontIsImportedOnce()
{
    const QString first = importSegments();
    const QString copy = m_fixture->path("Copy of it.otf");
    QVERIFY(QFile::copy(QStringLiteral(MERIDANE_FONT), copy));
    QCOMPARE(import(copy), first);
    QCOMPARE(m_project->fontResources(), QStringList{first});
    QCOMPARE(fonts(), QStringList{first});
}

void tst_ProjectFonts::theNameIsMadePlainAndEndsAsTheContentAsks()
{
    m_fixture->write("fonts/a_b.OTF", "another file");
    const QString odd = m_fixture->path("a b.ttf");
    QVERIFY(QFile::copy(QStringLiteral(MERIDANE_FONT), odd));
    QCOMPARE(import(odd), QStringLiteral("a_b-2.otf"));
    QVERIFY(isKnown());
}

void tst_ProjectFonts::whatIsNoFontIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray font = readFile(QStringLiteral(MERIDANE_FONT));
    QTest::newRow("nothing") << QByteArray("");
    QTest::newRow("text") << QByteArray("no font");
    QTest::newRow("the head of a font") << font.left(100);
    QTest::newRow("a font that is cut off") << font.left(font.size() / 2);
    QTest::newRow("a font without its head") << font.mid(4);
    QTest::newRow("packed for the web") << QByteArray("wOFF") + font.mid(4);
    QTest::newRow("a missing file") << QByteArray();
}

void tst_ProjectFonts::whatIsNoFontIsRefused()
{
    QFETCH(QByteArray, content);
    const QString file = m_fixture->path("some.ttf");
    if (!content.isNull())
        writeFile(file, content);
    QCOMPARE(import(file), QString());
    QVERIFY2(m_message.startsWith(file), qUtf8Printable(m_message));
    QVERIFY(m_project->fontResources().isEmpty());
    QVERIFY(!m_project->isModified());
    QVERIFY(!QFileInfo::exists(m_fixture->folder() + QStringLiteral("/fonts")));
}

void tst_ProjectFonts::anImportThatIsNotSavedIsTakenBack()
{
    const auto before = filesOf(m_fixture->folder());
    QVERIFY(!importSegments().isEmpty());
    QVERIFY(filesOf(m_fixture->folder()) != before);
    m_project.reset();
    QCOMPARE(filesOf(m_fixture->folder()), before);
    QVERIFY(!QFileInfo::exists(m_fixture->folder() + QStringLiteral("/fonts")));

    m_project = load(m_fixture->folder());
    QVERIFY(!importSegments().isEmpty());
    QVERIFY(save(m_fixture->folder()));
    m_project.reset();
    QCOMPARE(fonts(), QStringList{QStringLiteral("PanelSegments.otf")});
}

void tst_ProjectFonts::aFailingCopyLeavesNothing()
{
    const auto before = filesOf(m_fixture->folder());
    int failing = 1;
    for (;; ++failing) {
        const FaultyOperations faulty(failing, true);
        if (!importSegments().isEmpty())
            break;
        QVERIFY(!m_message.isEmpty());
        QVERIFY(!isKnown());
        QVERIFY(m_project->fontResources().isEmpty());
    }
    QVERIFY(failing > 2);
    m_project.reset();
    QCOMPARE(filesOf(m_fixture->folder()), before);
}

void tst_ProjectFonts::nothingIsWrittenThroughALink()
{
    const QString outside = m_fixture->path("outside");
    QVERIFY(QDir().mkpath(outside));
    QVERIFY(QFile::link(outside, m_fixture->folder() + QStringLiteral("/fonts")));
    QCOMPARE(importSegments(), QString());
    QVERIFY(m_message.contains(QLatin1String("symbolic link")));
    QVERIFY(QDir(outside).isEmpty());
}

void tst_ProjectFonts::saveAsTakesTheFontsAlong()
{
    const auto before = filesOf(m_fixture->folder());
    QVERIFY(!importSegments().isEmpty());
    const QString other = m_fixture->path("other");
    QVERIFY2(save(other), qUtf8Printable(m_message));
    QCOMPARE(filesOf(m_fixture->folder()), before);
    m_project = load(other);
    QCOMPARE(m_project->fontResources(), QStringList{QStringLiteral("PanelSegments.otf")});
    QVERIFY(isKnown());
}

void tst_ProjectFonts::fontsAreKnownWhileTheirProjectIsOpen()
{
    const QImage fallback = picture();
    m_project.reset();
    m_fixture->write("fonts/Unlisted.otf", readFile(QStringLiteral(MERIDANE_FONT)));
    m_project = load(m_fixture->folder());
    QVERIFY(isKnown());
    QVERIFY(picture() != fallback);
    m_project.reset();
    QVERIFY(!isKnown());
    QCOMPARE(picture(), fallback);
}

void tst_ProjectFonts::aFontThatLeavesTheListIsUsedNoMore()
{
    const QImage fallback = picture();
    const QString font = importSegments();
    QVERIFY(picture() != fallback);
    m_project->setFontResources({});
    QVERIFY(!isKnown());
    QCOMPARE(picture(), fallback);
    m_project->setFontResources({font});
    QVERIFY(isKnown());
    QVERIFY(picture() != fallback);
}

void tst_ProjectFonts::textsThatWereDrawnBeforeFollow()
{
    Common::TextBoxLayout layout;
    const QImage fallback = picture(&layout);
    importSegments();
    const QImage segments = picture(&layout);
    QVERIFY(segments != fallback);
    QCOMPARE(segments, picture());
    m_project->setFontResources({});
    QCOMPARE(picture(&layout), fallback);
}

void tst_ProjectFonts::aVersionOfTheProjectGoesBeforeTheInstalledOne()
{
    const QImage installed = picture(nullptr, "DejaVu Serif");
    const QString segments = importSegments();
    const QImage own = picture();
    const QString file = m_fixture->path("serif.otf");
    writeFile(file, renamedFont(readFile(QStringLiteral(MERIDANE_FONT)), QStringLiteral("DejaVu Serif"),
                                QStringLiteral("Book"), "PfEd"));
    const QString serif = import(file);
    QCOMPARE(m_families, QStringList{QStringLiteral("DejaVu Serif")});
    QVERIFY(own != installed);
    QCOMPARE(picture(nullptr, "DejaVu Serif"), own);
    QCOMPARE(picture(), own);
    // Whatever comes and goes beside it.
    m_project->setFontResources({serif});
    QCOMPARE(picture(nullptr, "DejaVu Serif"), own);
    m_project->setFontResources({segments, serif});
    QCOMPARE(picture(nullptr, "DejaVu Serif"), own);
    m_project->setFontResources({segments});
    QCOMPARE(picture(nullptr, "DejaVu Serif"), installed);
    QCOMPARE(picture(), own);
    // And when it is the first that is asked for after the project was opened.
    m_project->setFontResources({segments, serif});
    QVERIFY2(save(m_fixture->folder()), qUtf8Printable(m_message));
    m_project.reset();
    m_project = load(m_fixture->folder());
    QCOMPARE(picture(nullptr, "DejaVu Serif"), own);
}

void tst_ProjectFonts::aMissingFontIsReportedUntilItIsImported()
{
    QVERIFY(problems().contains(QLatin1String("main/lamp.font: The font \"Panel Segments\" is neither in")));
    const QString font = importSegments();
    QCOMPARE(problems(), QString());
    m_project->setFontResources({});
    QVERIFY(problems().contains(QLatin1String("Panel Segments")));
    m_project->setFontResources({font});
    QVERIFY(QFile::remove(m_fixture->folder() + QStringLiteral("/fonts/") + font));
    QVERIFY(problems().contains(QLatin1String("fonts/PanelSegments.otf: The file is missing.")));
}

void tst_ProjectFonts::aWeightThatNoDisplayShowsIsReported()
{
    importSegments();
    DesignerObject* lamp = m_project->screens().constFirst()->element(QStringLiteral("lamp"));
    const auto problemsOf = [&](const char* weight) {
        setValue(lamp, "font", QStringLiteral("family: Panel Segments; pixelSize: 20;") + QString::fromLatin1(weight));
        return problems();
    };
    QCOMPARE(problemsOf(" bold: true;"), QString());
    QVERIFY(problemsOf(" weight: 600;").contains(QLatin1String("the weight 600 is shown as bold")));
    QVERIFY(problemsOf(" weight: 500;").contains(QLatin1String("the weight 500 is shown as normal")));
    QCOMPARE(problemsOf(""), QString());
}

void tst_ProjectFonts::aFontIsRemovedAsAStepAndItsFileWhenTheSavedProjectIsClosed()
{
    const QString font = importSegments();
    QVERIFY(save(m_fixture->folder()));
    QVERIFY(remove(font).changed);
    QCOMPARE(m_project->undoStack()->count(), 1);
    QVERIFY(m_project->fontResources().isEmpty());
    QVERIFY(!isKnown());
    QVERIFY(save(m_fixture->folder()));
    QCOMPARE(fonts(), QStringList{font}); // the history may ask for it
    m_project.reset();
    QVERIFY(fonts().isEmpty());
}

void tst_ProjectFonts::aRemovedFontComesBackWithUndoAlsoAfterASave()
{
    const QString font = importSegments();
    QVERIFY(remove(font).changed);
    QVERIFY(save(m_fixture->folder()));
    m_project->undoStack()->undo();
    QCOMPARE(m_project->fontResources(), QStringList{font});
    QVERIFY(isKnown());
    QVERIFY(save(m_fixture->folder()));
    m_project.reset();
    QCOMPARE(fonts(), QStringList{font});
}

void tst_ProjectFonts::aRemovalThatIsNotSavedLeavesTheFile()
{
    const QString font = importSegments();
    QVERIFY(save(m_fixture->folder()));
    QVERIFY(remove(font).changed);
    m_project.reset();
    QCOMPARE(fonts(), QStringList{font});
    m_project = load(m_fixture->folder());
    QCOMPARE(m_project->fontResources(), QStringList{font});
}

void tst_ProjectFonts::aFontInUseIsNotRemoved()
{
    const QString font = importSegments();
    const QString refusal = FontReferences::removalRefusal(m_project.get(), font);
    QVERIFY2(refusal.contains(QLatin1String("main/lamp")), qUtf8Printable(refusal));
    DesignerObject* lamp = m_project->screens().constFirst()->element(QStringLiteral("lamp"));
    QCOMPARE(FontReferences::users(m_project.get(), font), QList<DesignerObject*>{lamp});
    setValue(lamp, "font", QStringLiteral("family: Another; pixelSize: 20;"));
    QVERIFY(FontReferences::removalRefusal(m_project.get(), font).isEmpty());
    setValue(lamp, "font", QStringLiteral("family: panel segments; pixelSize: 20;")); // capitals make no difference
    QVERIFY(!FontReferences::removalRefusal(m_project.get(), font).isEmpty());
    QVERIFY(!FontReferences::removalRefusal(m_project.get(), QStringLiteral("other.ttf")).isEmpty());
}

QTEST_MAIN(tst_ProjectFonts)
#include "tst_ProjectFonts.moc"
