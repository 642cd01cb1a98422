#include "host/core/widgets/RecentColors.h"

#include <QtCore/QSettings>
#include <QtTest/QtTest>

using namespace Korvex::Meridane::Designer;

class tst_RecentColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLatestComesFirst();
    void aRepeatedColorMovesToTheFront();
    void theOldestGoesFirst();
    void invalidColorsAreIgnored();
    void settingsKeepTheList();
    void damagedSettingsAreSkipped();
};

void tst_RecentColors::theLatestComesFirst()
{
    RecentColors recent;
    QSignalSpy changed(&recent, &RecentColors::changed);
    recent.add(QColor(1, 2, 3));
    recent.add(QColor(4, 5, 6, 7));
    QCOMPARE(recent.colors(), (QList<QColor>{QColor(4, 5, 6, 7), QColor(1, 2, 3)}));
    QCOMPARE(changed.count(), 2);
}

void tst_RecentColors::aRepeatedColorMovesToTheFront()
{
    RecentColors recent;
    recent.add(QColor(1, 2, 3));
    recent.add(QColor(4, 5, 6));
    recent.add(QColor(1, 2, 3));
    QCOMPARE(recent.colors(), (QList<QColor>{QColor(1, 2, 3), QColor(4, 5, 6)}));
    QSignalSpy changed(&recent, &RecentColors::changed);
    recent.add(QColor(1, 2, 3));
    QCOMPARE(changed.count(), 0);
}

void tst_RecentColors::theOldestGoesFirst()
{
    RecentColors recent;
    for (int i = 0; i <= RecentColors::capacity; ++i) {
        recent.add(QColor(i, 0, 0));
    }
    QCOMPARE(recent.colors().size(), static_cast<qsizetype>(RecentColors::capacity));
    QCOMPARE(recent.colors().last(), QColor(1, 0, 0));
}

void tst_RecentColors::invalidColorsAreIgnored()
{
    RecentColors recent;
    recent.add(QColor());
    QVERIFY(recent.colors().isEmpty());
}

void tst_RecentColors::settingsKeepTheList()
{
    QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
    RecentColors recent;
    recent.add(QColor(1, 2, 3));
    recent.add(QColor(4, 5, 6, 7));
    recent.save(settings);
    RecentColors other;
    other.add(QColor(9, 9, 9));
    other.load(settings);
    QCOMPARE(other.colors(), recent.colors());
    RecentColors().save(settings);
    other.load(settings);
    QVERIFY(other.colors().isEmpty());
}

void tst_RecentColors::damagedSettingsAreSkipped()
{
    QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
    settings.setValue(QStringLiteral("recentColors"),
                      QStringList{QStringLiteral("#ff0000"), QStringLiteral("nonsense"), QStringLiteral("#ff0000")});
    RecentColors recent;
    recent.load(settings);
    QCOMPARE(recent.colors(), QList<QColor>{QColor(255, 0, 0)});
}

QTEST_MAIN(tst_RecentColors)
#include "tst_RecentColors.moc"
