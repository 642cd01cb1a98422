#include "app/ZoomBox.h"

#include "app/CoreText.h"

#include <QLineEdit>
#include <QLocale>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int Percents[] = {25, 50, 75, 100, 150, 200, 300, 400, 800, 1600};

QString percentText(double percent)
{
    // A no-break space keeps sign and number together.
    return QLocale().toString(percent, 'f', percent < 10 ? 1 : 0) + QChar(0x00a0) + QLatin1Char('%');
}

} // namespace

ZoomBox::ZoomBox(QWidget* parent)
    : QComboBox(parent)
{
    setObjectName(QStringLiteral("ZoomBox"));
    setAccessibleName(coreText("Zoom"));
    setToolTip(coreText("Zoom of the canvas"));
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    setFocusPolicy(Qt::ClickFocus);
    setMaxVisibleItems(12);
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (const int percent : Percents)
        addItem(percentText(percent), percent / 100.);
    insertSeparator(count());
    addItem(coreText("Fit Screen"), 0.);
    connect(this, &QComboBox::activated, this, [this](int index) {
        const double zoom = itemData(index).toDouble();
        if (zoom > 0)
            Q_EMIT zoomRequested(zoom);
        else
            Q_EMIT fitRequested();
        showZoom(m_zoom);
    });
    connect(lineEdit(), &QLineEdit::returnPressed, this, &ZoomBox::takeText);
    connect(lineEdit(), &QLineEdit::editingFinished, this, [this] { showZoom(m_zoom); });
    showZoom(1);
}

double ZoomBox::parse(const QString& text)
{
    QString number = text;
    number.remove(QLatin1Char('%'));
    bool ok = false;
    double percent = QLocale().toDouble(number.trimmed(), &ok);
    if (!ok)
        percent = QLocale::c().toDouble(number.trimmed(), &ok);
    return ok && percent > 0 && percent <= 100000 ? percent / 100 : 0;
}

void ZoomBox::showZoom(double zoom)
{
    m_zoom = zoom;
    setCurrentIndex(findData(zoom));
    setEditText(percentText(zoom * 100));
}

void ZoomBox::takeText()
{
    if (const double zoom = parse(currentText()); zoom > 0)
        Q_EMIT zoomRequested(zoom);
    showZoom(m_zoom);
}

} // namespace Korvex::Meridane::Designer
