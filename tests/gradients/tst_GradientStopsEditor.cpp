#include "host/core/widgets/HueSaturationField.h"

#include "tests/gradients/GradientSheet.h"

#include <memory>
#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// The editor of the stops of a gradient in the property sheet, as the plug-in brings it.
class tst_GradientStopsEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_sheet = std::make_unique<GradientSheet>(); }
    void cleanup() { m_sheet.reset(); }

    void everyGradientHasTheEditor()
    {
        for (const char* name : {"LinearGradientElement", "RadialGradientElement", "ConicalGradientElement"}) {
            m_sheet->select({m_sheet->add(QString(), name)});
            QCOMPARE(m_sheet->editor()->className(), QStringLiteral("GradientStopsEditor"));
            QVERIFY(m_sheet->editor()->classNames().contains(QStringLiteral("PropertyEditor")));
            QCOMPARE(m_sheet->shown(), QStringLiteral("33 #f8971d, 67 #ffffff"));
            QVERIFY(!m_sheet->removeButtonsAreVisible());
            QCOMPARE(m_sheet->editor()->editorValue(), Default);
        }
    }

    void showingAndSavingChangesNothing_data()
    {
        QTest::addColumn<QString>("stops");
        QTest::addRow("two") << Default;
        QTest::addRow("three") << Three;
        QTest::addRow("all") << stopsAtEachPercent(Most);
        QTest::addRow("decimals") << QStringLiteral("0.335 #ff0000, 0.6666666666666666 #8000ff00");
        QTest::addRow("unsorted") << QStringLiteral("0.9 #ff0000, 0.1 #00ff00, 0.5 #0000ff");
        QTest::addRow("duplicates") << QStringLiteral("0.331 #ff0000, 0.339 #00ff00");
    }

    void showingAndSavingChangesNothing()
    {
        QFETCH(const QString, stops);
        const DesignerObject* gradient = m_sheet->addAndSelect(stops);
        QCOMPARE(m_sheet->shown(), percents(stops));
        QCOMPARE(m_sheet->editor()->editorValue(), stops);
        m_sheet->editor()->save();
        m_sheet->select({});
        QCOMPARE(GradientSheet::value(gradient), stops);
        QCOMPARE(stack()->count(), 0);
    }

    void everyWholePercentGoesThroughFieldPropertyAndBack()
    {
        DesignerObject* gradient = m_sheet->addAndSelect("0.005 #ff0000, 0.995 #00ff00");
        for (int percent = 1; percent < 100; ++percent) {
            // Typed by the user …
            SheetFixture::enter(m_sheet->position(0), QByteArray::number(percent == 99 ? 98 : percent).constData());
            const QString typed = m_sheet->value(gradient);
            QCOMPARE(ValueConversion::toGradientStops(typed).first().first, (percent == 99 ? 98 : percent) / 100.0);
        }
        for (int percent = 0; percent <= 100; ++percent) {
            // … and as it comes from a file, where the editor gives back the same text.
            const int other = percent == 50 ? 49 : 50;
            const QString stops = QStringLiteral("%1 #ff0000, %2 #00ff00")
                                      .arg(ValueConversion::toString(percent / 100.0))
                                      .arg(ValueConversion::toString(other / 100.0));
            m_sheet->set(gradient, qPrintable(stops));
            QCOMPARE(GradientSheet::value(gradient), stops);
            QCOMPARE(m_sheet->position(0)->text(), QStringLiteral("%1%").arg(percent));
            QCOMPARE(m_sheet->editor()->editorValue(), stops);
            SheetFixture::enter(m_sheet->position(0), QByteArray::number(percent).constData());
            QCOMPARE(GradientSheet::value(gradient), stops);
        }
        QCOMPARE(m_sheet->warnings, QStringList());
    }

    void aTypedPositionIsOneStep()
    {
        const DesignerObject* gradient = m_sheet->addAndSelect(Three);
        SheetFixture::enter(m_sheet->position(1), "60");
        QCOMPARE(GradientSheet::value(gradient), QStringLiteral("0.1 #ff0000, 0.6 #00ff00, 0.9 #0000ff"));
        QCOMPARE(stack()->count(), 1);
        QCOMPARE(stack()->text(0), QStringLiteral("Change Gradient Stops"));
        m_sheet->session->undo();
        QCOMPARE(GradientSheet::value(gradient), Three);
        QCOMPARE(m_sheet->shown(), percents(Three));
        m_sheet->session->redo();
        QCOMPARE(m_sheet->shown(), QStringLiteral("10 #ff0000, 60 #00ff00, 90 #0000ff"));
    }

    void aPositionIsTakenOverWhenTheFocusLeaves()
    {
        DesignerObject* gradient = m_sheet->addAndSelect(Three);
        SheetFixture::type(m_sheet->position(1), "60");
        QCOMPARE(stack()->count(), 0);
        QTest::keyClick(m_sheet->position(1), Qt::Key_Tab);
        QCOMPARE(GradientSheet::value(gradient), QStringLiteral("0.1 #ff0000, 0.6 #00ff00, 0.9 #0000ff"));
        SheetFixture::type(m_sheet->position(1), "70");
        m_sheet->select({});
        QCOMPARE(GradientSheet::value(gradient), QStringLiteral("0.1 #ff0000, 0.7 #00ff00, 0.9 #0000ff"));
        QCOMPARE(stack()->count(), 2);
    }

    void escapeDropsWhatIsTyped()
    {
        const DesignerObject* gradient = m_sheet->addAndSelect(Three);
        SheetFixture::type(m_sheet->position(1), "60");
        QTest::keyClick(m_sheet->position(1), Qt::Key_Escape);
        m_sheet->select({});
        QCOMPARE(GradientSheet::value(gradient), Three);
        QCOMPARE(stack()->count(), 0);
    }

    void stepsOfOnePositionAreOneStep()
    {
        const DesignerObject* gradient = m_sheet->addAndSelect(Three);
        m_sheet->position(1)->setFocus();
        for (int i = 0; i < 5; ++i)
            QTest::keyClick(m_sheet->position(1), Qt::Key_Up);
        QCOMPARE(GradientSheet::value(gradient), QStringLiteral("0.1 #ff0000, 0.55 #00ff00, 0.9 #0000ff"));
        QCOMPARE(stack()->count(), 1);
        m_sheet->position(2)->setFocus();
        QTest::keyClick(m_sheet->position(2), Qt::Key_Down);
        QTest::keyClick(m_sheet->position(2), Qt::Key_Down);
        QCOMPARE(stack()->count(), 2);
        SheetFixture::enter(m_sheet->position(2), "80");
        QCOMPARE(stack()->count(), 3);
        for (int i = 0; i < 3; ++i)
            m_sheet->session->undo();
        QCOMPARE(GradientSheet::value(gradient), Three);
    }

    void stepsPastANeighbourStayOneStep()
    {
        const DesignerObject* gradient = m_sheet->addAndSelect("0.1 #ff0000, 0.45 #00ff00, 0.9 #0000ff");
        SpinBox* field = m_sheet->position(0);
        field->setFocus();
        for (int i = 0; i < 6; ++i)
            QTest::keyClick(field, Qt::Key_PageUp);
        QCOMPARE(GradientSheet::value(gradient), QStringLiteral("0.45 #00ff00, 0.7 #ff0000, 0.9 #0000ff"));
        QCOMPARE(m_sheet->shown(), QStringLiteral("45 #00ff00, 70 #ff0000, 90 #0000ff"));
        QCOMPARE(m_sheet->position(1), field);
        QCOMPARE(stack()->count(), 1);
    }

    void aRowThatWasAddedStepsLikeTheOthers()
    {
        m_sheet->addAndSelect(Three);
        m_sheet->addButton()->click();
        SpinBox* field = m_sheet->position(3);
        QCOMPARE(field->text(), QStringLiteral("100%"));
        field->setFocus();
        QTest::keyClick(field, Qt::Key_Down);
        QTest::keyClick(field, Qt::Key_Down);
        QCOMPARE(stack()->count(), 2);
    }

    void whatIsDoneInTheColorsPopupIsOneStep()
    {
        const DesignerObject* gradient = m_sheet->addAndSelect(Three);
        auto* field = m_sheet->openPopup(1)->findChild<HueSaturationField*>();
        for (int drag = 1; drag <= 2; ++drag) {
            const int y = field->height() / (drag + 1);
            QTest::mousePress(field, Qt::LeftButton, {}, QPoint(2, y));
            QStringList seen;
            for (int x = 4; x < field->width() - 4; x += 8) {
                QTest::mouseMove(field, QPoint(x, y));
                seen.append(GradientSheet::value(gradient));
            }
            QVERIFY(QSet<QString>(seen.begin(), seen.end()).size() > 5); // live
            QTest::mouseRelease(field, Qt::LeftButton, {}, QPoint(field->width() - 4, y));
            QCOMPARE(stack()->count(), 1);
        }
        m_sheet->color(1)->popup()->close();
        m_sheet->session->undo();
        QCOMPARE(GradientSheet::value(gradient), Three);
        QCOMPARE(m_sheet->shown(), percents(Three));
    }

    void aColorThatIsTypedAfterStepsIsAStepOfItsOwn()
    {
        const DesignerObject* gradient = m_sheet->addAndSelect(Three);
        m_sheet->position(1)->setFocus();
        QTest::keyClick(m_sheet->position(1), Qt::Key_Up);
        m_sheet->pick(1, "#80123456");
        QCOMPARE(GradientSheet::value(gradient), QStringLiteral("0.1 #ff0000, 0.51 #80123456, 0.9 #0000ff"));
        QCOMPARE(stack()->count(), 2);
    }

    void addingIsOneStep_data()
    {
        QTest::addColumn<int>("key");
        QTest::addRow("click") << 0;
        QTest::addRow("Return") << int(Qt::Key_Return);
        QTest::addRow("Enter") << int(Qt::Key_Enter);
        QTest::addRow("+") << int(Qt::Key_Plus);
    }

    void addingIsOneStep()
    {
        QFETCH(const int, key);
        const DesignerObject* gradient = m_sheet->addAndSelect();
        SheetFixture::type(m_sheet->newPosition(), "29");
        if (key == 0)
            QTest::mouseClick(m_sheet->addButton(), Qt::LeftButton);
        else if (key == Qt::Key_Plus)
            QTest::keyClick(m_sheet->newPosition(), '+');
        else
            QTest::keyClick(m_sheet->newPosition(), Qt::Key(key));
        QTRY_COMPARE(stack()->count(), 1);
        QCOMPARE(GradientSheet::value(gradient), QStringLiteral("0.29 #f8971d, 0.33 #f8971d, 0.67 #ffffff"));
        QCOMPARE(m_sheet->shown(), percents(GradientSheet::value(gradient)));
        QVERIFY(m_sheet->removeButtonsAreVisible());
        QCOMPARE(stack()->text(0), QStringLiteral("Change Gradient Stops"));
        m_sheet->session->undo();
        QCOMPARE(m_sheet->shown(), percents(Default));
        QVERIFY(!m_sheet->removeButtonsAreVisible());
    }

    void removingIsOneStep()
    {
        const DesignerObject* gradient = m_sheet->addAndSelect(Three);
        m_sheet->position(0)->setFocus();
        QTest::keyClick(m_sheet->position(0), Qt::Key_Up);
        m_sheet->removeButton(0)->click(); // joins no step before it
        QCOMPARE(GradientSheet::value(gradient), QStringLiteral("0.5 #00ff00, 0.9 #0000ff"));
        QCOMPARE(stack()->count(), 2);
        QVERIFY(!m_sheet->removeButtonsAreVisible());
        m_sheet->session->undo();
        QCOMPARE(m_sheet->shown(), QStringLiteral("11 #ff0000, 50 #00ff00, 90 #0000ff"));
        QVERIFY(m_sheet->removeButtonsAreVisible());
    }

    void takenPositionsAreWarnedOf()
    {
        const DesignerObject* gradient = m_sheet->addAndSelect(Three);
        SheetFixture::enter(m_sheet->position(0), "50");
        QCOMPARE(m_sheet->warnings, QStringList(QStringLiteral("Modify Gradient Stops")));
        SheetFixture::type(m_sheet->newPosition(), "50");
        QTest::mouseClick(m_sheet->addButton(), Qt::LeftButton);
        QCOMPARE(m_sheet->warnings.mid(1), QStringList(QStringLiteral("Add Gradient Stop")));
        QCOMPARE(m_sheet->shown(), percents(Three));
        QCOMPARE(GradientSheet::value(gradient), Three);
        QCOMPARE(stack()->count(), 0);
        QVERIFY(m_sheet->message().isEmpty());
    }

    void onlyWhatIsEditedLosesItsDecimals()
    {
        const DesignerObject* gradient = m_sheet->addAndSelect("0.335 #ff0000, 0.506 #00ff00, 0.777 #0000ff");
        m_sheet->pick(0, "#111111");
        SheetFixture::enter(m_sheet->position(1), "55");
        m_sheet->addButton()->click();
        QCOMPARE(GradientSheet::value(gradient),
                 QStringLiteral("0.335 #111111, 0.55 #00ff00, 0.777 #0000ff, 1 #f8971d"));
    }

    void colorsThatAreAllTheSameAreRefused()
    {
        const DesignerObject* gradient = m_sheet->addAndSelect();
        m_sheet->pick(0, "#ffffff");
        QCOMPARE(m_sheet->message(), QStringLiteral("Gradient colors cannot be all the same."));
        QCOMPARE(GradientSheet::value(gradient), Default);
        QCOMPARE(m_sheet->shown(), QStringLiteral("33 #ffffff, 67 #ffffff"));
        QCOMPARE(stack()->count(), 0);
        // What was refused can be completed …
        m_sheet->pick(1, "#000000");
        QVERIFY(m_sheet->message().isEmpty());
        QCOMPARE(GradientSheet::value(gradient), QStringLiteral("0.33 #ffffff, 0.67 #000000"));
        QCOMPARE(stack()->count(), 1);
        // … or taken back.
        m_sheet->pick(1, "#ffffff");
        QVERIFY(!m_sheet->message().isEmpty());
        m_sheet->position(0)->setFocus();
        QTest::keyClick(m_sheet->position(0), Qt::Key_Escape);
        QVERIFY(m_sheet->message().isEmpty());
        QCOMPARE(m_sheet->shown(), QStringLiteral("33 #ffffff, 67 #000000"));
        QCOMPARE(stack()->count(), 1);
    }

    void colorsThatAreAllTransparentAreRefused()
    {
        DesignerObject* gradient = m_sheet->addAndSelect("0.2 #00ff0000, 0.8 #ffffff");
        m_sheet->pick(1, "#00ffffff");
        QCOMPARE(m_sheet->message(), QStringLiteral("Gradient colors cannot be all transparent."));
        QCOMPARE(GradientSheet::value(gradient), QStringLiteral("0.2 #00ff0000, 0.8 #ffffff"));
        m_sheet->set(gradient, qPrintable(Three));
        QVERIFY(m_sheet->message().isEmpty());
        QCOMPARE(m_sheet->shown(), percents(Three));
    }

    void storedDuplicatesAreRefusedUntilAPositionIsEdited()
    {
        const QString stored = QStringLiteral("0.331 #ff0000, 0.339 #00ff00, 0.8 #0000ff");
        const DesignerObject* gradient = m_sheet->addAndSelect(stored);
        m_sheet->pick(0, "#111111");
        QCOMPARE(m_sheet->message(), QStringLiteral("Duplicate position values found."));
        QCOMPARE(GradientSheet::value(gradient), stored);
        SheetFixture::enter(m_sheet->position(1), "40");
        QVERIFY(m_sheet->message().isEmpty());
        QCOMPARE(GradientSheet::value(gradient), QStringLiteral("0.331 #111111, 0.4 #00ff00, 0.8 #0000ff"));
        QCOMPARE(stack()->count(), 1);
    }

    void aBlockedHistoryRefuses()
    {
        const DesignerObject* gradient = m_sheet->addAndSelect(Three);
        stack()->setBlocked(true);
        m_sheet->removeButton(1)->click();
        stack()->setBlocked(false);
        QVERIFY(!m_sheet->message().isEmpty());
        QCOMPARE(GradientSheet::value(gradient), Three);
        m_sheet->position(0)->setFocus();
        QTest::keyClick(m_sheet->position(0), Qt::Key_Escape);
        QCOMPARE(m_sheet->shown(), percents(Three));
    }

    void anyEditsAreUndoneAndRedoneExactly()
    {
        m_sheet->sheet->setUpdatesEnabled(false); // painting would take most of the time
        QVERIFY(rc::check("undo all, redo all", [this] {
            DesignerObject* gradient = m_sheet->addAndSelect(*rc::gen::element(Default, Three, stopsAtEachPercent(9)));
            QStringList states{GradientSheet::value(gradient)};
            const auto edits = *rc::gen::resize(40, rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 100000)));
            for (const int edit : edits) {
                const int steps = stack()->index();
                const int row = edit / 5 % m_sheet->rows();
                const QByteArray percent = QByteArray::number(edit / 7 % 101);
                switch (edit % 5) {
                case 0:
                    SheetFixture::type(m_sheet->newPosition(), percent.constData());
                    m_sheet->addButton()->click();
                    break;
                case 1:
                    if (m_sheet->removeButtonsAreVisible())
                        m_sheet->removeButton(row)->click();
                    break;
                case 2:
                    SheetFixture::enter(m_sheet->position(row), percent.constData());
                    break;
                case 3:
                    m_sheet->color(row)->setColor(QColor::fromRgb(QRgb(edit)));
                    Q_EMIT m_sheet->color(row)->userModified();
                    break;
                default:
                    m_sheet->session->undo();
                    break;
                }
                if (m_sheet->editor()->isRefused())
                    QTest::keyClick(m_sheet->position(0), Qt::Key_Escape);
                const int now = stack()->index();
                RC_ASSERT(m_sheet->shown() == percents(GradientSheet::value(gradient)));
                RC_ASSERT(m_sheet->editor()->editorValue() == GradientSheet::value(gradient));
                states = states.mid(0, std::min(steps, now) + 1);
                if (now > steps)
                    states.append(GradientSheet::value(gradient));
                RC_ASSERT(GradientSheet::value(gradient) == states.at(now));
            }
            const int top = stack()->index();
            for (int step = top - 1; step >= 0; --step) {
                m_sheet->session->undo();
                RC_ASSERT(GradientSheet::value(gradient) == states.at(step));
                RC_ASSERT(m_sheet->shown() == percents(states.at(step)));
            }
            for (int step = 1; step <= top; ++step) {
                m_sheet->session->redo();
                RC_ASSERT(m_sheet->shown() == percents(states.at(step)));
            }
        }));
    }

private:
    [[nodiscard]] UndoStack* stack() const { return m_sheet->stack(); }

    std::unique_ptr<GradientSheet> m_sheet;
};

QTEST_MAIN(tst_GradientStopsEditor)
#include "tst_GradientStopsEditor.moc"
