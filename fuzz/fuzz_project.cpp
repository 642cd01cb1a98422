// Opens a project of which one file is the input, saves it elsewhere, opens and saves that: the two saves are the same
// bytes, and nothing that could be opened is lost on the way. An input that begins with "project" is project.json behind
// that word, any other is the file of a screen.

#include "host/core/objects/Screen.h"
#include "host/core/project/JsonKeyScanner.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectChecker.h"
#include "host/core/project/ProjectStore.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

using namespace Korvex::Meridane::Designer;

namespace {

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s cannot be written", qUtf8Printable(path));
}

QMap<QString, QByteArray> filesOf(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator entries(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        QFile file(entries.next());
        if (file.open(QIODevice::ReadOnly))
            files.insert(QDir(folder).relativeFilePath(file.fileName()), file.readAll());
    }
    return files;
}

/// Opens \a from with every screen, checks it, and saves it into \a to.
bool pass(const QString& from, const QString& to)
{
    auto loaded = ProjectStore::load(from);
    if (!loaded.project) {
        if (loaded.problems.isEmpty())
            qFatal("a project is refused without a reason");
        return false;
    }
    for (const Problem& problem : ProjectChecker::check(loaded.project.get())) {
        if (problem.text().contains(QLatin1Char('\n')))
            qFatal("a problem of several lines");
    }
    QString message;
    if (!ProjectStore::save(loaded.project.get(), to, &message))
        qFatal("%s", qUtf8Printable(message));
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz_project";
    static char* argv[] = {name, nullptr};
    static const QCoreApplication application(argc, argv);
    static const QString memory = QStringLiteral("/dev/shm");

    const QByteArray input(reinterpret_cast<const char*>(data), qsizetype(size));
    (void)JsonKeyScanner(input).firstDuplicate(); // takes any bytes, though it is only asked about JSON

    const QTemporaryDir folder((QDir(memory).exists() ? memory : QDir::tempPath()) + QStringLiteral("/fuzz-XXXXXX"));
    const QString first = folder.filePath(QStringLiteral("first"));
    QDir().mkpath(first + QStringLiteral("/screens"));
    const QByteArray prefix = "project";
    const bool isProject = input.startsWith(prefix);
    write(first + QStringLiteral("/project.json"),
          isProject ? input.sliced(prefix.size()) : QByteArray(R"({"formatVersion": 1, "screens": ["main"]})"));
    write(first + QStringLiteral("/screens/main.json"),
          isProject ? QByteArray(R"({"elements": [{"class": "Group", "id": "g", "elements": []}]})") : input);

    const QString second = folder.filePath(QStringLiteral("second"));
    const QString third = folder.filePath(QStringLiteral("third"));
    if (!pass(first, second))
        return 0;
    if (!pass(second, third))
        qFatal("what was saved is refused");
    if (filesOf(second) != filesOf(third))
        qFatal("the second save differs from the first");
    return 0;
}
