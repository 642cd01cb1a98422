#pragma once

#include "runtime/DisplayItem.h"

#include "host/common/TextBoxLayout.h"

#include <QtGui/QColor>

QT_BEGIN_NAMESPACE
class QFont;
QT_END_NAMESPACE

namespace Korvex::Meridane::Display {
/** A block of text in a box, broken at the box's width and clipped to the box. The text is shown as it stands. */
class TextBox : public Korvex::Meridane::Display::DisplayItem
{
    Q_OBJECT
    Q_PROPERTY(QString text MEMBER m_text NOTIFY textChanged FINAL)
    /** 0 left, 1 centre, 2 right; any other number is left. */
    Q_PROPERTY(int horizontalAlignment MEMBER m_horizontalAlignment NOTIFY horizontalAlignmentChanged FINAL)
    /** 0 top, 1 centre, 2 bottom; any other number is top. */
    Q_PROPERTY(int verticalAlignment MEMBER m_verticalAlignment NOTIFY verticalAlignmentChanged FINAL)
    /** The colour of the letters. */
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY colorChanged FINAL)
    /** 0 plain, 1 with an outline, 2 raised, 3 sunken; any other number is plain. */
    Q_PROPERTY(int textStyle MEMBER m_textStyle NOTIFY textStyleChanged FINAL)
    /** The colour of the outline, or of the shade of raised and sunken letters. */
    Q_PROPERTY(QColor styleColor MEMBER m_styleColor NOTIFY styleColorChanged FINAL)
    /** Another font is shown where there is none of this family. */
    Q_PROPERTY(QString family MEMBER m_family NOTIFY familyChanged FINAL)
    /** In pixels, 1 to 10000; beyond that the nearest size is shown. */
    Q_PROPERTY(int fontSize MEMBER m_fontSize NOTIFY fontSizeChanged FINAL)
    Q_PROPERTY(bool bold MEMBER m_bold NOTIFY boldChanged FINAL)
    Q_PROPERTY(bool italic MEMBER m_italic NOTIFY italicChanged FINAL)
    Q_PROPERTY(bool underline MEMBER m_underline NOTIFY underlineChanged FINAL)
    Q_PROPERTY(bool overline MEMBER m_overline NOTIFY overlineChanged FINAL)
    Q_PROPERTY(bool strikeout MEMBER m_strikeout NOTIFY strikeoutChanged FINAL)
    /** In pixels, added behind every letter; −10000 to 10000. */
    Q_PROPERTY(double letterSpacing MEMBER m_letterSpacing NOTIFY letterSpacingChanged FINAL)
    /** In pixels, added to every blank; −10000 to 10000. */
    Q_PROPERTY(double wordSpacing MEMBER m_wordSpacing NOTIFY wordSpacingChanged FINAL)
    QML_ELEMENT

public:
    explicit TextBox(QQuickItem* parent = nullptr);

Q_SIGNALS:
    void textChanged();
    void horizontalAlignmentChanged();
    void verticalAlignmentChanged();
    void colorChanged();
    void textStyleChanged();
    void styleColorChanged();
    void familyChanged();
    void fontSizeChanged();
    void boldChanged();
    void italicChanged();
    void underlineChanged();
    void overlineChanged();
    void strikeoutChanged();
    void letterSpacingChanged();
    void wordSpacingChanged();

protected:
    QRectF outerRect() const override;
    void paintContent(QPainter* painter) const override;

private:
    [[nodiscard]] QFont font() const;

    QString m_text = QStringLiteral("[text]");
    int m_horizontalAlignment = 0;
    int m_verticalAlignment = 0;
    QColor m_color = Qt::black;
    int m_textStyle = 0;
    QColor m_styleColor = Qt::red;
    QString m_family = QStringLiteral("Droid Sans");
    int m_fontSize = 32;
    bool m_bold = false;
    bool m_italic = false;
    bool m_underline = false;
    bool m_overline = false;
    bool m_strikeout = false;
    double m_letterSpacing = 0;
    double m_wordSpacing = 0;
    mutable Common::TextBoxLayout m_layout; // of the values above
};
} // namespace Korvex::Meridane::Display
