#include "host/core/arrange/ElementClipboard.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"

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

private:
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
