#include "app/Appearance.h"
#include "app/QmlHighlighter.h"
#include "app/QmlPanel.h"
#include "app/QmlTextView.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <QToolButton>
#include <QtTest>

#include <rapidcheck.h>

#include <algorithm>
#include <cmath>

using namespace Korvex::Meridane::Designer;

namespace {

double luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return a > b ? a / b : b / a;
}

} // namespace

/// The QML of the screen and of the selection: always what an export would write, where one has been looking.
class tst_QmlPanel : public QObject
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
        QVERIFY(m_session->addScreen(QStringLiteral("main"), QSizeF(800, 480), &m_screen).accepted);
        m_canvas = std::make_unique<CanvasView>(m_session.get());
        m_canvas->resize(900, 600);
        m_canvas->show();
        m_panel = std::make_unique<QmlPanel>(m_session.get(), m_canvas.get());
        m_panel->resize(400, 300);
        m_panel->show();
    }

    void cleanup()
    {
        m_panel.reset();
        m_canvas.reset();
        m_session.reset();
    }

    void itShowsTheScreenAndFollowsEveryChange()
    {
        QTRY_COMPARE(text(), ScreenQml(m_screen).text());
        DesignerObject* first = add("Rectangle", 10, 10);
        add("TextBox", 50, 50);
        QTRY_COMPARE(text(), ScreenQml(m_screen).text());
        m_session->setProperty(first, QStringLiteral("position"), QStringLiteral("77,10"));
        QTRY_VERIFY(text().contains(QStringLiteral("x: 77")));
        QCOMPARE(text(), ScreenQml(m_screen).text());
        m_session->rename(first, QStringLiteral("renamed"));
        QTRY_VERIFY(text().contains(QStringLiteral("id: renamed")));
        m_session->undo();
        m_session->undo();
        m_session->removeElements({first});
        QTRY_COMPARE(text(), ScreenQml(m_screen).text());
        Screen* other = nullptr;
        m_session->addScreen(QStringLiteral("other"), QSizeF(320, 240), &other);
        m_session->setCurrentScreen(other);
        QTRY_COMPARE(text(), ScreenQml(other).text());
    }

    void itShowsWhatADragWouldWrite()
    {
        DesignerObject* element = add("Rectangle", 100, 50);
        QTRY_VERIFY(text().contains(QStringLiteral("x: 100")));
        const auto at = [this](double x, double y) { return m_canvas->mapFromScene(QPointF(x, y)); };
        QTest::mousePress(m_canvas->viewport(), Qt::LeftButton, Qt::NoModifier, at(110, 60));
        QTest::mouseMove(m_canvas->viewport(), at(200, 120));
        QTest::mouseMove(m_canvas->viewport(), at(347, 233));
        QVERIFY(m_canvas->isGestureRunning());
        const QVector<PropertyChange> pending = m_canvas->pendingChanges();
        QVERIFY(!pending.isEmpty());
        const QString x = pending.constFirst().after.section(QLatin1Char(','), 0, 0);
        QVERIFY(x.toDouble() > 200);
        QTRY_VERIFY(text().contains(QStringLiteral("x: ") + x));
        QCOMPARE(element->getProperty(QStringLiteral("position"))->valueString(), QStringLiteral("100,50"));
        QTest::keyClick(m_canvas.get(), Qt::Key_Escape);
        QTRY_VERIFY(text().contains(QStringLiteral("x: 100")));
        QTest::mouseRelease(m_canvas->viewport(), Qt::LeftButton, Qt::NoModifier, at(347, 233));
        QTRY_COMPARE(text(), ScreenQml(m_screen).text());
    }

    void theLinesOfTheSelectionAreMarkedAndShown()
    {
        for (int i = 0; i < 20; ++i)
            add("Rectangle", i, i);
        QTRY_COMPARE(text(), ScreenQml(m_screen).text());
        DesignerObject* last = m_screen->childList()->items().constLast();
        m_session->setSelection({last});
        QCOMPARE(m_panel->text()->marks().size(), 1);
        const LineRange mark = m_panel->text()->marks().constFirst();
        QVERIFY(line(mark.first).contains(QStringLiteral("Rectangle2")));
        QCOMPARE(line(mark.first + 1).trimmed(), QStringLiteral("id: ") + last->getIdName());
        // In sight.
        const int first = m_panel->text()->verticalScrollBar()->value();
        QVERIFY(first > 0 && first <= mark.first);
        m_session->setSelection({m_screen});
        QVERIFY(m_panel->text()->marks().isEmpty());
    }

    void aClickOnALineSelectsItsElement()
    {
        add("Rectangle", 1, 1);
        DesignerObject* second = add("Rectangle", 2, 2);
        QTRY_COMPARE(text(), ScreenQml(m_screen).text());
        QSignalSpy chosen(m_panel.get(), &QmlPanel::objectChosen);
        const LineRange range = ScreenQml(m_screen).linesOf(second);
        QTextCursor cursor(m_panel->text()->document()->findBlockByNumber(range.first + 2));
        m_panel->text()->setTextCursor(cursor);
        m_panel->text()->ensureCursorVisible();
        QTest::mouseClick(m_panel->text()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          m_panel->text()->cursorRect(cursor).center() + QPoint(20, 0));
        QCOMPARE(m_session->selection(), QList<DesignerObject*>{second});
        QCOMPARE(chosen.size(), 1);
        // The keyboard does the same.
        m_session->setSelection({});
        m_panel->text()->setTextCursor(cursor);
        QTest::keyClick(m_panel->text(), Qt::Key_Return);
        QCOMPARE(m_session->selection(), QList<DesignerObject*>{second});
    }

    void whereOneReadsNothingMovesWhenLinesAboveChange()
    {
        for (int i = 0; i < 30; ++i)
            add("Rectangle", i, i);
        QTRY_COMPARE(text(), ScreenQml(m_screen).text());
        QScrollBar* scroll = m_panel->text()->verticalScrollBar();
        scroll->setValue(200);
        const QString seen = line(200);
        const QString above = m_screen->childList()->items().constFirst()->getIdName();
        m_session->removeElements({m_screen->childList()->items().constFirst()});
        QTRY_VERIFY(!text().contains(QStringLiteral("id: %1\n").arg(above)));
        QCOMPARE(line(scroll->value()), seen);
        m_session->undo();
        QTRY_COMPARE(text(), ScreenQml(m_screen).text());
        QCOMPARE(line(scroll->value()), seen);
        QCOMPARE(scroll->value(), 200);
        // Below, too.
        m_session->removeElements({m_screen->childList()->items().constLast()});
        QTRY_COMPARE(text(), ScreenQml(m_screen).text());
        QCOMPARE(scroll->value(), 200);
    }

    void theSelectionCanBeShownAlone()
    {
        DesignerObject* first = add("Rectangle", 1, 1);
        DesignerObject* second = add("Ellipse", 2, 2);
        QTRY_COMPARE(text(), ScreenQml(m_screen).text());
        m_panel->setSubject(QmlPanel::Subject::Selection);
        m_session->setSelection({second});
        QTRY_COMPARE(text(), second->toQml(0));
        m_session->setSelection({first, second});
        QTRY_COMPARE(text(), first->toQml(0) + QStringLiteral("\n\n") + second->toQml(0));
        m_session->setProperty(first, QStringLiteral("position"), QStringLiteral("55,1"));
        QTRY_VERIFY(text().contains(QStringLiteral("x: 55")));
        m_session->setSelection({});
        QTRY_COMPARE(text(), QString());
        m_session->setSelection({second});
        QTRY_COMPARE(text(), second->toQml(0));
        m_panel->setSubject(QmlPanel::Subject::Screen);
        QTRY_COMPARE(text(), ScreenQml(m_screen).text());
    }

    void aHiddenPanelComputesNothing()
    {
        QTRY_COMPARE(text(), ScreenQml(m_screen).text());
        const QString before = text();
        m_panel->hide();
        add("Rectangle", 1, 1);
        QTest::qWait(100);
        QCOMPARE(text(), before);
        m_panel->show();
        QTRY_COMPARE(text(), ScreenQml(m_screen).text());
    }

    void textIsFoundAndCopied()
    {
        add("Rectangle", 1, 1);
        add("Ellipse", 2, 2);
        QTRY_COMPARE(text(), ScreenQml(m_screen).text());
        m_panel->text()->setFocus();
        QTest::keyClick(m_panel->text(), Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(m_panel->searchField()->hasFocus());
        QTest::keyClicks(m_panel->searchField(), QStringLiteral("ELLIPSE {"));
        QCOMPARE(m_panel->text()->textCursor().selectedText(), QStringLiteral("Ellipse {"));
        m_panel->copy();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Ellipse {"));
        m_panel->searchField()->setText(QStringLiteral("width"));
        QTest::keyClick(m_panel->searchField(), Qt::Key_Return);
        const int first = m_panel->text()->textCursor().blockNumber();
        QTest::keyClick(m_panel->searchField(), Qt::Key_Return);
        QVERIFY(m_panel->text()->textCursor().blockNumber() != first);
        QTextCursor cursor = m_panel->text()->textCursor();
        cursor.clearSelection();
        m_panel->text()->setTextCursor(cursor);
        m_panel->copy();
        QCOMPARE(QGuiApplication::clipboard()->text(), text());
    }

    void theTextCannotBeEdited()
    {
        QTRY_COMPARE(text(), ScreenQml(m_screen).text());
        m_panel->text()->setFocus();
        QTest::keyClicks(m_panel->text(), QStringLiteral("abc"));
        QTest::keyClick(m_panel->text(), Qt::Key_Delete);
        QCOMPARE(text(), ScreenQml(m_screen).text());
    }

    void anyChangesOfLinesKeepTheText()
    {
        QVERIFY(rc::check([] {
            QmlTextView view;
            const auto lines = [] {
                QStringList made;
                const auto numbers = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 3));
                for (const int number : numbers)
                    made.append(number == 0 ? QString() : QString::number(number));
                return made.isEmpty() ? QStringList{QString()} : made;
            };
            QStringList shown = lines();
            view.setLines(shown);
            for (int i = 0; i < 5; ++i) {
                const QStringList next = lines();
                view.applyChange(ScreenQml::difference(shown, next, 0));
                RC_ASSERT(view.toPlainText() == next.join(QLatin1Char('\n')));
                RC_ASSERT(view.blockCount() == int(next.size()));
                shown = next;
            }
        }));
    }

    void partsOfQmlAreColored()
    {
        QTextDocument document;
        QVERIFY(document.documentLayout()); // without one nobody hears of changes
        QmlHighlighter highlighter(&document);
        highlighter.setPalette(Appearance::lightPalette());
        document.setPlainText(QStringLiteral("import Meridane.Display\n"
                                             "Rectangle2 {\n"
                                             "\tid: one // why: \"x\"\n"
                                             "\tborder.width: 2.5e-3\n"
                                             "\ttext: \"a \\\" b: // c\"\n"
                                             "\tclip: true /* one\n"
                                             "two */ x: -4\n"));
        using Part = QmlHighlighter::Part;
        const auto colorAt = [&document](int line, const char* part) {
            const QTextBlock block = document.findBlockByNumber(line);
            const auto place = block.text().indexOf(QLatin1String(part));
            for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
                if (place >= range.start && place < range.start + range.length)
                    return range.format.foreground().color();
            }
            return QColor();
        };
        const auto color = [](Part part) { return QmlHighlighter::color(part, false); };
        QCOMPARE(colorAt(0, "import"), color(Part::Keyword));
        QCOMPARE(colorAt(0, "Meridane"), color(Part::Type));
        QCOMPARE(colorAt(1, "Rectangle2"), color(Part::Type));
        QCOMPARE(colorAt(2, "id"), color(Part::Property));
        QCOMPARE(colorAt(2, "one"), color(Part::Plain));
        QCOMPARE(colorAt(2, "why"), color(Part::Comment));
        QCOMPARE(colorAt(3, "border"), color(Part::Property));
        QCOMPARE(colorAt(3, "width"), color(Part::Property));
        QCOMPARE(colorAt(3, "e-3"), color(Part::Number));
        QCOMPARE(colorAt(4, "b:"), color(Part::Text));
        QCOMPARE(colorAt(4, "c\""), color(Part::Text));
        QCOMPARE(colorAt(5, "true"), color(Part::Keyword));
        QCOMPARE(colorAt(5, "one"), color(Part::Comment));
        QCOMPARE(colorAt(6, "two"), color(Part::Comment));
        QCOMPARE(colorAt(6, "x"), color(Part::Property));
        QCOMPARE(colorAt(6, "4"), color(Part::Number));
    }

    void colorsCanBeReadInLightAndDark()
    {
        for (const bool dark : {false, true}) {
            const QPalette palette = dark ? Appearance::darkPalette() : Appearance::lightPalette();
            for (int part = 0; part <= int(QmlHighlighter::Part::Comment); ++part) {
                const QColor color = QmlHighlighter::color(QmlHighlighter::Part(part), dark);
                QVERIFY2(contrast(color, palette.color(QPalette::Base)) >= 4.5,
                         qPrintable(QStringLiteral("%1 %2").arg(dark).arg(part)));
            }
        }
    }

    void twoThousandElementsAreFollowedWithoutATrace()
    {
        QElapsedTimer time;
        QList<DesignerObject*> elements;
        for (int i = 0; i < 2000; ++i)
            elements.append(add("Rectangle", i % 50, i / 50));
        QTRY_COMPARE_WITH_TIMEOUT(text(), ScreenQml(m_screen).text(), 20000);
        // One change among them, from the edit to the text. Before it the panel has had its rest from making all of it.
        QTest::qWait(1200);
        time.start();
        m_session->setProperty(elements.at(1000), QStringLiteral("position"), QStringLiteral("777,1"));
        QTRY_VERIFY(m_panel->text()->document()->find(QStringLiteral("x: 777")).hasSelection());
        QVERIFY2(time.elapsed() < 1000, qPrintable(QString::number(time.elapsed())));
        QCOMPARE(text(), ScreenQml(m_screen).text());
    }

    void aDragAmongTwoThousandElementsStaysFluent()
    {
        for (int i = 0; i < 2000; ++i)
            add("Rectangle", (i % 50) * 16, (i / 50) * 12);
        const auto medianFrame = [this] {
            const auto at = [this](double x, double y) { return m_canvas->mapFromScene(QPointF(x, y)); };
            std::vector<double> frames;
            QTest::mousePress(m_canvas->viewport(), Qt::LeftButton, Qt::NoModifier, at(405, 245));
            for (int i = 1; i <= 61; ++i) {
                QElapsedTimer time;
                time.start();
                QTest::mouseMove(m_canvas->viewport(), at(405 + i, 245 + i));
                QApplication::processEvents();
                frames.push_back(double(time.nsecsElapsed()) / 1e6);
            }
            const bool dragged = m_canvas->isGestureRunning() && !m_canvas->pendingChanges().isEmpty();
            QTest::keyClick(m_canvas.get(), Qt::Key_Escape);
            QTest::mouseRelease(m_canvas->viewport(), Qt::LeftButton, Qt::NoModifier, at(466, 306));
            if (!dragged)
                return -1.0;
            std::nth_element(frames.begin(), frames.begin() + 30, frames.end());
            return frames[30];
        };
        m_panel->hide();
        QApplication::processEvents();
        const double alone = medianFrame();
        m_panel->show();
        QTRY_COMPARE_WITH_TIMEOUT(text(), ScreenQml(m_screen).text(), 20000);
        const double together = medianFrame();
        qInfo("%.2f ms a frame without the panel, %.2f with it", alone, together);
        QVERIFY(alone > 0 && together > 0);
        QVERIFY2(together < 2 * alone + 8, qPrintable(QStringLiteral("%1, %2").arg(alone).arg(together)));
    }

private:
    DesignerObject* add(const char* className, int x, int y)
    {
        DesignerObject* element = nullptr;
        const EditResult result =
            m_session->addElement(QString::fromLatin1(className), m_screen, {},
                                  {{QStringLiteral("position"), QStringLiteral("%1,%2").arg(x).arg(y)}}, &element);
        if (!result.accepted)
            qFatal("%s", qPrintable(result.message));
        return element;
    }

    QString text() const { return m_panel->text()->toPlainText(); }
    QString line(int number) const { return m_panel->text()->document()->findBlockByNumber(number).text(); }

    std::unique_ptr<EditSession> m_session;
    std::unique_ptr<CanvasView> m_canvas;
    std::unique_ptr<QmlPanel> m_panel;
    Screen* m_screen = nullptr;
};

QTEST_MAIN(tst_QmlPanel)
#include "tst_QmlPanel.moc"
