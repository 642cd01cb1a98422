#include "app/ProjectDocument.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using namespace Korvex::Meridane::Designer;

class tst_ProjectDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { (void)DesignerFactory::instance()->loadInstalledPlugins(); }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_document = std::make_unique<ProjectDocument>();
        m_document->create(ProjectDocument::untitledName(), ProjectDocument::DefaultDisplaySize);
    }

    void aNewProjectIsUntitledAndUnmodified()
    {
        QVERIFY(m_document->isUntitled());
        QVERIFY(!m_document->isModified());
        QVERIFY(QDir(m_document->project()->folder()).exists());
        QVERIFY(m_document->session()->currentScreen());
    }

    void theTemporaryFolderGoesWithTheUnsavedProject()
    {
        const QString folder = m_document->project()->folder();
        m_document->create(QStringLiteral("Other"), QSizeF(320, 240));
        QVERIFY(!QDir(folder).exists());
    }

    void aSavedProjectOpensAgain()
    {
        add();
        QVERIFY(m_document->isModified());
        QString message;
        QVERIFY2(m_document->saveAs(path("kettle"), &message), qPrintable(message));
        QVERIFY(!m_document->isModified());
        QVERIFY(!m_document->isUntitled());
        QCOMPARE(m_document->name(), QStringLiteral("kettle"));
        add();
        QVERIFY2(m_document->save(&message), qPrintable(message));

        ProjectDocument other;
        QList<Problem> problems;
        QVERIFY(other.open(path("kettle/project.json"), &problems));
        QVERIFY(problems.isEmpty());
        QCOMPARE(other.name(), QStringLiteral("kettle"));
        QVERIFY(!other.isModified());
    }

    void aFolderWithOtherContentIsNotSavedInto()
    {
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("photos")));
        QFile photo(path("photos/.hidden"));
        QVERIFY(photo.open(QIODevice::WriteOnly));
        QString message;
        QVERIFY(!m_document->saveAs(path("photos"), &message));
        QVERIFY(message.contains(QStringLiteral("photos")));
        QVERIFY(m_document->isUntitled());
        QCOMPARE(m_document->name(), ProjectDocument::untitledName());
        QCOMPARE(QDir(path("photos")).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral(".hidden")});
    }

    void aFileIsNotSavedOver()
    {
        QFile file(path("notes"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QString message;
        QVERIFY(!m_document->saveAs(path("notes"), &message));
        QVERIFY(!message.isEmpty());
    }

    void whatCannotBeOpenedLeavesThePresentProject()
    {
        EditSession* before = m_document->session();
        QList<Problem> problems;
        QVERIFY(!m_document->open(path("nowhere"), &problems));
        QVERIFY(!problems.isEmpty());
        QCOMPARE(m_document->session(), before);
    }

    void viewsAreToldBeforeTheSessionGoes()
    {
        const QPointer<EditSession> old = m_document->session();
        bool alive = false;
        connect(m_document.get(), &ProjectDocument::sessionAboutToClose, this, [&] { alive = old != nullptr; });
        QSignalSpy changed(m_document.get(), &ProjectDocument::sessionChanged);
        m_document->create(QStringLiteral("Next"), QSizeF(320, 240));
        QVERIFY(alive);
        QVERIFY(!old);
        QCOMPARE(changed.count(), 1);
    }

private:
    void add()
    {
        const EditResult result = m_document->session()->addElement(QStringLiteral("Rectangle"),
                                                                    m_document->session()->currentScreen(), {}, {});
        QVERIFY2(result.accepted, qPrintable(result.message));
    }

    QString path(const char* name) const { return m_folder->filePath(QString::fromLatin1(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ProjectDocument> m_document;
};

QTEST_MAIN(tst_ProjectDocument)
#include "tst_ProjectDocument.moc"
