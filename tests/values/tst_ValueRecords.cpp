#include "host/core/values/BorderInfo.h"
#include "host/core/values/EnumInfo.h"
#include "host/core/values/IdentifierInfo.h"
#include "host/core/values/ObjectLinkInfo.h"
#include "host/core/values/RotationInfo.h"

#include <QtTest/QtTest>

using namespace Korvex::Meridane::Designer;

class tst_ValueRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultBorderIsNone();
    void aDefaultRotationTurnsNothingAboutTheCentre();
    void theFixedPointsAreNumberedRowByRow();
    void identifierInfosKeepTheirTexts();
    void theEmptyLinkIsValid();
    void linksCompareWithTheirFilters();
    void enumInfosNameTheirValue();
};

void tst_ValueRecords::aDefaultBorderIsNone()
{
    QCOMPARE(BorderInfo(), BorderInfo(0, Qt::black));
    QVERIFY(BorderInfo(1, Qt::black) != BorderInfo(0, Qt::black));
    QVERIFY(BorderInfo(1, Qt::red) != BorderInfo(1, Qt::black));
}

void tst_ValueRecords::aDefaultRotationTurnsNothingAboutTheCentre()
{
    const RotationInfo rotation;
    QCOMPARE(rotation.angle(), 0.0);
    QCOMPARE(rotation.fixedPoint(), QStringLiteral("Center"));
}

void tst_ValueRecords::theFixedPointsAreNumberedRowByRow()
{
    const QStringList& names = RotationInfo::fixedPointNames();
    QCOMPARE(names.join(u' '), QStringLiteral("TopLeft Top TopRight Left Center Right BottomLeft Bottom BottomRight"));
}

void tst_ValueRecords::identifierInfosKeepTheirTexts()
{
    IdentifierInfo info;
    info.setName(QStringLiteral("line"));
    info.setBase(QStringLiteral("base"));
    info.setFilterType(QStringLiteral("Line"));
    info.setScopeType(QStringLiteral("Screen"));
    QCOMPARE(info.name(), QStringLiteral("line"));
    QCOMPARE(info.base(), QStringLiteral("base"));
    QCOMPARE(info.filterType(), QStringLiteral("Line"));
    QCOMPARE(info.scopeType(), QStringLiteral("Screen"));
    QVERIFY(info != IdentifierInfo());
}

void tst_ValueRecords::theEmptyLinkIsValid()
{
    QVERIFY(ObjectLinkInfo().isValid());
    QVERIFY(ObjectLinkInfo().objectId().isEmpty());
    QVERIFY(ObjectLinkInfo(QStringLiteral("Logo größer (2).png")).isValid());
    QVERIFY(!ObjectLinkInfo(QStringLiteral("..")).isValid());
}

void tst_ValueRecords::linksCompareWithTheirFilters()
{
    ObjectLinkInfo a(QStringLiteral("x"));
    ObjectLinkInfo b(QStringLiteral("x"));
    QCOMPARE(a, b);
    a.setFilterType(QStringLiteral("ImageResource"));
    QCOMPARE(a.filterType(), QStringList{QStringLiteral("ImageResource")});
    QVERIFY(a != b);
    b.setFilterType(QStringList{QStringLiteral("ImageResource")});
    QCOMPARE(a, b);
    a.setScopeType(QStringLiteral("Project"));
    QVERIFY(a != b);
}

void tst_ValueRecords::enumInfosNameTheirValue()
{
    const QMetaEnum alignment = QMetaEnum::fromType<Qt::Alignment>();
    const EnumInfo info(alignment, Qt::AlignTop);
    QCOMPARE(info.value(), static_cast<int>(Qt::AlignTop));
    QCOMPARE(info.key(), QStringLiteral("AlignTop"));
    QVERIFY(info.metaEnum().isValid());
    QVERIFY(info == EnumInfo(QMetaEnum::fromType<Qt::Alignment>(), Qt::AlignTop));
    QVERIFY(!(info == EnumInfo(alignment, Qt::AlignBottom)));
    QVERIFY(!(info == EnumInfo(QMetaEnum::fromType<Qt::Orientation>(), Qt::AlignTop)));
    QVERIFY(EnumInfo(alignment, 31337).key().isEmpty());
    QVERIFY(EnumInfo().key().isEmpty());
    QVERIFY(EnumInfo() == EnumInfo());
}

QTEST_APPLESS_MAIN(tst_ValueRecords)
#include "tst_ValueRecords.moc"
