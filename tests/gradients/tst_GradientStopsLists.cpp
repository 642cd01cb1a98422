#include "tests/gradients/GradientSheet.h"

#include <QAccessible>

#include <memory>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// The editor of the gradient stops with every kind of list: those of several gradients, long ones, ones that cannot be
/// shown, ones that change elsewhere.
class tst_GradientStopsLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_sheet = std::make_unique<GradientSheet>(); }
    void cleanup() { m_sheet.reset(); }

    void severalGradientsAreEditedInOneStep()
    {
        QList<DesignerObject*> all;
        for (const char* name : {"LinearGradientElement", "RadialGradientElement", "ConicalGradientElement"})
            all.append(m_sheet->add(Three, name));
        m_sheet->select(all);
        QCOMPARE(m_sheet->shown(), percents(Three));
        const auto values = [&all] {
            QSet<QString> found;
            for (const DesignerObject* each : all)
                found.insert(GradientSheet::value(each));
            return found;
        };
        SheetFixture::enter(m_sheet->position(0), "60");
        QCOMPARE(values(), QSet{QStringLiteral("0.5 #00ff00, 0.6 #ff0000, 0.9 #0000ff")});
        QCOMPARE(stack()->count(), 1);
        QCOMPARE(stack()->text(0), QStringLiteral("Change Gradient Stops"));
        m_sheet->addButton()->click();
        m_sheet->removeButton(0)->click();
        m_sheet->pick(0, "#123456");
        QCOMPARE(values(), QSet{QStringLiteral("0.6 #123456, 0.9 #0000ff, 1 #f8971d")});
        QCOMPARE(m_sheet->shown(), QStringLiteral("60 #123456, 90 #0000ff, 100 #f8971d"));
        QCOMPARE(stack()->count(), 4);
        m_sheet->position(0)->setFocus();
        QTest::keyClick(m_sheet->position(0), Qt::Key_Down);
        QTest::keyClick(m_sheet->position(0), Qt::Key_Down);
        QCOMPARE(stack()->count(), 5);
        m_sheet->pick(0, "#0000ff");
        m_sheet->pick(2, "#0000ff");
        QCOMPARE(m_sheet->message(), QStringLiteral("Gradient colors cannot be all the same."));
        while (stack()->index() > 0)
            m_sheet->session->undo();
        QCOMPARE(values(), QSet{Three});
        QCOMPARE(m_sheet->shown(), percents(Three));
    }

    void differentStopsCannotBeEdited()
    {
        DesignerObject* one = m_sheet->add(Three);
        DesignerObject* other = m_sheet->add(Default);
        m_sheet->select({one, other});
        QCOMPARE(m_sheet->notice(), QStringLiteral("These elements have different gradient stops. Select one of them "
                                                   "to edit its gradient stops."));
        m_sheet->addButton()->click();
        m_sheet->editor()->save();
        m_sheet->editor()->saveChange();
        QCOMPARE(GradientSheet::value(one), Three);
        QCOMPARE(GradientSheet::value(other), Default);
        QCOMPARE(stack()->count(), 0);

        m_sheet->set(other, qPrintable(Three));
        QTRY_COMPARE(m_sheet->shown(), percents(Three));
        QVERIFY(m_sheet->notice().isEmpty());
        SheetFixture::enter(m_sheet->position(0), "11");
        QCOMPARE(GradientSheet::value(one), GradientSheet::value(other));
    }

    void typedTextMeetsElementsThatBecameDifferent()
    {
        DesignerObject* one = m_sheet->add(Three);
        DesignerObject* other = m_sheet->add(Three);
        m_sheet->select({one, other});
        SheetFixture::type(m_sheet->position(0), "20");
        m_sheet->set(other, qPrintable(Default));
        QTest::keyClick(m_sheet->position(0), Qt::Key_Return);
        QCOMPARE(GradientSheet::value(one), Three);
        QCOMPARE(GradientSheet::value(other), Default);
        QCOMPARE(stack()->count(), 1);
        QVERIFY(m_sheet->notice().startsWith(QLatin1String("These elements have different")));
    }

    void listsThatCannotBeShownAreNotOverwritten_data()
    {
        QTest::addColumn<QString>("stops");
        QTest::addColumn<QString>("notice");
        const QString count =
            QStringLiteral("Gradient stops in this list: %1. Lists of 2 to 101 gradient stops can be edited here.");
        QTest::addRow("one") << QStringLiteral("0.5 #ff0000") << count.arg(1);
        QTest::addRow("too many") << stopsAtEachPercent(Most) + QStringLiteral(", 0.005 #010203") << count.arg(102);
        const QString beyond = QStringLiteral("Only gradient stops between 0% and 100% can be edited here.");
        QTest::addRow("above") << QStringLiteral("0.5 #ff0000, 1.5 #00ff00") << beyond;
        QTest::addRow("below") << QStringLiteral("-0.5 #ff0000, 0.5 #00ff00") << beyond;
        QTest::addRow("far beyond") << QStringLiteral("1e+300 #ff0000, 0.5 #00ff00") << beyond;
        QTest::addRow("no list") << QStringLiteral("red to green")
                                 << QStringLiteral("These gradient stops cannot be read.");
    }

    void listsThatCannotBeShownAreNotOverwritten()
    {
        QFETCH(const QString, stops);
        QFETCH(const QString, notice);
        DesignerObject* good = m_sheet->add(Three);
        DesignerObject* bad = m_sheet->add(stops);
        m_sheet->select({good});
        m_sheet->select({bad});
        QCOMPARE(m_sheet->notice(), notice);
        QCOMPARE(m_sheet->editor()->editorValue(), stops);
        m_sheet->addButton()->click();
        m_sheet->editor()->save();
        m_sheet->editor()->load();
        m_sheet->select({});
        QCOMPARE(GradientSheet::value(bad), stops);
        QCOMPARE(stack()->count(), 0);

        m_sheet->select({good});
        QVERIFY(m_sheet->notice().isEmpty());
        QCOMPARE(m_sheet->shown(), percents(Three));
        SheetFixture::enter(m_sheet->position(0), "20");
        QCOMPARE(GradientSheet::value(good), QStringLiteral("0.2 #ff0000, 0.5 #00ff00, 0.9 #0000ff"));
        QCOMPARE(GradientSheet::value(bad), stops);
    }

    void typedTextMeetsStopsThatChangedElsewhere()
    {
        DesignerObject* gradient = m_sheet->addAndSelect(Three);
        SheetFixture::type(m_sheet->position(1), "55");
        m_sheet->set(gradient, "0.2 #111111, 0.3 #222222, 0.5 #00ff00, 0.8 #333333");
        QTest::keyClick(m_sheet->position(1), Qt::Key_Return);
        QCOMPARE(GradientSheet::value(gradient), QStringLiteral("0.2 #111111, 0.3 #222222, 0.55 #00ff00, 0.8 #333333"));
        QCOMPARE(m_sheet->shown(), percents(GradientSheet::value(gradient)));
        QCOMPARE(stack()->count(), 2);
    }

    void typedTextForAStopThatIsGoneIsDropped()
    {
        DesignerObject* gradient = m_sheet->addAndSelect(Three);
        SheetFixture::type(m_sheet->position(1), "55");
        m_sheet->set(gradient, qPrintable(Default));
        QTest::keyClick(m_sheet->position(1), Qt::Key_Return);
        QCOMPARE(GradientSheet::value(gradient), Default);
        QCOMPARE(m_sheet->shown(), percents(Default));
        QCOMPARE(stack()->count(), 1);
    }

    void aStopIsAddedToWhatChangedElsewhere()
    {
        DesignerObject* gradient = m_sheet->addAndSelect(Three);
        SheetFixture::type(m_sheet->newPosition(), "55");
        m_sheet->set(gradient, qPrintable(Default));
        QTest::keyClick(m_sheet->newPosition(), Qt::Key_Return);
        QTRY_COMPARE(stack()->count(), 2);
        QCOMPARE(GradientSheet::value(gradient), QStringLiteral("0.33 #f8971d, 0.55 #f8971d, 0.67 #ffffff"));
    }

    void anotherElementIsShownWithoutTracesOfTheOneBefore()
    {
        m_sheet->addAndSelect(stopsAtEachPercent(Most));
        QVERIFY(!m_sheet->addButton()->isVisible());
        SheetFixture::type(m_sheet->newPosition(), "5");
        m_sheet->newColor()->setColor(Qt::blue);
        const DesignerObject* other = m_sheet->addAndSelect(Default);
        QCOMPARE(m_sheet->shown(), percents(Default));
        QVERIFY(m_sheet->addButton()->isVisible());
        QCOMPARE(m_sheet->newPosition()->text(), QStringLiteral("100%"));
        QCOMPARE(m_sheet->newColor()->color(), QColor(248, 151, 29));
        QCOMPARE(m_sheet->editor()->editorValue(), Default);
        QCOMPARE(GradientSheet::value(other), Default);
    }

    void aKeyAddsToTheElementThatItWasPressedFor()
    {
        DesignerObject* other = m_sheet->add(Three);
        DesignerObject* gradient = m_sheet->addAndSelect(Default);
        SheetFixture::enter(m_sheet->newPosition(), "50");
        m_sheet->select({other});
        QCOMPARE(GradientSheet::value(gradient), QStringLiteral("0.33 #f8971d, 0.5 #f8971d, 0.67 #ffffff"));
        QTRY_VERIFY(!m_sheet->addButton()->isDown());
        QCOMPARE(GradientSheet::value(other), Three);
        QCOMPARE(m_sheet->shown(), percents(Three));
        QCOMPARE(stack()->count(), 1);
    }

    void theRowOfTheNewStopStaysWhileTheElementChanges()
    {
        DesignerObject* gradient = m_sheet->addAndSelect(Three);
        SheetFixture::enter(m_sheet->newPosition(), "90"); // taken: warned of, but kept
        QTRY_COMPARE(m_sheet->warnings.size(), 1);
        m_sheet->newColor()->setColor(Qt::blue);
        m_sheet->set(gradient, qPrintable(Default));
        m_sheet->session->undo();
        QCOMPARE(m_sheet->newPosition()->text(), QStringLiteral("90%"));
        QCOMPARE(m_sheet->newColor()->color(), QColor(Qt::blue));
    }

    void allPercentsAreEditedLikeAnyOther()
    {
        DesignerObject* gradient = m_sheet->addAndSelect(stopsAtEachPercent(Most - 1));
        const qsizetype before = m_sheet->widgets();
        QTest::mouseClick(m_sheet->addButton(), Qt::LeftButton);
        QCOMPARE(ValueConversion::toGradientStops(GradientSheet::value(gradient)).size(), Most);
        QCOMPARE(m_sheet->shown(), percents(GradientSheet::value(gradient)));
        QVERIFY(!m_sheet->addButton()->isVisible());
        QTest::keyClick(m_sheet->newPosition(), Qt::Key_Return);
        QVERIFY(m_sheet->addButton()->isDown());
        QTRY_VERIFY(!m_sheet->addButton()->isDown()); // it has been clicked
        QCOMPARE(stack()->count(), 1);
        m_sheet->pick(100, "#abcdef");
        m_sheet->removeButton(50)->click();
        SheetFixture::enter(m_sheet->position(0), "50");
        QVERIFY(GradientSheet::value(gradient).endsWith(QLatin1String(", 1 #abcdef")));
        QVERIFY(GradientSheet::value(gradient).contains(QLatin1String(", 0.5 #00ff4d, ")));
        QCOMPARE(stack()->count(), 4);
        while (stack()->index() > 0)
            m_sheet->session->undo();
        QCOMPARE(GradientSheet::value(gradient), stopsAtEachPercent(Most - 1));
        QCOMPARE(m_sheet->shown(), percents(stopsAtEachPercent(Most - 1)));
        QCOMPARE(m_sheet->widgets(), before);
        m_sheet->set(gradient, qPrintable(Default));
        QCOMPARE(m_sheet->rows(), 2);
        const qsizetype two = m_sheet->widgets();
        m_sheet->set(gradient, qPrintable(stopsAtEachPercent(Most)));
        QCOMPARE(m_sheet->rows(), Most);
        m_sheet->session->undo();
        QCOMPARE(m_sheet->widgets(), two);
    }

    void theSheetScrollsToTheRowInUse()
    {
        m_sheet->addAndSelect(stopsAtEachPercent(Most));
        const QWidget* viewport = m_sheet->sheet->viewport();
        for (const int row : {0, 100, 60}) {
            m_sheet->position(row)->setFocus();
            const QRect place(m_sheet->position(row)->mapTo(viewport, QPoint()), m_sheet->position(row)->size());
            QVERIFY(viewport->rect().contains(place));
        }
    }

    void theScreenShowsWhatTheSheetPaints()
    {
        DesignerObject* gradient = m_sheet->addAndSelect(Three);
        const auto isUpToDate = [this] {
            const QImage painted = m_sheet->sheet->grab().toImage().convertToFormat(QImage::Format_RGB32);
            const QPixmap screen = m_sheet->sheet->screen()->grabWindow(m_sheet->sheet->winId());
            return screen.size() == painted.size() && screen.toImage().convertToFormat(QImage::Format_RGB32) == painted;
        };
        m_sheet->idField()->clearFocus(); // no cursor that blinks
        QTRY_VERIFY(isUpToDate());
        m_sheet->addButton()->click();
        QTRY_VERIFY(isUpToDate());
        m_sheet->removeButton(1)->click();
        QTRY_VERIFY(isUpToDate());
        m_sheet->set(gradient, qPrintable(stopsAtEachPercent(40)));
        QTRY_VERIFY(isUpToDate());
        m_sheet->sheet->resize(400, 700);
        QTRY_VERIFY(isUpToDate());
        m_sheet->sheet->ensureWidgetVisible(m_sheet->newPosition());
        m_sheet->removeButton(35)->click();
        QTRY_VERIFY(isUpToDate());
        m_sheet->sheet->resize(250, 300);
        QTRY_VERIFY(isUpToDate());
        m_sheet->session->undo();
        m_sheet->session->undo();
        m_sheet->session->undo();
        QTRY_VERIFY(isUpToDate());
        m_sheet->select({});
        QTRY_VERIFY(isUpToDate());
    }

    void theRowsStandInLineWithTheSheet()
    {
        m_sheet->addAndSelect(Three);
        const QWidget* id = m_sheet->idField();
        const QRect column(id->mapTo(m_sheet->sheet.get(), QPoint()), id->size());
        for (int row = 0; row <= m_sheet->rows(); ++row) {
            const SpinBox* field = m_sheet->position(row);
            QCOMPARE(field->mapTo(m_sheet->sheet.get(), QPoint()).x(), column.left());
            const QWidget* last = row < m_sheet->rows() ? m_sheet->removeButton(row) : m_sheet->addButton();
            QCOMPARE(last->mapTo(m_sheet->sheet.get(), last->rect().bottomRight()).x(), column.right());
        }
    }

    void everyPartCanBeNamed()
    {
        m_sheet->addAndSelect(Three);
        for (const QWidget* part : m_sheet->editor()->findChildren<QWidget*>()) {
            if (part->focusPolicy() == Qt::NoFocus || part->focusProxy() || !part->isVisible())
                continue;
            const auto* interface = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(part));
            QVERIFY2(!interface->text(QAccessible::Name).isEmpty(), part->metaObject()->className());
        }
        QCOMPARE(m_sheet->editor()->accessibleName(), QStringLiteral("Gradient Stops"));
    }

private:
    [[nodiscard]] UndoStack* stack() const { return m_sheet->stack(); }

    std::unique_ptr<GradientSheet> m_sheet;
};

QTEST_MAIN(tst_GradientStopsLists)
#include "tst_GradientStopsLists.moc"
