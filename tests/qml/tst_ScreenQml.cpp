#include "host/core/qml/ScreenQml.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Group.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/qml/PendingValues.h"
#include "host/core/qml/QmlExporter.h"

#include <QtTest>

#include <rapidcheck.h>

#include <functional>

using namespace Korvex::Meridane::Designer;

namespace {

void visit(const DesignerObject* object, const std::function<void(const DesignerObject*)>& visitor)
{
    visitor(object);
    if (const ObjectListProperty* list = object->childList()) {
        for (const DesignerObject* child : list->items())
            visit(child, visitor);
    }
}

QStringList applied(QStringList lines, const LineChange& change)
{
    for (int i = 0; i < change.old.count; ++i)
        lines.removeAt(change.old.first);
    for (int i = 0; i < change.lines.size(); ++i)
        lines.insert(change.old.first + i, change.lines.at(i));
    return lines;
}

} // namespace

/// The text of a screen, kept up to date by pieces, is what an export writes; and each line knows its object.
class tst_ScreenQml : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qRegisterMetaType<QSharedPointer<DesignerProperty>>("QSharedPointer<DesignerProperty>");
        QString message;
        QVERIFY2(DesignerFactory::instance()->loadPlugin(QStringLiteral(MERIDANE_PLUGIN_FILE), &message),
                 qPrintable(message));
    }

    void init() { makeSession(); }
    void cleanup() { m_session.reset(); }

    void itIsTheFileOfAnExport_data()
    {
        QTest::addColumn<int>("elements");
        QTest::newRow("none") << 0;
        QTest::newRow("one") << 1;
        QTest::newRow("several") << 5;
    }

    void itIsTheFileOfAnExport()
    {
        QFETCH(int, elements);
        for (int i = 0; i < elements; ++i)
            add(i % 2 ? "Ellipse" : "TextBox");
        QTemporaryDir folder;
        QVERIFY(QmlExporter::exportProject(m_session->project(), folder.filePath(QStringLiteral("out"))).isEmpty());
        QFile file(folder.filePath(QStringLiteral("out/screens/main.qml")));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const ScreenQml qml(m_screen);
        QCOMPARE(qml.text(), QString::fromUtf8(file.readAll()));
        QCOMPARE(qml.lineCount(), int(qml.lines().size()));
    }

    void linesLeadToTheirObjectsAndBack()
    {
        DesignerObject* first = add("Rectangle");
        DesignerObject* group = addGroup();
        DesignerObject* inner = add("Ellipse");
        DesignerObject* last = add("Rectangle");
        moveInto(group, inner);
        const ScreenQml qml(m_screen);
        const QStringList lines = qml.lines();
        for (DesignerObject* object : {first, group, inner, last}) {
            const LineRange range = qml.linesOf(object);
            QVERIFY(range.count > 0);
            QVERIFY2(lines.at(range.first).trimmed().startsWith(object->qmlName() + QStringLiteral(" {")),
                     qPrintable(lines.at(range.first)));
            QCOMPARE(lines.at(range.first + 1).trimmed(), QStringLiteral("id: ") + object->getIdName());
            QCOMPARE(lines.at(range.first + range.count - 1).trimmed(), QStringLiteral("}"));
            QCOMPARE(qml.objectAt(range.first), object);
            QCOMPARE(qml.objectAt(range.first + range.count - 1), object);
        }
        QCOMPARE(qml.objectAt(qml.linesOf(inner).first - 1), group); // the empty line before it
        QCOMPARE(qml.objectAt(0), nullptr);
        QCOMPARE(qml.objectAt(2), m_screen);
        QCOMPARE(qml.objectAt(qml.linesOf(first).first - 1), m_screen);
        QCOMPARE(qml.objectAt(qml.lineCount() - 2), m_screen);
        QCOMPARE(qml.objectAt(qml.lineCount() - 1), nullptr);
        QCOMPARE(qml.objectAt(-1), nullptr);
        QCOMPARE(qml.objectAt(10000), nullptr);
        QCOMPARE(qml.linesOf(m_session->project()).count, 0);
        QCOMPARE(lines.at(qml.linesOf(m_screen).first), QStringLiteral("Screen {"));
    }

    void aChangeTouchesTheLinesThatChangedAlone()
    {
        add("Rectangle");
        DesignerObject* element = add("Rectangle");
        add("Rectangle");
        ScreenQml qml(m_screen);
        const QStringList before = qml.lines();
        QVERIFY(m_session->setProperty(element, QStringLiteral("position"), QStringLiteral("7,0")).accepted);
        const LineChange change = qml.update(element);
        QCOMPARE(change.old.count, 1);
        QCOMPARE(change.lines.size(), 1);
        QVERIFY(change.lines.constFirst().contains(QLatin1Char('7')));
        const LineRange range = qml.linesOf(element);
        QVERIFY(change.old.first > range.first && change.old.first < range.first + range.count);
        QCOMPARE(applied(before, change), qml.lines());
        QCOMPARE(qml.text(), ScreenQml(m_screen).text());
        // And what is the same already changes nothing.
        const LineChange none = qml.update(element);
        QCOMPARE(none.old.count, 0);
        QVERIFY(none.lines.isEmpty());
    }

    void anySequenceOfEditsKeepsTheTextOfTheScreen()
    {
        QVERIFY(rc::check([this] {
            makeSession();
            ScreenQml qml(m_screen);
            QStringList shown = qml.lines();
            const int steps = *rc::gen::inRange(1, 25);
            for (int step = 0; step < steps; ++step) {
                const QVector<DesignerObject*> elements = m_screen->childList()->items();
                const int kind = elements.isEmpty() ? 0 : *rc::gen::inRange(0, 7);
                DesignerObject* element =
                    elements.isEmpty() ? nullptr : elements.at(*rc::gen::inRange<qsizetype>(0, elements.size()));
                const auto number = [] { return QString::number(*rc::gen::inRange(-50, 300)); };
                switch (kind) {
                case 0:
                    add(*rc::gen::element("Rectangle", "TextBox", "Line", "Ellipse"));
                    break;
                case 1:
                    RC_ASSERT(m_session->removeElements({element}).accepted);
                    break;
                case 2:
                    RC_ASSERT(m_session->reorder(element, *rc::gen::inRange(0, int(elements.size()))).accepted);
                    break;
                case 3:
                    (void)m_session->setProperty(
                        m_screen, QStringLiteral("color"),
                        *rc::gen::element(QStringLiteral("#102030"), QStringLiteral("#ff0000")));
                    break;
                case 4:
                    (void)m_session->undo();
                    break;
                default:
                    (void)m_session->setProperty(element, QStringLiteral("position"),
                                                 number() + QLatin1Char(',') + number());
                    shown = applied(shown, qml.update(element));
                    continue;
                }
                shown = applied(shown, qml.rebuild());
            }
            RC_ASSERT(qml.lines() == shown);
            RC_ASSERT(qml.text() == ScreenQml(m_screen).text());
            RC_ASSERT(qml.lineCount() == int(shown.size()));
        }));
    }

    void differencesAreSmallestAndComplete()
    {
        QVERIFY(rc::check([] {
            const auto text = rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 3));
            const auto lines = [](const std::vector<int>& numbers) {
                QStringList made;
                for (const int number : numbers)
                    made.append(QString::number(number));
                return made;
            };
            const QStringList before = lines(*text);
            const QStringList after = lines(*text);
            const LineChange change = ScreenQml::difference(before, after, 0);
            RC_ASSERT(applied(before, change) == after);
            if (before == after)
                RC_ASSERT(change.old.count == 0 && change.lines.isEmpty());
            if (change.old.count > 0 && !change.lines.isEmpty()) {
                RC_ASSERT(before.at(change.old.first) != change.lines.constFirst());
                RC_ASSERT(before.at(change.old.first + change.old.count - 1) != change.lines.constLast());
            }
        }));
    }

    void pendingValuesAreSeenAndPutBackToTheLetter()
    {
        QVERIFY(rc::check([this] {
            makeSession();
            for (const char* name :
                 {"Rectangle", "TextBox", "Line", "IrregularPolygon", "LinearGradientElement", "Image"})
                add(name);
            QMap<QString, QString> before;
            QVector<QSharedPointer<DesignerProperty>> all;
            visit(m_screen, [&](const DesignerObject* object) {
                for (const auto& property : object->properties()) {
                    before.insert(object->getIdName() + QLatin1Char('.') + property->id(), property->valueString());
                    if (!dynamic_cast<const ObjectListProperty*>(property.data()))
                        all.append(property);
                }
            });
            const QString text = ScreenQml(m_screen).text();
            const int steps = m_session->undoStack()->count();
            QSignalSpy heard(m_session->project(), &Project::objectPropertyChanged);
            const std::vector<QString> values{QStringLiteral("12.25,-3"),
                                              QStringLiteral("250,80"),
                                              QStringLiteral("#80ff0000"),
                                              QStringLiteral("angle: 30; fixedPoint: TopLeft;"),
                                              QStringLiteral("nonsense"),
                                              QString(),
                                              QStringLiteral("0.1"),
                                              QStringLiteral("width: 3; color: #00ff00;"),
                                              QStringLiteral("0,0; 100,0; 0.125,100;")};
            QVector<PropertyChange> changes;
            const int count = *rc::gen::inRange(1, 12);
            for (int i = 0; i < count; ++i) {
                const auto property = all.at(*rc::gen::inRange<qsizetype>(0, all.size()));
                changes.append({property, property->valueString(), *rc::gen::elementOf(values)});
            }
            changes.append({m_screen->childList()->items().constFirst()->getProperty(QStringLiteral("position")),
                            QString(), QStringLiteral("77.5,11")});
            {
                const ChangeRecording recording;
                const PendingValues pending(changes);
                RC_ASSERT(ScreenQml(m_screen).text().contains(QStringLiteral("x: 77.5")));
            }
            visit(m_screen, [&](const DesignerObject* object) {
                for (const auto& property : object->properties())
                    RC_ASSERT(before.value(object->getIdName() + QLatin1Char('.') + property->id())
                              == property->valueString());
            });
            RC_ASSERT(ScreenQml(m_screen).text() == text);
            RC_ASSERT(m_session->undoStack()->count() == steps);
            RC_ASSERT(heard.isEmpty());
        }));
    }

private:
    void makeSession()
    {
        auto made = std::make_unique<Project>();
        if (!made->initialize())
            qFatal("no project");
        m_session = std::make_unique<EditSession>(std::move(made));
        m_session->addScreen(QStringLiteral("main"), QSizeF(800, 480), &m_screen);
    }

    DesignerObject* add(const char* className)
    {
        DesignerObject* element = nullptr;
        const EditResult result = m_session->addElement(QString::fromLatin1(className), m_screen, {}, {}, &element);
        if (!result.accepted)
            qFatal("%s: %s", className, qPrintable(result.message));
        return element;
    }

    DesignerObject* addGroup()
    {
        auto group = std::make_unique<Group>();
        const bool added = group->initialize() && m_screen->addListItem(m_screen->childList(), group.get(), 1);
        return added ? group.release() : nullptr;
    }

    void moveInto(DesignerObject* group, DesignerObject* element)
    {
        QVERIFY(m_screen->removeListItem(m_screen->childList(), element));
        QVERIFY(group->addListItem(group->childList(), element, 0));
    }

    std::unique_ptr<EditSession> m_session;
    Screen* m_screen = nullptr;
};

QTEST_MAIN(tst_ScreenQml)
#include "tst_ScreenQml.moc"
