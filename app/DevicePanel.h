#pragma once

#include "app/UpdatePace.h"

#include "host/core/output/PanelColors.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QScrollArea;
class QToolButton;

namespace Korvex::Meridane::Designer {

class CanvasView;
class DevicePicture;
class EditSession;
class ScreenChanges;

/// The current screen as the panel will show it: in the panel's colours, turned as it is mounted, and at its physical size.
/// It follows every change, gestures included. The choices are remembered in the settings.
class DevicePanel : public QWidget
{
    Q_OBJECT

public:
    /// \a session and \a canvas outlive the panel.
    DevicePanel(EditSession* session, CanvasView* canvas, QWidget* parent = nullptr);

    [[nodiscard]] DevicePicture* picture() const { return m_picture; }
    void setFormat(PanelFormat format);
    /// Degrees clockwise: 0, 90, 180 or 270.
    void setRotation(int degrees);
    /// Smaller where there is no room for a pixel of this screen for each of the panel's. Without it, one scrolls.
    void setFitting(bool fitting);
    /// At the size that the panel has, which needs its density.
    void setPhysicalSize(bool physical);
    /// Pixels of the panel for an inch.
    void setPanelDensity(double density);

    /// Units of a widget for a pixel of a panel of \a panelDensity pixels an inch, on a screen that says it has
    /// \a screenDensity units an inch and has \a correction times as many.
    [[nodiscard]] static double physicalScale(double panelDensity, double screenDensity, double correction);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QWidget* makeChoices();
    [[nodiscard]] QWidget* makeDensities();
    void readSettings();
    void takeChoices();
    void refresh();
    void scalePicture();

    EditSession* m_session;
    ScreenChanges* m_changes;
    QScrollArea* m_area;
    DevicePicture* m_picture;
    QComboBox* m_format;
    QComboBox* m_rotation;
    QToolButton* m_fit;
    QCheckBox* m_physical;
    QWidget* m_densities;
    QDoubleSpinBox* m_panelDensity; // its minimum: not known yet
    QDoubleSpinBox* m_correction; // percent
    UpdatePace m_pace;
};

} // namespace Korvex::Meridane::Designer
