#include "tests/accessibility/WindowTour.h"

#include "host/core/plugins/DesignerFactory.h"
#include "host/core/widgets/MessageBox.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QMap>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QStandardPaths>
#include <QTabBar>
#include <QTest>

using namespace Korvex::Meridane::Designer;

namespace {

/// Parts of other widgets: what they belong to has the name. The roles of Qt's own controls are Qt's business.
bool isPart(const QWidget* widget)
{
    const QString name = widget->objectName();
    const QWidget* parent = widget->parentWidget();
    const auto* tabs = qobject_cast<const QTabBar*>(widget);
    if (tabs && tabs->currentIndex() < 0)
        return true; // of panels that are not there at present
    return widget->focusProxy() || name.startsWith(QLatin1String("qt_"))
           || qobject_cast<const QKeySequenceEdit*>(widget) || qobject_cast<const QAbstractSpinBox*>(parent)
           || qobject_cast<const QComboBox*>(parent)
           || (parent && qobject_cast<const QComboBox*>(parent->parentWidget()))
           || widget->inherits("QComboBoxPrivateContainer") || widget->inherits("QHeaderView");
}

/// Where \a widget stands, for messages.
QString placeOf(const QWidget* widget)
{
    QStringList place;
    for (; widget && place.size() < 5; widget = widget->parentWidget()) {
        const QString name = widget->objectName();
        place.prepend(QString::fromLatin1(widget->metaObject()->className()).section(QLatin1String("::"), -1)
                      + (name.isEmpty() ? QString() : QLatin1Char('#') + name));
    }
    return place.join(QLatin1String(" > "));
}

/// The roles that fit a control of that kind; none where every role but an empty one does.
QList<QAccessible::Role> rolesFor(const QWidget* widget)
{
    if (qobject_cast<const QAbstractSpinBox*>(widget))
        return {QAccessible::SpinBox};
    if (qobject_cast<const QComboBox*>(widget))
        return {QAccessible::ComboBox};
    if (qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget))
        return {QAccessible::EditableText};
    if (qobject_cast<const QAbstractButton*>(widget))
        return {QAccessible::Button,     QAccessible::CheckBox,       QAccessible::RadioButton,
                QAccessible::ButtonMenu, QAccessible::ButtonDropDown, QAccessible::PushButton};
    if (qobject_cast<const QAbstractItemView*>(widget))
        return {QAccessible::List, QAccessible::Tree, QAccessible::Table};
    return {};
}

QString faultOf(QWidget* widget)
{
    QAccessibleInterface* found = QAccessible::queryAccessibleInterface(widget);
    if (!found)
        return QStringLiteral("cannot be seen by screen readers");
    if (found->text(QAccessible::Name).trimmed().isEmpty())
        return QStringLiteral("has no name");
    const QList<QAccessible::Role> fitting = rolesFor(widget);
    const QAccessible::Role role = found->role();
    const bool scrolls = qobject_cast<const QScrollArea*>(widget) != nullptr; // Qt knows no role for it
    if (role == QAccessible::NoRole || (role == QAccessible::Client && !scrolls)
        || (!fitting.isEmpty() && !fitting.contains(role)))
        return QStringLiteral("has the role %1").arg(int(role));
    return {};
}

bool isReached(const QWidget* widget, const QWidget* window)
{
    return widget->focusPolicy() != Qt::NoFocus && widget->isVisibleTo(window) && !isPart(widget);
}

} // namespace

/// Whoever works by ear or by voice finds every control of the application under a name.
class tst_WidgetAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        MessageBox::setPresenter([](QWidget*, const QString&, const QString&) {});
        QVERIFY(DesignerFactory::instance()->loadInstalledPlugins().isEmpty());
    }

    void everyControlHasANameAndARoleThatFits()
    {
        QMap<QString, QString> faults; // and where each was seen first
        int controls = 0;
        Test::WindowTour tour;
        const int stops = tour.visitAll([&](QWidget* window, const QString& where) {
            QList<QWidget*> widgets = window->findChildren<QWidget*>();
            for (QWidget* widget : qAsConst(widgets)) {
                if (!isReached(widget, window))
                    continue;
                ++controls;
                const QString fault = faultOf(widget);
                const QString place = placeOf(widget) + QLatin1Char(' ') + fault;
                if (!fault.isEmpty() && !faults.contains(place))
                    faults.insert(place, where);
            }
        });
        QVERIFY2(stops > 15, qPrintable(QString::number(stops)));
        QVERIFY2(controls > 500, qPrintable(QString::number(controls)));
        for (auto fault = faults.cbegin(); fault != faults.cend(); ++fault)
            qInfo().noquote() << fault.key() << QStringLiteral("(%1)").arg(fault.value());
        QCOMPARE(faults.size(), 0);
    }

    void dialogsHaveTitles()
    {
        QStringList untitled;
        Test::WindowTour tour;
        (void)tour.visitAll([&untitled](QWidget* window, const QString& where) {
            if (window->windowTitle().isEmpty() && window->accessibleName().isEmpty())
                untitled << where;
        });
        QCOMPARE(untitled, QStringList());
    }
};

QTEST_MAIN(tst_WidgetAccessibility)
#include "tst_WidgetAccessibility.moc"
