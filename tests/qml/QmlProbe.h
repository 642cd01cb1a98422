#pragma once

#include <QObject>
#include <QQmlListProperty>
#include <QVariant>

/// Stands for every display type: takes the values of an export as a QML engine understands them.
class QmlProbe : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("DefaultProperty", "children")
    Q_PROPERTY(QQmlListProperty<QObject> children READ children CONSTANT)
    Q_PROPERTY(double x MEMBER x)
    Q_PROPERTY(double y MEMBER y)
    Q_PROPERTY(double width MEMBER width)
    Q_PROPERTY(double height MEMBER height)
    Q_PROPERTY(double rotation MEMBER rotation)
    Q_PROPERTY(QString fixedPoint MEMBER fixedPoint)
    Q_PROPERTY(QString color MEMBER color)
    Q_PROPERTY(int borderWidth MEMBER borderWidth)
    Q_PROPERTY(QString borderColor MEMBER borderColor)
    Q_PROPERTY(int number MEMBER number)
    Q_PROPERTY(double real MEMBER real)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString hidden MEMBER hidden)
    Q_PROPERTY(QString image MEMBER image)
    Q_PROPERTY(QString family MEMBER family)
    Q_PROPERTY(int fontSize MEMBER fontSize)
    Q_PROPERTY(bool bold MEMBER bold)
    Q_PROPERTY(bool italic MEMBER italic)
    Q_PROPERTY(bool underline MEMBER underline)
    Q_PROPERTY(bool strikeout MEMBER strikeout)
    Q_PROPERTY(bool overline MEMBER overline)
    Q_PROPERTY(double letterSpacing MEMBER letterSpacing)
    Q_PROPERTY(double wordSpacing MEMBER wordSpacing)
    Q_PROPERTY(QVariant points MEMBER points)
    Q_PROPERTY(int style MEMBER style)
    Q_PROPERTY(QVariant screens MEMBER screens)

public:
    QQmlListProperty<QObject> children() { return {this, &m_children}; }
    QmlProbe* child(qsizetype index) const { return qobject_cast<QmlProbe*>(m_children.value(index)); }
    qsizetype childCount() const { return m_children.size(); }

    double x = 0, y = 0, width = 0, height = 0, rotation = 0, real = 0, letterSpacing = 0, wordSpacing = 0;
    int borderWidth = 0, number = 0, fontSize = 0, style = 0;
    bool bold = false, italic = false, underline = false, strikeout = false, overline = false;
    QString fixedPoint, color, borderColor, text, hidden, image, family;
    QVariant points, screens;

private:
    QList<QObject*> m_children;
};
