#include "host/core/snapping/Guides.h"

#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;

namespace {

Guide anyGuide()
{
    const auto orientation = *rc::gen::element(Qt::Horizontal, Qt::Vertical);
    const double position = *rc::gen::oneOf(
        rc::gen::map(rc::gen::inRange(-5000, 5000), [](int n) { return n / 4.; }),
        rc::gen::map(rc::gen::arbitrary<double>(), [](double number) { return std::isfinite(number) ? number : 0.1; }));
    return {orientation, position};
}

} // namespace

class tst_Guides : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrittenIsReadAgain()
    {
        const bool held = rc::check("guides", [] {
            Guides guides;
            QList<Guide> made;
            for (int i = *rc::gen::inRange(0, 10); i > 0; --i) {
                made.append(anyGuide());
                guides.append(made.last());
            }
            RC_ASSERT(Guides::fromText(guides.toText()) == guides);
            RC_ASSERT(Guides::fromText(guides.toText()).list() == made);
        });
        QVERIFY(held);
    }

    void anyTextIsWrittenAsItWasRead()
    {
        const bool held = rc::check("texts", [] {
            const auto parts = *rc::gen::container<std::vector<std::string>>(rc::gen::element<std::string>(
                "x 1", "y 50.5", "x 0100", ", ", ",", "z 3", "x", " ", "x nan", "y 1e400", "-"));
            QString text;
            for (const std::string& part : parts)
                text += QString::fromStdString(part);
            RC_ASSERT(Guides::fromText(text).toText() == text);
        });
        QVERIFY(held);
    }

    void theFormIsAxisAndPosition()
    {
        Guides guides;
        guides.append({Qt::Vertical, 100});
        guides.append({Qt::Horizontal, 50.5});
        QCOMPARE(guides.toText(), QStringLiteral("x 100, y 50.5"));
        QVERIFY(Guides().toText().isEmpty());
        QVERIFY(Guides::fromText({}).isEmpty());
    }

    void whatNamesNoGuideSurvivesEveryEdit()
    {
        Guides guides = Guides::fromText(QStringLiteral("x 10, diagonal 3, y 20, x"));
        QCOMPARE(guides.unreadable(), QStringList({QStringLiteral("diagonal 3"), QStringLiteral("x")}));
        QCOMPARE(guides.list(), QList<Guide>({{Qt::Vertical, 10}, {Qt::Horizontal, 20}}));
        guides.replace(1, {Qt::Horizontal, 25});
        QCOMPARE(guides.toText(), QStringLiteral("x 10, diagonal 3, y 25, x"));
        guides.remove(0);
        QCOMPARE(guides.toText(), QStringLiteral("diagonal 3, y 25, x"));
        guides.clear();
        QCOMPARE(guides.toText(), QStringLiteral("diagonal 3, x"));
        QVERIFY(guides.isEmpty());
    }
};

QTEST_APPLESS_MAIN(tst_Guides)
#include "tst_Guides.moc"
