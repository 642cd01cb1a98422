#include "app/MainWindow.h"
#include "app/MenuText.h"
#include "tests/accessibility/WindowTour.h"

#include "host/core/plugins/DesignerFactory.h"
#include "host/core/widgets/MessageBox.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStandardPaths>
#include <QTest>
#include <QTranslator>

using namespace Korvex::Meridane::Designer;

namespace {

QString plain(QString text)
{
    return text.remove(QLatin1Char('&'));
}

/// The letters that open the entries of \a menu and of the menus in it; \a faults takes those that cannot be used.
void checkMnemonics(const QList<QAction*>& entries, const QString& menu, QStringList* faults)
{
    QMap<QChar, QString> taken;
    for (const QAction* entry : entries) {
        if (entry->menu())
            checkMnemonics(entry->menu()->actions(), plain(entry->text()), faults);
        const QChar letter = MenuText::mnemonic(entry->text());
        if (letter.isNull())
            continue;
        const QString text = plain(entry->text());
        if (taken.contains(letter)) {
            *faults << QStringLiteral("%1: %2 opens \"%3\" and \"%4\"").arg(menu, letter, taken.value(letter), text);
        }
        taken.insert(letter, text);
        if (QString(MenuText::ReservedLetters).contains(letter))
            *faults << QStringLiteral("%1: %2 of \"%3\" belongs to the canvas").arg(menu, letter, text);
    }
}

} // namespace

/// The window in German: its menus can be used by the keyboard, and its texts have room.
class tst_GermanWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        MessageBox::setPresenter([](QWidget*, const QString&, const QString&) {});
        QVERIFY(m_translator.load(QLocale(QLocale::German), QStringLiteral("meridane"), QStringLiteral("_"),
                                  QStringLiteral(MERIDANE_TRANSLATIONS_DIR)));
        QVERIFY(QCoreApplication::installTranslator(&m_translator));
        QVERIFY(DesignerFactory::instance()->loadInstalledPlugins().isEmpty());
    }

    void theMenusAreGerman()
    {
        const Test::WindowTour tour;
        QStringList titles;
        for (const QAction* menu : tour.window()->menuBar()->actions())
            titles << plain(menu->text());
        QVERIFY2(titles.contains(QStringLiteral("Datei")), qPrintable(titles.join(QLatin1Char(' '))));
        QVERIFY(titles.contains(QStringLiteral("Bearbeiten")));
        QVERIFY(tour.window()->windowTitle().contains(QStringLiteral("Meridane Designer")));
    }

    void everyMnemonicOpensOneEntry()
    {
        const Test::WindowTour tour;
        QStringList faults;
        checkMnemonics(tour.window()->menuBar()->actions(), QStringLiteral("menu bar"), &faults);
        QCOMPARE(faults.join(QLatin1Char('\n')), QString());
    }

    void entriesThatHadAMnemonicStillHaveOne()
    {
        const Test::WindowTour tour;
        for (const QAction* menu : tour.window()->menuBar()->actions()) {
            QVERIFY2(!MenuText::mnemonic(menu->text()).isNull(), qPrintable(menu->text()));
            QVERIFY(menu->menu());
        }
    }

    void noButtonOrLabelIsCutOff()
    {
        QMap<QString, QString> faults;
        Test::WindowTour tour;
        (void)tour.visitAll([&faults](QWidget* window, const QString& where) {
            for (QWidget* widget : window->findChildren<QWidget*>()) {
                const auto* button = qobject_cast<QAbstractButton*>(widget);
                const auto* label = qobject_cast<QLabel*>(widget);
                const QString text = button ? button->text() : label ? label->text() : QString();
                const bool wraps = label && (label->wordWrap() || !label->pixmap().isNull());
                if (text.isEmpty() || wraps || !widget->isVisibleTo(window) || widget->visibleRegion().isEmpty())
                    continue;
                if (widget->width() < widget->minimumSizeHint().width())
                    faults.insert(QStringLiteral("\"%1\" of %2 has %3 px instead of %4")
                                      .arg(text, QLatin1String(widget->metaObject()->className()))
                                      .arg(widget->width())
                                      .arg(widget->minimumSizeHint().width()),
                                  where);
            }
        });
        for (auto fault = faults.cbegin(); fault != faults.cend(); ++fault)
            qInfo().noquote() << fault.key() << QStringLiteral("(%1)").arg(fault.value());
        QCOMPARE(faults.size(), 0);
    }

    /// Pictures to look at; MERIDANE_PICTURES names the folder for them.
    void itsPicturesAreDrawn()
    {
        const QString folder = qEnvironmentVariable("MERIDANE_PICTURES");
        int pictures = 0;
        Test::WindowTour tour;
        (void)tour.visitAll([&](QWidget* window, const QString& where) {
            const QPixmap picture = window->grab();
            QVERIFY(!picture.isNull());
            ++pictures;
            if (!folder.isEmpty())
                picture.save(
                    QStringLiteral("%1/%2-%3.png").arg(folder).arg(pictures, 2, 10, QLatin1Char('0')).arg(where));
        });
        QVERIFY(pictures > 15);
    }

private:
    QTranslator m_translator;
};

QTEST_MAIN(tst_GermanWindow)
#include "tst_GermanWindow.moc"
