#include "host/core/editors/StandardEditors.h"

#include "host/core/editors/BorderEditor.h"
#include "host/core/editors/ColorEditor.h"
#include "host/core/editors/EnumEditor.h"
#include "host/core/editors/FontEditor.h"
#include "host/core/editors/ImageSourceEditor.h"
#include "host/core/editors/IntegerEditor.h"
#include "host/core/editors/KeepRatioEditor.h"
#include "host/core/editors/LinkEditor.h"
#include "host/core/editors/PointEditor.h"
#include "host/core/editors/PointListTextEditor.h"
#include "host/core/editors/RealEditor.h"
#include "host/core/editors/RotationEditor.h"
#include "host/core/editors/SizeEditor.h"
#include "host/core/editors/StringEditor.h"

#include <array>

namespace Korvex::Meridane::Designer {

namespace {

struct EditorClass
{
    const char* name;
    PropertyEditor* (*make)(QWidget* parent);
};

template <typename Editor>
PropertyEditor* make(QWidget* parent)
{
    return new Editor(parent);
}

constexpr std::array<EditorClass, 14> EditorClasses{{
    {"IntegerEditor", make<IntegerEditor>},
    {"RealEditor", make<RealEditor>},
    {"SizeEditor", make<SizeEditor>},
    {"KeepRatioEditor", make<KeepRatioEditor>},
    {"PointEditor", make<PointEditor>},
    {"PointListTextEditor", make<PointListTextEditor>},
    {"ColorEditor", make<ColorEditor>},
    {"BorderEditor", make<BorderEditor>},
    {"RotationEditor", make<RotationEditor>},
    {"FontEditor", make<FontEditor>},
    {"EnumEditor", make<EnumEditor>},
    {"LinkEditor", make<LinkEditor>},
    {"ImageSourceEditor", make<ImageSourceEditor>},
    {"StringEditor", make<StringEditor>},
}};

} // namespace

QStringList standardEditorClassNames()
{
    QStringList names;
    for (const EditorClass& editor : EditorClasses)
        names.append(QString::fromLatin1(editor.name));
    return names;
}

PropertyEditor* createStandardEditor(const QString& className, QWidget* parent)
{
    for (const EditorClass& editor : EditorClasses) {
        if (className == QLatin1String(editor.name))
            return editor.make(parent);
    }
    return nullptr;
}

} // namespace Korvex::Meridane::Designer
