#include "app/ProjectTreeModel.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/commands/AddObject.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QTemporaryDir>
#include <QtTest>

using namespace Korvex::Meridane::Designer;

class tst_ProjectTreeModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QStringList refused = DesignerFactory::instance()->loadInstalledPlugins();
        QVERIFY2(refused.isEmpty(), qPrintable(refused.join(QLatin1Char('\n'))));
    }

    void init()
    {
        m_session = std::make_unique<EditSession>(ProjectStore::create(QStringLiteral("Kettle"), QSizeF(320, 240)));
        watchModel();
    }

    void cleanup()
    {
        m_tester.reset();
        m_model.reset();
        m_session.reset();
    }

    void theFrontMostElementStandsOnTop()
    {
        add("Rectangle");
        add("Rectangle");
        QCOMPARE(rows(), (QStringList{QStringLiteral("rectangle2"), QStringLiteral("rectangle1")}));
        QCOMPARE(m_model->data(m_model->index(0, 0)).toString(), QStringLiteral("Kettle"));
    }

    void rowsFollowUndoAndRedo()
    {
        add("Rectangle");
        add("Rectangle");
        m_session->undo();
        QCOMPARE(rows(), QStringList{QStringLiteral("rectangle1")});
        m_session->redo();
        QCOMPARE(rows(), (QStringList{QStringLiteral("rectangle2"), QStringLiteral("rectangle1")}));
        m_session->removeElements({element("rectangle1")});
        QCOMPARE(rows(), QStringList{QStringLiteral("rectangle2")});
        m_session->undo();
        QCOMPARE(rows(), (QStringList{QStringLiteral("rectangle2"), QStringLiteral("rectangle1")}));
    }

    void rowsFollowTheOrder()
    {
        for (int i = 0; i < 4; ++i)
            add("Rectangle");
        const QPersistentModelIndex kept = m_model->indexOf(element("rectangle1"));
        m_session->reorder(element("rectangle1"), 3);
        QCOMPARE(rows().first(), QStringLiteral("rectangle1"));
        QCOMPARE(kept.row(), 0);
        m_session->reorder(element("rectangle1"), 1);
        QCOMPARE(rows(), (QStringList{QStringLiteral("rectangle4"), QStringLiteral("rectangle3"),
                                      QStringLiteral("rectangle1"), QStringLiteral("rectangle2")}));
        QCOMPARE(kept.row(), 2);
    }

    void screensKeepTheirOwnOrder()
    {
        m_session->addScreen(QStringLiteral("settings"));
        const QModelIndex project = m_model->index(0, 0);
        QCOMPARE(m_model->data(m_model->index(0, 0, project)).toString(), QStringLiteral("main"));
        QCOMPARE(m_model->data(m_model->index(1, 0, project)).toString(), QStringLiteral("settings"));
    }

    void anIdIsRenamedInPlaceAndABadOneRefused()
    {
        add("Rectangle");
        QSignalSpy refused(m_model.get(), &ProjectTreeModel::refused);
        const QModelIndex index = m_model->indexOf(element("rectangle1"));
        QVERIFY(m_model->setData(index, QStringLiteral("tile")));
        QCOMPARE(m_model->data(index).toString(), QStringLiteral("tile"));
        QCOMPARE(m_session->undoStack()->count(), 2);
        QVERIFY(!m_model->setData(index, QStringLiteral("1 tile")));
        QCOMPARE(m_model->data(index).toString(), QStringLiteral("tile"));
        QCOMPARE(refused.count(), 1);
        QVERIFY(!refused.first().first().toString().isEmpty());
        QVERIFY(m_model->setData(index, QStringLiteral("tile")));
        QCOMPARE(m_session->undoStack()->count(), 2);
        QVERIFY(m_model->setData(m_model->index(0, 0), QStringLiteral("Toaster")));
        QCOMPARE(m_session->project()->name(), QStringLiteral("Toaster"));
    }

    void aDropReordersWithinTheParent()
    {
        for (int i = 0; i < 4; ++i)
            add("Rectangle");
        const QModelIndex main = m_model->indexOf(m_session->project()->screen(QStringLiteral("main")));
        // From the top: 4 3 2 1. The rows 4 and 2 go between 1 and the end.
        const std::unique_ptr<QMimeData> data(
            m_model->mimeData({m_model->index(0, 0, main), m_model->index(2, 0, main)}));
        QVERIFY(m_model->canDropMimeData(data.get(), Qt::MoveAction, 4, 0, main));
        QVERIFY(!m_model->dropMimeData(data.get(), Qt::MoveAction, 4, 0, main));
        QCOMPARE(rows(), (QStringList{QStringLiteral("rectangle3"), QStringLiteral("rectangle1"),
                                      QStringLiteral("rectangle4"), QStringLiteral("rectangle2")}));
        m_session->undo();
        QCOMPARE(rows().first(), QStringLiteral("rectangle4"));
    }

    void aDropOnAGroupOrAScreenGoesIntoItAsOneStep()
    {
        for (int i = 0; i < 3; ++i)
            add("Rectangle");
        DesignerObject* group = addGroup();
        m_session->addScreen(QStringLiteral("other"));
        Screen* other = m_session->project()->screen(QStringLiteral("other"));
        const QModelIndex main = m_model->indexOf(m_session->project()->screen(QStringLiteral("main")));
        const int steps = m_session->undoStack()->count();
        DesignerObject* first = element("rectangle1");
        DesignerObject* third = element("rectangle3");
        const std::unique_ptr<QMimeData> data(m_model->mimeData({m_model->indexOf(first), m_model->indexOf(third)}));
        // Between rows of another parent, and onto it.
        QVERIFY(m_model->canDropMimeData(data.get(), Qt::MoveAction, -1, -1, m_model->indexOf(group)));
        (void)m_model->dropMimeData(data.get(), Qt::MoveAction, -1, -1, m_model->indexOf(group));
        QCOMPARE(m_session->undoStack()->count(), steps + 1);
        QCOMPARE(group->childList()->items(), (QVector<DesignerObject*>{first, third}));
        QCOMPARE(m_model->rowCount(m_model->indexOf(group)), 2);
        QCOMPARE(m_model->object(m_model->index(0, 0, m_model->indexOf(group))), third); // the front-most on top

        const std::unique_ptr<QMimeData> whole(m_model->mimeData({m_model->indexOf(group)}));
        QVERIFY(!m_model->canDropMimeData(whole.get(), Qt::MoveAction, 0, 0, m_model->indexOf(group)));
        (void)m_model->dropMimeData(whole.get(), Qt::MoveAction, 0, 0, m_model->indexOf(other));
        QCOMPARE(group->parentObject(), other);
        QCOMPARE(rows(), QStringList{QStringLiteral("rectangle2")});
        QCOMPARE(m_session->currentScreen(), other);
        m_session->undo();
        m_session->undo();
        QCOMPARE(rows(), (QStringList{QStringLiteral("group1"), QStringLiteral("rectangle3"),
                                      QStringLiteral("rectangle2"), QStringLiteral("rectangle1")}));
        // A screen goes among screens alone.
        const std::unique_ptr<QMimeData> screen(m_model->mimeData({m_model->indexOf(other)}));
        QVERIFY(!m_model->canDropMimeData(screen.get(), Qt::MoveAction, 0, 0, main));
        QVERIFY(!m_model->canDropMimeData(screen.get(), Qt::MoveAction, -1, -1, m_model->index(0, 0)));
        QVERIFY(m_model->canDropMimeData(screen.get(), Qt::MoveAction, 0, 0, m_model->index(0, 0)));
        (void)m_model->dropMimeData(screen.get(), Qt::MoveAction, 0, 0, m_model->index(0, 0));
        QCOMPARE(m_session->project()->screens().constFirst(), other);
    }

    void marksAreOwnOrThoseOfTheGroup()
    {
        add("Rectangle");
        DesignerObject* group = addGroup();
        QVERIFY(m_session->moveToParent({element("rectangle1")}, group, -1).changed);
        const auto mark = [this](DesignerObject* object, int column) {
            return m_model->indexOf(object).siblingAtColumn(column).data(ProjectTreeModel::MarkRole);
        };
        using Mark = ProjectTreeModel::Mark;
        QCOMPARE(mark(group, ProjectTreeModel::HiddenColumn).toInt(), int(Mark::None));
        QVERIFY(!mark(m_session->currentScreen(), ProjectTreeModel::HiddenColumn).isValid());
        QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        const int steps = m_session->undoStack()->count();
        m_model->toggleMark(ProjectTreeModel::HiddenColumn, {group});
        QCOMPARE(m_session->undoStack()->count(), steps + 1);
        QVERIFY(changed.count() >= 2);
        QCOMPARE(mark(group, ProjectTreeModel::HiddenColumn).toInt(), int(Mark::Own));
        QCOMPARE(mark(group, ProjectTreeModel::LockedColumn).toInt(), int(Mark::None));
        QCOMPARE(mark(element("rectangle1"), ProjectTreeModel::HiddenColumn).toInt(), int(Mark::Inherited));
        m_session->undo();
        QCOMPARE(mark(element("rectangle1"), ProjectTreeModel::HiddenColumn).toInt(), int(Mark::None));
        // Several follow the first.
        m_model->toggleMark(ProjectTreeModel::LockedColumn, {element("rectangle1")});
        m_model->toggleMark(ProjectTreeModel::LockedColumn, {group, element("rectangle1")});
        QCOMPARE(mark(group, ProjectTreeModel::LockedColumn).toInt(), int(Mark::Own));
        QCOMPARE(mark(element("rectangle1"), ProjectTreeModel::LockedColumn).toInt(), int(Mark::Own));
        QCOMPARE(m_model->indexOf(group)
                     .siblingAtColumn(ProjectTreeModel::LockedColumn)
                     .data(Qt::AccessibleTextRole)
                     .toString(),
                 QStringLiteral("Locked"));
    }

    void theToolTipTellsClassAndPlace()
    {
        add("Rectangle");
        m_session->setProperty(element("rectangle1"), QStringLiteral("position"), QStringLiteral("12,34"));
        QCOMPARE(m_model->indexOf(element("rectangle1")).data(Qt::ToolTipRole).toString(),
                 QStringLiteral("Rectangle at 12, 34"));
    }

    void aScreenIsReadWhenItsRowIsOpened()
    {
        add("Rectangle");
        m_session->addScreen(QStringLiteral("second"));
        QTemporaryDir folder;
        QString message;
        QVERIFY2(ProjectStore::save(m_session->project(), folder.filePath(QStringLiteral("p")), &message),
                 qPrintable(message));
        cleanup();
        auto loaded = ProjectStore::load(folder.filePath(QStringLiteral("p")));
        QVERIFY(loaded.project);
        m_session = std::make_unique<EditSession>(std::move(loaded.project));
        m_model = std::make_unique<ProjectTreeModel>(m_session.get()); // not watched yet: watching opens rows
        const Screen* screen = m_session->project()->screen(QStringLiteral("main"));
        const QModelIndex index = m_model->index(0, 0, m_model->index(0, 0));
        QVERIFY(m_model->hasChildren(index));
        QVERIFY(m_model->canFetchMore(index));
        QCOMPARE(m_model->rowCount(index), 0);
        QVERIFY(!screen->isContentRead());
        watch();
        QCOMPARE(m_model->rowCount(index), 1);
        QVERIFY(screen->isContentRead());
    }

    void anUnreadableScreenIsMarked()
    {
        QTemporaryDir folder;
        QString message;
        QVERIFY(ProjectStore::save(m_session->project(), folder.filePath(QStringLiteral("p")), &message));
        cleanup();
        QFile file(folder.filePath(QStringLiteral("p/screens/main.json")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{ broken");
        file.close();
        auto loaded = ProjectStore::load(folder.filePath(QStringLiteral("p")));
        QVERIFY(loaded.project);
        m_session = std::make_unique<EditSession>(std::move(loaded.project));
        watchModel();
        const QModelIndex index = m_model->index(0, 0, m_model->index(0, 0));
        m_model->fetchMore(index);
        QVERIFY(m_model->data(index).toString().contains(QStringLiteral("unreadable")));
        QVERIFY(!m_model->data(index, Qt::ToolTipRole).toString().isEmpty());
        QVERIFY(!m_model->flags(index).testFlag(Qt::ItemIsEditable));
    }

    void everyRowOfManyIsFoundQuickly()
    {
        m_tester.reset(); // it looks at every row after every change
        constexpr int Count = 3000;
        for (int i = 0; i < Count; ++i)
            add("Rectangle");
        const auto& items = m_session->currentScreen()->childList()->items();
        QCOMPARE(items.size(), Count);
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < Count; ++i)
            QCOMPARE(m_model->indexOf(items.at(i)).row(), Count - 1 - i);
        QVERIFY(timer.elapsed() < 1000);
    }

private:
    void watchModel()
    {
        m_model = std::make_unique<ProjectTreeModel>(m_session.get());
        watch();
    }

    void watch()
    {
        m_tester = std::make_unique<QAbstractItemModelTester>(m_model.get(),
                                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
    }

    void add(const char* className)
    {
        const EditResult result = m_session->addElement(QString::fromLatin1(className),
                                                        m_session->project()->screen(QStringLiteral("main")), {}, {});
        QVERIFY2(result.accepted, qPrintable(result.message));
    }

    DesignerObject* addGroup() const
    {
        std::unique_ptr<DesignerObject> group(
            DesignerFactory::instance()->createDataObject(QStringLiteral("Group"), nullptr));
        DesignerObject* added = group.get();
        Screen* screen = m_session->project()->screen(QStringLiteral("main"));
        m_session->project()->execute(std::make_unique<AddObject>(screen, std::move(group), -1, nullptr));
        return added;
    }

    DesignerObject* element(const char* id) const
    {
        return m_session->project()->screen(QStringLiteral("main"))->element(QString::fromLatin1(id));
    }

    QStringList rows() const
    {
        QStringList ids;
        const QModelIndex screen = m_model->index(0, 0, m_model->index(0, 0));
        if (m_model->canFetchMore(screen))
            m_model->fetchMore(screen);
        for (int row = 0; row < m_model->rowCount(screen); ++row)
            ids.append(m_model->data(m_model->index(row, 0, screen)).toString());
        return ids;
    }

    std::unique_ptr<EditSession> m_session;
    std::unique_ptr<ProjectTreeModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

QTEST_MAIN(tst_ProjectTreeModel)
#include "tst_ProjectTreeModel.moc"
