#include "images/GraphicsImage.h"
#include "images/Image.h"
#include "images/ImageFile.h"

#include "host/core/canvas/GraphicsRectangle.h"
#include "host/core/objects/BoundingSizeReaction.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/LinkProperty.h"
#include "host/core/properties/PropertyFlag.h"
#include "host/core/values/ValueConversion.h"

#include "tests/images/ProjectImages.h"
#include "tests/shapes/ShapeFixture.h"
#include "tests/support/EditorTestElement.h"

#include <QSignalSpy>
#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

/// One image outside of any project, or in one with files.
class ImageFixture : public ShapeFixture
{
public:
    ImageFixture()
        : ShapeFixture(std::make_unique<Image>())
    {}

    [[nodiscard]] QString qml(const char* property) const
    {
        return element->getProperty(QLatin1String(property))->convertToQml(1);
    }
};

/// An image in a project.
class LinkedImage
{
public:
    LinkedImage()
    {
        project.initialize();
        files.serve(&project);
        auto made = std::make_unique<Image>();
        image = made.get();
        image->initialize();
        image->setParent(made.release() ? &project : nullptr);
    }

    bool link(const QString& source, QString* message = nullptr) const
    {
        return image->changePropertyValue(image->getProperty(QStringLiteral("source")), source, message);
    }
    /// What loading a project does: nobody is asked.
    void fill(const QString& source) const { image->getProperty(QStringLiteral("source"))->fill(source); }
    [[nodiscard]] QString source() const { return image->getProperty(QStringLiteral("source"))->valueString(); }

    Project project;
    ProjectImages files;
    Image* image = nullptr;
};

} // namespace

/// The data object alone: what it declares, how its size follows the outer size, and what it may link to.
class tst_Image : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itSaysWhatItIs()
    {
        const ImageFixture image;
        QCOMPARE(image.identity(),
                 (QStringList{QStringLiteral("Image"), QStringLiteral("Image"), QStringLiteral("Image"),
                              QStringLiteral("Image2"), QStringLiteral("Screen"), QStringLiteral("Image"),
                              QStringLiteral("image"), QStringLiteral("image")}));
        QCOMPARE(image.runtimeRows(),
                 (QStringList{QStringLiteral("height|Height|3|1"), QStringLiteral("width|Width|3|1"),
                              QStringLiteral("source|Source|4|0")}));
    }

    void itDependsOnItsSourceAlone()
    {
        const ImageFixture image;
        QCOMPARE(image.element->getDependencyProperties(),
                 QList<QSharedPointer<DesignerProperty>>{image.element->getProperty(QStringLiteral("source"))});
    }

    void theSourceLinksToImagesOfTheProjectAndIsExported()
    {
        const ImageFixture image;
        const auto source = image.element->getProperty(QStringLiteral("source"));
        const auto* link = dynamic_cast<const LinkProperty*>(source.data());
        QVERIFY(link);
        QCOMPARE(link->value().scopeType(), QStringLiteral("Project"));
        QCOMPARE(link->value().filterType(), QStringList{QStringLiteral("ImageResource")});
        QVERIFY(source->flags().testFlag(Exported));
        QVERIFY(source->flags().testFlag(Stored));
        QCOMPARE(source->editorParameters().value(QStringLiteral("scopeType")), QVariant(QStringLiteral("Project")));
        QCOMPARE(source->editorParameters().value(QStringLiteral("filterType")),
                 QVariant(QStringList{QStringLiteral("ImageResource")}));
        QVERIFY(image.element->getProperty(QStringLiteral("boundingSize"))->editorParameters().isEmpty());
    }

    void aNewImageIs200By200AndExportsNoSource()
    {
        const ImageFixture image;
        QCOMPARE(image.value("size"), QStringLiteral("200,200"));
        QCOMPARE(image.value("boundingSize"), QStringLiteral("200,200"));
        QCOMPARE(image.value("keepRatio"), QStringLiteral("0"));
        QCOMPARE(image.value("source"), QString());
        QCOMPARE(image.qml("source"), QString());
    }

    void theSourceIsExportedAsTheFileName_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("qml");
        QTest::newRow("plain") << QStringLiteral("logo.png") << QStringLiteral("\tsource: \"logo.png\"");
        QTest::newRow("quote") << QStringLiteral("a\"b.png") << QStringLiteral("\tsource: \"a\\\"b.png\"");
        QTest::newRow("letters") << QStringLiteral("Temp\u00e9rature 50%.png")
                                 << QStringLiteral("\tsource: \"Temp\u00e9rature 50%.png\"");
        QTest::newRow("empty") << QString() << QString();
    }

    void theSourceIsExportedAsTheFileName()
    {
        QFETCH(QString, source);
        QFETCH(QString, qml);
        ImageFixture image;
        QVERIFY(image.set("source", source));
        QCOMPARE(image.qml("source"), qml);
    }

    void theExportNamesTheTypeImage2()
    {
        ImageFixture image;
        QVERIFY(image.set("source", "logo.png"));
        const QString qml = image.element->toQml(0);
        QVERIFY2(qml.startsWith(QLatin1String("Image2 {")), qPrintable(qml));
        QVERIFY(qml.contains(QLatin1String("\tsource: \"logo.png\"\n")));
        QVERIFY(qml.contains(QLatin1String("\twidth: 200\n\theight: 200\n")));
        QVERIFY(!qml.contains(QLatin1String("keepRatio")));
        QVERIFY(!qml.contains(QLatin1String("boundingSize")));
    }

    void onlyPlainFileNamesCanBeLinked_data()
    {
        QTest::addColumn<QString>("source");
        const QList<QByteArray> links{"../secret.png", "a/b.png", "/etc/passwd", "C:\\a.png",
                                      "file:a.png",    "..",      ".",           "a\\b.png",
                                      " a.png",        "a.png ",  "a\nb.png",    "http://example.com/a.png"};
        for (const QByteArray& link : links)
            QTest::newRow(link.constData()) << QString::fromUtf8(link);
    }

    void onlyPlainFileNamesCanBeLinked()
    {
        QFETCH(QString, source);
        LinkedImage linked;
        linked.files.offer(source); // as a file made by hand might
        QString message;
        QVERIFY(!linked.link(source, &message));
        QVERIFY2(message.contains(QLatin1String("is not the name of")) && message.contains(source),
                 qPrintable(message));
        QCOMPARE(linked.source(), QString());
        // It came with the project: it is kept, and leads nowhere.
        linked.fill(source);
        QCOMPARE(linked.source(), source);
        QCOMPARE(imageNameOf(linked.image), QString());
        QCOMPARE(imageFileOf(linked.image), QString());
        QVERIFY(!linked.image->toQml(0).contains(QLatin1String("source")));
        QVERIFY(!linked.image->getProperty(QStringLiteral("source"))->validateValue(message));
    }

    void onlyImagesOfTheProjectCanBeLinked()
    {
        LinkedImage linked;
        linked.files.addPng("there.png", {8, 6});
        QString message;
        QVERIFY2(linked.link(QStringLiteral("there.png"), &message), qPrintable(message));
        QVERIFY(!linked.link(QStringLiteral("not there.png"), &message));
        QCOMPARE(message, QStringLiteral("\"not there.png\" does not exist in this project."));
        QCOMPARE(linked.source(), QStringLiteral("there.png"));
        QVERIFY(linked.link(QString()));
        // One that is offered may be missing: it can come back.
        linked.files.offer(QStringLiteral("missing.png"));
        QVERIFY(linked.link(QStringLiteral("missing.png")));
        QCOMPARE(imageFileOf(linked.image), linked.files.path(QStringLiteral("missing.png")));
        QVERIFY(naturalSizeOf(linked.image).isEmpty());
    }

    void aSymbolicLinkOutOfTheProjectIsRefused_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("reason");
        QTest::newRow("another file") << QStringLiteral("outside")
                                      << QStringLiteral("leads out of the project's folder");
        QTest::newRow("a device") << QStringLiteral("/dev/zero") << QStringLiteral("leads out of the project's folder");
        QTest::newRow("a folder") << QStringLiteral(".") << QStringLiteral("not a regular file");
        QTest::newRow("nothing") << QStringLiteral("nobody") << QStringLiteral("leads nowhere");
    }

    void aSymbolicLinkOutOfTheProjectIsRefused()
    {
        QFETCH(QString, target);
        QFETCH(QString, reason);
        LinkedImage linked;
        linked.files.addPng("good.png", {8, 6});
        if (target == QLatin1String("outside")) {
            target = linked.files.outside(QStringLiteral("secret.png"));
            SamplePictures::write(target, SamplePictures::quarters({8, 6}, "png"));
        }
        QVERIFY(QFile::link(target, linked.files.path(QStringLiteral("link.png"))));
        linked.files.offer(QStringLiteral("link.png"));
        QString message;
        QVERIFY(!linked.link(QStringLiteral("link.png"), &message));
        QVERIFY2(message.contains(reason) && message.contains(QLatin1String("images/link.png")), qPrintable(message));
        linked.fill(QStringLiteral("link.png"));
        QCOMPARE(imageNameOf(linked.image), QStringLiteral("link.png"));
        QCOMPARE(imageFileOf(linked.image), QString());
        QVERIFY(naturalSizeOf(linked.image).isEmpty());
    }

    void aSymbolicLinkWithinTheProjectIsFollowed()
    {
        LinkedImage linked;
        linked.files.addPng("good.png", {8, 6});
        QVERIFY(QFile::link(QStringLiteral("good.png"), linked.files.path(QStringLiteral("link.png"))));
        linked.files.offer(QStringLiteral("link.png"));
        QVERIFY(linked.link(QStringLiteral("link.png")));
        QCOMPARE(naturalSizeOf(linked.image), QSize(8, 6));
    }

    void theNaturalSizeIsThatOfThePicture_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QSize>("size");
        const QSize size(30, 20);
        const QByteArray png = SamplePictures::quarters(size, "png");
        QTest::newRow("png") << QStringLiteral("a.png") << png << size;
        QTest::newRow("jpg") << QStringLiteral("a.jpg") << SamplePictures::quarters(size, "jpg") << size;
        QTest::newRow("webp") << QStringLiteral("a.webp") << SamplePictures::quarters(size, "webp") << size;
        QTest::newRow("bmp") << QStringLiteral("a.bmp") << SamplePictures::quarters(size, "bmp") << size;
        QTest::newRow("gif") << QStringLiteral("a.gif") << SamplePictures::gifQuarters(size) << size;
        QTest::newRow("svg") << QStringLiteral("a.svg") << SamplePictures::drawnQuarters(size) << size;
        QTest::newRow("cut off") << QStringLiteral("b.png") << png.chopped(20) << QSize();
        QTest::newRow("a drawing without size") << QStringLiteral("b.svg") << QByteArray("<svg/>") << QSize();
        QTest::newRow("a drawing of any size")
            << QStringLiteral("c.svg") << SamplePictures::drawing({1000000, 10}, "<rect/>") << QSize();
        QTest::newRow("the largest drawing")
            << QStringLiteral("d.svg") << SamplePictures::drawing({99999, 10}, "<rect/>") << QSize(99999, 10);
    }

    void theNaturalSizeIsThatOfThePicture()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QSize, size);
        LinkedImage linked;
        linked.files.add(name.toUtf8().constData(), content);
        QVERIFY(linked.link(name));
        if (size.isValid())
            QCOMPARE(naturalSizeOf(linked.image), size);
        else
            QVERIFY(naturalSizeOf(linked.image).isEmpty());
    }

    void aProjectWithoutFolderHasNoFiles()
    {
        Project project;
        QVERIFY(project.initialize());
        auto* image = new Image(&project);
        QVERIFY(image->initialize());
        image->getProperty(QStringLiteral("source"))->fill(QStringLiteral("a.png"));
        QCOMPARE(imageFileOf(image), QString());
        QCOMPARE(imageFileOf(nullptr), QString());
    }

    void aNewSourceRefreshesTheProjectTree()
    {
        LinkedImage linked;
        linked.files.addPng("a.png", {8, 6});
        const QSignalSpy refreshed(&linked.project, &Project::projectBrowserUpdateRequested);
        QVERIFY(linked.link(QStringLiteral("a.png")));
        QCOMPARE(refreshed.count(), 1);
        linked.image->changePropertyValue(linked.image->getProperty(QStringLiteral("keepRatio")), QStringLiteral("2"));
        QCOMPARE(refreshed.count(), 1);
    }

    void theSizeFollowsTheOuterSize_data()
    {
        QTest::addColumn<QString>("ratio");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("size");
        const auto row = [](const char* name, const char* ratio, const char* typed, const char* size) {
            QTest::newRow(name) << QString::fromLatin1(ratio) << QString::fromLatin1(typed)
                                << QString::fromLatin1(size);
        };
        row("both", "0", "120,80", "120,80");
        row("both below 1", "0", "0.5,0.2", "1,1");
        row("width", "0", "50,200", "50,200");
        row("width below 1", "0", "-3,200", "1,200");
        row("height", "0", "200,10.5", "200,10.5");
        row("both with ratio", "2", "100,300", "100,50");
        row("width with ratio", "2", "100,200", "100,50");
        row("height with ratio", "2", "200,30", "60,30");
        row("width 0 with ratio", "2", "0,200", "2,1");
        row("height that makes the width too small", "0.25", "200,2", "1,4");
        row("a negative ratio is none", "-1", "100,200", "100,200");
        row("a text is no ratio", "wide", "100,200", "100,200");
    }

    void theSizeFollowsTheOuterSize()
    {
        QFETCH(QString, ratio);
        QFETCH(QString, typed);
        QFETCH(QString, size);
        ImageFixture image;
        image.place<GraphicsImage>();
        image.set("keepRatio", ratio);
        QVERIFY(image.set("boundingSize", typed));
        QCOMPARE(image.value("size"), size);
        QCOMPARE(image.value("boundingSize"), size);
    }

    void theOuterSizeThatIsThereAlreadyIsReportedAndChangesNothing()
    {
        ImageFixture image;
        image.place<GraphicsImage>();
        QTest::ignoreMessage(QtDebugMsg, "Should not reach here");
        image.set("boundingSize", "200,200");
        QCOMPARE(image.value("size"), QStringLiteral("200,200"));
    }

    void withoutItsCanvasItemTheSizeStays()
    {
        ImageFixture image;
        QVERIFY(image.set("boundingSize", "120,80"));
        QCOMPARE(image.value("size"), QStringLiteral("200,200"));
        image.place<GraphicsRectangle>();
        QVERIFY(image.set("boundingSize", "50,40"));
        QCOMPARE(image.value("size"), QStringLiteral("200,200"));
    }

    void whileTheItemChangesSizeTheElementDoesNotReact()
    {
        ImageFixture image;
        auto* item = image.place<GraphicsImage>();
        item->setChangingSize(true);
        QVERIFY(image.set("boundingSize", "120,80"));
        QCOMPARE(image.value("size"), QStringLiteral("200,200"));
    }

    void anyOuterSizeIsFollowedByTheRules()
    {
        QVERIFY(rc::check("size and outer size are one", [] {
            ImageFixture image;
            image.place<GraphicsImage>();
            const double ratio = *rc::gen::element(0.0, 0.25, 1.0, 1.5, 7.0);
            image.set("keepRatio", ValueConversion::toString(ratio));
            for (int i = 0; i < 5; ++i) {
                const QSizeF before = ValueConversion::toSize(image.value("boundingSize"));
                const QSizeF typed(*rc::gen::inRange(-50, 4000) / 4.0, *rc::gen::inRange(-50, 4000) / 4.0);
                const auto expected = reactToBoundingSize(before, typed, 1, ratio);
                image.set("boundingSize", ValueConversion::toString(typed));
                const QSizeF size = ValueConversion::toSize(image.value("size"));
                RC_ASSERT(size == expected.value_or(before));
                RC_ASSERT(size.width() >= 1 && size.height() >= 1);
                RC_ASSERT(image.element->getBoundingRect() == QRectF(QPointF(0, 0), size));
            }
        }));
    }

    void valuesThatDoNotConvertAreKeptAndInert()
    {
        ImageFixture image;
        image.place<GraphicsImage>();
        for (const char* property : {"size", "boundingSize", "keepRatio"}) {
            QVERIFY(image.set(property, "nonsense"));
            QCOMPARE(image.value(property), QStringLiteral("nonsense"));
        }
        QVERIFY(!image.element->toQml(0).contains(QLatin1String("width")));
        QCOMPARE(image.element->getBoundingRect(), QRectF());
        QVERIFY(image.set("size", "30,20"));
        QCOMPARE(image.element->getBoundingRect(), QRectF(0, 0, 30, 20));
        QCOMPARE(image.value("boundingSize"), QStringLiteral("30,20"));
    }
};

QTEST_MAIN(tst_Image)
#include "tst_Image.moc"
