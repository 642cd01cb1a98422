#include "host/core/commands/ChangeRecording.h"
#include "host/core/commands/ChangeScopes.h"
#include "tests/support/TestElement.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::TestElement;

/// The one door through which every value changes.
class tst_ChangePropertyValue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_element = std::make_unique<TestElement>();
        QVERIFY(m_element->initialize());
    }

    void theOrderIsBeforeHookChangeAfterHook()
    {
        QStringList steps;
        m_element->before = [&](const DesignerProperty* property, const QString& value) {
            steps << QStringLiteral("before %1 %2").arg(property->valueString(), value);
            return true;
        };
        m_element->after = [&](const DesignerProperty* property, const QString& oldValue) {
            steps << QStringLiteral("after %1 %2").arg(oldValue, property->valueString());
        };
        QVERIFY(m_element->set(m_element->number, "5"));
        QCOMPARE(steps, (QStringList{QStringLiteral("before 1 5"), QStringLiteral("after 1 5")}));
    }

    void aBeforeHookThatSaysNoRefuses()
    {
        m_element->before = [](const DesignerProperty*, const QString&) { return false; };
        QVERIFY(!m_element->set(m_element->number, "5"));
        QCOMPARE(m_element->number->valueString(), QStringLiteral("1"));
    }

    void aValidatorThatSaysNoPutsTheOldValueBack()
    {
        bool reacted = false;
        m_element->after = [&](const DesignerProperty*, const QString&) { reacted = true; };
        QString message;
        QVERIFY(!m_element->set(m_element->number, "11", &message));
        QCOMPARE(message, QStringLiteral("0 to 10 only."));
        QCOMPARE(m_element->number->valueString(), QStringLiteral("1"));
        QVERIFY(!reacted);
    }

    void aRefusalPutsAlsoATextBackThatDidNotConvert()
    {
        QVERIFY(m_element->set(m_element->number, "many"));
        QVERIFY(!m_element->number->isConverted());
        QVERIFY(!m_element->set(m_element->number, "11"));
        QCOMPARE(m_element->number->valueString(), QStringLiteral("many"));
    }

    void aTextThatDoesNotConvertIsKeptAndInert()
    {
        bool reacted = false;
        m_element->after = [&](const DesignerProperty*, const QString&) { reacted = true; };
        QVERIFY(m_element->set(m_element->number, "many"));
        QCOMPARE(m_element->number->valueString(), QStringLiteral("many"));
        QVERIFY(m_element->number->toQml(0).isEmpty());
        QVERIFY(!reacted);
        QVERIFY(m_element->set(m_element->number, "3"));
        QVERIFY(reacted);
        QCOMPARE(m_element->number->toQml(1), QStringLiteral("\tnumber: 3"));
    }

    void aTextThatDoesNotConvertIsRefusedWhereItMayNotBeKept()
    {
        QString message;
        QVERIFY(!m_element->set(m_element->strict, "much", &message));
        QVERIFY(message.contains(QLatin1String("much")) && message.contains(QLatin1String("Strict")));
        QCOMPARE(m_element->strict->valueString(), QStringLiteral("1.5"));
    }

    void nestedChangesCompleteDepthFirst()
    {
        QStringList steps;
        m_element->after = [&](const DesignerProperty* property, const QString&) {
            steps << property->id();
            if (property->id() == QLatin1String("number")) {
                m_element->set(m_element->derived, "7");
                QCOMPARE(m_element->derived->valueString(), QStringLiteral("7"));
                steps << QStringLiteral("end");
            }
        };
        QVERIFY(m_element->set(m_element->number, "5"));
        QCOMPARE(steps, (QStringList{QStringLiteral("number"), QStringLiteral("derived"), QStringLiteral("end")}));
    }

    void aReactionThatWritesItsOwnPropertyIsStoredButDoesNotRunAgain()
    {
        int reactions = 0;
        m_element->after = [&](const DesignerProperty* property, const QString&) {
            ++reactions;
            if (property->id() == QLatin1String("number"))
                m_element->set(m_element->number, "10");
        };
        QVERIFY(m_element->set(m_element->number, "5"));
        QCOMPARE(reactions, 1);
        QCOMPARE(m_element->number->valueString(), QStringLiteral("10"));
    }

    void theReactionAlsoRunsForTheSameValue()
    {
        int reactions = 0;
        m_element->after = [&](const DesignerProperty* property, const QString& oldValue) {
            ++reactions;
            QCOMPARE(oldValue, property->valueString());
        };
        QVERIFY(m_element->set(m_element->number, "1"));
        QCOMPARE(reactions, 1);
    }

    void observersHearOncePerPropertyAfterTheOutermostChange()
    {
        m_element->after = [&](const DesignerProperty* property, const QString&) {
            if (property->id() != QLatin1String("number"))
                return;
            m_element->set(m_element->derived, "7");
            m_element->set(m_element->derived, "8");
            m_element->set(m_element->number, "9");
        };
        QStringList heard;
        connect(m_element.get(), &DesignerObject::propertyChanged, this,
                [&](const QSharedPointer<DesignerProperty>& property) {
                    heard << property->id() + QLatin1Char('=') + property->valueString();
                });
        QVERIFY(m_element->set(m_element->number, "5"));
        QCOMPARE(heard, (QStringList{QStringLiteral("number=9"), QStringLiteral("derived=8")}));
    }

    void whileValuesAreRestoredWritesAreIgnored()
    {
        {
            const ValueRestoreScope restoring;
            QVERIFY(!m_element->set(m_element->number, "5"));
        }
        QCOMPARE(m_element->number->valueString(), QStringLiteral("1"));
        QVERIFY(m_element->set(m_element->number, "5"));
    }

    void aRestoredValueRunsNoHooksAndNoValidators()
    {
        m_element->before = [](const DesignerProperty*, const QString&) { return false; };
        m_element->after = [](const DesignerProperty*, const QString&) { QFAIL("a hook ran"); };
        m_element->restorePropertyValue(m_element->number, QStringLiteral("99"));
        QCOMPARE(m_element->number->valueString(), QStringLiteral("99"));
    }

    void theValueOfAnotherObjectsPropertyIsNotChanged()
    {
        TestElement other;
        QVERIFY(other.initialize());
        QVERIFY(!m_element->set(other.number, "5"));
        QVERIFY(!m_element->changePropertyValue({}, QStringLiteral("5")));
        QCOMPARE(other.number->valueString(), QStringLiteral("1"));
    }

    void aRecordingHoldsEachPropertyOnceFromFirstToLastValue()
    {
        ChangeRecording recording;
        m_element->set(m_element->number, "5");
        m_element->set(m_element->derived, "7");
        m_element->set(m_element->number, "6");
        m_element->set(m_element->derived, "2"); // back where it was
        const QVector<PropertyChange> changes = recording.take();
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes.first().before, QStringLiteral("1"));
        QCOMPARE(changes.first().after, QStringLiteral("6"));
        QVERIFY(recording.take().isEmpty());
    }

    void anInnerRecordingPassesOnWhatNobodyTook()
    {
        ChangeRecording outer;
        {
            ChangeRecording inner;
            m_element->set(m_element->number, "5");
        }
        {
            ChangeRecording inner;
            m_element->set(m_element->derived, "5");
            QCOMPARE(inner.take().size(), 1);
        }
        QCOMPARE(outer.take().size(), 1);
    }

    void propertiesStandInOrderOfRank()
    {
        QStringList ids;
        for (const auto& property : m_element->properties())
            ids << property->id();
        QCOMPARE(ids, (QStringList{QStringLiteral("position"), QStringLiteral("rotation"), QStringLiteral("number"),
                                   QStringLiteral("text"), QStringLiteral("strict"), QStringLiteral("derived")}));
        QVERIFY(!m_element->getProperty(QStringLiteral("none")));
        QCOMPARE(m_element->position()->rank(), 1);
        QCOMPARE(m_element->rotation()->rank(), 2);
    }

private:
    std::unique_ptr<TestElement> m_element;
};

QTEST_MAIN(tst_ChangePropertyValue)
#include "tst_ChangePropertyValue.moc"
