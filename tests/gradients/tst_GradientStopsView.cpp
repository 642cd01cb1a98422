#include "tests/gradients/GradientStopsWindow.h"

#include <QAccessible>
#include <QFrame>
#include <QLabel>
#include <QScrollArea>

#include <memory>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

bool isLike(QRgb color, QRgb expected, int tolerance)
{
    return std::abs(qRed(color) - qRed(expected)) <= tolerance
           && std::abs(qGreen(color) - qGreen(expected)) <= tolerance
           && std::abs(qBlue(color) - qBlue(expected)) <= tolerance;
}

} // namespace

/// The list of gradient stops: what it looks like, and where the focus goes.
class tst_GradientStopsView : public QObject, private GradientStopsWindow
{
    Q_OBJECT

private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void tabVisitsTheRowsInTheirOrder()
    {
        stops()->setGradientStops({{0.2, Qt::red}, {0.4, Qt::green}, {0.6, Qt::blue}});
        type(stops()->addRow()->positionField(), "10");
        click(addButton()); // a row before all others
        enter(row(1)->positionField(), "50"); // a row that moves
        settle();
        QList<QWidget*> expected;
        for (const GradientStopWidget* each : stops()->rows() + QList{stops()->addRow()})
            expected += {each->positionField(), each->colorPicker()->swatch(), each->button()};
        expected.first()->setFocus();
        for (QWidget* part : expected) {
            QCOMPARE(focus(), part);
            QTest::keyClick(focus(), Qt::Key_Tab);
        }
        expected.last()->setFocus();
        for (auto part = expected.crbegin(); part != expected.crend(); ++part) {
            QCOMPARE(focus(), *part);
            QTest::keyClick(focus(), Qt::Key_Backtab);
        }
    }

    void theFocusGoesToTheFirstPosition()
    {
        stops()->setGradientStops(stopsAtEachPercent(3));
        settle();
        row(0)->button()->click();
        settle();
        stops()->setFocus();
        QCOMPARE(focus(), row(0)->positionField());
    }

    void theFocusStaysInTheListWhenItsRowGoes()
    {
        stops()->setGradientStops(stopsAtEachPercent(5));
        settle();
        click(row(1)->button());
        QCOMPARE(focus(), row(1)->button());
        click(row(3)->button());
        QCOMPARE(focus(), row(2)->button());
        QTest::keyClick(focus(), Qt::Key_Space);
        QCOMPARE(stops()->rows().size(), 2);
        QCOMPARE(focus(), row(1)->positionField());
    }

    void theFocusStaysWithTheStopThatMoves()
    {
        stops()->setGradientStops({{0.1, Qt::red}, {0.5, Qt::green}, {0.9, Qt::blue}});
        GradientStopWidget* moved = row(0);
        enter(moved->positionField(), "55");
        QCOMPARE(row(1), moved);
        QCOMPARE(focus(), moved->positionField());
        QTest::keyClick(focus(), Qt::Key_PageDown);
        QCOMPARE(row(0), moved);
        QTest::keyClick(focus(), Qt::Key_Up);
        QCOMPARE(shown(), QStringLiteral("46 #ff0000, 50 #00ff00, 90 #0000ff"));
        QCOMPARE(focus(), moved->positionField());
    }

    void theNamesFollowTheOrder()
    {
        stops()->setGradientStops(stopsAtEachPercent(4));
        row(1)->button()->click();
        enter(row(0)->positionField(), "50");
        for (int i = 0; i < 3; ++i) {
            const auto* interface = QAccessible::queryAccessibleInterface(row(i)->positionField());
            QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Position of gradient stop %1").arg(i + 1));
        }
    }

    void theRowOfTheNewStopStaysInSight()
    {
        m_window->widget->setParent(nullptr);
        auto* area = new QScrollArea;
        area->setWidget(stops());
        area->setWidgetResizable(true);
        WindowOf window(area);
        window.resize(280, 200);
        settle();
        stops()->addRow()->positionField()->setFocus();
        for (const char* percent : {"10", "20", "40", "50", "60", "70", "80", "90"}) {
            type(stops()->addRow()->positionField(), percent);
            addButton()->click();
            settle();
            QTRY_VERIFY(stops()->addRow()->positionField()->visibleRegion().boundingRect()
                        == stops()->addRow()->positionField()->rect());
        }
        QVERIFY(stops()->height() > area->viewport()->height());
        stops()->setParent(m_window.get());
    }

    void thePreviewFollowsEveryChange()
    {
        const auto follows = [this] { return stops()->preview()->gradientStops() == stops()->gradientStops(); };
        stops()->setGradientStops({{0, Qt::red}, {1, Qt::blue}});
        QVERIFY(follows());
        QVERIFY(isLike(pixel(0.02), QColor(Qt::red).rgb(), 12));
        QVERIFY(isLike(pixel(0.98), QColor(Qt::blue).rgb(), 12));
        QVERIFY(isLike(pixel(0.5), qRgb(128, 0, 128), 12));
        pick(row(0)->colorPicker(), Qt::green);
        QVERIFY(follows());
        QVERIFY(isLike(pixel(0.02), QColor(Qt::green).rgb(), 12));
        enter(row(0)->positionField(), "50");
        QVERIFY(follows());
        QVERIFY(isLike(pixel(0.25), QColor(Qt::green).rgb(), 2));
        type(stops()->addRow()->positionField(), "75");
        click(addButton());
        QVERIFY(follows());
        QVERIFY(isLike(pixel(0.75), Orange.rgb(), 12));
        row(1)->button()->click();
        QVERIFY(follows());
        QVERIFY(isLike(pixel(0.75), qRgb(0, 128, 128), 12));
    }

    void translucentStopsShowTheChequerboard()
    {
        stops()->setGradientStops({{0, QColor(255, 0, 0, 0)}, {1, QColor(255, 0, 0, 255)}});
        QSet<QRgb> left;
        const QImage picture = stops()->preview()->grab().toImage();
        for (int x = 3; x < 20; ++x)
            left.insert(picture.pixel(x, picture.height() / 2) & 0xf0f0f0);
        QVERIFY(left.contains(0xf0f0f0));
        QVERIFY(left.contains(0xc0b0b0) || left.contains(0xc0c0c0));
        QVERIFY(isLike(pixel(0.99), qRgb(255, 0, 0), 12));
    }

    void stopsBeyondThePreviewAreLeftOut()
    {
        GradientPreview preview;
        preview.resize(100, 20);
        preview.setGradientStops({{-1, Qt::red}, {0, Qt::blue}, {1, Qt::blue}, {2, Qt::red}});
        const QImage picture = preview.grab().toImage();
        for (const int x : {5, 50, 95})
            QCOMPARE(picture.pixel(x, 10), qRgb(0, 0, 255));
    }

    void theLineIsSeenInEveryTheme()
    {
        for (const auto& [window, text] : {std::pair(Qt::white, Qt::black), std::pair(Qt::black, Qt::white)}) {
            QPalette theme = m_window->palette();
            theme.setColor(QPalette::Window, window);
            theme.setColor(QPalette::WindowText, text);
            m_window->setPalette(theme);
            settle();
            const auto* line = stops()->findChild<QFrame*>({}, Qt::FindDirectChildrenOnly);
            QCOMPARE(line->frameShape(), QFrame::HLine);
            const QImage picture = m_window->grab().toImage();
            const QPoint middle = line->mapTo(m_window.get(), line->rect().center());
            QCOMPARE(picture.pixelColor(middle - QPoint(0, 5)), QColor(window));
            QVERIFY(std::abs(qGray(picture.pixel(middle)) - qGray(QColor(window).rgb())) > 100);
        }
    }

    void withoutStopsThereIsNothingToEdit()
    {
        const QString reason = QStringLiteral("There is a reason.");
        stops()->setGradientStops(stopsAtEachPercent(3));
        const int width = stops()->minimumSizeHint().width();
        type(row(0)->positionField(), "9");
        stops()->showNoStops(reason);
        settle();
        QCOMPARE(notice(), reason);
        QVERIFY(stops()->gradientStops().isEmpty());
        QVERIFY(stops()->rows().isEmpty());
        for (const QWidget* part : std::initializer_list<QWidget*>{stops()->addRow(), stops()->preview()})
            QVERIFY(!part->isVisible());
        addButton()->click();
        Q_EMIT stops()->addRow()->requestAdd();
        QCOMPARE(m_modified->size(), 0);
        QCOMPARE(m_warnings->texts, QStringList());
        QCOMPARE(stops()->minimumSizeHint().width(), width);

        stops()->setGradientStops(stopsAtEachPercent(3));
        QCOMPARE(shownStops(), stopsAtEachPercent(3));
        QVERIFY(notice().isEmpty());
        QVERIFY(stops()->addRow()->isVisible());
    }

private:
    [[nodiscard]] QString notice() const
    {
        for (const QLabel* label : stops()->findChildren<QLabel*>()) {
            if (label->isVisible())
                return label->text();
        }
        return {};
    }
    /// The colour of the preview at that share of its width.
    [[nodiscard]] QRgb pixel(double position) const
    {
        const QImage picture = stops()->preview()->grab().toImage();
        return picture.pixel(int(position * (picture.width() - 1)), picture.height() / 2);
    }
};

QTEST_MAIN(tst_GradientStopsView)
#include "tst_GradientStopsView.moc"
