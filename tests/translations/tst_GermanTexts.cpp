#include "tests/translations/TranslationFile.h"
#include "translations/SourceTexts.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Korvex::Meridane::Translations;

namespace {

QString sourceFile(const QString& path)
{
    return QDir(QStringLiteral(MERIDANE_SOURCE_DIR)).filePath(path);
}

SourceTexts readSource(const QString& path)
{
    QFile file(sourceFile(path));
    return SourceTexts(file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString());
}

QString key(const QString& context, const QString& text, bool counted)
{
    return QStringLiteral("%1: \"%2\"%3").arg(context, text, counted ? QStringLiteral(" (counted)") : QString());
}

/** What must be the same in every language: the places of values, sorted. */
QStringList placeholders(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("%L?(?:\\d{1,2}|n)"));
    QStringList found;
    for (auto matches = pattern.globalMatch(text); matches.hasNext();)
        found << matches.next().captured();
    found.sort();
    return found;
}

QStringList tags(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("</?\\w+[^>]*>"));
    QStringList found;
    for (auto matches = pattern.globalMatch(text); matches.hasNext();)
        found << matches.next().captured();
    found.sort();
    return found;
}

/** How many letters are marked as mnemonics. */
int marks(QString text)
{
    static const QRegularExpression mark(QStringLiteral("&\\w"), QRegularExpression::UseUnicodePropertiesOption);
    return int(text.remove(QLatin1String("&&")).count(mark));
}

QString blanksInFront(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("^\\s*"));
    return pattern.match(text).captured();
}

/** The blanks at the end, and the punctuation before them by which texts are put side by side. */
QString ending(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("[.:…?!]?\\s*$"));
    return pattern.match(text).captured();
}

QString faultOf(const QString& source, const QString& form, bool counted)
{
    // The form for one may name it in words.
    QStringList expected = placeholders(source);
    QStringList found = placeholders(form);
    if (counted && !found.contains(QLatin1String("%n")))
        expected.removeAll(QStringLiteral("%n"));
    if (form.trimmed().isEmpty() != source.trimmed().isEmpty())
        return QStringLiteral("is empty");
    if (found != expected)
        return QStringLiteral("has other places for values");
    if (tags(source) != tags(form))
        return QStringLiteral("has other tags");
    if (marks(source) != marks(form))
        return QStringLiteral("has another number of mnemonics");
    if (blanksInFront(source) != blanksInFront(form) || ending(source) != ending(form))
        return QStringLiteral("begins or ends in another way");
    if (source.count(QLatin1Char('\n')) != form.count(QLatin1Char('\n')))
        return QStringLiteral("has another number of lines");
    if (form.contains(QLatin1Char('"')) && tags(form).isEmpty())
        return QStringLiteral("has quotes that are not those of the language");
    if (form.contains(QLatin1String("...")))
        return QStringLiteral("has three dots instead of an ellipsis");
    return {};
}

} // namespace

class TestGermanTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyTextCanBeExtracted();
    void everyTextOfTheSourcesIsInTheFile();
    void noTextIsInTheFileThatTheSourcesHaveNoMore();
    void everyTextIsTranslated();
    void translationsKeepWhatIsNotLanguage_data();
    void translationsKeepWhatIsNotLanguage();
    void faultsAreFound_data();
    void faultsAreFound();

private:
    QSet<QString> m_sources;
    QVector<Translation> m_translations;
};

void TestGermanTexts::initTestCase()
{
    for (const QString& path : SourceTexts::files(QStringLiteral(MERIDANE_SOURCE_DIR))) {
        const SourceTexts source = readSource(path);
        for (const SourceText& text : source.texts())
            m_sources.insert(key(text.context, text.text, text.counted));
    }
    QVERIFY(m_sources.size() > 500);
    m_translations = readTranslationFile(sourceFile(QStringLiteral("translations/meridane_de.ts")));
    QVERIFY(!m_translations.isEmpty());
}

void TestGermanTexts::everyTextCanBeExtracted()
{
    QStringList hidden;
    for (const QString& path : SourceTexts::files(QStringLiteral(MERIDANE_SOURCE_DIR))) {
        const SourceTexts source = readSource(path);
        for (const HiddenText& text : source.hidden())
            hidden << QStringLiteral("%1:%2: %3").arg(path).arg(text.line).arg(text.call);
    }
    QCOMPARE(hidden.join(QLatin1Char('\n')), QString());
}

void TestGermanTexts::everyTextOfTheSourcesIsInTheFile()
{
    QSet<QString> missing = m_sources;
    for (const Translation& text : qAsConst(m_translations))
        missing.remove(key(text.context, text.source, text.counted));
    QStringList names(missing.cbegin(), missing.cend());
    names.sort();
    QVERIFY2(names.isEmpty(),
             qUtf8Printable(QStringLiteral("Run ./dev translations and translate:\n") + names.join(QLatin1Char('\n'))));
}

void TestGermanTexts::noTextIsInTheFileThatTheSourcesHaveNoMore()
{
    QStringList gone;
    for (const Translation& text : qAsConst(m_translations)) {
        const QString name = key(text.context, text.source, text.counted);
        if (!m_sources.contains(name))
            gone << name;
    }
    QVERIFY2(gone.isEmpty(),
             qUtf8Printable(QStringLiteral("Run ./dev translations:\n") + gone.join(QLatin1Char('\n'))));
}

void TestGermanTexts::everyTextIsTranslated()
{
    QStringList unfinished;
    for (const Translation& text : qAsConst(m_translations)) {
        if (!text.finished || text.forms.size() != (text.counted ? 2 : 1))
            unfinished << key(text.context, text.source, text.counted);
    }
    QCOMPARE(unfinished.join(QLatin1Char('\n')), QString());
}

void TestGermanTexts::translationsKeepWhatIsNotLanguage_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("form");
    QTest::addColumn<bool>("counted");
    for (const Translation& text : qAsConst(m_translations)) {
        for (const QString& form : text.forms) {
            if (text.finished)
                QTest::newRow(text.source.toUtf8().constData()) << text.source << form << text.counted;
        }
    }
}

void TestGermanTexts::translationsKeepWhatIsNotLanguage()
{
    QFETCH(const QString, source);
    QFETCH(const QString, form);
    QFETCH(const bool, counted);
    const QString fault = faultOf(source, form, counted);
    QVERIFY2(fault.isEmpty(), qUtf8Printable(QStringLiteral("\"%1\" %2").arg(form, fault)));
}

void TestGermanTexts::faultsAreFound_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("form");
    QTest::addColumn<bool>("counted");
    QTest::addColumn<bool>("right");
    const auto row = [](const char* source, const char* form, bool right, bool counted = false) {
        QTest::addRow("%s / %s", source, form)
            << QString::fromUtf8(source) << QString::fromUtf8(form) << counted << right;
    };
    row("Move %1", "%1 verschieben", true);
    row("Move %1", "Verschieben", false);
    row("Move %1", "%1 nach %2 verschieben", false);
    row("%1 of %2", "%2 mit %1", true);
    row("&Save", "&Speichern", true);
    row("&Save", "Speichern", false);
    row("Save", "&Speichern", false);
    row("Names && Values", "Namen && Werte", true);
    row(" px", " px", true);
    row(" px", "px", false);
    row("Open…", "Öffnen…", true);
    row("Open…", "Öffnen...", false);
    row("Name:", "Name", false);
    row("<b>%1</b> is new.", "<b>%1</b> ist neu.", true);
    row("<b>%1</b> is new.", "%1 ist neu.", false);
    row("\"%1\" is new.", "„%1“ ist neu.", true);
    row("\"%1\" is new.", "\"%1\" ist neu.", false);
    row("One\ntwo", "Eins zwei", false);
    row("%n uses", "eine Verwendung", true, true);
    row("%n uses", "%n Verwendungen", true, true);
    row("%n uses of %1", "%n Verwendungen", false, true);
}

void TestGermanTexts::faultsAreFound()
{
    QFETCH(const QString, source);
    QFETCH(const QString, form);
    QFETCH(const bool, counted);
    QFETCH(const bool, right);
    QCOMPARE(faultOf(source, form, counted).isEmpty(), right);
}

QTEST_APPLESS_MAIN(TestGermanTexts)
#include "tst_GermanTexts.moc"
