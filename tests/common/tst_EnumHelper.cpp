#include "host/common/EnumHelper.h"
#include "host/common/LocalizationHelper.h"

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

using namespace Korvex::Meridane::Common;

namespace {
/** Answers every text with its context before it. */
class EchoTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* sourceText, const char*, int) const override
    {
        return QStringLiteral("%1/%2").arg(QString::fromUtf8(context), QString::fromUtf8(sourceText));
    }

    bool isEmpty() const override { return false; }
};

QStringList keys(const char* name)
{
    const QMetaEnum found = EnumHelper::createEnum(QString::fromLatin1(name));
    QStringList result;
    for (int i = 0; i < found.keyCount(); ++i) {
        result.append(QStringLiteral("%1 %2").arg(QString::fromLatin1(found.key(i))).arg(found.value(i)));
    }
    return result;
}
} // namespace

/** A language with one form for every number. */
class OneFormTranslator : public QTranslator
{
public:
    QString translate(const char*, const char* sourceText, const char*, int) const override
    {
        return QByteArray(sourceText) == "%n elements" ? QStringLiteral("Element × %n") : QString();
    }

    bool isEmpty() const override { return false; }
};

class TestEnumHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enumerationsAreFoundByName();
    void unknownNameIsInvalid();
    void shownTextsOfTextStyle();
    void everyKeyHasAShownText();
    void shownTextsAreTranslated();
    void textsComeBackWithoutAnApplication();
    void contextsTellTheTextsApart();
    void countedTextsHaveTheirEnglishForms();
    void countedTextsAreTranslatedByTheirPlural();
};

void TestEnumHelper::enumerationsAreFoundByName()
{
    QCOMPARE(keys("TextStyle"), QStringList({QStringLiteral("Standard 0"), QStringLiteral("Outline 1"),
                                             QStringLiteral("Raised 2"), QStringLiteral("Sunken 3")}));
    QCOMPARE(keys("GradientSpread"), QStringList({QStringLiteral("PadSpread 0"), QStringLiteral("ReflectSpread 1"),
                                                  QStringLiteral("RepeatSpread 2")}));
    QCOMPARE(keys("VariableType"),
             QStringList({QStringLiteral("Boolean 1"), QStringLiteral("Integer 2"), QStringLiteral("Real 3"),
                          QStringLiteral("String 4"), QStringLiteral("Color 6"), QStringLiteral("List 9")}));
    QCOMPARE(keys("TransformOrigin").size(), 9);
    QCOMPARE(keys("TransformOrigin").constLast(), QStringLiteral("BottomRight 8"));
}

void TestEnumHelper::unknownNameIsInvalid()
{
    QVERIFY(!EnumHelper::createEnum(QStringLiteral("Nothing")).isValid());
    QVERIFY(!EnumHelper::createEnum(QString()).isValid());
    QVERIFY(EnumHelper::getEnumNames("Nothing").isEmpty());
    QVERIFY(EnumHelper::getEnumNames(nullptr).isEmpty());
}

void TestEnumHelper::shownTextsOfTextStyle()
{
    const QMap<QString, QString> names = EnumHelper::getEnumNames("TextStyle");
    QCOMPARE(names.size(), 4);
    QCOMPARE(names.value(QStringLiteral("Standard")), QStringLiteral("Standard"));
    QCOMPARE(EnumHelper::getEnumNames("TransformOrigin").value(QStringLiteral("TopLeft")), QStringLiteral("Top Left"));
    QCOMPARE(EnumHelper::getEnumNames("GradientSpread").value(QStringLiteral("PadSpread")), QStringLiteral("Pad"));
}

void TestEnumHelper::everyKeyHasAShownText()
{
    for (const char* name : {"TextStyle", "GradientSpread", "VariableType", "TransformOrigin"}) {
        const QMap<QString, QString> names = EnumHelper::getEnumNames(name);
        QCOMPARE(names.size(), EnumHelper::createEnum(QString::fromLatin1(name)).keyCount());
        for (const QString& text : names) {
            // A key of two words is shown as two words.
            QVERIFY(!text.isEmpty());
            QCOMPARE(text.count(QLatin1Char(' ')) + 1,
                     std::count_if(text.begin(), text.end(), [](QChar letter) { return letter.isUpper(); }));
        }
    }
}

void TestEnumHelper::shownTextsAreTranslated()
{
    int argc = 0;
    QCoreApplication application(argc, nullptr);
    EchoTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(EnumHelper::getEnumNames("TextStyle").value(QStringLiteral("Raised")), QStringLiteral("Core/Raised"));
}

void TestEnumHelper::textsComeBackWithoutAnApplication()
{
    QVERIFY(!QCoreApplication::instance());
    const QString text = QStringLiteral("Größe %1 %n");
    QCOMPARE(LocalizationHelper::visualDesignerString(text), text);
    QCOMPARE(LocalizationHelper::coreString(text), text);
}

void TestEnumHelper::contextsTellTheTextsApart()
{
    int argc = 0;
    QCoreApplication application(argc, nullptr);
    EchoTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(LocalizationHelper::visualDesignerString(QStringLiteral("Size")), QStringLiteral("VisualDesigner/Size"));
    QCOMPARE(LocalizationHelper::coreString(QStringLiteral("Size")), QStringLiteral("Core/Size"));
}

void TestEnumHelper::countedTextsHaveTheirEnglishForms()
{
    const auto text = [](int count) {
        return LocalizationHelper::coreString(QStringLiteral("%n element"), QStringLiteral("%n elements"), count);
    };
    QCOMPARE(text(0), QStringLiteral("0 elements"));
    QCOMPARE(text(1), QStringLiteral("1 element"));
    QCOMPARE(text(2), QStringLiteral("2 elements"));
    QCOMPARE(LocalizationHelper::visualDesignerString(QStringLiteral("one point"), QStringLiteral("%n points"), 1),
             QStringLiteral("one point"));
}

void TestEnumHelper::countedTextsAreTranslatedByTheirPlural()
{
    int argc = 0;
    QCoreApplication application(argc, nullptr);
    OneFormTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    for (const int count : {1, 2})
        QCOMPARE(LocalizationHelper::coreString(QStringLiteral("%n element"), QStringLiteral("%n elements"), count),
                 QStringLiteral("Element × %1").arg(count));
}

QTEST_APPLESS_MAIN(TestEnumHelper)
#include "tst_EnumHelper.moc"
