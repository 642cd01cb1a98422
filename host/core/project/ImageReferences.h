#pragma once

#include <QSet>
#include <QString>

class QJsonValue;

namespace Korvex::Meridane::Designer {

class DesignerObject;
class LinkProperty;

/// Which image files the objects of a project name. Screens that have not been read are left unread.
class ImageReferences
{
public:
    ImageReferences() = delete;

    /// Whether \a link chooses among the project's images.
    [[nodiscard]] static bool isImageLink(const LinkProperty& link);
    /// The images that \a object and the objects below it link to.
    [[nodiscard]] static QSet<QString> linked(const DesignerObject* object);
    /// Every text by which \a object and the objects below it could name an image: the links, and all texts in what
    /// this version does not understand.
    [[nodiscard]] static QSet<QString> mentioned(const DesignerObject* object);
    /// All texts in \a value, keys left out.
    [[nodiscard]] static QSet<QString> texts(const QJsonValue& value);
};

} // namespace Korvex::Meridane::Designer
