#include "host/core/sheet/ProjectColors.h"

#include "tests/sheet/SheetFixture.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// Which colours a project uses.
class tst_ProjectColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<SheetFixture>();
        set(m_fixture->screen, "color", "#000001");
    }

    void cleanup() { m_fixture.reset(); }

    void theMostUsedComeFirst()
    {
        for (const char* color : {"#112233", "#445566", "#445566", "#778899", "#445566", "#778899"})
            set(m_fixture->addElement(), "color", color);
        QCOMPARE(colors(), QStringList({QStringLiteral("#ff445566"), QStringLiteral("#ff778899"),
                                        QStringLiteral("#ff000001"), QStringLiteral("#ff112233")}));
    }

    void transparentColorsAreColorsOfTheirOwn()
    {
        set(m_fixture->addElement(), "color", "#80112233");
        set(m_fixture->addElement(), "color", "#112233");
        QCOMPARE(colors(),
                 QStringList({QStringLiteral("#ff000001"), QStringLiteral("#80112233"), QStringLiteral("#ff112233")}));
    }

    void aBorderCountsWhenItIsDrawn()
    {
        EditorTestElement* element = m_fixture->addElement();
        set(element, "color", "#112233");
        set(element, "border", "width: 0; color: #aabbcc;");
        QVERIFY(!colors().contains(QLatin1String("#ffaabbcc")));
        set(element, "border", "width: 1; color: #aabbcc;");
        QVERIFY(colors().contains(QLatin1String("#ffaabbcc")));
    }

    void textsAreNoColors()
    {
        EditorTestElement* element = m_fixture->addElement();
        set(element, "text", "Call #abcdef now");
        QVERIFY(!colors().contains(QLatin1String("#ffabcdef")));
    }

    void valuesThatDoNotConvertAreLeftOut()
    {
        EditorTestElement* element = m_fixture->addElement();
        element->property("color")->fill(QStringLiteral("no color"));
        QCOMPARE(colors(), QStringList{QStringLiteral("#ff000001")});
    }

    void onlySoManyAreGiven()
    {
        for (int i = 0; i < 30; ++i)
            set(m_fixture->addElement(), "color", qPrintable(QColor(i, 7, 7).name()));
        QCOMPARE(projectColors(*m_fixture->session->project(), 16).size(), 16);
    }

    void anUnreadScreenIsNotReadForItsColors()
    {
        bool read = false;
        m_fixture->screen->setContentReader([&read](Screen*) { read = true; });
        QVERIFY(colors().isEmpty());
        QVERIFY(!read);
    }

    void theSheetOffersThem()
    {
        set(m_fixture->addElement(), "color", "#112233");
        QVERIFY(m_fixture->sheet->colorsInUse().contains(QColor(0x11, 0x22, 0x33)));
        m_fixture->sheet->setSession(nullptr);
        QVERIFY(m_fixture->sheet->colorsInUse().isEmpty());
    }

private:
    void set(DesignerObject* object, const char* id, const char* value)
    {
        m_fixture->session->setProperty(object, QString::fromLatin1(id), QString::fromLatin1(value));
    }

    QStringList colors() const
    {
        QStringList names;
        for (const QColor& color : projectColors(*m_fixture->session->project(), 16))
            names.append(color.name(QColor::HexArgb));
        return names;
    }

    std::unique_ptr<SheetFixture> m_fixture;
};

QTEST_MAIN(tst_ProjectColors)
#include "tst_ProjectColors.moc"
