#include "tests/project/ImageEditFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

/// What a person sees: the list of images in its order, what each holds, and what each element shows.
struct Seen
{
    QStringList images;
    QMap<QString, QByteArray> contents;
    QStringList links;

    friend bool operator==(const Seen& a, const Seen& b) = default;
};

Seen look(const ImageEditFixture& edit)
{
    Seen seen{edit.images(), {}, edit.links()};
    for (const QString& image : edit.images())
        seen.contents.insert(image, edit.content(image));
    return seen;
}

int anyNumber(int low, int high)
{
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(low, high));
}

/// The project as its files hold it: the JSON files, and the images that project.json lists.
QMap<QString, QByteArray> savedProject(const ImageEditFixture& edit)
{
    QMap<QString, QByteArray> files = filesOf(edit.files.folder());
    const QJsonArray listed =
        QJsonDocument::fromJson(files.value(QStringLiteral("project.json"))).object().value(u"images").toArray();
    files.removeIf([&listed](const QMap<QString, QByteArray>::iterator& file) {
        return file.key().startsWith(QLatin1String("images/")) && !listed.contains(file.key().mid(7));
    });
    return files;
}

} // namespace

/// Whatever is done to the images of a project, undo gives back what was there, and closing without saving leaves what was
/// saved.
class tst_ImageHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void undoGivesBackWhatWasSeenAndClosingWhatWasSaved()
    {
        const bool held = rc::check("edits of images", [] {
            ImageEditFixture edit;
            QList<Seen> states{look(edit)};
            QMap<QString, QByteArray> saved = savedProject(edit);
            const QList<QByteArray> pictures{pictureBytes(Qt::red), pictureBytes(Qt::cyan), pictureBytes(Qt::gray),
                                             drawingBytes(Qt::cyan)};
            const int count = anyNumber(1, 30);
            for (int i = 0; i < count; ++i) {
                const QStringList images = edit.images();
                const QString image = images.value(anyNumber(0, 1 + int(images.size())));
                const QByteArray picture = pictures.at(anyNumber(0, int(pictures.size())));
                const QString file = edit.outside("any", picture);
                const int before = edit.stack()->index();
                switch (anyNumber(0, 10)) {
                case 0:
                case 1:
                case 2:
                    edit.session->renameImage(image, *rc::gen::element(QStringLiteral("a"), QStringLiteral("b"),
                                                                       QStringLiteral("c"), QStringLiteral("A")));
                    break;
                case 3:
                case 4:
                    edit.session->replaceImage(image, file);
                    break;
                case 5:
                    edit.session->removeImage(image);
                    break;
                case 6: {
                    QString id;
                    edit.session->importImage(file, &id);
                    // An import is no step: it is there before and after all of them.
                    for (Seen& state : states) {
                        state.images.append(id);
                        state.contents.insert(id, picture);
                    }
                    break;
                }
                case 7:
                    edit.set(*rc::gen::element("main/lamp", "other/dial"), "image", image);
                    break;
                case 8:
                    edit.session->undo();
                    break;
                default:
                    RC_ASSERT(edit.save());
                    saved = savedProject(edit);
                }
                const int now = edit.stack()->index();
                if (now > before) {
                    states.resize(before + 1);
                    states.append(look(edit));
                }
                RC_ASSERT(sorted(look(edit)) == sorted(states.at(now)));
            }
            const int last = edit.stack()->index();
            RC_TAG(last);
            for (int i = last; i > 0; --i) {
                edit.session->undo();
                RC_ASSERT(sorted(look(edit)) == sorted(states.at(i - 1)));
            }
            for (int i = 0; i < last; ++i) {
                edit.session->redo();
                RC_ASSERT(sorted(look(edit)) == sorted(states.at(i + 1)));
            }
            edit.close();
            const auto left = filesOf(edit.files.folder());
            RC_ASSERT(left == saved);
        });
        QVERIFY(held);
    }

private:
    /// The place of an import among the images depends on what was undone before.
    static Seen sorted(Seen seen)
    {
        seen.images.sort();
        return seen;
    }
};

QTEST_MAIN(tst_ImageHistory)
#include "tst_ImageHistory.moc"
