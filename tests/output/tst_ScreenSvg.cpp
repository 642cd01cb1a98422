#include "host/core/output/ScreenSvg.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <QtTest>

#include <algorithm>
#include <cstdlib>

using namespace Korvex::Meridane::Designer;

namespace {

QImage read(const QByteArray& svg, const QSize& size)
{
    QSvgRenderer renderer(svg);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (!renderer.isValid())
        return {};
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

/// A quarter of the lines and columns: letters are painted a part of a pixel from where their outlines lie.
QImage softened(const QImage& image)
{
    return image.scaled(std::max(image.width() / 4, 1), std::max(image.height() / 4, 1), Qt::IgnoreAspectRatio,
                        Qt::SmoothTransformation);
}

/// The share of the pixels, of those that either picture covers, that differ by more than the softness of edges.
double differingShare(const QImage& one, const QImage& other)
{
    if (one.size() != other.size())
        return 1;
    qint64 covered = 0;
    qint64 differing = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            covered += (qAlpha(a) | qAlpha(b)) != 0;
            differing += std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                   std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))})
                         > 48;
        }
    }
    return covered == 0 ? 0 : double(differing) / double(covered);
}

int count(const QByteArray& svg, const QString& tag)
{
    int found = 0;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == tag)
            ++found;
    }
    return reader.hasError() ? -1 : found;
}

} // namespace

/// Screens as drawings: every element looks as on the canvas, whatever the format can say.
class tst_ScreenSvg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QString message;
        QVERIFY2(DesignerFactory::instance()->loadPlugin(QStringLiteral(MERIDANE_PLUGIN_FILE), &message),
                 qPrintable(message));
    }

    void init()
    {
        auto made = std::make_unique<Project>();
        QVERIFY(made->initialize());
        m_session = std::make_unique<EditSession>(std::move(made));
        QVERIFY(m_session->addScreen(QStringLiteral("main"), QSizeF(200, 120), &m_screen).accepted);
    }

    void cleanup() { m_session.reset(); }

    void everyElementOfTheExamplesLooksAsOnTheCanvas_data()
    {
        QTest::addColumn<QString>("project");
        for (const char* name : {"thermostat", "cluster", "sheets/shapes", "sheets/lines", "sheets/texts",
                                 "sheets/gradients", "sheets/images"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void everyElementOfTheExamplesLooksAsOnTheCanvas()
    {
        QFETCH(QString, project);
        EditSession session(ProjectStore::load(QStringLiteral(MERIDANE_EXAMPLES "/") + project).project);
        QVERIFY(session.project());
        for (Screen* screen : session.project()->screens()) {
            CanvasScene* scene = session.scene(screen);
            for (DesignerObject* element : screen->childList()->items()) {
                RenderOptions options;
                options.only = {element};
                options.scale = 2;
                const QImage picture = ScreenRenderer::render(scene, options);
                const QByteArray svg = ScreenSvg::draw(scene, options);
                const QImage drawn = read(svg, picture.size());
                const bool isText = element->className() == QLatin1String("TextBox");
                const double share =
                    isText ? differingShare(softened(drawn), softened(picture)) : differingShare(drawn, picture);
                // A small element is all edge.
                QVERIFY2(
                    share <= 0.02,
                    qPrintable(QStringLiteral("%1 %2: %3").arg(element->className(), element->getIdName()).arg(share)));
            }
        }
    }

    void aWholeScreenLooksAsOnTheCanvas_data() { everyElementOfTheExamplesLooksAsOnTheCanvas_data(); }

    void aWholeScreenLooksAsOnTheCanvas()
    {
        QFETCH(QString, project);
        EditSession session(ProjectStore::load(QStringLiteral(MERIDANE_EXAMPLES "/") + project).project);
        for (Screen* screen : session.project()->screens()) {
            const QImage picture = ScreenRenderer::render(session.scene(screen));
            const QByteArray svg = ScreenSvg::draw(session.scene(screen), {});
            const QImage drawn = read(svg, picture.size());
            const double share = differingShare(softened(drawn), softened(picture));
            QVERIFY2(share <= 0.01, qPrintable(QString::number(share)));
            QCOMPARE(count(svg, QStringLiteral("text")), 0);
        }
    }

    void plainElementsAreDrawnAndNoPictures()
    {
        for (const char* className : {"Rectangle", "Ellipse", "Polygon", "Line", "TextBox", "LinearGradientElement",
                                      "RadialGradientElement", "PathElement", "IrregularPolygon"}) {
            DesignerObject* element = add(QString::fromLatin1(className));
            RenderOptions options;
            options.only = {element};
            const QByteArray svg = ScreenSvg::draw(scene(), options);
            QVERIFY2(!svg.isEmpty(), className);
            QVERIFY2(count(svg, QStringLiteral("image")) == 0, className);
            QVERIFY2(count(svg, QStringLiteral("path")) + count(svg, QStringLiteral("polygon"))
                             + count(svg, QStringLiteral("polyline")) + count(svg, QStringLiteral("rect"))
                             + count(svg, QStringLiteral("ellipse"))
                         > 0,
                     className);
        }
    }

    void aConicalGradientBecomesAPictureOfThreePixelsForOne()
    {
        DesignerObject* element = add(QStringLiteral("ConicalGradientElement"));
        RenderOptions options;
        options.only = {element};
        const QByteArray svg = ScreenSvg::draw(scene(), options);
        QCOMPARE(count(svg, QStringLiteral("image")), 1);
    }

    void theDrawingHasTheSizeOfTheScreenInPixels()
    {
        QByteArray svg = ScreenSvg::draw(scene(), {});
        QVERIFY2(svg.contains("<svg width=\"200\" height=\"120\""), svg.left(300).constData());
        QVERIFY(svg.contains("viewBox=\"0 0 200 120\""));
        RenderOptions options;
        options.scale = 2.5;
        svg = ScreenSvg::draw(scene(), options);
        QVERIFY(svg.contains("<svg width=\"500\" height=\"300\""));
        QVERIFY(svg.contains("viewBox=\"0 0 200 120\""));
    }

    void withoutTheGroundItIsTransparent()
    {
        RenderOptions options;
        options.ground = false;
        add(QStringLiteral("Rectangle"), {{QStringLiteral("position"), QStringLiteral("100,60")},
                                          {QStringLiteral("size"), QStringLiteral("50,40")}});
        const QImage drawn = read(ScreenSvg::draw(scene(), options), {200, 120});
        QCOMPARE(drawn.pixelColor(5, 5).alpha(), 0);
        QCOMPARE(drawn.pixelColor(120, 80).alpha(), 255);
        QCOMPARE(ScreenRenderer::render(scene(), options).pixelColor(5, 5).alpha(), 0);
        QCOMPARE(read(ScreenSvg::draw(scene(), {}), {200, 120}).pixelColor(5, 5), QColor(Qt::white));
    }

    void aSelectionIsCutOutWithItsBorders()
    {
        DesignerObject* element =
            add(QStringLiteral("Rectangle"), {{QStringLiteral("position"), QStringLiteral("30,20")},
                                              {QStringLiteral("size"), QStringLiteral("50,40")},
                                              {QStringLiteral("border"), QStringLiteral("width: 4; color: #ff0000;")}});
        add(QStringLiteral("Rectangle"), {{QStringLiteral("position"), QStringLiteral("40,30")}});
        RenderOptions options;
        options.only = {element};
        QCOMPARE(ScreenRenderer::area(scene(), options), QRectF(28, 18, 54, 44));
        const QImage picture = ScreenRenderer::render(scene(), options);
        QCOMPARE(picture.size(), QSize(54, 44));
        QCOMPARE(picture.pixelColor(1, 1), QColor(Qt::red));
        QVERIFY(differingShare(read(ScreenSvg::draw(scene(), options), picture.size()), picture) < 0.01);
    }

    void elementsThatTheCanvasHidesAreDrawn()
    {
        DesignerObject* element =
            add(QStringLiteral("Rectangle"), {{QStringLiteral("color"), QStringLiteral("#ff0000")}});
        const QImage before = ScreenRenderer::render(scene());
        QVERIFY(m_session->setHidden({element}, true).accepted);
        QCOMPARE(ScreenRenderer::render(scene()), before);
        QVERIFY(before.pixelColor(20, 20) == QColor(Qt::red));
    }

    void whoeverWaitsCanEndIt()
    {
        for (int i = 0; i < 5; ++i)
            add(QStringLiteral("Rectangle"));
        int heard = 0;
        const WorkProgress stop = [&heard](int done, int total) {
            ++heard;
            return done < total / 2;
        };
        QVERIFY(ScreenSvg::draw(scene(), {}, stop).isEmpty());
        QCOMPARE(heard, 4); // of the ground and five elements
        heard = 0;
        QVERIFY(ScreenRenderer::render(scene(), RenderOptions(), stop).isNull());
        QCOMPARE(heard, 4);
    }

    void nothingIsDrawnOfNothing()
    {
        QVERIFY(ScreenSvg::draw(nullptr, {}).isEmpty());
        RenderOptions options;
        options.scale = 0;
        QVERIFY(ScreenSvg::draw(scene(), options).isEmpty());
    }

private:
    DesignerObject* add(const QString& className, const QMap<QString, QString>& properties = {})
    {
        DesignerObject* element = nullptr;
        const EditResult result = m_session->addElement(className, m_screen, {}, properties, &element);
        if (!result.accepted)
            qFatal("%s", qPrintable(result.message));
        return element;
    }

    CanvasScene* scene() { return m_session->scene(m_screen); }

    std::unique_ptr<EditSession> m_session;
    Screen* m_screen = nullptr;
};

QTEST_MAIN(tst_ScreenSvg)
#include "tst_ScreenSvg.moc"
