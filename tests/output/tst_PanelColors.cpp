#include "host/core/output/PanelColors.h"

#include <QElapsedTimer>
#include <QtTest>

#include <rapidcheck.h>

#include <cmath>
#include <limits>

using namespace Korvex::Meridane::Designer;

namespace {

const QList<PanelFormat> AllFormats{PanelFormat::Full, PanelFormat::Rgb565, PanelFormat::Rgb565Dithered,
                                    PanelFormat::Rgb332, PanelFormat::Grey};

QImage plain(const QSize& size, const QColor& color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

/// A picture of up to 20 × 20 pixels of any colours, opaque unless \a translucent.
QImage anyPicture(bool translucent = false)
{
    const int width = *rc::gen::inRange(1, 21);
    const int height = *rc::gen::inRange(1, 21);
    QImage image(width, height, translucent ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    const auto pixels = *rc::gen::container<std::vector<QRgb>>(std::size_t(width * height), rc::gen::arbitrary<QRgb>());
    for (int i = 0; i < width * height; ++i)
        image.setPixel(i % width, i / width,
                       translucent ? pixels[std::size_t(i)] : 0xff000000 | pixels[std::size_t(i)]);
    return image;
}

} // namespace

/// The colours of panels of few bits: exact levels, bounded errors, and nothing that drifts.
class tst_PanelColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void levelsRepeatTheirBits()
    {
        QCOMPARE(PanelColors::widened(0, 5), 0);
        QCOMPARE(PanelColors::widened(31, 5), 255);
        QCOMPARE(PanelColors::widened(0b10110, 5), 0b10110101);
        QCOMPARE(PanelColors::widened(63, 6), 255);
        QCOMPARE(PanelColors::widened(0b100001, 6), 0b10000110);
        QCOMPARE(PanelColors::widened(0b101, 3), 0b10110110);
        QCOMPARE(PanelColors::widened(0b10, 2), 0b10101010);
        for (int value = 0; value < 256; ++value)
            QCOMPARE(PanelColors::widened(value, 8), value);
    }

    void blackAndWhiteStay()
    {
        for (const PanelFormat format : AllFormats) {
            for (const QColor& color : {QColor(Qt::black), QColor(Qt::white)})
                QCOMPARE(PanelColors::shown(plain({9, 7}, color), format), plain({9, 7}, color));
        }
    }

    void whatIsShownIsALevelOfThePanel()
    {
        QVERIFY(rc::check([] {
            const QImage picture = anyPicture();
            for (const PanelFormat format : {PanelFormat::Rgb565, PanelFormat::Rgb565Dithered}) {
                const QImage shown = PanelColors::shown(picture, format);
                for (int y = 0; y < shown.height(); ++y) {
                    for (int x = 0; x < shown.width(); ++x) {
                        const QRgb pixel = shown.pixel(x, y);
                        RC_ASSERT(qRed(pixel) == PanelColors::widened(qRed(pixel) >> 3, 5));
                        RC_ASSERT(qGreen(pixel) == PanelColors::widened(qGreen(pixel) >> 2, 6));
                        RC_ASSERT(qBlue(pixel) == PanelColors::widened(qBlue(pixel) >> 3, 5));
                    }
                }
            }
        }));
    }

    void whatAPanelShowsItShowsAsItIs()
    {
        QVERIFY(rc::check([] {
            const QImage picture = anyPicture();
            for (const PanelFormat format : AllFormats) {
                const QImage shown = PanelColors::shown(picture, format);
                RC_ASSERT(PanelColors::shown(shown, format) == shown);
            }
        }));
    }

    void noChannelIsFurtherOffThanHalfAStep()
    {
        QCOMPARE(PanelColors::largestError(5), 4);
        QCOMPARE(PanelColors::largestError(6), 2);
        QCOMPARE(PanelColors::largestError(8), 0);
        QVERIFY(rc::check([] {
            const QImage picture = anyPicture();
            const QImage nearest = PanelColors::shown(picture, PanelFormat::Rgb565);
            const QImage dithered = PanelColors::shown(picture, PanelFormat::Rgb565Dithered);
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    const QRgb wanted = picture.pixel(x, y);
                    const auto off = [wanted](QRgb pixel, int (*channel)(QRgb)) {
                        return std::abs(channel(pixel) - channel(wanted));
                    };
                    RC_ASSERT(off(nearest.pixel(x, y), qRed) <= 4);
                    RC_ASSERT(off(nearest.pixel(x, y), qGreen) <= 2);
                    RC_ASSERT(off(nearest.pixel(x, y), qBlue) <= 4);
                    RC_ASSERT(off(dithered.pixel(x, y), qRed) <= 8);
                    RC_ASSERT(off(dithered.pixel(x, y), qGreen) <= 4);
                    RC_ASSERT(off(dithered.pixel(x, y), qBlue) <= 8);
                }
            }
        }));
    }

    void aDitheredSurfaceHasTheColourOnTheWhole()
    {
        for (int value = 0; value < 256; ++value) {
            const QImage shown =
                PanelColors::shown(plain({16, 16}, QColor(value, value, value)), PanelFormat::Rgb565Dithered);
            double red = 0;
            double green = 0;
            for (int i = 0; i < 256; ++i) {
                red += qRed(shown.pixel(i % 16, i / 16)) / 256.0;
                green += qGreen(shown.pixel(i % 16, i / 16)) / 256.0;
            }
            // Sixteen shades lie between two levels.
            QVERIFY2(std::abs(red - value) <= 9.0 / 32 + 1e-9, qPrintable(QString::number(value)));
            QVERIFY2(std::abs(green - value) <= 5.0 / 32 + 1e-9, qPrintable(QString::number(value)));
        }
    }

    void aChangeInOneSpotChangesNoOther()
    {
        QVERIFY(rc::check([] {
            QImage picture = anyPicture();
            const QPoint spot(*rc::gen::inRange(0, picture.width()), *rc::gen::inRange(0, picture.height()));
            for (const PanelFormat format : AllFormats) {
                const QImage before = PanelColors::shown(picture, format);
                picture.setPixel(spot, 0xff000000 | *rc::gen::arbitrary<QRgb>());
                QImage after = PanelColors::shown(picture, format);
                after.setPixel(spot, before.pixel(spot));
                RC_ASSERT(after == before);
            }
        }));
    }

    void translucentPicturesLieOnBlack()
    {
        QImage half(3, 3, QImage::Format_ARGB32);
        half.fill(QColor(255, 255, 255, 128));
        QCOMPARE(qRed(PanelColors::shown(half, PanelFormat::Full).pixel(1, 1)), 128);
        QVERIFY(rc::check([] {
            const QImage picture = anyPicture(true);
            for (const PanelFormat format : AllFormats) {
                const QImage shown = PanelColors::shown(picture, format);
                RC_ASSERT(shown.format() == QImage::Format_RGB32);
                RC_ASSERT(shown.size() == picture.size());
            }
        }));
    }

    void greysHaveNoColour()
    {
        const QRgb pixel = PanelColors::shown(plain({2, 2}, QColor(200, 30, 90)), PanelFormat::Grey).pixel(0, 0);
        QCOMPARE(pixel, qRgb(qGray(200, 30, 90), qGray(200, 30, 90), qGray(200, 30, 90)));
    }

    void nothingIsMadeOfNothing()
    {
        for (const PanelFormat format : AllFormats)
            QVERIFY(PanelColors::shown(QImage(), format).isNull());
    }

    void aPanelFullIsConvertedWhileNobodyNotices()
    {
        QImage picture(800, 480, QImage::Format_RGB32);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                picture.setPixel(x, y, qRgb(x * 255 / 799, y * 255 / 479, (x + y) & 255));
        }
        // The best of some runs, beside the best of some plain copies: the machine and its load cancel out.
        const auto best = [](const auto& work) {
            qint64 least = std::numeric_limits<qint64>::max();
            for (int i = 0; i < 12; ++i) {
                QElapsedTimer time;
                time.start();
                work();
                least = std::min(least, time.nsecsElapsed());
            }
            return double(least);
        };
        const double copying = best([&picture] { (void)picture.copy(); });
        for (const PanelFormat format : {PanelFormat::Rgb565, PanelFormat::Rgb565Dithered}) {
            const double converting = best([&picture, format] { (void)PanelColors::shown(picture, format); });
            qInfo("%.2f ms, %.0f plain copies", converting / 1e6, converting / copying);
            QVERIFY2(converting < 100 * copying || converting < 8e6, qPrintable(QString::number(converting / copying)));
        }
    }
};

QTEST_GUILESS_MAIN(tst_PanelColors)
#include "tst_PanelColors.moc"
