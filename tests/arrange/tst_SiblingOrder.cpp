#include "host/core/arrange/SiblingOrder.h"

#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QtTest>

#include <rapidcheck.h>

#include <algorithm>
#include <numeric>

using namespace Korvex::Meridane::Designer;
using Move = SiblingOrder::Move;

Q_DECLARE_METATYPE(SiblingOrder::Move)

class tst_SiblingOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_project = std::make_unique<Project>();
        QVERIFY(m_project->initialize());
        for (int i = 0; i < 5; ++i) {
            auto* screen = new Screen;
            QVERIFY(screen->initialize());
            QVERIFY(screen->setIdName(QString(QLatin1Char(char('a' + i)))));
            QVERIFY(m_project->addListItem(m_project->childList(), screen, -1));
        }
    }

    void objectsMoveTogetherAndKeepTheirOrder_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<Move>("move");
        QTest::addColumn<QString>("order");
        QTest::newRow("one to front") << "b" << Move::ToFront << "acdeb";
        QTest::newRow("two to front") << "bd" << Move::ToFront << "acebd";
        QTest::newRow("two to back") << "ce" << Move::ToBack << "ceabd";
        QTest::newRow("one forward") << "b" << Move::Forward << "acbde";
        QTest::newRow("neighbours forward") << "bc" << Move::Forward << "adbce";
        QTest::newRow("nothing overtakes what is moved too") << "de" << Move::Forward << "abcde";
        QTest::newRow("last forward is stuck, the other goes") << "ae" << Move::Forward << "bacde";
        QTest::newRow("one backward") << "d" << Move::Backward << "abdce";
        QTest::newRow("first backward is stuck, the other goes") << "ac" << Move::Backward << "acbde";
        QTest::newRow("all") << "abcde" << Move::ToFront << "abcde";
    }

    void objectsMoveTogetherAndKeepTheirOrder()
    {
        QFETCH(QString, chosen);
        QFETCH(Move, move);
        QFETCH(QString, order);
        const QString before = ids();
        const EditResult result = SiblingOrder::move(m_project.get(), objects(chosen), move);
        QVERIFY2(result.accepted, qPrintable(result.message));
        QCOMPARE(ids(), order);
        QCOMPARE(m_project->undoStack()->count(), order == before ? 0 : 1);
        if (order == before)
            return;
        m_project->undoStack()->undo();
        QCOMPARE(ids(), before);
        m_project->undoStack()->redo();
        QCOMPARE(ids(), order);
    }

    void objectsAreMovedToAPlaceAmongTheOthers()
    {
        SiblingOrder::moveTo(m_project.get(), m_project.get(), objects(QStringLiteral("ae")), 1);
        QCOMPARE(ids(), QStringLiteral("baecd"));
        SiblingOrder::moveTo(m_project.get(), m_project.get(), objects(QStringLiteral("b")), 99);
        QCOMPARE(ids(), QStringLiteral("aecdb"));
        QCOMPARE(m_project->undoStack()->count(), 2);
    }

    void everyTargetIsAPlaceOfItsOwn()
    {
        const bool holds = rc::check("targets are ascending places among the siblings", [] {
            const int count = *rc::gen::inRange(1, 12);
            QList<int> chosen;
            for (int i = 0; i < count; ++i) {
                if (*rc::gen::arbitrary<bool>())
                    chosen.append(i);
            }
            const auto move = *rc::gen::element(Move::ToFront, Move::Forward, Move::Backward, Move::ToBack);
            const QList<int> places = SiblingOrder::targets(chosen, count, move);
            RC_ASSERT(places.size() == chosen.size());
            for (qsizetype i = 0; i < places.size(); ++i) {
                RC_ASSERT(places.at(i) >= 0 && places.at(i) < count);
                RC_ASSERT((i == 0 || places.at(i) > places.at(i - 1)));
            }
        });
        QVERIFY(holds);
    }

private:
    QString ids() const
    {
        QString text;
        const auto screens = m_project->screens();
        for (const Screen* screen : screens)
            text += screen->getIdName();
        return text;
    }

    QList<DesignerObject*> objects(const QString& ids) const
    {
        QList<DesignerObject*> objects;
        for (const QChar id : ids)
            objects.append(m_project->screen(QString(id)));
        return objects;
    }

    std::unique_ptr<Project> m_project;
};

QTEST_GUILESS_MAIN(tst_SiblingOrder)
#include "tst_SiblingOrder.moc"
