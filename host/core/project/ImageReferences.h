#pragma once

#include "host/core/CoreExport.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QSharedPointer>
#include <QString>

class QJsonValue;

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;
class LinkProperty;
class Project;

/// A place that names an image.
struct ImageUse
{
    DesignerObject* object;
    QSharedPointer<DesignerProperty> link; ///< null where \a object names it in what this version does not understand
};

/// Which image files the objects of a project name. Screens that have not been read are left unread.
class MERIDANE_CORE_EXPORT ImageReferences
{
public:
    ImageReferences() = delete;

    /// Whether \a link chooses among the project's images.
    [[nodiscard]] static bool isImageLink(const LinkProperty& link);
    /// The places of \a project that name \a image, in the order of the tree.
    [[nodiscard]] static QList<ImageUse> uses(const Project* project, const QString& image);
    /// The number of links to each image of \a project that is linked at all.
    [[nodiscard]] static QHash<QString, int> useCounts(const Project* project);
    /// The images that \a object and the objects below it link to.
    [[nodiscard]] static QSet<QString> linked(const DesignerObject* object);
    /// Every text by which \a object and the objects below it could name an image: the links, and all texts in what
    /// this version does not understand.
    [[nodiscard]] static QSet<QString> mentioned(const DesignerObject* object);
    /// All texts in \a value, keys left out.
    [[nodiscard]] static QSet<QString> texts(const QJsonValue& value);
};

} // namespace Korvex::Meridane::Designer
