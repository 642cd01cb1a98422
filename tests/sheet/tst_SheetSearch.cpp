#include "host/core/editors/IntegerEditor.h"
#include "host/core/sheet/SectionFolds.h"
#include "host/core/sheet/SectionHeader.h"
#include "host/core/widgets/NumberWidget.h"
#include "host/core/widgets/SpinBox.h"

#include "tests/sheet/SheetFixture.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// Finding rows: the search line and the sections that fold.
class tst_SheetSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<SheetFixture>();
        m_element = m_fixture->addElement();
        m_fixture->select({m_element});
    }

    void cleanup()
    {
        m_fixture.reset();
        for (const char* section : {"geometry", "appearance", "text", "own"})
            SectionFolds::shared().setFolded(QString::fromLatin1(section), false);
    }

    void typingShowsTheRowsWhoseNamesMatch()
    {
        search("COL");
        QCOMPARE(shownRows(), QStringList({QStringLiteral("color"), QStringLiteral("border")})); // which has a color
        QVERIFY(section("appearance"));
        QVERIFY(!section("geometry"));
        QVERIFY(label("color")->text().contains(QLatin1String("<span")));
        QTest::keyClick(line(), Qt::Key_Backspace);
        QTest::keyClick(line(), Qt::Key_Backspace);
        QTest::keyClick(line(), Qt::Key_Backspace);
        QVERIFY(shownRows().size() > 10);
        QCOMPARE(label("color")->text(), QStringLiteral("Color"));
    }

    void idsAndValuesMatchAsWell()
    {
        search("fixedPo");
        QCOMPARE(shownRows(), QStringList{QStringLiteral("rotation")});
        search("boundingS");
        QCOMPARE(shownRows(), QStringList{QStringLiteral("boundingSize")});
        search("#F8971D");
        QCOMPARE(shownRows(), QStringList{QStringLiteral("color")});
    }

    void theCompanionOfARowBringsItsRow()
    {
        search("keepRatio");
        QCOMPARE(shownRows(), QStringList{QStringLiteral("boundingSize")});
    }

    void anEmptyResultSaysSo()
    {
        search("flux compensator");
        QVERIFY(shownRows().isEmpty());
        const auto* hint = m_fixture->sheet->findChild<QLabel*>(QStringLiteral("nothingFound"));
        QVERIFY(hint->isVisible());
        QVERIFY(hint->text().contains(QLatin1String("flux compensator")));
        QTest::keyClick(line(), Qt::Key_Escape);
        QVERIFY(!hint->isVisible());
    }

    void markupInASearchIsText()
    {
        search("<b>");
        QVERIFY(shownRows().isEmpty());
        m_fixture->session->setProperty(m_element, QStringLiteral("text"), QStringLiteral("a <b> c"));
        search("");
        search("<b>");
        QCOMPARE(shownRows(), QStringList{QStringLiteral("text")});
    }

    void escapeClearsAndGoesBackToWhereOneCameFrom()
    {
        SpinBox* field = m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox();
        field->setFocus();
        m_fixture->sheet->focusSearch();
        QVERIFY(line()->hasFocus());
        QTest::keyClicks(line(), QStringLiteral("number"));
        QTest::keyClick(line(), Qt::Key_Escape);
        QCOMPARE(line()->text(), QString());
        QVERIFY(field->hasFocus());
        QVERIFY(shownRows().size() > 10);
    }

    void escapeInARowThatWasFoundEndsTheSearch()
    {
        search("numb");
        QTest::keyClick(line(), Qt::Key_Down);
        QWidget* field = QApplication::focusWidget();
        QTest::keyClicks(field, QStringLiteral("7"));
        QTest::keyClick(field, Qt::Key_Escape); // takes back what was typed
        QCOMPARE(line()->text(), QStringLiteral("numb"));
        QTest::keyClick(field, Qt::Key_Escape);
        QCOMPARE(line()->text(), QString());
        QVERIFY(field->hasFocus());
    }

    void headingsDoNotFoldDuringASearch()
    {
        search("color");
        QTest::mouseClick(section("appearance"), Qt::LeftButton);
        QVERIFY(shownRows().contains(QLatin1String("color")));
        QVERIFY(section("appearance")->isChecked());
        QVERIFY(!SectionFolds::shared().isFolded(QStringLiteral("appearance")));
    }

    void enterGoesToTheFirstRowThatWasFound()
    {
        search("numb");
        QTest::keyClick(line(), Qt::Key_Return);
        QVERIFY(m_fixture->editor<IntegerEditor>("number")->isAncestorOf(QApplication::focusWidget()));
    }

    void aTypedNumberIsTakenOverWhenTheSearchBegins()
    {
        SpinBox* field = m_fixture->editor<IntegerEditor>("number")->numberWidget()->spinBox();
        SheetFixture::type(field, "12");
        m_fixture->sheet->focusSearch();
        QCOMPARE(m_element->value("number"), QStringLiteral("12"));
    }

    void theFilterStaysWhenAnotherObjectIsSelected()
    {
        search("position");
        m_fixture->select({m_fixture->addRectangle()});
        QCOMPARE(shownRows(), QStringList{QStringLiteral("position")});
    }

    void anotherProjectStartsWithoutAFilter()
    {
        search("position");
        auto project = std::make_unique<Project>();
        QVERIFY(project->initialize());
        EditSession other(std::move(project));
        other.addScreen(QStringLiteral("second"));
        m_fixture->sheet->setSession(&other);
        QCOMPARE(line()->text(), QString());
        QVERIFY(shownRows().contains(QLatin1String("name")));
        m_fixture->sheet->setSession(nullptr);
    }

    void aSectionFoldsAndUnfolds()
    {
        QTest::mouseClick(section("appearance"), Qt::LeftButton);
        QVERIFY(!shownRows().contains(QLatin1String("color")));
        QVERIFY(shownRows().contains(QLatin1String("position")));
        QVERIFY(SectionFolds::shared().isFolded(QStringLiteral("appearance")));
        // Other kinds of objects have the section as well.
        m_fixture->select({m_fixture->addRectangle()});
        QVERIFY(!shownRows().contains(QLatin1String("color")));
        QTest::keyClick(section("appearance"), Qt::Key_Right);
        QVERIFY(shownRows().contains(QLatin1String("color")));
        QTest::keyClick(section("appearance"), Qt::Key_Left);
        QVERIFY(!shownRows().contains(QLatin1String("color")));
        QTest::keyClick(section("appearance"), Qt::Key_Space);
        QVERIFY(shownRows().contains(QLatin1String("color")));
    }

    void aSearchFindsWhatIsFolded()
    {
        QTest::mouseClick(section("appearance"), Qt::LeftButton);
        search("color");
        QVERIFY(shownRows().contains(QLatin1String("color")));
        QTest::keyClick(line(), Qt::Key_Escape);
        QVERIFY(!shownRows().contains(QLatin1String("color")));
    }

    void foldedSectionsAreKeptInTheSettings()
    {
        QTemporaryDir folder;
        SectionFolds folds;
        folds.setFolded(QStringLiteral("geometry"), true);
        folds.setFolded(QStringLiteral("text"), true);
        folds.setFolded(QStringLiteral("geometry"), false);
        QSettings settings(folder.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
        folds.save(settings);
        SectionFolds others;
        others.setFolded(QStringLiteral("image"), true);
        others.load(settings);
        QVERIFY(others.isFolded(QStringLiteral("text")));
        QVERIFY(!others.isFolded(QStringLiteral("geometry")));
        QVERIFY(!others.isFolded(QStringLiteral("image")));
    }

    void ownPropertiesStandUnderTheNameOfTheType()
    {
        QCOMPARE(section("own")->text(), QStringLiteral("Test Element"));
        m_element->property("number")->setFlag(Shown, true);
        m_fixture->select({m_element, m_fixture->addElement()});
        QCOMPARE(section("own")->text(), QStringLiteral("Test Element"));
    }

    void theFocusBringsARowIntoView()
    {
        m_fixture->sheet->resize(280, 200);
        QCoreApplication::processEvents();
        line()->setFocus();
        auto* editor = m_fixture->editor<IntegerEditor>("number");
        QVERIFY(!inView(editor));
        editor->setFocus();
        QVERIFY(inView(editor));
    }

private:
    QLineEdit* line() const { return m_fixture->sheet->findChild<QLineEdit*>(QStringLiteral("sheetSearch")); }

    void search(const char* text)
    {
        line()->setFocus();
        line()->selectAll();
        QTest::keyClick(line(), Qt::Key_Delete);
        QTest::keyClicks(line(), QString::fromLatin1(text));
        QCoreApplication::processEvents();
    }

    /// The ids of the first properties of the rows that one can see, in the order of the sheet.
    QStringList shownRows() const
    {
        QStringList ids;
        const auto rows = m_fixture->sheet->findChildren<QWidget*>(QRegularExpression(QStringLiteral("^row_")));
        for (const QWidget* row : rows) {
            if (row->isVisible())
                ids.append(row->objectName().mid(4));
        }
        return ids;
    }

    SectionHeader* section(const char* key) const { return m_fixture->section(QString::fromLatin1(key)); }

    QLabel* label(const char* propertyId) const
    {
        const QWidget* row = m_fixture->sheet->editor(QString::fromLatin1(propertyId));
        while (!row->objectName().startsWith(QLatin1String("row_")))
            row = row->parentWidget();
        return row->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    }

    bool inView(const QWidget* widget) const
    {
        const QWidget* viewport = m_fixture->sheet->viewport();
        return viewport->rect().contains(QRect(widget->mapTo(viewport, QPoint()), widget->size()));
    }

    std::unique_ptr<SheetFixture> m_fixture;
    EditorTestElement* m_element = nullptr;
};

QTEST_MAIN(tst_SheetSearch)
#include "tst_SheetSearch.moc"
