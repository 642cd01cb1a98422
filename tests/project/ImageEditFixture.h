#pragma once

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "tests/project/ProjectTestSupport.h"
#include "tests/support/TestPictures.h"

#include <QDir>

namespace Korvex::Meridane::Designer::Test {

/// A project that is being edited, with the images "a.png" (red, shown by "lamp" of the screen "main" and by "dial" and
/// "knob" of "other"), "b.png" (green, shown by "light" of "main") and "spare.png" (blue, listed for later).
class ImageEditFixture
{
public:
    ImageEditFixture()
    {
        files.writeProject({QStringLiteral("main"), QStringLiteral("other")},
                           R"(, "images": ["a.png", "b.png", "spare.png"])");
        files.writeScreen("main", element("lamp", "a.png") + ',' + element("light", "b.png"));
        files.writeScreen("other", element("dial", "a.png") + R"(, {"class": "Group", "id": "box", "elements": [)"
                                       + element("knob", "a.png") + "]}");
        files.write("images/a.png", pictureBytes(Qt::red));
        files.write("images/b.png", pictureBytes(Qt::green));
        files.write("images/spare.png", pictureBytes(Qt::blue));
        open();
        // A first save puts the files into the form that the program writes.
        setValue(project(), "name", QStringLiteral("Edited"));
        set("main/lamp", "number", QStringLiteral("2"));
        set("other/dial", "number", QStringLiteral("2"));
        save();
        open();
    }

    static QByteArray element(const char* id, const char* image)
    {
        return QByteArray(R"({"class": "AllTypes", "id": ")") + id + R"(", "properties": {"image": ")" + image + "\"}}";
    }

    /// Opens the project anew, without saving it before. Screens are read when they are needed.
    void open()
    {
        close();
        session = std::make_unique<EditSession>(ProjectStore::load(files.folder()).project);
    }
    void close() { session.reset(); }
    bool save() { return ProjectStore::save(project(), project()->folder(), &message); }

    Project* project() const { return session->project(); }
    UndoStack* stack() const { return session->undoStack(); }
    DesignerObject* object(const char* place) const
    {
        const QString name = QString::fromLatin1(place);
        Screen* screen = project()->screen(name.section(QLatin1Char('/'), 0, 0));
        screen->readContent();
        return screen->element(name.section(QLatin1Char('/'), 1));
    }
    void set(const char* place, const char* property, const QString& value) const
    {
        setValue(object(place), property, value);
    }
    QString link(const char* place) const { return valueOf(object(place), "image"); }
    /// The links of all elements, in the order of the tree.
    QStringList links() const
    {
        return {link("main/lamp"), link("main/light"), link("other/dial"), link("other/knob")};
    }
    const QStringList& images() const { return project()->imageResources(); }
    QByteArray content(const QString& image) const
    {
        return readFile(project()->imagesPath() + QLatin1Char('/') + image);
    }
    /// The names of the files in the images folder.
    QStringList folder() const
    {
        return QDir(files.folder() + QStringLiteral("/images")).entryList(QDir::Files | QDir::Hidden);
    }
    /// A file outside of the project.
    QString outside(const char* name, const QByteArray& bytes) const
    {
        writeFile(files.path(name), bytes);
        return files.path(name);
    }

    AllTypesFactory factory;
    ProjectFixture files;
    std::unique_ptr<EditSession> session;
    QString message;
};

} // namespace Korvex::Meridane::Designer::Test
