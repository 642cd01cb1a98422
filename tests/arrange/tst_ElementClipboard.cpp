#include "host/core/arrange/ElementClipboard.h"

#include "host/core/arrange/Grouping.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QGraphicsItem>
#include <QImage>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

using namespace Korvex::Meridane::Designer;

class tst_ElementClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { (void)DesignerFactory::instance()->loadInstalledPlugins(); }

    void init()
    {
        m_session = std::make_unique<EditSession>(ProjectStore::create(QStringLiteral("Kettle"), QSizeF(320, 240)));
    }

    void copiesAreOneStepSelectedAndMovedAside()
    {
        DesignerObject* first = add(QStringLiteral("10,20"));
        DesignerObject* second = add(QStringLiteral("50,20"));
        const int steps = m_session->undoStack()->count();
        const QByteArray data = ElementClipboard::write(m_session.get(), {second, first});
        const EditResult result = ElementClipboard::insert(m_session.get(), data, QStringLiteral("Paste"));
        QVERIFY2(result.accepted, qPrintable(result.message));
        QCOMPARE(m_session->undoStack()->count(), steps + 1);
        QCOMPARE(m_session->undoStack()->undoText(), QStringLiteral("Paste"));
        QCOMPARE(ids(), (QStringList{QStringLiteral("rectangle1"), QStringLiteral("rectangle2"),
                                     QStringLiteral("rectangle3"), QStringLiteral("rectangle4")}));
        QCOMPARE(position("rectangle3"), QStringLiteral("20,30"));
        QCOMPARE(position("rectangle4"), QStringLiteral("60,30"));
        QCOMPARE(m_session->selection().size(), 2);
        ElementClipboard::insert(m_session.get(), data, QStringLiteral("Paste"));
        QCOMPARE(position("rectangle5"), QStringLiteral("30,40"));
        m_session->undo();
        m_session->undo();
        QCOMPARE(ids().size(), 2);
    }

    void allPropertiesAreCopied()
    {
        DesignerObject* first = add(QStringLiteral("10,20"));
        m_session->setProperty(first, QStringLiteral("color"), QStringLiteral("#123456"));
        m_session->setProperty(first, QStringLiteral("cornerRadius"), QStringLiteral("7"));
        ElementClipboard::insert(m_session.get(), ElementClipboard::write(m_session.get(), {first}),
                                 QStringLiteral("Duplicate"));
        const DesignerObject* copy = m_session->currentScreen()->element(QStringLiteral("rectangle2"));
        QVERIFY(copy);
        for (const auto& property : first->properties()) {
            if (property->id() != QLatin1String("position"))
                QCOMPARE(copy->getProperty(property->id())->valueString(), property->valueString());
        }
    }

    void anotherScreenGetsThemAtTheSamePlace()
    {
        DesignerObject* first = add(QStringLiteral("10,20"));
        const QByteArray data = ElementClipboard::write(m_session.get(), {first});
        m_session->addScreen(QStringLiteral("other"));
        ElementClipboard::insert(m_session.get(), data, QStringLiteral("Paste"));
        QCOMPARE(m_session->currentScreen()->getIdName(), QStringLiteral("other"));
        QCOMPARE(ids(), QStringList{QStringLiteral("rectangle1")});
        QCOMPARE(position("rectangle1"), QStringLiteral("10,20"));
    }

    void screensAndForeignDataAreNoElements()
    {
        QVERIFY(ElementClipboard::write(m_session.get(), {m_session->currentScreen()}).isEmpty());
        const EditResult result = ElementClipboard::insert(m_session.get(), "no json", QStringLiteral("Paste"));
        QVERIFY(!result.accepted);
        QVERIFY(!result.message.isEmpty());
        QCOMPARE(m_session->undoStack()->count(), 0);
    }

    void copiesAreNeitherLockedNorHidden()
    {
        DesignerObject* first = add(QStringLiteral("10,20"));
        DesignerObject* second = add(QStringLiteral("50,20"));
        DesignerObject* group = nullptr;
        Grouping::group(m_session.get(), {first, second}, {}, &group);
        m_session->setLocked({group}, true);
        m_session->setHidden({second}, true);
        paste(ElementClipboard::write(m_session.get(), {group}));
        const DesignerObject* copy = m_session->selection().constFirst();
        QVERIFY(copy != group);
        QVERIFY(!EditorMarks::isLocked(copy));
        const auto& members = copy->childList()->items();
        QCOMPARE(members.size(), 2);
        for (const DesignerObject* member : members)
            QVERIFY(!EditorMarks::isHidden(member));
        ElementClipboard::duplicate(m_session.get(), {group});
        QVERIFY(!EditorMarks::isLocked(m_session->selection().constFirst()));
    }

    void pastingGoesIntoTheGroupThatIsSelectedOrAround()
    {
        DesignerObject* first = add(QStringLiteral("10,20"));
        DesignerObject* second = add(QStringLiteral("50,40"));
        DesignerObject* third = add(QStringLiteral("100,100"));
        DesignerObject* group = nullptr;
        Grouping::group(m_session.get(), {first, second}, {}, &group);
        const QByteArray data = ElementClipboard::write(m_session.get(), {third});
        m_session->setSelection({group});
        paste(data);
        const DesignerObject* inside = m_session->selection().constFirst();
        QCOMPARE(inside->parentObject(), group);
        // Where it was on the screen, in the coordinates of the group; nothing begins there in it yet.
        QCOMPARE(inside->graphicsItem()->graphic()->scenePos(), QPointF(100, 100));
        m_session->setSelection({first});
        paste(data);
        QCOMPARE(m_session->selection().constFirst()->parentObject(), group);
        QCOMPARE(m_session->selection().constFirst()->graphicsItem()->graphic()->scenePos(), QPointF(110, 110));
        m_session->setSelection({first, third});
        paste(data);
        QVERIFY(m_session->selection().constFirst()->parentObject() == m_session->currentScreen());
        m_session->setLocked({group}, true);
        m_session->setSelection({group});
        paste(data);
        QVERIFY(m_session->selection().constFirst()->parentObject() == m_session->currentScreen());
    }

    void aCopiedGroupIsPastedBesideItself()
    {
        DesignerObject* group = nullptr;
        Grouping::group(m_session.get(), {add(QStringLiteral("10,20")), add(QStringLiteral("50,40"))}, {}, &group);
        const QByteArray data = ElementClipboard::write(m_session.get(), {group});
        m_session->setSelection({group});
        paste(data);
        QVERIFY(m_session->selection().constFirst()->parentObject() == m_session->currentScreen());
        QCOMPARE(group->childList()->items().size(), 2);
    }

    void whatWasTurnedWithItsGroupIsPastedAsItWasSeen()
    {
        DesignerObject* first = add(QStringLiteral("60,80"));
        DesignerObject* group = nullptr;
        Grouping::group(m_session.get(), {first, add(QStringLiteral("90,100"))}, {}, &group);
        m_session->setProperty(group, QStringLiteral("rotation"), QStringLiteral("angle: 30; fixedPoint: Center;"));
        const QPolygonF seen = corners(first);
        const QByteArray data = ElementClipboard::write(m_session.get(), {first});
        m_session->setSelection({});
        paste(data, ElementClipboard::Placement::InPlace);
        const DesignerObject* copy = m_session->selection().constFirst();
        QVERIFY(copy->parentObject() == m_session->currentScreen());
        for (int i = 0; i < 4; ++i)
            QVERIFY((corners(copy).at(i) - seen.at(i)).manhattanLength() < 1e-6);
        ElementClipboard::duplicate(m_session.get(), {first}, QPointF(10, 0));
        const DesignerObject* duplicate = m_session->selection().constFirst();
        QCOMPARE(duplicate->parentObject(), group);
        QVERIFY((corners(duplicate).at(0) - seen.at(0) - QPointF(10, 0)).manhattanLength() < 1e-6);
    }

    void whatWouldNotBeSeenIsMovedOntoTheScreen()
    {
        DesignerObject* first = add(QStringLiteral("1000,-700"));
        m_session->setProperty(first, QStringLiteral("size"), QStringLiteral("40,30"));
        const QByteArray data = ElementClipboard::write(m_session.get(), {first});
        m_session->addScreen(QStringLiteral("small"), QSizeF(100, 60));
        for (const auto placement : {ElementClipboard::Placement::Aside, ElementClipboard::Placement::InPlace}) {
            paste(data, placement);
            const QRectF seen = corners(m_session->selection().constFirst()).boundingRect();
            QVERIFY2(QRectF(-1, -1, 102, 62).contains(seen), qPrintable(QDebug::toString(seen)));
        }
    }

    void linksBetweenTheCopiesFollowTheirNewIds()
    {
        DesignerObject* picture = nullptr;
        m_session->addElement(QStringLiteral("Image"), m_session->currentScreen(), QStringLiteral("picture"), {},
                              &picture);
        DesignerObject* other = add(QStringLiteral("10,20"));
        // Links lead to elements as well as to images.
        picture->getProperty(QStringLiteral("source"))->fill(other->getIdName());
        paste(ElementClipboard::write(m_session.get(), {picture, other}));
        const QList<DesignerObject*> copies = m_session->selection();
        QCOMPARE(copies.size(), 2);
        QVERIFY(copies.at(1)->getIdName() != other->getIdName());
        QCOMPARE(copies.at(0)->getProperty(QStringLiteral("source"))->valueString(), copies.at(1)->getIdName());
        QCOMPARE(picture->getProperty(QStringLiteral("source"))->valueString(), other->getIdName());
    }

    void picturesAndFontsComeAlongToAnotherProject()
    {
        const QTemporaryDir folder;
        QImage image(6, 4, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QVERIFY(image.save(folder.filePath(QStringLiteral("lamp.png"))));
        QString id;
        QVERIFY(m_session->importImage(folder.filePath(QStringLiteral("lamp.png")), &id).accepted);
        QString font;
        QStringList families;
        QVERIFY(m_session->importFont(QStringLiteral(MERIDANE_FONT), &font, &families).accepted);
        DesignerObject* picture = nullptr;
        m_session->addElement(QStringLiteral("Image"), m_session->currentScreen(), {}, {{QStringLiteral("source"), id}},
                              &picture);
        DesignerObject* label = nullptr;
        m_session->addElement(
            QStringLiteral("TextBox"), m_session->currentScreen(), {},
            {{QStringLiteral("font"), QStringLiteral("family: %1; pixelSize: 20;").arg(families.constFirst())}},
            &label);
        const QByteArray data = ElementClipboard::write(m_session.get(), {picture, label});
        // The other project has a picture of that name already, and the first project is closed.
        m_session = std::make_unique<EditSession>(ProjectStore::create(QStringLiteral("Stove"), QSizeF(320, 240)));
        image.fill(Qt::red);
        QVERIFY(image.save(folder.filePath(QStringLiteral("lamp.png"))));
        QVERIFY(m_session->importImage(folder.filePath(QStringLiteral("lamp.png")), &id).accepted);
        paste(data);
        const QStringList images = m_session->project()->imageResources();
        QCOMPARE(images.size(), 2);
        const QString shown = m_session->selection().constFirst()->getProperty(QStringLiteral("source"))->valueString();
        QVERIFY(shown != id && images.contains(shown));
        QCOMPARE(QImage(m_session->project()->imagesPath() + QLatin1Char('/') + shown).pixelColor(1, 1),
                 QColor(Qt::blue));
        QCOMPARE(m_session->project()->fontResources().size(), 1);
        // Once is enough.
        paste(data);
        QCOMPARE(m_session->project()->imageResources().size(), 2);
        QCOMPARE(m_session->project()->fontResources().size(), 1);
        QCOMPARE(m_session->selection().constFirst()->getProperty(QStringLiteral("source"))->valueString(), shown);
    }

    void damagedDataPastesWhatItCan()
    {
        DesignerObject* first = add(QStringLiteral("10,20"));
        QJsonObject content = QJsonDocument::fromJson(ElementClipboard::write(m_session.get(), {first})).object();
        content.insert(QStringLiteral("places"), QStringLiteral("none"));
        content.insert(QStringLiteral("resources"), 7);
        paste(QJsonDocument(content).toJson());
        QCOMPARE(m_session->selection().size(), 1);
        QCOMPARE(position("rectangle2"), QStringLiteral("20,30"));
    }

private:
    void paste(const QByteArray& data, ElementClipboard::Placement placement = ElementClipboard::Placement::Aside)
    {
        const EditResult result = ElementClipboard::insert(m_session.get(), data, QStringLiteral("Paste"), placement);
        QVERIFY2(result.changed, qPrintable(result.message));
    }

    static QPolygonF corners(const DesignerObject* object)
    {
        return object->graphicsItem()->graphic()->mapToScene(object->graphicsItem()->outerRect());
    }

    DesignerObject* add(const QString& position)
    {
        DesignerObject* added = nullptr;
        m_session->addElement(QStringLiteral("Rectangle"), m_session->currentScreen(), {},
                              {{QStringLiteral("position"), position}}, &added);
        return added;
    }

    QStringList ids() const
    {
        QStringList ids;
        const auto& items = m_session->currentScreen()->childList()->items();
        for (const DesignerObject* object : items)
            ids.append(object->getIdName());
        return ids;
    }

    QString position(const char* id) const
    {
        const DesignerObject* object = m_session->currentScreen()->element(QString::fromLatin1(id));
        return object ? object->getProperty(QStringLiteral("position"))->valueString() : QString();
    }

    std::unique_ptr<EditSession> m_session;
};

QTEST_MAIN(tst_ElementClipboard)
#include "tst_ElementClipboard.moc"
