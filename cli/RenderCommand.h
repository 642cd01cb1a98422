#pragma once

#include "cli/Command.h"

#include "host/core/output/PanelColors.h"

#include <QImage>
#include <QStringList>

#include <optional>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;
class PictureFiles;
class Screen;

/// Draws screens into pictures as they stand on the canvas, and compares them with earlier ones.
class RenderCommand : public Command
{
public:
    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString synopsis() const override;
    [[nodiscard]] QString summary() const override;
    [[nodiscard]] QList<QCommandLineOption> options() const override;
    [[nodiscard]] ApplicationKind applicationKind() const override;
    bool readArguments(const QCommandLineParser& parser, QString* message) override;
    ExitStatus run(StandardOutput& output) override;

private:
    [[nodiscard]] bool readFormat(const QCommandLineParser& parser, QString* message);
    [[nodiscard]] bool findElements(Screen* screen, QList<DesignerObject*>* elements) const;
    [[nodiscard]] bool drawScreen(EditSession& session, Screen* screen, PictureFiles& pictures, StandardOutput& output);
    /// True when \a picture agrees with the reference picture of that screen.
    [[nodiscard]] bool compareScreen(const QString& screenId, const QImage& picture, PictureFiles& pictures,
                                     StandardOutput& output) const;

    QString m_project;
    QString m_output;
    QString m_screen; // empty: all
    QString m_reference; // empty: nothing is compared
    double m_scale = 1; // picture pixels for one pixel of the display
    double m_tolerance = 0; // greatest accepted channel difference, 0 … 255
    QStringList m_elements; // ids; empty: all
    std::optional<PanelFormat> m_panel; // none: as they are
    bool m_isDrawing = false;
    bool m_ground = true;
    bool m_agrees = true;
};

} // namespace Korvex::Meridane::Designer
