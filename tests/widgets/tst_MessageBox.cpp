#include "host/core/widgets/MessageBox.h"

#include <QtTest/QtTest>

using namespace Korvex::Meridane::Designer;

class tst_MessageBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPresenterGetsTheTexts();
    void withoutAScreenTheMessageIsLogged();
    void thePresenterBeforeComesBack();
};

void tst_MessageBox::aPresenterGetsTheTexts()
{
    QWidget widget;
    QStringList seen;
    const auto before = MessageBox::setPresenter([&](QWidget* parent, const QString& title, const QString& text) {
        QCOMPARE(parent, &widget);
        seen << title << text;
    });
    MessageBox::warning(&widget, QStringLiteral("Add"), QStringLiteral("Exists"));
    MessageBox::setPresenter(before);
    QCOMPARE(seen, (QStringList{QStringLiteral("Add"), QStringLiteral("Exists")}));
}

void tst_MessageBox::withoutAScreenTheMessageIsLogged()
{
    if (QGuiApplication::platformName() != QLatin1String("offscreen")) {
        QSKIP("would open a dialog");
    }
    QTest::ignoreMessage(QtWarningMsg, "Add: Exists");
    MessageBox::warning(nullptr, QStringLiteral("Add"), QStringLiteral("Exists"));
}

void tst_MessageBox::thePresenterBeforeComesBack()
{
    int calls = 0;
    MessageBox::setPresenter([&](QWidget*, const QString&, const QString&) { ++calls; });
    const auto first = MessageBox::setPresenter({});
    QVERIFY(first);
    first(nullptr, {}, {});
    QCOMPARE(calls, 1);
}

QTEST_MAIN(tst_MessageBox)
#include "tst_MessageBox.moc"
