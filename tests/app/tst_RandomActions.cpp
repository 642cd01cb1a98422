#include "app/AppSettings.h"
#include "app/EditActions.h"
#include "app/MainWindow.h"
#include "app/ProjectDocument.h"
#include "tests/app/FakePrompts.h"
#include "tests/app/RandomUser.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/ElementJson.h"
#include "host/core/project/Project.h"
#include "host/core/widgets/MessageBox.h"

#include <QClipboard>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using Test::FakePrompts;
using Test::RandomStep;
using Test::RandomUser;

namespace {

constexpr int StepCount = 500;

int numberFrom(const char* variable, int standard)
{
    bool given = false;
    const int value = qEnvironmentVariableIntValue(variable, &given);
    return given ? value : standard;
}

QStringList warnings;

void keepWarning(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    // The last is what the platform without a screen says about windows.
    if (type == QtDebugMsg || type == QtInfoMsg || text.startsWith(QLatin1String("This plugin does not support")))
        return;
    warnings << text;
    std::fprintf(stderr, "%s\n", qUtf8Printable(text));
}

void copyFolder(const QString& from, const QString& to)
{
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString target = to + file.mid(from.size());
        QDir().mkpath(QFileInfo(target).path());
        QFile::copy(file, target);
    }
}

/// Everything that the project's files would hold.
QByteArray stateOf(const Project* project)
{
    QJsonArray screens;
    for (const Screen* screen : project->screens()) {
        screen->readContent();
        screens.append(ElementJson::write(screen));
    }
    const QJsonObject all{{QStringLiteral("screens"), screens},
                          {QStringLiteral("images"), QJsonArray::fromStringList(project->imageResources())},
                          {QStringLiteral("fonts"), QJsonArray::fromStringList(project->fontResources())}};
    return QJsonDocument(all).toJson();
}

/// The first line in which two states differ.
QString difference(const QByteArray& expected, const QByteArray& found)
{
    const QList<QByteArray> one = expected.split('\n');
    const QList<QByteArray> other = found.split('\n');
    for (qsizetype i = 0; i < qMax(one.size(), other.size()); ++i) {
        if (one.value(i) != other.value(i)) {
            return QStringLiteral("line %1 is %2 instead of %3")
                .arg(i + 1)
                .arg(QString::fromUtf8(other.value(i).trimmed()), QString::fromUtf8(one.value(i).trimmed()));
        }
    }
    return {};
}

/// One project has many elements, the other one of each kind.
QString exampleFor(const QVector<RandomStep>& steps)
{
    return !steps.isEmpty() && steps.constFirst().seed % 2 == 0
               ? QStringLiteral(MERIDANE_SOURCE_DIR "/examples/thermostat")
               : QStringLiteral(MERIDANE_SOURCE_DIR "/examples/cluster");
}

/// Does \a steps in a window of their own; empty, or what went wrong.
QString faultOf(const QVector<RandomStep>& steps, const QString& example, bool list)
{
    warnings.clear();
    QFile::remove(AppSettings::filePath());
    QGuiApplication::clipboard()->clear();
    QTemporaryDir folder;
    copyFolder(example, folder.path());
    FakePrompts prompts;
    prompts.screenSize = ScreenSize{QSizeF(500, 320), true};
    MainWindow window(&prompts);
    window.resize(1280, 800);
    if (!window.openProject(folder.path()))
        return QStringLiteral("the project cannot be opened");
    window.show();
    QApplication::setActiveWindow(&window);
    if (!QTest::qWaitForWindowExposed(&window))
        return QStringLiteral("the window is not shown");
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();

    const EditSession* session = window.document()->session();
    UndoStack* stack = session->undoStack();
    const QByteArray start = stateOf(session->project());
    RandomUser user(&window);
    for (const RandomStep& step : steps) {
        user.perform(step);
        if (list)
            std::fprintf(stderr, "%s [%d]\n", qUtf8Printable(user.description()), stack->index());
        if (!warnings.isEmpty())
            return QStringLiteral("\"%1\" was logged after: %2").arg(warnings.constFirst(), user.description());
        if (window.document()->session() != session)
            return QStringLiteral("the project has gone after: %1").arg(user.description());
    }
    user.finish();
    const QByteArray end = stateOf(session->project());
    const int last = stack->index();
    if (steps.size() == StepCount && last < 10)
        return QStringLiteral("hardly anything has been done");
    stack->goTo(0);
    const QByteArray undone = stateOf(session->project());
    if (undone != start)
        return QStringLiteral("undo-all is not the start: %1").arg(difference(start, undone));
    stack->goTo(last);
    const QByteArray redone = stateOf(session->project());
    if (redone != end)
        return QStringLiteral("redo-all is not the end: %1").arg(difference(end, redone));
    QCoreApplication::processEvents();
    if (!warnings.isEmpty())
        return QStringLiteral("\"%1\" was logged in the end").arg(warnings.constFirst());
    return {};
}

/// \a steps without those that do not matter to the failure, as far as \a seconds allow.
QVector<RandomStep> reduced(QVector<RandomStep> steps, const QString& example, int seconds)
{
    QElapsedTimer timer;
    timer.start();
    for (qsizetype size = steps.size() / 2; size > 0; size = size == 1 ? 0 : qMax<qsizetype>(1, size / 2)) {
        for (qsizetype from = 0; from < steps.size();) {
            if (timer.elapsed() > seconds * 1000)
                return steps;
            QVector<RandomStep> fewer = steps;
            fewer.remove(from, qMin(size, steps.size() - from));
            if (faultOf(fewer, example, false).isEmpty())
                from += size;
            else
                steps = fewer;
        }
    }
    return steps;
}

} // namespace

/**
 * Whatever somebody does in the window can be undone step by step up to the start, and redone.
 *
 * MERIDANE_RANDOM_SEED repeats one run, MERIDANE_RANDOM_STEPS ends it earlier, MERIDANE_RANDOM_LIST=1 lists its steps,
 * MERIDANE_RANDOM_RUNS does more of them and MERIDANE_RANDOM_REDUCE is how many seconds are spent on finding out which
 * steps matter to a failure.
 */
class tst_RandomActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        MessageBox::setPresenter([](QWidget*, const QString&, const QString&) {});
        QVERIFY(DesignerFactory::instance()->loadInstalledPlugins().isEmpty());
    }

    void everythingCanBeUndoneAndRedone_data()
    {
        QTest::addColumn<quint32>("seed");
        if (qEnvironmentVariableIsSet("MERIDANE_RANDOM_SEED")) {
            const quint32 seed = qEnvironmentVariable("MERIDANE_RANDOM_SEED").toUInt();
            QTest::addRow("seed %u", seed) << seed;
            return;
        }
        rc::Random random{quint64(QDateTime::currentMSecsSinceEpoch())};
        for (int i = 0; i < numberFrom("MERIDANE_RANDOM_RUNS", 2); ++i) {
            const auto seed = quint32(random.next());
            QTest::addRow("seed %u", seed) << seed;
        }
    }

    void everythingCanBeUndoneAndRedone()
    {
        QFETCH(const quint32, seed);
        const QVector<RandomStep> steps = RandomUser::steps(seed, numberFrom("MERIDANE_RANDOM_STEPS", StepCount));
        const QtMessageHandler before = qInstallMessageHandler(keepWarning);
        const QString example = exampleFor(steps);
        QString fault = faultOf(steps, example, numberFrom("MERIDANE_RANDOM_LIST", 0) != 0);
        if (!fault.isEmpty()) {
            std::fprintf(stderr, "MERIDANE_RANDOM_SEED=%u: %s\n", seed, qUtf8Printable(fault));
            const QVector<RandomStep> fewer = reduced(steps, example, numberFrom("MERIDANE_RANDOM_REDUCE", 15));
            std::fprintf(stderr, "%d steps are enough:\n", int(fewer.size()));
            fault = faultOf(fewer, example, true);
        }
        qInstallMessageHandler(before);
        QVERIFY2(fault.isEmpty(), qUtf8Printable(fault));
    }
};

QTEST_MAIN(tst_RandomActions)
#include "tst_RandomActions.moc"
