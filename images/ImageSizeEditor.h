#pragma once

#include "host/core/editors/SizeEditor.h"

namespace Korvex::Meridane::Designer {

class ImageSizeWidget;
class Project;

/**
 * The editor of an image's outer size: a size editor with a button that gives the element the natural size of its picture.
 *
 * The button is enabled while a picture can be shown. With a kept ratio, the ratio becomes the picture's in the same undo
 * step. With several elements selected each takes the size of its own picture.
 */
class ImageSizeEditor : public SizeEditor
{
    Q_OBJECT

public:
    explicit ImageSizeEditor(QWidget* parent);
    ~ImageSizeEditor() override;

    [[nodiscard]] QString className() const override;
    void propertyReplaced() override;

    /// A picture may be another one: the button is enabled or disabled.
    void takePicture();

    [[nodiscard]] ImageSizeWidget* imageSizeWidget() const { return m_widget; }

protected:
    [[nodiscard]] QWidget* createWidgets(SizeWidget** sizeWidget) override;

private:
    void followProject();
    void setToImageSize();
    void setOneToImageSize();

    ImageSizeWidget* m_widget = nullptr;
    QPointer<Project> m_project; // whose changes are followed
};

} // namespace Korvex::Meridane::Designer
