#include "host/core/canvas/EditSession.h"
#include "host/core/commands/AddObject.h"
#include "host/core/commands/ChangeProperty.h"
#include "host/core/commands/MoveObject.h"
#include "host/core/commands/RemoveObject.h"
#include "host/core/commands/RenameObject.h"
#include "host/core/objects/Group.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"
#include "tests/project/ProjectTestSupport.h"

#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// Projects made at random: what is saved is what is read, and undo brings back files byte by byte.
class tst_ProjectRoundTrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void savingALoadedProjectGivesTheSameFiles();
    void undoingEverythingGivesTheSameFiles();
    void editsOnTheCanvasAndTheirUndoGiveTheSameFiles();
    void theExamplesAreInTheFormOfTheProgram_data();
    void theExamplesAreInTheFormOfTheProgram();

private:
    AllTypesFactory m_factory;
};

namespace {

QString anyText()
{
    const auto units = *rc::gen::container<std::u16string>(
        rc::gen::oneOf(rc::gen::element<char16_t>(u'"', u'\\', u'\n', u'\t', u'\0', u';', u':', u'\u2028'),
                       rc::gen::inRange<char16_t>(u'a', u'z'), rc::gen::arbitrary<char16_t>()));
    return QString::fromStdU16String(units);
}

template <typename Item>
Item anyOf(const QList<Item>& items)
{
    return items.at(*rc::gen::inRange<qsizetype>(0, items.size()));
}

/// A value string for a property: mostly one that its type takes.
QString anyValue(const DesignerProperty& property)
{
    const auto number = [] { return *rc::gen::inRange(-300, 300) / 4.0; };
    if (*rc::gen::inRange(0, 8) == 0)
        return anyText();
    const QString type = property.className();
    if (type == QLatin1String("SizeProperty") || type == QLatin1String("PointProperty"))
        return ValueConversion::toString(QPointF(number(), number()));
    if (type == QLatin1String("ColorProperty"))
        return ValueConversion::toString(QColor::fromRgba(*rc::gen::arbitrary<quint32>()));
    if (type == QLatin1String("BorderProperty"))
        return ValueConversion::toString(BorderInfo(*rc::gen::inRange(0, 20), Qt::red));
    if (type == QLatin1String("IntegerProperty"))
        return QString::number(*rc::gen::inRange(-5, 120));
    if (type == QLatin1String("RealProperty"))
        return ValueConversion::toString(number());
    if (type == QLatin1String("PointListProperty"))
        return ValueConversion::toString(QPolygonF{{number(), number()}, {number(), number()}});
    if (type == QLatin1String("RotationProperty"))
        return QStringLiteral("angle: %1; fixedPoint: TopLeft;").arg(ValueConversion::toString(number()));
    if (type == QLatin1String("EnumProperty"))
        return QStringLiteral("Raised");
    return anyText();
}

QList<DesignerObject*> elementsOf(Project* project)
{
    QList<DesignerObject*> elements;
    const std::function<void(DesignerObject*)> collect = [&](DesignerObject* parent) {
        for (DesignerObject* child : parent->childList()->items()) {
            elements.append(child);
            if (child->childList())
                collect(child);
        }
    };
    for (Screen* screen : project->screens())
        collect(screen);
    return elements;
}

std::unique_ptr<DesignerObject> anyElement()
{
    std::unique_ptr<DesignerObject> element;
    if (*rc::gen::inRange(0, 4) == 0)
        element = std::make_unique<Group>();
    else
        element = std::make_unique<AllTypesElement>();
    element->initialize();
    return element;
}

/// One edit by a command; it may be refused.
void editAtRandom(Project* project)
{
    QList<DesignerObject*> objects = elementsOf(project);
    for (Screen* screen : project->screens())
        objects.append(screen);
    objects.append(project);
    DesignerObject* object = anyOf(objects);
    const bool isProject = object == project;
    std::unique_ptr<UndoCommand> command;
    switch (*rc::gen::inRange(0, 8)) {
    case 0:
        if (!isProject && object->childList()) {
            command = std::make_unique<AddObject>(object, anyElement(), *rc::gen::inRange(-1, 3), nullptr);
        } else if (isProject) {
            auto screen = std::make_unique<Screen>();
            screen->initialize();
            command = std::make_unique<AddObject>(project, std::move(screen), *rc::gen::inRange(-1, 3), nullptr);
        }
        break;
    case 1:
        if (!isProject)
            command = std::make_unique<RemoveObject>(object, nullptr);
        break;
    case 2:
        if (!isProject)
            command = std::make_unique<MoveObject>(object, *rc::gen::inRange(0, 4), nullptr);
        break;
    case 3:
        if (!isProject) {
            command =
                std::make_unique<RenameObject>(object, QStringLiteral("name%1").arg(*rc::gen::inRange(0, 12)), nullptr);
        }
        break;
    default: {
        const auto property = anyOf(object->properties());
        if (!dynamic_cast<ObjectListProperty*>(property.data()))
            command = std::make_unique<ChangeProperty>(property, anyValue(*property), false, nullptr);
    }
    }
    if (command)
        project->execute(std::move(command));
}

QMap<QString, QByteArray> saved(Project* project)
{
    QString message;
    if (!ProjectStore::save(project, project->folder(), &message))
        RC_FAIL(message.toStdString());
    return filesOf(project->folder());
}

} // namespace

void tst_ProjectRoundTrip::initTestCase()
{
    QString message;
    QVERIFY2(DesignerFactory::instance()->loadPlugin(QString::fromUtf8(MERIDANE_PLUGIN_FILE), &message),
             qUtf8Printable(message));
}

void tst_ProjectRoundTrip::savingALoadedProjectGivesTheSameFiles()
{
    QVERIFY(rc::check("save, load, save into another folder: the same bytes", [] {
        const ProjectFixture fixture;
        auto project = ProjectStore::create(anyText(), QSizeF(100, 50));
        const int edits = *rc::gen::inRange(0, 40);
        for (int i = 0; i < edits; ++i)
            editAtRandom(project.get());
        QString message;
        RC_ASSERT(ProjectStore::save(project.get(), fixture.folder(), &message));
        const auto first = filesOf(fixture.folder());
        const bool readsAll = *rc::gen::arbitrary<bool>();
        auto loaded = ProjectStore::load(fixture.folder());
        RC_ASSERT(loaded.project != nullptr);
        if (readsAll)
            RC_ASSERT(textOf(ProjectStore::readAllScreens(loaded.project.get())) == QString());
        RC_ASSERT(ProjectStore::save(loaded.project.get(), fixture.path("second"), &message));
        RC_ASSERT(filesOf(fixture.path("second")) == first);
    }));
}

void tst_ProjectRoundTrip::undoingEverythingGivesTheSameFiles()
{
    QVERIFY(rc::check("undo all: the old bytes; redo all: the new ones", [] {
        const ProjectFixture fixture;
        auto made = ProjectStore::create(QStringLiteral("Test"), QSizeF(100, 50));
        for (int i = *rc::gen::inRange(0, 15); i > 0; --i)
            editAtRandom(made.get());
        QString message;
        RC_ASSERT(ProjectStore::save(made.get(), fixture.folder(), &message));
        made.reset();

        auto loaded = ProjectStore::load(fixture.folder());
        Project* project = loaded.project.get();
        const auto before = filesOf(fixture.folder());
        for (int i = *rc::gen::inRange(1, 25); i > 0; --i) {
            editAtRandom(project);
            if (*rc::gen::inRange(0, 6) == 0)
                saved(project);
        }
        const auto after = saved(project);
        project->undoStack()->goTo(0);
        RC_ASSERT(saved(project) == before);
        project->undoStack()->goTo(project->undoStack()->count());
        RC_ASSERT(saved(project) == after);
        // What was saved in between can be read, too.
        project->undoStack()->goTo(*rc::gen::inRange(0, project->undoStack()->count() + 1));
        const auto between = saved(project);
        auto again = ProjectStore::load(fixture.folder());
        RC_ASSERT(textOf(again.problems) == QString());
        RC_ASSERT(textOf(ProjectStore::readAllScreens(again.project.get())) == QString());
        RC_ASSERT(ProjectStore::save(again.project.get(), fixture.path("copy"), &message));
        RC_ASSERT(filesOf(fixture.path("copy")) == between);
    }));
}

void tst_ProjectRoundTrip::editsOnTheCanvasAndTheirUndoGiveTheSameFiles()
{
    QVERIFY(rc::check("the same with items on a canvas", [] {
        const ProjectFixture fixture;
        auto made = ProjectStore::create(QStringLiteral("Test"), QSizeF(400, 300));
        QString message;
        RC_ASSERT(ProjectStore::save(made.get(), fixture.folder(), &message));
        made.reset();
        auto loaded = ProjectStore::load(fixture.folder());
        Project* project = loaded.project.get();
        EditSession session(std::move(loaded.project));
        const auto before = saved(project);
        for (int i = *rc::gen::inRange(1, 20); i > 0; --i) {
            Screen* screen = project->screens().first();
            const QList<DesignerObject*> elements = elementsOf(project);
            const int kind = elements.isEmpty() ? 0 : *rc::gen::inRange(0, 6);
            if (kind == 0) {
                session.addElement(QStringLiteral("Rectangle"), screen, {},
                                   {{QStringLiteral("position"), QStringLiteral("%1,5").arg(i)}});
                continue;
            }
            DesignerObject* element = anyOf(elements);
            if (kind == 1)
                session.removeElements({element});
            else if (kind == 2)
                session.rotateElement(element, *rc::gen::inRange(-90, 90), QStringLiteral("TopLeft"));
            else if (kind == 3)
                session.moveElements({element}, QPointF(*rc::gen::inRange(-9, 9), 2.5));
            else {
                const auto property = anyOf(element->properties());
                session.setProperty(element, property->id(), anyValue(*property));
            }
        }
        const auto after = saved(project);
        session.undoStack()->goTo(0);
        RC_ASSERT(saved(project) == before);
        session.undoStack()->goTo(session.undoStack()->count());
        RC_ASSERT(saved(project) == after);
    }));
}

void tst_ProjectRoundTrip::theExamplesAreInTheFormOfTheProgram_data()
{
    QTest::addColumn<QString>("folder");
    const QMap<QString, QString> examples = projectsBelow(QString::fromUtf8(MERIDANE_EXAMPLES));
    QVERIFY(!examples.isEmpty());
    for (auto example = examples.cbegin(); example != examples.cend(); ++example)
        QTest::newRow(qUtf8Printable(example.key())) << example.value();
}

void tst_ProjectRoundTrip::theExamplesAreInTheFormOfTheProgram()
{
    QFETCH(QString, folder);
    const ProjectFixture fixture;
    QList<Problem> problems;
    const auto project = load(folder, &problems);
    QCOMPARE(textOf(problems), QString());
    QString message;
    QVERIFY2(ProjectStore::save(project.get(), fixture.path("copy"), &message), qUtf8Printable(message));
    const auto copy = filesOf(fixture.path("copy"));
    for (auto file = copy.cbegin(); file != copy.cend(); ++file)
        QCOMPARE(readFile(folder + QLatin1Char('/') + file.key()), file.value());
}

QTEST_MAIN(tst_ProjectRoundTrip)
#include "tst_ProjectRoundTrip.moc"
