#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/DesignerProperty.h"

#include <QGraphicsItem>
#include <QtTest>

using namespace Korvex::Meridane::Designer;

/// The example of docs/adding-an-element.md, loaded and used as any plug-in.
class tst_ElementPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QString message;
        QVERIFY2(DesignerFactory::instance()->loadPlugin(QStringLiteral(MERIDANE_PLUGIN_FILE), &message),
                 qPrintable(message));
        m_session = std::make_unique<EditSession>(ProjectStore::create(QStringLiteral("badges"), QSizeF(320, 240)));
    }

    void aBadgeIsAddedEditedAndUndone()
    {
        DesignerObject* badge = nullptr;
        QVERIFY(
            m_session->addElement(QStringLiteral("Badge"), m_session->currentScreen(), QString(), {}, &badge).changed);
        QCOMPARE(badge->getIdName(), QStringLiteral("badge1"));
        QCOMPARE(badge->graphicsItem()->graphic()->boundingRect(), QRectF(0, 0, 24, 24));
        QVERIFY(m_session->setProperty(badge, QStringLiteral("diameter"), QStringLiteral("40")).changed);
        QCOMPARE(badge->graphicsItem()->graphic()->boundingRect(), QRectF(0, 0, 40, 40));
        m_session->undo();
        QCOMPARE(badge->graphicsItem()->graphic()->boundingRect(), QRectF(0, 0, 24, 24));
        const EditResult refused = m_session->setProperty(badge, QStringLiteral("diameter"), QStringLiteral("1000"));
        QCOMPARE(refused.message, QStringLiteral("The diameter must be between 4 and 200."));
    }

    void itsQmlIsThatOfADisplayType()
    {
        DesignerObject* badge = nullptr;
        QVERIFY(m_session
                    ->addElement(QStringLiteral("Badge"), m_session->currentScreen(), QStringLiteral("dot"),
                                 {{QStringLiteral("diameter"), QStringLiteral("30")}}, &badge)
                    .changed);
        QVERIFY(badge->toQml(0).startsWith(QLatin1String("Rectangle2 {\n\tid: dot\n")));
        QVERIFY(badge->toQml(0).contains(QLatin1String("\twidth: 30\n\theight: 30\n\tcornerRadius: 15\n")));
    }

private:
    std::unique_ptr<EditSession> m_session;
};

QTEST_MAIN(tst_ElementPlugin)
#include "tst_ElementPlugin.moc"
