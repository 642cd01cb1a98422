#include "host/core/objects/Screen.h"

#include "host/core/objects/EditorMarks.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ColorProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/SizeProperty.h"
#include "host/core/properties/StringProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <QColor>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// A screen is at least one pixel and at most as large as a display of this kind can be.
bool screenSizeValidator(const DesignerProperty* property, QString& message)
{
    constexpr double Largest = 20000;
    bool ok = false;
    const QSizeF size = ValueConversion::toSize(property->valueString(), &ok);
    if (ok && size.width() >= 1 && size.height() >= 1 && size.width() <= Largest && size.height() <= Largest)
        return true;
    message = LocalizationHelper::coreString(
        QStringLiteral("The size of a screen must be between 1 and 20000 px in both directions."));
    return false;
}

} // namespace

Screen::Screen(QObject* parent)
    : DesignerObject(parent)
{
    setContainer(this);
    declareEditorMark(EditorMarks::guides());
}

Screen::~Screen() = default;

QString Screen::className() const
{
    return QStringLiteral("Screen");
}

QStringList Screen::classNames() const
{
    return DesignerObject::classNames() << QStringLiteral("Screen");
}

QString Screen::displayName() const
{
    return LocalizationHelper::coreString(QStringLiteral("Screen"));
}

bool Screen::initializeProperties()
{
    if (!DesignerObject::initializeProperties())
        return false;
    IdentifierInfo info;
    info.setScopeType(QStringLiteral("Project"));
    info.setFilterType(QStringLiteral("Screen"));
    info.setBase(QStringLiteral("screen"));
    info.setName(QStringLiteral("screen"));
    if (!setIdInfo(info))
        return false;

    QSizeF size(800, 480);
    if (const Project* project = Project::parentProject(this))
        size = project->displaySize();
    const auto text = [](const char* label) { return LocalizationHelper::coreString(QString::fromLatin1(label)); };
    const QSharedPointer<DesignerProperty> name =
        PropertyDeclaration<StringProperty>(this, QLatin1String("name"), text("Name"), QString())
            .rank(1)
            .flags(Stored | Shown | Editable);
    const QSharedPointer<DesignerProperty> sizeProperty =
        PropertyDeclaration<SizeProperty>(this, QLatin1String("size"), text("Size"), size)
            .rank(2)
            .editor(QLatin1String("SizeEditor"), {{QStringLiteral("minimumValue"), QSizeF(1, 1)}})
            .validator(screenSizeValidator);
    const QSharedPointer<DesignerProperty> color =
        PropertyDeclaration<ColorProperty>(this, QLatin1String("color"), text("Color"), QColor(Qt::white)).rank(3);
    m_elements = QSharedPointer<ObjectListProperty>::create(this, QStringLiteral("elements"), text("Elements"));
    m_elements->setRank(100);
    m_elements->setFlags(Stored | Exported);
    addProperty(m_elements);
    return name && sizeProperty && color;
}

GraphicsItem* Screen::createGraphicsItem()
{
    return DesignerFactory::instance()->createGraphicsItem(QStringLiteral("GraphicsScreen"), this);
}

bool Screen::beforePropertyChanged(const DesignerProperty* property, const QString& newValue)
{
    readContent();
    return m_contentError.isEmpty() && DesignerObject::beforePropertyChanged(property, newValue);
}

bool Screen::beforeListItemAdded(const DesignerProperty* property, const DesignerObject* object)
{
    return m_contentError.isEmpty() && DesignerObject::beforeListItemAdded(property, object);
}

IdRegistry* Screen::containedIds()
{
    return &m_ids;
}

ObjectListProperty* Screen::containedObjects() const
{
    readContent();
    return m_elements.data();
}

QSizeF Screen::size() const
{
    readContent();
    const auto property = getProperty(QStringLiteral("size"));
    return property ? ValueConversion::toSize(property->valueString()) : QSizeF();
}

DesignerObject* Screen::element(const QString& id) const
{
    readContent();
    return m_ids.find(id);
}

void Screen::setContentReader(std::function<void(Screen*)> reader)
{
    m_reader = std::move(reader);
}

void Screen::readContent() const
{
    if (!m_reader)
        return;
    // The reader asks for the list itself, so it must be gone before it runs.
    const auto reader = std::exchange(m_reader, nullptr);
    reader(const_cast<Screen*>(this));
}

} // namespace Korvex::Meridane::Designer
