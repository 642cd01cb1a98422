#pragma once

#include "host/core/objects/VisualElement.h"
#include "host/core/plugins/IDesignerFactory.h"
#include "host/core/project/FileOperations.h"
#include "host/core/project/Problem.h"

#include <QMap>
#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace Korvex::Meridane::Designer {

class Project;
class Screen;

namespace Test {

/// An element with a property of every host type, of every combination of flags that elements use.
class AllTypesElement : public VisualElement
{
    Q_OBJECT

public:
    using VisualElement::VisualElement;

    QString className() const override { return QStringLiteral("AllTypes"); }
    QStringList classNames() const override { return VisualElement::classNames() << className(); }
    bool initializeProperties() override;
    GraphicsItem* createGraphicsItem() override { return nullptr; }
    QRectF getBoundingRect() const override;
    QList<QSharedPointer<DesignerProperty>> getDependencyProperties() const override;
};

/// Serves "AllTypes" while it lives.
class AllTypesFactory : public IDesignerFactory
{
public:
    AllTypesFactory();
    ~AllTypesFactory() override;

    QStringList dataObjectClassNames() const override { return {QStringLiteral("AllTypes")}; }
    QStringList graphicsItemClassNames() const override { return {}; }
    QStringList propertyEditorClassNames() const override { return {}; }
    QStringList propertyClassNames() const override { return {}; }
    QStringList otherClassNames() const override { return {}; }
    DesignerObject* createDataObject(const QString& className, QObject* parent) override;
    GraphicsItem* createGraphicsItem(const QString&, DesignerObject*) override { return nullptr; }
    PropertyEditor* createPropertyEditor(const QString&, QWidget*) override { return nullptr; }
    DesignerProperty* createProperty(const QString&, DesignerObject*) override { return nullptr; }
    IDesignerObject* createOther(const QString&) override { return nullptr; }
};

/// File operations of which number \a failing (from 1) calls \a fault and, when that returns, fails; the later ones too
/// while \a persistent.
class FaultyOperations : public FileOperations
{
public:
    FaultyOperations(int failing, bool persistent = false, std::function<void()> fault = {});
    ~FaultyOperations() override;

    bool createFile(const QString& path, const QByteArray& content, QString* error) override;
    bool rename(const QString& from, const QString& to, QString* error) override;
    bool exchange(const QString& one, const QString& other, QString* error) override;
    bool removeFile(const QString& path, QString* error) override;
    bool makeFolder(const QString& path, QString* error) override;
    bool removeFolder(const QString& path, QString* error) override;
    bool syncFolder(const QString& path, QString* error) override;

    int count() const { return m_count; }
    const QStringList& log() const { return m_log; }
    /// Whether a file that is to be made when the fault strikes is left behind half written.
    void setTearsFiles(bool tears) { m_tears = tears; }

private:
    bool fails(const QString& operation, const QString& path, QString* error);

    int m_failing;
    bool m_persistent;
    bool m_tears = false;
    std::function<void()> m_fault;
    int m_count = 0;
    QStringList m_log;
};

/// Every file below \a folder by its relative path, hidden ones included.
QMap<QString, QByteArray> filesOf(const QString& folder);
/// The folders of all projects below \a folder, by their relative path.
QMap<QString, QString> projectsBelow(const QString& folder);
QByteArray readFile(const QString& path);
void writeFile(const QString& path, const QByteArray& content);

/// A project folder that tests fill file by file.
class ProjectFixture
{
public:
    ProjectFixture();

    QString folder() const { return m_temporary.filePath(QStringLiteral("project")); }
    QString path(const char* name) const { return m_temporary.filePath(QString::fromUtf8(name)); }
    void write(const char* file, const QByteArray& content) const;
    QByteArray read(const char* file) const;
    /// project.json with the screens \a screens and \a more, JSON members that begin with a comma.
    void writeProject(const QStringList& screens, const QByteArray& more = {}) const;
    /// The screen \a id with \a elements, JSON objects separated by commas.
    void writeScreen(const char* id, const QByteArray& elements = {}) const;

private:
    QTemporaryDir m_temporary;
};

std::unique_ptr<Project> load(const QString& folder);
/// The project in \a folder, and all problems of loading it and its screens.
std::unique_ptr<Project> load(const QString& folder, QList<Problem>* problems);
QString textOf(const QList<Problem>& problems);
/// Adds an AllTypes element by a command.
DesignerObject* addElement(Project* project, Screen* screen, const char* id = nullptr);
/// Sets a property by a command.
void setValue(DesignerObject* object, const char* property, const QString& value);
QString valueOf(const DesignerObject* object, const char* property);

} // namespace Test
} // namespace Korvex::Meridane::Designer
