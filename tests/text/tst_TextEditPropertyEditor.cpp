#include "tests/text/TextEditSheet.h"

#include "tests/values/ValueGenerators.h"

#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QScrollBar>
#include <QToolButton>
#include <QWheelEvent>

#include <memory>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// The editor of the plug-in in the property sheet: what it shows, and what it writes to one element and to several.
class tst_TextEditPropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_sheet = std::make_unique<TextEditSheet>(); }
    void cleanup() { m_sheet.reset(); }

    void theSheetAsksThePluginForTheEditor()
    {
        m_sheet->select({m_sheet->add()});
        QCOMPARE(editor()->className(), QStringLiteral("TextEditPropertyEditor"));
        QCOMPARE(editor()->classNames().last(), QStringLiteral("TextEditPropertyEditor"));
        QCOMPARE(editor()->editorValue(), QStringLiteral("[text]"));
        QCOMPARE(editor()->editorWidget(), edit());
        QCOMPARE(edit()->accessibleName(), QStringLiteral("Text"));
        // Its own slots, in this order.
        const QMetaObject* meta = editor()->metaObject();
        QCOMPARE(meta->method(meta->methodOffset()).methodSignature(), QByteArray("save()"));
        QCOMPARE(meta->method(meta->methodOffset() + 1).methodSignature(), QByteArray("saveChange()"));
    }

    void loadingATextChangesNothing_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("lines") << QStringLiteral("a\n\nb\n");
        QTest::newRow("CRLF") << QStringLiteral("a\r\nb\r\n");
        QTest::newRow("CR") << QStringLiteral("a\rb\r\r");
        QTest::newRow("no-break spaces") << QStringLiteral("1\u00a0000\u00a0");
        QTest::newRow("line and paragraph separators") << QStringLiteral("a\u2028b\u2029c");
        QTest::newRow("markup") << QStringLiteral("<b>bold</b> &amp; <br/><script>x</script><p>");
        QTest::newRow("control characters") << QStringLiteral("\u0001\u0007\b\t\u000b\f\u001b\u007f\u0085");
        QTest::newRow("NUL") << QString(QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b"));
        QTest::newRow("emoji and combining marks") << QStringLiteral("\U0001F600e\u0301\u200d\ufeff");
        QTest::newRow("lone surrogates") << QString(QChar(0xd800)) + u'x' + QChar(0xdc00);
        QTest::newRow("right to left") << QStringLiteral("\u05e9\u05dc\u05d5\u05dd \u202eabc");
        QTest::newRow("placeholders") << QStringLiteral("%1 %n {0} \\n \"quoted\"");
        QTest::newRow("document's own characters") << QStringLiteral("\ufdd0\ufdd1\ufffc\uffff");
    }

    void loadingATextChangesNothing()
    {
        QFETCH(QString, text);
        auto* other = m_sheet->add();
        auto* box = m_sheet->addWith("text", text);
        const QStringList before = TextSheet::state(box);
        for (int i = 0; i < 3; ++i) {
            m_sheet->select({box});
            QCOMPARE(editor()->editorValue(), text);
            editor()->load();
            editor()->save();
            edit()->setFocus();
            QTest::keyClick(edit(), Qt::Key_End, Qt::ControlModifier);
            QTest::keyClick(edit(), Qt::Key_Tab);
            m_sheet->select({other, box});
            m_sheet->select({other});
        }
        m_sheet->session->addElement(QStringLiteral("TextBox"), m_sheet->screen, {}, {});
        QCOMPARE(TextSheet::state(box), before);
        QCOMPARE(m_sheet->stack()->count(), 1); // of the last element
    }

    void noTextIsChangedByLoadingOrByTypingBehindIt()
    {
        // Random characters ask for scripts that no font of the machine has.
        QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false"));
        auto* box = m_sheet->add();
        auto* other = m_sheet->add();
        const bool passed = rc::check("a loaded text stays, and what is typed is added to it", [&] {
            const QString text = *Generators::text();
            m_sheet->select({});
            m_sheet->set(box, "text", text);
            m_sheet->stack()->clear();
            m_sheet->select({box});
            RC_ASSERT(editor()->editorValue() == text);
            m_sheet->select({other});
            m_sheet->select({box});
            RC_ASSERT(TextEditSheet::text(box) == text);
            RC_ASSERT(m_sheet->stack()->count() == 0);
            edit()->setFocus();
            edit()->moveCursor(QTextCursor::End);
            QTest::keyClick(edit(), Qt::Key_X);
            RC_ASSERT(TextEditSheet::text(box) == text + QLatin1Char('x'));
            m_sheet->session->undo();
            RC_ASSERT(TextEditSheet::text(box) == text);
            RC_ASSERT(editor()->editorValue() == text);
        });
        QLoggingCategory::setFilterRules(QString());
        QVERIFY(passed);
    }

    void aMegabyteIsShownAndEdited_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("lines") << QStringLiteral("a line of a long report\n").repeated(40000);
        QTest::newRow("one line") << QStringLiteral("word ").repeated(200000);
        QTest::newRow("one word") << QString(1000000, QLatin1Char('x'));
        QTest::newRow("no-break spaces") << QStringLiteral("word\u00a0").repeated(200000);
        QTest::newRow("carriage returns") << QString(1000000, QLatin1Char('\r'));
    }

    void aMegabyteIsShownAndEdited()
    {
        QFETCH(QString, text);
        auto* box = m_sheet->addWith("text", text);
        QElapsedTimer timer;
        timer.start();
        m_sheet->select({box});
        QVERIFY(editor()->editorValue() == text);
        QCOMPARE(m_sheet->stack()->count(), 0);
        edit()->setFocus();
        QTest::keyClicks(edit(), QStringLiteral("ab"));
        QVERIFY(TextEditSheet::text(box) == QStringLiteral("ab") + text);
        QCOMPARE(m_sheet->stack()->count(), 1);
        m_sheet->session->undo();
        QVERIFY(TextEditSheet::text(box) == text);
        QVERIFY2(timer.elapsed() < 60000, qPrintable(QString::number(timer.elapsed())));
    }

    void anotherElementsTextIsShownFromItsStart()
    {
        const QString lines = QStringLiteral("line\n").repeated(50);
        auto* first = m_sheet->addWith("text", lines);
        auto* second = m_sheet->addWith("text", lines);
        m_sheet->select({first});
        edit()->setFocus();
        edit()->moveCursor(QTextCursor::End);
        QVERIFY(edit()->verticalScrollBar()->value() > 0);
        m_sheet->select({second});
        QCOMPARE(m_sheet->caret(), 0);
        QCOMPARE(edit()->verticalScrollBar()->value(), 0);
    }

    void severalElementsTakeTheTypedTextAsOneStep()
    {
        auto* first = m_sheet->addWith("text", QStringLiteral("a"));
        auto* second = m_sheet->addWith("text", QStringLiteral("b\nc"));
        m_sheet->select({first, second});
        QVERIFY(edit()->plainText().isEmpty());
        QCOMPARE(edit()->placeholderText(), QStringLiteral("\u2014"));
        edit()->setFocus();
        m_sheet->typeHere(QStringLiteral("new\ntext"));
        QCOMPARE(TextEditSheet::text(first), QStringLiteral("new\ntext"));
        QCOMPARE(TextEditSheet::text(second), QStringLiteral("new\ntext"));
        QCOMPARE(edit()->plainText(), QStringLiteral("new\ntext"));
        QVERIFY(edit()->placeholderText().isEmpty());
        QCOMPARE(m_sheet->stack()->count(), 1);
        QCOMPARE(m_sheet->stack()->text(0), QStringLiteral("Change Text"));
        m_sheet->session->undo();
        QCOMPARE(TextEditSheet::text(first), QStringLiteral("a"));
        QCOMPARE(TextEditSheet::text(second), QStringLiteral("b\nc"));
        QTRY_VERIFY(edit()->plainText().isEmpty());
        QCOMPARE(edit()->placeholderText(), QStringLiteral("\u2014"));
    }

    void theFirstElementsOwnTextIsForAllToo()
    {
        auto* first = m_sheet->addWith("text", QStringLiteral("a"));
        auto* second = m_sheet->addWith("text", QStringLiteral("b"));
        m_sheet->select({first, second});
        edit()->setFocus();
        m_sheet->typeHere(QStringLiteral("a"));
        QCOMPARE(TextEditSheet::text(second), QStringLiteral("a"));
        QCOMPARE(m_sheet->stack()->count(), 1);
    }

    void severalElementsWithOneTextGoOnTogether()
    {
        auto* first = m_sheet->addWith("text", QStringLiteral("same"));
        auto* second = m_sheet->addWith("text", QStringLiteral("same"));
        m_sheet->select({first, second});
        QCOMPARE(edit()->plainText(), QStringLiteral("same"));
        m_sheet->setCaret(2);
        m_sheet->typeHere(QStringLiteral("xy"));
        QCOMPARE(TextEditSheet::text(first), QStringLiteral("saxyme"));
        QCOMPARE(TextEditSheet::text(second), QStringLiteral("saxyme"));
        QCOMPARE(m_sheet->caret(), 4);
        QCOMPARE(m_sheet->stack()->count(), 1);
        QTest::keyClick(edit(), Qt::Key_Backspace);
        QTest::keyClick(edit(), Qt::Key_Backspace);
        QCOMPARE(m_sheet->stack()->count(), 0);
    }

    void selectingSeveralElementsWritesNothing()
    {
        auto* first = m_sheet->addWith("text", QStringLiteral("a"));
        auto* second = m_sheet->addWith("text", QStringLiteral("b"));
        auto* third = m_sheet->addWith("text", QStringLiteral("b"));
        for (int i = 0; i < 2; ++i) {
            for (const QList<DesignerObject*>& selection :
                 {QList<DesignerObject*>{first, second}, {second, third}, {third, first}, {first}}) {
                m_sheet->select(selection);
                edit()->setFocus();
                QTest::keyClick(edit(), Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);
            }
        }
        QCOMPARE(TextEditSheet::text(first), QStringLiteral("a"));
        QCOMPARE(TextEditSheet::text(second), QStringLiteral("b"));
        QCOMPARE(m_sheet->stack()->count(), 0);
    }

    void aPendingValueIsEditedInPropertyChangeMode()
    {
        auto* box = m_sheet->addWith("text", QStringLiteral("stored"));
        const std::unique_ptr<PropertyEditor> own(
            DesignerFactory::instance()->createPropertyEditor(QStringLiteral("TextEditPropertyEditor"), nullptr));
        own->setPropertyChange(true);
        own->setProperty(box->getProperty(QStringLiteral("text")));
        own->setChangedPropertyValue(QStringLiteral("pending"));
        QSignalSpy saved(own.get(), &PropertyEditor::changeSaved);
        QVERIFY(own->initialize());
        QCOMPARE(own->editorValue(), QStringLiteral("pending"));
        own->saveChange();
        QCOMPARE(saved.count(), 0);
        auto* field = own->findChild<PlainTextEdit*>();
        QTest::keyClick(field, Qt::Key_X);
        QCOMPARE(saved.count(), 1);
        QCOMPARE(own->changedPropertyValue(), QStringLiteral("xpending"));
        QCOMPARE(TextEditSheet::text(box), QStringLiteral("stored"));
    }

    void tabLeavesTheField()
    {
        auto* box = m_sheet->addAndSelect("text", QStringLiteral("a"));
        edit()->setFocus();
        QTest::keyClick(edit(), Qt::Key_Tab);
        QVERIFY(!edit()->hasFocus());
        QVERIFY(qobject_cast<QToolButton*>(TextSheet::focus()));
        QTest::keyClick(TextSheet::focus(), Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(edit()->hasFocus());
        QCOMPARE(TextEditSheet::text(box), QStringLiteral("a"));
    }

    void theFieldShowsFiveLinesAndScrolls()
    {
        m_sheet->addAndSelect("text", QStringLiteral("1\n2\n3\n4\n5"));
        QVERIFY(!edit()->verticalScrollBar()->isVisible());
        const int line = edit()->fontMetrics().lineSpacing();
        QVERIFY(edit()->viewport()->height() >= 5 * line);
        QVERIFY(edit()->viewport()->height() < 6 * line);
        m_sheet->typeAtEnd(QStringLiteral("\n6"));
        QTRY_VERIFY(edit()->verticalScrollBar()->isVisible());
        QVERIFY(edit()->verticalScrollBar()->value() > 0);
        QVERIFY(edit()->viewport()->rect().contains(edit()->cursorRect()));
    }

    void theFieldGrowsWithTheFont()
    {
        m_sheet->addAndSelect("text", QStringLiteral("a"));
        const int before = edit()->height();
        QFont larger = m_sheet->sheet->font();
        larger.setPointSizeF(2 * larger.pointSizeF());
        m_sheet->sheet->setFont(larger);
        QTRY_VERIFY(edit()->height() > 1.5 * before);
        QVERIFY(edit()->viewport()->height() >= 5 * edit()->fontMetrics().lineSpacing());
    }

    void theWheelScrollsTheSheetUnlessTheFieldIsUsed()
    {
        m_sheet->addAndSelect("text", QStringLiteral("line\n").repeated(50));
        const auto turn = [this] {
            const QPointF center = edit()->viewport()->rect().center();
            QWheelEvent event(center, edit()->viewport()->mapToGlobal(center), {}, {0, -120}, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(edit()->viewport(), &event);
            return edit()->verticalScrollBar()->value();
        };
        QCOMPARE(turn(), 0);
        edit()->setFocus();
        QVERIFY(turn() > 0);
    }

    void longLinesAreWrapped()
    {
        m_sheet->addAndSelect("text", QStringLiteral("word ").repeated(40) + QStringLiteral("x").repeated(200));
        QVERIFY(!edit()->horizontalScrollBar()->isVisible());
        QVERIFY(edit()->horizontalScrollBar()->maximum() == 0);
        QVERIFY(m_sheet->sheet->widget()->width() <= m_sheet->sheet->viewport()->width());
    }

    void theLabelStandsAboveAFieldThatWouldBeTooNarrow()
    {
        m_sheet->addAndSelect("text", QStringLiteral("a"));
        m_sheet->sheet->resize(280, 900);
        QCoreApplication::processEvents();
        QTRY_VERIFY(edit()->width() > 240);
        m_sheet->sheet->resize(600, 900);
        QTRY_VERIFY(edit()->width() < 500);
    }

private:
    [[nodiscard]] PropertyEditor* editor() const { return m_sheet->textEditor(); }
    [[nodiscard]] PlainTextEdit* edit() const { return m_sheet->edit(); }

    std::unique_ptr<TextEditSheet> m_sheet;
};

QTEST_MAIN(tst_TextEditPropertyEditor)
#include "tst_TextEditPropertyEditor.moc"
