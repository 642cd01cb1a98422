#include "host/core/editors/ImageThumbnails.h"
#include "tests/support/TestPictures.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace Korvex::Meridane;
using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// Small pictures of image files are made beside the work of the program.
class tst_ImageThumbnails : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_thumbnails = std::make_unique<ImageThumbnails>(32);
        m_loaded.clear();
        m_order.clear();
        connect(m_thumbnails.get(), &ImageThumbnails::loaded, this,
                [this](const QString& file, const ImageThumbnail& thumbnail) {
                    m_loaded.insert(QFileInfo(file).fileName(), thumbnail);
                    m_order.append(QFileInfo(file).fileName());
                });
    }

    void picturesKeepTheirRatioAndTellTheirSize();
    void drawingsAreAsLargeAsTheSquare();
    void harmfulFilesHaveAReasonInsteadOfAPicture();
    void nothingIsLoadedFromWithinTheRequest();
    void filesAreLoadedOneAfterTheOther();
    void aChangedFileHasAnotherThumbnail();
    void whatIsNotWantedAnyMoreIsNotLoaded();
    void goingWhileOneIsBeingMadeIsSafe();
    void aSquareHoldsThePictureInItsMiddle();

private:
    QString file(const char* name, const QByteArray& bytes) const
    {
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return {};
        return file.fileName();
    }
    ImageThumbnail thumbnail(const char* name) const { return m_loaded.value(QString::fromLatin1(name)); }

    QTemporaryDir m_folder;
    std::unique_ptr<ImageThumbnails> m_thumbnails;
    QMap<QString, ImageThumbnail> m_loaded;
    QStringList m_order;
};

void tst_ImageThumbnails::picturesKeepTheirRatioAndTellTheirSize()
{
    m_thumbnails->request(file("wide.png", pictureBytes(Qt::red, {200, 100})));
    m_thumbnails->request(file("small.png", pictureBytes(Qt::red, {10, 4})));
    m_thumbnails->request(file("line.png", pictureBytes(Qt::red, {3000, 1})));
    m_thumbnails->request(file("moving.gif", animationBytes()));
    QTRY_COMPARE(m_loaded.size(), 4);
    QCOMPARE(thumbnail("wide.png").picture.size(), QSize(32, 16));
    QCOMPARE(thumbnail("wide.png").info.size, QSize(200, 100));
    QCOMPARE(thumbnail("wide.png").picture.pixelColor(10, 10), QColor(Qt::red));
    QCOMPARE(thumbnail("small.png").picture.size(), QSize(10, 4));
    QCOMPARE(thumbnail("line.png").picture.size(), QSize(32, 1));
    QCOMPARE(thumbnail("moving.gif").info.kind, Common::PictureKind::Animation);
    QCOMPARE(thumbnail("moving.gif").info.frames, 2);
    QVERIFY(!thumbnail("moving.gif").picture.isNull());
}

void tst_ImageThumbnails::drawingsAreAsLargeAsTheSquare()
{
    m_thumbnails->request(file("icon.svg", drawingBytes(Qt::blue, {8, 4})));
    QTRY_COMPARE(m_loaded.size(), 1);
    QCOMPARE(thumbnail("icon.svg").picture.size(), QSize(32, 16));
    QCOMPARE(thumbnail("icon.svg").picture.pixelColor(16, 8), QColor(Qt::blue));
    QCOMPARE(thumbnail("icon.svg").info.size, QSize(8, 4));
}

void tst_ImageThumbnails::harmfulFilesHaveAReasonInsteadOfAPicture()
{
    m_thumbnails->request(file("bomb.png", bombBytes({50000, 50000})));
    m_thumbnails->request(
        file("loop.svg", "<svg xmlns='http://www.w3.org/2000/svg'><g id='a'><use href='#a'/></g></svg>"));
    m_thumbnails->request(file("text.png", "no picture"));
    m_thumbnails->request(file("half.png", pictureBytes(Qt::red, {64, 64}).first(60)));
    m_thumbnails->request(m_folder.filePath(QStringLiteral("missing.png")));
    QTRY_COMPARE(m_loaded.size(), 5);
    for (const ImageThumbnail& thumbnail : std::as_const(m_loaded)) {
        QVERIFY(thumbnail.picture.isNull());
        QVERIFY(!thumbnail.reason.isEmpty());
        QCOMPARE(thumbnail.info.kind, Common::PictureKind::Unreadable);
    }
}

void tst_ImageThumbnails::nothingIsLoadedFromWithinTheRequest()
{
    const QString red = file("red.png", pictureBytes(Qt::red));
    for (int round = 1; round <= 2; ++round) { // made, and known
        m_thumbnails->request(red);
        QCOMPARE(m_order.size(), round - 1);
        QTRY_COMPARE(m_order.size(), round);
    }
}

void tst_ImageThumbnails::filesAreLoadedOneAfterTheOther()
{
    QStringList names;
    for (int i = 0; i < 30; ++i) {
        names.append(QStringLiteral("picture%1.png").arg(i));
        m_thumbnails->request(file(qPrintable(names.last()), pictureBytes(QColor(i, 0, 0), {20, 20})));
    }
    QTRY_COMPARE(m_order.size(), 30);
    QCOMPARE(m_order, names);
}

void tst_ImageThumbnails::aChangedFileHasAnotherThumbnail()
{
    const QString path = file("red.png", pictureBytes(Qt::red, {40, 40}));
    m_thumbnails->request(path);
    QTRY_COMPARE(m_order.size(), 1);
    file("red.png", pictureBytes(Qt::green, {50, 40}));
    m_thumbnails->request(path);
    QTRY_COMPARE(m_order.size(), 2);
    QCOMPARE(thumbnail("red.png").picture.pixelColor(5, 5), QColor(Qt::green));
    QCOMPARE(thumbnail("red.png").info.size, QSize(50, 40));
}

void tst_ImageThumbnails::whatIsNotWantedAnyMoreIsNotLoaded()
{
    m_thumbnails->request(file("one.png", pictureBytes(Qt::red, {5, 6})));
    m_thumbnails->request(file("two.png", pictureBytes(Qt::red, {6, 7})));
    m_thumbnails->cancel();
    m_thumbnails->request(file("three.png", pictureBytes(Qt::red, {7, 8})));
    QTRY_COMPARE(m_order.size(), 1);
    QCOMPARE(m_order, QStringList{QStringLiteral("three.png")});
}

void tst_ImageThumbnails::goingWhileOneIsBeingMadeIsSafe()
{
    const QString large = file("large.png", pictureBytes(Qt::red, {3000, 3000}));
    m_thumbnails->request(large);
    m_thumbnails->request(file("next.png", pictureBytes(Qt::red, {9, 9})));
    QCoreApplication::processEvents(); // the first one is begun
    m_thumbnails.reset();
    QCoreApplication::processEvents();
    QCOMPARE(m_order.size(), 0);
}

void tst_ImageThumbnails::aSquareHoldsThePictureInItsMiddle()
{
    QImage wide(40, 20, QImage::Format_RGB32);
    wide.fill(Qt::red);
    const QImage square = ImageThumbnails::squarePixmap(wide, 20, 2).toImage();
    QCOMPARE(square.size(), QSize(40, 40));
    QCOMPARE(square.pixelColor(20, 5).alpha(), 0);
    QCOMPARE(square.pixelColor(20, 20), QColor(Qt::red));
    QCOMPARE(square.pixelColor(1, 20), QColor(Qt::red));
    QCOMPARE(square.pixelColor(20, 35).alpha(), 0);
    QVERIFY(!ImageThumbnails::squarePixmap({}, 20, 2).isNull());
}

QTEST_MAIN(tst_ImageThumbnails)
#include "tst_ImageThumbnails.moc"
