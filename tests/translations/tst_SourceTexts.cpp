#include "translations/SourceTexts.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Korvex::Meridane::Translations;

namespace {

/** "Core: Save" for each text, with " (counted)" after those that are. */
QStringList textsOf(const char* code)
{
    QStringList found;
    const SourceTexts source(QString::fromUtf8(code));
    for (const SourceText& text : source.texts()) {
        found << QStringLiteral("%1: %2%3")
                     .arg(text.context, text.text, text.counted ? QStringLiteral(" (counted)") : QString());
    }
    return found;
}

QStringList hiddenIn(const char* code)
{
    QStringList found;
    const SourceTexts source(QString::fromUtf8(code));
    for (const HiddenText& hidden : source.hidden())
        found << hidden.call;
    return found;
}

} // namespace

class TestSourceTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreFound_data();
    void textsAreFound();
    void textsThatAreMadeAtRunTimeAreReported_data();
    void textsThatAreMadeAtRunTimeAreReported();
    void tablesMayBeLookedUpWhereTheirTextsAreMarked();
    void theLineIsThatOfTheCall();
    void onlySourcesOfTheWindowCount();
};

void TestSourceTexts::textsAreFound_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<QStringList>("texts");
    const auto row = [](const char* name, const char* code, const QStringList& texts) {
        QTest::newRow(name) << QByteArray(code) << texts;
    };
    row("function of the application", R"(f(coreText("Save"));)", {QStringLiteral("Core: Save")});
    row("function of the elements", R"(elementText("Edges");)", {QStringLiteral("VisualDesigner: Edges")});
    row("host", R"(A::coreString(QStringLiteral("Undo"));)", {QStringLiteral("Core: Undo")});
    row("elements by way of the host", R"(visualDesignerString(QLatin1String("Line"));)",
        {QStringLiteral("VisualDesigner: Line")});
    row("several lines", "coreText(\"One \"\n         \"two.\").arg(x);", {QStringLiteral("Core: One two.")});
    row("escapes", R"(coreText("\"%1\"\n\u2026 \\ ü");)", {QStringLiteral("Core: \"%1\"\n… \\ ü")});
    row("one call within another", R"(coreText("%1: %2").arg(coreText("a"), b);)",
        {QStringLiteral("Core: %1: %2"), QStringLiteral("Core: a")});
    row("counted", R"(coreText("%n use", "%n uses", count);)", {QStringLiteral("Core: %n uses (counted)")});
    row("counted without a number for one", R"(coreText("one use", "%n uses", count);)",
        {QStringLiteral("Core: %n uses (counted)")});
    row("marked", R"(Row rows[] = {{"a.b", QT_TRANSLATE_NOOP("Core", "Copy")}};)", {QStringLiteral("Core: Copy")});
    row("comments", "// coreText(\"No\")\n/* coreText(\"Neither\") */ coreText(\"Yes\");",
        {QStringLiteral("Core: Yes")});
    row("in quotes", R"x(f("coreText(\"No\")");)x", {});
    row("raw literal before", "f(R\"x(\")x\"); coreText(\"Yes\");", {QStringLiteral("Core: Yes")});
    row("digits with separators", "int n = 10'000; coreText(\"Yes\");", {QStringLiteral("Core: Yes")});
    row("function of the source", R"(QString text(const char* source)
        { return coreString(QString::fromUtf8(source)); }
        void f() { g(text("Forwarded")); })",
        {QStringLiteral("Core: Forwarded")});
    row("member with a text among its arguments",
        R"(m_a = make("edit.a", "icon", "&A", {}); m_b = make("edit.b", "b", "&B", {});
        QAction* Actions::make(const char* name, const char* icon, const char* text, const Keys& keys)
        { return new Action(QLatin1String(icon), coreText(text)); })",
        {QStringLiteral("Core: &A"), QStringLiteral("Core: &B")});
    row("lambda", R"(const auto refuse = [reason](const char* text) { *reason = elementText(text); return false; };
        return refuse("Too small.");)",
        {QStringLiteral("VisualDesigner: Too small.")});
    row("function that forwards to one that forwards", R"(QString text(const char* s) { return coreText(s); }
        void warn(const char* message) { show(text(message)); }
        void f() { warn("Stop"); })",
        {QStringLiteral("Core: Stop")});
    row("another object's function of the same name",
        R"(const auto add = [](const char* t) { coreText(t); }; add("Ours"); menu->add("Not ours");)",
        {QStringLiteral("Core: Ours")});
    row("another class's function of the same name",
        R"(const auto add = [](const char* t) { coreText(t); }; add("Ours"); Menu::add("Not ours");)",
        {QStringLiteral("Core: Ours")});
}

void TestSourceTexts::textsAreFound()
{
    QFETCH(const QByteArray, code);
    QFETCH(const QStringList, texts);
    QCOMPARE(textsOf(code), texts);
    QCOMPARE(hiddenIn(code), QStringList());
}

void TestSourceTexts::textsThatAreMadeAtRunTimeAreReported_data()
{
    QTest::addColumn<QByteArray>("code");
    const auto row = [](const char* name, const char* code) { QTest::newRow(name) << QByteArray(code); };
    row("joined", R"(coreString(QStringLiteral("Move ") + name);)");
    row("filled in", R"(coreString(QStringLiteral("Move %1").arg(name));)");
    row("one of two", R"(coreText(one ? "Element" : "Elements");)");
    row("a table without marks", R"(const Row rows[] = {{"Copy"}}; coreText(rows[0].text);)");
    row("a value from elsewhere", R"(coreString(reason);)");
    row("filled in beside a marked one",
        R"(const char* a = QT_TRANSLATE_NOOP("Core", "A"); coreString(QStringLiteral("B%1").arg(1));)");
}

void TestSourceTexts::textsThatAreMadeAtRunTimeAreReported()
{
    QFETCH(const QByteArray, code);
    QCOMPARE(hiddenIn(code).size(), 1);
}

void TestSourceTexts::tablesMayBeLookedUpWhereTheirTextsAreMarked()
{
    const char* code = R"(const Row rows[] = {{QT_TRANSLATE_NOOP("Core", "Copy")}}; coreText(rows[0].text);)";
    QCOMPARE(hiddenIn(code), QStringList());
}

void TestSourceTexts::theLineIsThatOfTheCall()
{
    const SourceTexts source(QStringLiteral("/* a\n b */\n\ncoreText(\n  \"Save\");\ncoreText(a + b);"));
    QCOMPARE(source.texts().constFirst().line, 4);
    QCOMPARE(source.hidden().constFirst().line, 6);
}

void TestSourceTexts::onlySourcesOfTheWindowCount()
{
    const QTemporaryDir root;
    for (const char* path : {"app/A.cpp", "host/core/sub/B.h", "app/CoreText.h", "cli/C.cpp", "tests/D.cpp",
                             "build/app/E.cpp", "app/notes.txt", "lines/F.cpp"}) {
        const QFileInfo info(QDir(root.path()).filePath(QString::fromLatin1(path)));
        QVERIFY(QDir().mkpath(info.path()));
        QFile file(info.filePath());
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QCOMPARE(
        SourceTexts::files(root.path()),
        QStringList({QStringLiteral("app/A.cpp"), QStringLiteral("host/core/sub/B.h"), QStringLiteral("lines/F.cpp")}));
}

QTEST_APPLESS_MAIN(TestSourceTexts)
#include "tst_SourceTexts.moc"
