#include "host/core/editors/PointListTextEditor.h"

#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

PointListTextEditor::PointListTextEditor(QWidget* parent)
    : StringEditor(parent)
{}

PointListTextEditor::~PointListTextEditor() = default;

QString PointListTextEditor::className() const
{
    return QStringLiteral("PointListTextEditor");
}

QString PointListTextEditor::problemOf(const QString& text) const
{
    bool ok = false;
    (void)ValueConversion::toPolygon(text, &ok);
    return ok ? QString()
              : LocalizationHelper::coreString(QStringLiteral(
                  "Write points as \"x,y\" with one blank between them, for example \"0,0 50,0 25,40\"."));
}

} // namespace Korvex::Meridane::Designer
