// A megabyte of text in one box: repainted unchanged, and after a character was typed in its middle; beside a text that
// just fills the box, and beside one layout of the whole text. And an ordinary label, beside the toolkit's own.

#include "benchmarks/RatioReporter.h"

#include "host/common/DisplayFont.h"
#include "host/common/PaintHelper.h"
#include "host/common/TextBoxLayout.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPen>
#include <QTextLayout>

#include <array>

#include <malloc.h>

using namespace Korvex::Meridane;
using namespace Korvex::Meridane::Common;

namespace {

const QSizeF Box(400, 300);

QString prose(int length)
{
    static const QStringList words{QStringLiteral("heat"), QStringLiteral("temperature"), QStringLiteral("of"),
                                   QStringLiteral("the"),  QStringLiteral("room"),        QStringLiteral("is"),
                                   QStringLiteral("set"),  QStringLiteral("by hand")};
    QString text;
    for (int i = 0; text.size() < length; ++i)
        text += words.at(i * 5 % words.size()) + QLatin1Char(i % 23 == 22 ? '\n' : ' ');
    return text;
}

QFont font()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(20);
    return font;
}

double heapBytes()
{
    const auto info = mallinfo2();
    return double(info.uordblks + info.hblkhd);
}

/// Draws \a text with what \a layout has kept, \a change having been made to it.
void paint(benchmark::State& state, QString text, int alignment, void (*change)(QString*, qint64))
{
    QImage image(Box.toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    const auto draw = [&](TextBoxLayout* layout) {
        PaintHelper::paintTextBox(Box, font(), QPen(Qt::black), text, alignment, {}, QPen(Qt::red), &painter, layout);
    };
    TextBoxLayout layout;
    draw(&layout); // fills the caches of glyphs, too
    std::array<TextBoxLayout, 20> others;
    const double before = heapBytes();
    for (TextBoxLayout& other : others)
        draw(&other);
    state.counters["bytes kept"] = (heapBytes() - before) / others.size();
    qint64 step = 0;
    for (auto _ : state) {
        change(&text, step++);
        draw(&layout);
    }
}

void nothing(QString*, qint64) {}

void type(QString* text, qint64 step)
{
    (*text)[text->size() / 2] = QLatin1Char(char('a' + step % 26));
}

void repaint(benchmark::State& state)
{
    paint(state, prose(1 << 20), int(state.range(0)), nothing);
}

void typing(benchmark::State& state)
{
    paint(state, prose(1 << 20), int(state.range(0)), type);
}

void fullBox(benchmark::State& state)
{
    paint(state, prose(1000), int(state.range(0)), nothing);
}

void label(benchmark::State& state)
{
    paint(state, QStringLiteral("Temperature"), 132, nothing);
}

/// The whole text in one layout, as the toolkit does it.
void bareLayout(benchmark::State& state)
{
    QImage image(Box.toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    QString text = prose(1 << 20);
    text.replace(QLatin1Char('\n'), QChar::LineSeparator);
    for (auto _ : state) {
        QTextLayout layout(text, displayFont(font()));
        double height = 0;
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(Box.width());
            line.setPosition(QPointF(0, height));
            height += line.height();
        }
        layout.endLayout();
        layout.draw(&painter, QPointF(0, 0), {}, QRectF(QPointF(0, 0), Box));
    }
}

void bareLabel(benchmark::State& state)
{
    QImage image(Box.toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(displayFont(font()));
    for (auto _ : state)
        painter.drawText(QRectF(QPointF(0, 0), Box), Qt::AlignCenter | Qt::TextWordWrap, QStringLiteral("Temperature"));
}

} // namespace

BENCHMARK(repaint)->Arg(33)->Arg(132)->Unit(benchmark::kMicrosecond);
BENCHMARK(typing)->Arg(33)->Arg(132)->Unit(benchmark::kMicrosecond);
BENCHMARK(fullBox)->Arg(33)->Arg(132)->Unit(benchmark::kMicrosecond);
BENCHMARK(bareLayout)->Unit(benchmark::kMicrosecond);
BENCHMARK(label)->Unit(benchmark::kMicrosecond);
BENCHMARK(bareLabel)->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    Benchmarks::RatioReporter reporter;
    reporter.addRatio({"repaint of an unchanged 1 MB text to a full box's", "repaint/33", 1, "fullBox/33", 1});
    reporter.addRatio({"the same, centred", "repaint/132", 1, "fullBox/132", 1});
    reporter.addRatio({"one layout of a 1 MB text to typing into it", "bareLayout", 1, "typing/33", 1});
    reporter.addRatio({"the same, centred", "bareLayout", 1, "typing/132", 1});
    reporter.addRatio({"an ordinary label to the toolkit's own", "label", 1, "bareLabel", 1});
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
