#include "host/core/commands/ChangeProperty.h"
#include "host/core/commands/UndoStack.h"
#include "tests/support/TestElement.h"

#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using Test::TestElement;

class tst_UndoCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_element = std::make_unique<TestElement>();
        QVERIFY(m_element->initialize());
        m_stack = std::make_unique<UndoStack>();
    }

    void aChangeIsExecutedOnceAndIsOneStep()
    {
        int reactions = 0;
        m_element->after = [&](const DesignerProperty*, const QString&) { ++reactions; };
        const EditResult result = change(m_element->number, "5");
        QVERIFY(result.accepted && result.changed);
        QCOMPARE(reactions, 1);
        QCOMPARE(m_stack->count(), 1);
        QCOMPARE(m_stack->undoText(), QStringLiteral("Change Number"));
    }

    void aChangeWithoutEffectLeavesTheRedoListAlone()
    {
        change(m_element->number, "5");
        m_stack->undo();
        const EditResult result = change(m_element->number, "1");
        QVERIFY(result.accepted);
        QVERIFY(!result.changed);
        QVERIFY(m_stack->canRedo());
        m_stack->redo();
        QCOMPARE(m_element->number->valueString(), QStringLiteral("5"));
    }

    void aRefusedChangeLeavesTheRedoListAloneAndSaysWhy()
    {
        change(m_element->number, "5");
        m_stack->undo();
        const EditResult result = change(m_element->number, "11");
        QVERIFY(!result.accepted);
        QVERIFY(!result.changed);
        QCOMPARE(result.message, QStringLiteral("0 to 10 only."));
        QVERIFY(m_stack->canRedo());
    }

    void derivedChangesAreUndoneWithTheirCauseAndNotDerivedAgain()
    {
        int reactions = 0;
        m_element->after = [&](const DesignerProperty* property, const QString&) {
            if (property->id() != QLatin1String("number"))
                return;
            ++reactions;
            m_element->set(m_element->derived, "9");
        };
        change(m_element->number, "5");
        m_stack->undo();
        QCOMPARE(m_element->derived->valueString(), QStringLiteral("2"));
        m_stack->redo();
        QCOMPARE(m_element->derived->valueString(), QStringLiteral("9"));
        QCOMPARE(reactions, 1);
    }

    void aCommandWithChildrenIsOneStepThatRunsItsOwnActionFirst()
    {
        auto parent = std::make_unique<ChangeProperty>(m_element->number, QStringLiteral("5"), true, nullptr);
        new ChangeProperty(m_element->derived, QStringLiteral("6"), false, parent.get());
        new ChangeProperty(m_element->text, QStringLiteral("t"), false, parent.get());
        QVERIFY(m_stack->execute(std::move(parent)).changed);
        QCOMPARE(m_stack->count(), 1);
        QCOMPARE(m_element->derived->valueString(), QStringLiteral("6"));
        m_stack->undo();
        QCOMPARE(m_element->number->valueString(), QStringLiteral("1"));
        QCOMPARE(m_element->derived->valueString(), QStringLiteral("2"));
        QCOMPARE(m_element->text->valueString(), QString());
    }

    void allOrNothingTakesBackWhatWasAcceptedBefore()
    {
        auto parent = std::make_unique<UndoCommand>();
        parent->setAllOrNothing(true);
        new ChangeProperty(m_element->derived, QStringLiteral("6"), false, parent.get());
        new ChangeProperty(m_element->number, QStringLiteral("11"), false, parent.get());
        const EditResult result = m_stack->execute(std::move(parent));
        QVERIFY(!result.accepted && !result.changed);
        QCOMPARE(m_element->derived->valueString(), QStringLiteral("2"));
        QCOMPARE(m_stack->count(), 0);
    }

    void stepsWithOneMergeKeyBecomeOneStep()
    {
        for (const char* value : {"2", "3", "4"})
            change(m_element->number, value, QStringLiteral("typing"));
        change(m_element->number, "5", QStringLiteral("other"));
        QCOMPARE(m_stack->count(), 2);
        m_stack->undo();
        QCOMPARE(m_element->number->valueString(), QStringLiteral("4"));
        m_stack->undo();
        QCOMPARE(m_element->number->valueString(), QStringLiteral("1"));
    }

    void aMergedRunThatEndsWhereItBeganIsNoStep()
    {
        change(m_element->number, "2", QStringLiteral("typing"));
        change(m_element->number, "1", QStringLiteral("typing"));
        QCOMPARE(m_stack->count(), 0);
    }

    void adoptedChangesAreUndoneWithTheCommand()
    {
        m_element->set(m_element->derived, "7");
        auto command = std::make_unique<UndoCommand>();
        command->adopt({{m_element->derived, QStringLiteral("2"), QStringLiteral("7")}});
        new ChangeProperty(m_element->number, QStringLiteral("5"), false, command.get());
        QVERIFY(m_stack->execute(std::move(command)).changed);
        m_stack->undo();
        QCOMPARE(m_element->derived->valueString(), QStringLiteral("2"));
        m_stack->redo();
        QCOMPARE(m_element->derived->valueString(), QStringLiteral("7"));
    }

    void aBlockedStackRefusesEverything()
    {
        change(m_element->number, "5");
        m_stack->setBlocked(true);
        QVERIFY(!change(m_element->number, "6").accepted);
        m_stack->undo();
        QCOMPARE(m_element->number->valueString(), QStringLiteral("5"));
        m_stack->setBlocked(false);
        m_stack->undo();
        QCOMPARE(m_element->number->valueString(), QStringLiteral("1"));
    }

    void theSelectionOfTheTimeComesWithTheStep()
    {
        m_stack->execute(std::make_unique<ChangeProperty>(m_element->number, QStringLiteral("5"), true, nullptr));
        QCOMPARE(m_stack->undoCommand()->selectedItems(), QList<DesignerObject*>{m_element.get()});
        m_stack->execute(std::make_unique<ChangeProperty>(m_element->number, QStringLiteral("6"), false, nullptr));
        QVERIFY(m_stack->undoCommand()->selectedItems().isEmpty());
        QCOMPARE(m_stack->undoCommand()->activeItem(), m_element.get());
    }

    void aCommandWithoutAPropertyIsInvalid()
    {
        QVERIFY(!ChangeProperty({}, QStringLiteral("1"), false, nullptr).isValid());
        QVERIFY(!m_stack
                     ->execute(std::make_unique<ChangeProperty>(QSharedPointer<DesignerProperty>(), QStringLiteral("1"),
                                                                false, nullptr))
                     .accepted);
    }

    void anyEditsAreTakenBackAndRepeatedExactly()
    {
        QVERIFY(rc::check("undo and redo", [this] {
            init();
            m_element->after = [this](const DesignerProperty* property, const QString&) {
                if (property->id() == QLatin1String("number"))
                    m_element->set(m_element->derived, qPrintable(property->valueString() + QLatin1Char('0')));
            };
            QVector<QStringList> states{state()};
            const auto edits = *rc::gen::container<std::vector<std::pair<int, int>>>(
                rc::gen::pair(rc::gen::inRange(0, 4), rc::gen::inRange(-2, 14)));
            for (const auto& [which, number] : edits) {
                const QSharedPointer<DesignerProperty> properties[]{m_element->number, m_element->text,
                                                                    m_element->strict, m_element->derived};
                const QString text = number == 13 ? QStringLiteral("none") : QString::number(number);
                if (m_stack->execute(std::make_unique<ChangeProperty>(properties[which], text, false, nullptr)).changed)
                    states.append(state());
            }
            RC_ASSERT(m_stack->count() == states.size() - 1);
            for (qsizetype i = states.size() - 2; i >= 0; --i) {
                m_stack->undo();
                RC_ASSERT(state() == states.at(i));
            }
            for (qsizetype i = 1; i < states.size(); ++i) {
                m_stack->redo();
                RC_ASSERT(state() == states.at(i));
            }
        }));
    }

private:
    EditResult change(const QSharedPointer<DesignerProperty>& property, const char* value, const QString& key = {})
    {
        auto command = std::make_unique<ChangeProperty>(property, QString::fromUtf8(value), false, nullptr);
        command->setMergeKey(key);
        return m_stack->execute(std::move(command));
    }

    QStringList state() const
    {
        QStringList values;
        for (const auto& property : m_element->properties())
            values << property->valueString();
        return values;
    }

    std::unique_ptr<TestElement> m_element;
    std::unique_ptr<UndoStack> m_stack;
};

QTEST_MAIN(tst_UndoCommand)
#include "tst_UndoCommand.moc"
