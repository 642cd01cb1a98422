#pragma once

#include <QComboBox>

namespace Korvex::Meridane::Designer {

/// Shows and chooses the zoom of the canvas: 25 % to 1600 %, any typed percentage, or the fit to the window.
class ZoomBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ZoomBox(QWidget* parent = nullptr);

    /// The zoom that \a text ("150 %", "150") asks for, as a factor; 0 when it is no percentage above 0.
    [[nodiscard]] static double parse(const QString& text);

public Q_SLOTS:
    /// Shows \a zoom (a factor) without asking for it.
    void showZoom(double zoom);

Q_SIGNALS:
    void zoomRequested(double zoom);
    void fitRequested();

private:
    void takeText();

    double m_zoom = 1;
};

} // namespace Korvex::Meridane::Designer
