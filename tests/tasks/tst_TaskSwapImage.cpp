#include "tests/tasks/TaskProgram.h"

#include "app/ImageList.h"
#include "app/ImageListModel.h"
#include "app/ImagePanel.h"
#include "app/MainWindow.h"
#include "app/Workspace.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/project/Project.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::TaskProgram;
using Test::TaskUser;

/// The picture of a balloon is replaced by another one wherever it is shown.
class tst_TaskSwapImage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_project = m_program.openCopy(QStringLiteral("sheets/images"));
        QVERIFY(!m_project.isEmpty());
        QImage sun(64, 64, QImage::Format_ARGB32);
        sun.fill(Qt::transparent);
        QPainter painter(&sun);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_color);
        painter.drawEllipse(2, 2, 60, 60);
        painter.end();
        QVERIFY(sun.save(m_program.folder() + QStringLiteral("/sun.png")));
    }

    void thePictureIsReplacedEverywhere()
    {
        const QString failure = m_program.carryOut([this](const TaskUser& user) {
            user.command(QStringLiteral("Fit Screen"));
            user.click(user.tab(QStringLiteral("Images")));
            const QRect row = user.placeOf(QStringLiteral("the list of images"), [this]() -> QWidget* {
                return m_program.window()->workspace()->images()->list()->viewport();
            });
            QPoint balloon;
            TaskUser::look([&] {
                const ImageList* list = m_program.window()->workspace()->images()->list();
                const QModelIndexList found = list->model()->match(list->model()->index(0, 0), Qt::DisplayRole,
                                                                   QStringLiteral("balloon"), 1, Qt::MatchContains);
                if (!found.isEmpty())
                    balloon = row.topLeft() + list->visualRect(found.first()).center();
            });
            if (balloon.isNull())
                throw Test::TaskFailure{QStringLiteral("The panel does not list the balloon")};
            user.click(balloon);
            user.picture(QStringLiteral("image-before"));
            user.click(user.button(QStringLiteral("Replace File")).center());
            user.chooseFile(m_program.folder() + QStringLiteral("/sun.png"));
            user.waitUntil(QStringLiteral("the replaced picture"),
                           [this] { return session()->undoStack()->count() == 1; });
            user.moveTo(QPoint(4, 4));
            user.picture(QStringLiteral("image-replaced"));
        });
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
        const QImage replaced(m_project + QStringLiteral("/images/balloon.png"));
        QCOMPARE(replaced.size(), QSize(64, 64));
        QCOMPARE(replaced.pixelColor(32, 32), m_color);
        // Four elements show it; the yellow of the new picture is seen at several places of the canvas.
        const QImage seen(pictureFile(QStringLiteral("image-replaced")));
        const QImage before(pictureFile(QStringLiteral("image-before")));
        QVERIFY(count(seen) > count(before) + 500);
    }

    void undoBringsTheBalloonBack()
    {
        const QString failure = m_program.carryOut([this](const TaskUser& user) {
            user.key(QStringLiteral("ctrl+z"));
            user.waitUntil(QStringLiteral("the old picture"), [this] {
                return QImage(m_project + QStringLiteral("/images/balloon.png")).size() != QSize(64, 64);
            });
        });
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
    }

private:
    [[nodiscard]] EditSession* session() const { return m_program.window()->workspace()->session(); }
    [[nodiscard]] static QString pictureFile(const QString& name) { return TaskUser::pictureFile(name); }
    [[nodiscard]] int count(const QImage& picture) const
    {
        int pixels = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                pixels += picture.pixelColor(x, y) == m_color;
        }
        return pixels;
    }

    const QColor m_color{255, 221, 17};
    TaskProgram m_program;
    QString m_project;
};

int main(int argc, char* argv[])
{
    return TaskProgram::run(argc, argv, [] { return std::make_unique<tst_TaskSwapImage>(); });
}

#include "tst_TaskSwapImage.moc"
