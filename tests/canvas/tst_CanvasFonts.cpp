#include "tests/canvas/CanvasFixture.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// The canvas follows the fonts of its project.
class tst_CanvasFonts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_canvas = std::make_unique<CanvasFixture>();
        m_canvas->project->setFolder(m_folder->path());
    }

    void cleanup() { m_canvas.reset(); }

    void anImportedFontShowsAtOnce()
    {
        m_canvas->add("TextBox", {{QStringLiteral("text"), QStringLiteral("21.5 HEAT")},
                                  {QStringLiteral("font"), QStringLiteral("family: Panel Segments; pixelSize: 30;")},
                                  {QStringLiteral("size"), QStringLiteral("300,60")}});
        m_canvas->select({});
        const QImage fallback = shown();
        QString font;
        QVERIFY(m_canvas->session->importFont(QStringLiteral(MERIDANE_FONT), &font).accepted);
        const QImage segments = shown();
        QVERIFY(segments != fallback);
        m_canvas->project->setFontResources({});
        QCOMPARE(shown(), fallback);
        m_canvas->project->setFontResources({font});
        QCOMPARE(shown(), segments);
        QCOMPARE(m_canvas->steps(), 0);
    }

    void aMegabyteOfTextIsDrawnAgainAtOnce()
    {
        const QString megabyte = QStringLiteral("Room temperature and heat. ").repeated(40000);
        m_canvas->add("TextBox", {{QStringLiteral("text"), megabyte},
                                  {QStringLiteral("size"), QStringLiteral("400,300")},
                                  {QStringLiteral("alignment"), QStringLiteral("132")}});
        shown();
        // One layout of the text takes a tenth of a second: a hundred paints without one have the time of ten.
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 100; ++i)
            m_canvas->view->viewport()->repaint();
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    }

private:
    /// What the view has painted of its own accord.
    QImage shown() const
    {
        QCoreApplication::processEvents();
        return m_canvas->view->screen()->grabWindow(m_canvas->view->winId()).toImage();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<CanvasFixture> m_canvas;
};

QTEST_MAIN(tst_CanvasFonts)
#include "tst_CanvasFonts.moc"
