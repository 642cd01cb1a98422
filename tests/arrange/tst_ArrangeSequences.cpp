#include "tests/arrange/ArrangeTree.h"

#include "host/core/arrange/Alignment.h"
#include "host/core/arrange/DuplicateSeries.h"
#include "host/core/arrange/ElementClipboard.h"
#include "host/core/arrange/Grouping.h"
#include "host/core/arrange/SiblingOrder.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::anyNumber;
using Test::ArrangeTree;

/// Whatever is arranged, undoing it all gives the screen back byte for byte, and redoing it all the same again.
class tst_ArrangeSequences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void undoingAndRedoingAllGivesEverythingBack()
    {
        const bool held = rc::check("arranging", [] {
            ArrangeTree tree(anyNumber(0, 2) == 0);
            EditSession* session = tree.canvas.session.get();
            DuplicateSeries duplicates;
            QByteArray copied;
            QList<QByteArray> states{tree.saved()};
            const int count = anyNumber(1, 30);
            for (int i = 0; i < count; ++i) {
                const QList<DesignerObject*> some = ArrangeTree::anyOf(tree.all());
                const int index = tree.canvas.stack()->index();
                session->setSelection(some);
                act(session, some, &duplicates, &copied);
                RC_ASSERT(tree.canvas.stack()->index() == index || tree.canvas.stack()->index() == index + 1);
                RC_ASSERT((tree.saved() == states.constLast()) == (tree.canvas.stack()->index() == index));
                if (tree.canvas.stack()->index() > index)
                    states.append(tree.saved());
                // Trees that only grow would take ever longer.
                if (tree.all().size() > 60)
                    break;
            }
            const QMap<QString, QPolygonF> corners = tree.corners();
            for (qsizetype i = states.size() - 1; i > 0; --i) {
                RC_ASSERT(tree.saved() == states.at(i));
                session->undo();
            }
            RC_ASSERT(tree.saved() == states.constFirst());
            for (qsizetype i = 1; i < states.size(); ++i) {
                session->redo();
                RC_ASSERT(tree.saved() == states.at(i));
            }
            RC_ASSERT(ArrangeTree::isSame(tree.corners(), corners));
        });
        QVERIFY(held);
    }

private:
    static void act(EditSession* session, const QList<DesignerObject*>& some, DuplicateSeries* duplicates,
                    QByteArray* copied)
    {
        switch (anyNumber(0, 13)) {
        case 0:
            (void)Grouping::group(session, some);
            break;
        case 1:
            (void)Grouping::ungroup(session, some);
            break;
        case 2:
            (void)Alignment::align(session, some, AlignEdge(anyNumber(0, 6)));
            break;
        case 3:
            (void)Alignment::distribute(session, some, anyNumber(0, 2) ? Qt::Horizontal : Qt::Vertical,
                                        SpacingKind(anyNumber(0, 2)));
            break;
        case 4:
            (void)Alignment::makeSameSize(session, some, Alignment::Dimension(anyNumber(0, 3)));
            break;
        case 5:
            (void)Alignment::centerOnScreen(session, some);
            break;
        case 6:
            (void)SiblingOrder::move(session->project(), some, SiblingOrder::Move(anyNumber(0, 4)));
            break;
        case 7:
            (void)session->setLocked(some, anyNumber(0, 2) == 0);
            break;
        case 8:
            (void)session->setHidden(some, anyNumber(0, 2) == 0);
            break;
        case 9:
            (void)duplicates->duplicate(session, session->selection().isEmpty() ? some : session->selection());
            break;
        case 10:
            *copied = ElementClipboard::write(session, some);
            break;
        case 11:
            if (!copied->isEmpty())
                (void)ElementClipboard::insert(session, *copied, QStringLiteral("Paste"),
                                               ElementClipboard::Placement(anyNumber(0, 2)));
            break;
        default:
            if (anyNumber(0, 4) == 0)
                (void)session->removeElements(ElementClipboard::copyable(some));
            break;
        }
    }
};

QTEST_MAIN(tst_ArrangeSequences)
#include "tst_ArrangeSequences.moc"
