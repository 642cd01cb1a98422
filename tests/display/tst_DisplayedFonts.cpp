#include "tests/display/PictureComparison.h"
#include "tests/display/Programs.h"
#include "tests/support/RenamedFont.h"

#include <QFile>
#include <QJsonObject>
#include <QtTest>

/// The canvas and the running export draw texts in the same font: that of the project, an installed one, or what stands in
/// for a missing one.
class tst_DisplayedFonts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_programs.isValid()); }

    void aFontOfTheProjectIsShownThoughNoMachineHasIt_data();
    void aFontOfTheProjectIsShownThoughNoMachineHasIt();
    void aVersionOfTheProjectIsShownInPlaceOfTheInstalledOne();
    void aMissingFontIsReplacedByTheSameOne_data();
    void aMissingFontIsReplacedByTheSameOne();

private:
    static QJsonObject import(const QString& file)
    {
        return {{QStringLiteral("op"), QStringLiteral("import-font")}, {QStringLiteral("file"), file}};
    }
    static QJsonObject text(const QString& text, const QString& font, int y = 5)
    {
        return {{QStringLiteral("op"), QStringLiteral("add")},
                {QStringLiteral("class"), QStringLiteral("TextBox")},
                {QStringLiteral("properties"), QJsonObject{{QStringLiteral("text"), text},
                                                           {QStringLiteral("size"), QStringLiteral("300,70")},
                                                           {QStringLiteral("position"), QStringLiteral("10,%1").arg(y)},
                                                           {QStringLiteral("font"), font}}}};
    }
    /// The screen of a project that \a edits make, on the canvas; null where the running export shows another picture.
    QImage shown(const QJsonArray& edits) const
    {
        const QString project = m_programs.makeProject(QStringLiteral("project"), edits);
        const QImage canvas = m_programs.canvas(project, QStringLiteral("main"));
        const QString difference =
            PictureComparison::difference(canvas, m_programs.running(project, QStringLiteral("main")));
        if (difference.isEmpty())
            return canvas;
        qWarning("%s", qPrintable(difference));
        return {};
    }

    const Programs m_programs;
};

void tst_DisplayedFonts::aFontOfTheProjectIsShownThoughNoMachineHasIt_data()
{
    QTest::addColumn<QString>("marks");
    QTest::newRow("plain") << QString();
    QTest::newRow("bold") << QStringLiteral(" bold: true;");
    QTest::newRow("italic") << QStringLiteral(" italic: true;");
    QTest::newRow("underlined, letters apart") << QStringLiteral(" underline: true; letterSpacing: 2.5;");
}

void tst_DisplayedFonts::aFontOfTheProjectIsShownThoughNoMachineHasIt()
{
    QFETCH(QString, marks);
    const QString font = QStringLiteral("family: Panel Segments; pixelSize: 48;") + marks;
    const QJsonObject readout = text(QStringLiteral("21.5 HEAT"), font);
    const QImage fallback = shown({readout});
    QVERIFY(!fallback.isNull());
    const QImage own = shown({import(QStringLiteral(MERIDANE_FONT)), readout});
    QVERIFY(!own.isNull());
    QVERIFY(!PictureComparison::difference(own, fallback).isEmpty());
    // A display that has never heard of the family would show the fallback. The canvas is its own witness: without the font
    // the same project looks like the fallback.
    const QString project =
        m_programs.makeProject(QStringLiteral("project"), {import(QStringLiteral(MERIDANE_FONT)), readout});
    QVERIFY(QFile::remove(project + QStringLiteral("/fonts/PanelSegments.otf")));
    QCOMPARE(m_programs.canvas(project, QStringLiteral("main")), fallback);
}

void tst_DisplayedFonts::aVersionOfTheProjectIsShownInPlaceOfTheInstalledOne()
{
    QFile source(QStringLiteral(MERIDANE_FONT));
    QVERIFY(source.open(QIODevice::ReadOnly));
    QFile copy(m_programs.fresh(QStringLiteral("serif.otf")));
    QVERIFY(copy.open(QIODevice::WriteOnly));
    copy.write(renamedFont(source.readAll(), QStringLiteral("DejaVu Serif"), QStringLiteral("Book"), "PfEd"));
    copy.close();
    const QString words = QStringLiteral("21.5 HEAT");
    const QImage installed = shown({text(words, QStringLiteral("family: DejaVu Serif; pixelSize: 48;"))});
    const QImage own =
        shown({import(copy.fileName()), text(words, QStringLiteral("family: DejaVu Serif; pixelSize: 48;"))});
    const QImage segments = shown(
        {import(QStringLiteral(MERIDANE_FONT)), text(words, QStringLiteral("family: Panel Segments; pixelSize: 48;"))});
    QVERIFY(!installed.isNull() && !own.isNull() && !segments.isNull());
    QVERIFY(own != installed);
    QCOMPARE(own, segments);
}

void tst_DisplayedFonts::aMissingFontIsReplacedByTheSameOne_data()
{
    QTest::addColumn<QString>("font");
    for (const char* family : {"Droid Sans", "No Such Family", "Some Serif"}) {
        for (const char* marks : {"", " bold: true; italic: true;"})
            QTest::addRow("%s%s", family, marks)
                << QStringLiteral("family: %1; pixelSize: 22;%2").arg(QLatin1String(family), QLatin1String(marks));
    }
}

void tst_DisplayedFonts::aMissingFontIsReplacedByTheSameOne()
{
    QFETCH(QString, font);
    // That a font is imported, and used by another text, plays no part.
    const QJsonArray texts{text(QStringLiteral("Room 21.5 \u00b0C, AVOID"), font),
                           text(QStringLiteral("\u05e9\u05dc\u05d5\u05dd \u0645\u0631\u062d\u0628\u0627"), font, 80),
                           text(QStringLiteral("\u0413\u0440\u0435\u0442\u044c \u2600 \U0001f600 \u4f60"), font, 155)};
    QJsonArray withFont = texts;
    withFont.prepend(import(QStringLiteral(MERIDANE_FONT)));
    const QImage alone = shown(texts);
    QVERIFY(!alone.isNull());
    QVERIFY(PictureComparison::distinctColors(alone) > 20);
    QCOMPARE(shown(withFont), alone);
}

QTEST_GUILESS_MAIN(tst_DisplayedFonts)
#include "tst_DisplayedFonts.moc"
