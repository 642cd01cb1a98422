#include "app/AppSettings.h"
#include "app/Appearance.h"
#include "app/MenuText.h"
#include "app/MessageBar.h"
#include "app/NewProjectDialog.h"
#include "app/ProblemsPanel.h"
#include "app/RecentFiles.h"
#include "app/ThemedIcon.h"
#include "app/ViewActions.h"
#include "app/ZoomBox.h"

#include "host/core/widgets/IconTint.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDirIterator>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardPaths>
#include <QToolButton>
#include <QToolTip>
#include <QXmlStreamReader>
#include <QtTest>

using namespace Korvex::Meridane::Designer;

namespace {

/// The relative luminance of the WCAG contrast formula.
double luminance(const QColor& color)
{
    const auto channel = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) + 0.0722 * channel(color.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const double light = qMax(luminance(a), luminance(b));
    const double dark = qMin(luminance(a), luminance(b));
    return (light + 0.05) / (dark + 0.05);
}

} // namespace

class tst_AppParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init() { QFile::remove(AppSettings::filePath()); }
    void cleanup() { QApplication::setPalette(QPalette()); }

    void settingsAreKeptApartFromTheUsersInTestMode()
    {
        QVERIFY(AppSettings::filePath().contains(QStringLiteral("qttest")));
    }

    void recentFilesAreTheNewestTenWithoutRepetition()
    {
        RecentFiles recent;
        QSignalSpy changed(&recent, &RecentFiles::changed);
        for (int i = 0; i < 12; ++i)
            recent.add(QStringLiteral("/projects/p%1").arg(i));
        recent.add(QStringLiteral("/projects/p5/"));
        QCOMPARE(recent.folders().size(), RecentFiles::Limit);
        QCOMPARE(recent.folders().first(), QStringLiteral("/projects/p5"));
        QCOMPARE(recent.folders().count(QStringLiteral("/projects/p5")), 1);
        QCOMPARE(changed.count(), 13);
        QCOMPARE(RecentFiles().folders(), recent.folders());
        recent.remove(QStringLiteral("/projects/p5"));
        QCOMPARE(recent.folders().first(), QStringLiteral("/projects/p11"));
        recent.clear();
        QVERIFY(RecentFiles().folders().isEmpty());
    }

    void reservedMnemonicsAreTakenOut_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("allowed") << "&File"
                                 << "&File";
        QTest::newRow("B") << "&Bearbeiten"
                           << "Bearbeiten";
        QTest::newRow("inner i") << "Date&i"
                                 << "Datei";
        QTest::newRow("S") << "&Save"
                           << "Save";
        QTest::newRow("U, O") << "&Undo && &Other"
                              << "Undo && &Other";
        QTest::newRow("plain ampersand") << "Cut && Saw"
                                         << "Cut && Saw";
        QTest::newRow("none") << "View"
                              << "View";
    }

    void reservedMnemonicsAreTakenOut()
    {
        QFETCH(QString, text);
        QTEST(MenuText::withoutReservedMnemonic(text), "expected");
    }

    void theZoomBoxUnderstandsPercentages_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("zoom");
        QTest::newRow("number") << "150" << 1.5;
        QTest::newRow("sign") << "75 %" << 0.75;
        QTest::newRow("no-break space") << QString(QStringLiteral("33") + QChar(0xa0) + QLatin1Char('%')) << 0.33;
        QTest::newRow("text") << "wide" << 0.;
        QTest::newRow("negative") << "-20" << 0.;
        QTest::newRow("empty") << "" << 0.;
    }

    void theZoomBoxUnderstandsPercentages()
    {
        QFETCH(QString, text);
        QTEST(ZoomBox::parse(text), "zoom");
    }

    void theZoomBoxAsksForWhatIsTypedAndShowsWhatIs()
    {
        ZoomBox box;
        QSignalSpy asked(&box, &ZoomBox::zoomRequested);
        QSignalSpy fit(&box, &ZoomBox::fitRequested);
        box.showZoom(0.37);
        QCOMPARE(ZoomBox::parse(box.currentText()), 0.37);
        QVERIFY(asked.isEmpty());
        box.lineEdit()->setText(QStringLiteral("250"));
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(asked.count(), 1);
        QCOMPARE(asked.first().first().toDouble(), 2.5);
        box.lineEdit()->setText(QStringLiteral("nonsense"));
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(asked.count(), 1);
        QCOMPARE(ZoomBox::parse(box.currentText()), 0.37);
        Q_EMIT box.activated(box.count() - 1);
        QCOMPARE(fit.count(), 1);
    }

    void zoomStepsClimbTheLadder()
    {
        QCOMPARE(ViewActions::nextZoom(1, 1), 1.25);
        QCOMPARE(ViewActions::nextZoom(1, -1), 0.75);
        QCOMPARE(ViewActions::nextZoom(0.9, 1), 1.);
        QCOMPARE(ViewActions::nextZoom(32, 1), 32.);
        QCOMPARE(ViewActions::nextZoom(0.1, -1), 0.1);
    }

    void messagesGoByThemselvesUnlessTheyAskForSomething()
    {
        MessageBar bar;
        QVERIFY(bar.isHidden());
        bar.showMessage(QStringLiteral("Refused."), MessageBar::Kind::Error);
        QCOMPARE(bar.text(), QStringLiteral("Refused."));
        bool ran = false;
        bar.showMessage(QStringLiteral("Look."), MessageBar::Kind::Warning, QStringLiteral("Details"),
                        [&ran] { ran = true; });
        auto* button = bar.findChild<QPushButton*>();
        QVERIFY(!button->isHidden());
        button->click();
        QVERIFY(ran);
        QVERIFY(bar.isHidden());
        bar.showMessage(QStringLiteral("Done."), MessageBar::Kind::Information);
        QVERIFY(button->isHidden());
        bar.findChild<QToolButton*>()->click();
        QVERIFY(bar.isHidden());
        QVERIFY(bar.text().isEmpty());
    }

    void messagesAreLegibleOnLightAndDark_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<int>("kind");
        for (const bool dark : {false, true}) {
            for (int kind = 0; kind < 3; ++kind)
                QTest::addRow("%s %d", dark ? "dark" : "light", kind) << dark << kind;
        }
    }

    void messagesAreLegibleOnLightAndDark()
    {
        QFETCH(bool, dark);
        QFETCH(int, kind);
        QApplication::setPalette(dark ? Appearance::darkPalette() : Appearance::lightPalette());
        MessageBar bar;
        bar.showMessage(QStringLiteral("Text"), MessageBar::Kind(kind));
        const QPalette palette = bar.palette();
        QVERIFY(contrast(palette.color(QPalette::Window), palette.color(QPalette::WindowText)) >= 7);
        const QPalette window = QApplication::palette();
        QCOMPARE(Appearance::isDark(window), dark);
        QVERIFY(contrast(window.color(QPalette::Window), window.color(QPalette::WindowText)) >= 7);
        QVERIFY(contrast(window.color(QPalette::Base), window.color(QPalette::Text)) >= 7);
        QVERIFY(contrast(window.color(QPalette::Highlight), window.color(QPalette::HighlightedText)) >= 4.5);
        QVERIFY(contrast(window.color(QPalette::Base), window.color(QPalette::PlaceholderText)) >= 3);
    }

    void everyIconIsDrawnInTheTextColour()
    {
        QDirIterator icons(QStringLiteral(":/meridane/designer/icons"));
        int count = 0;
        while (icons.hasNext()) {
            const QFileInfo file(icons.next());
            if (file.baseName() == QLatin1String("application"))
                continue;
            ++count;
            QApplication::setPalette(Appearance::darkPalette());
            const QImage dark = ThemedIcon::named(file.baseName()).pixmap(QSize(20, 20), 2).toImage();
            QApplication::setPalette(Appearance::lightPalette());
            const QImage light = ThemedIcon::named(file.baseName()).pixmap(QSize(20, 20), 2).toImage();
            QCOMPARE(dark.size(), QSize(40, 40));
            QVERIFY2(dark != light, qPrintable(file.baseName()));
            int drawn = 0;
            for (int y = 0; y < light.height(); ++y) {
                for (int x = 0; x < light.width(); ++x)
                    drawn += light.pixelColor(x, y).alphaF() > 0.5 ? 1 : 0;
            }
            QVERIFY2(drawn > 40, qPrintable(file.baseName()));
        }
        QVERIFY(count > 20);
    }

    void theIconsAreOneFamily()
    {
        // The same grid, stroke and ends of strokes: none looks heavier or larger than its neighbours.
        QDirIterator icons(QStringLiteral(":/meridane/designer/icons"));
        while (icons.hasNext()) {
            QFile file(icons.next());
            if (file.fileName().endsWith(QLatin1String("application.svg")))
                continue;
            QVERIFY(file.open(QIODevice::ReadOnly));
            QXmlStreamReader drawing(&file);
            QVERIFY2(drawing.readNextStartElement(), qPrintable(file.fileName()));
            const QXmlStreamAttributes root = drawing.attributes();
            const auto value = [&root](const char* name) { return root.value(QLatin1String(name)).toString(); };
            QVERIFY2(value("viewBox") == QLatin1String("0 0 24 24") && value("fill") == QLatin1String("none")
                         && value("stroke") == QLatin1String("#000") && value("stroke-width") == QLatin1String("1.6")
                         && value("stroke-linecap") == QLatin1String("round")
                         && value("stroke-linejoin") == QLatin1String("round"),
                     qPrintable(file.fileName()));
        }
    }

    void tintingKeepsTheShapeAndTheScale()
    {
        QPixmap drawing(8, 8);
        drawing.setDevicePixelRatio(2);
        drawing.fill(Qt::transparent);
        {
            QPainter painter(&drawing);
            painter.fillRect(QRectF(0, 0, 2, 4), QColor(255, 0, 0, 128));
        }
        const QPixmap tinted = IconTint::tinted(drawing, QColor(0, 0, 255));
        QCOMPARE(tinted.devicePixelRatio(), 2.);
        const QImage image = tinted.toImage();
        QCOMPARE(image.pixelColor(1, 7), QColor(0, 0, 255, 128));
        QCOMPARE(image.pixelColor(5, 1).alpha(), 0);
        QVERIFY(IconTint::tinted(QPixmap(), Qt::red).isNull());
    }

    void menuTextsAreReadWithoutTheirMarks()
    {
        QCOMPARE(MenuText::plain(QStringLiteral("Save &As…")), QStringLiteral("Save As"));
        QCOMPARE(MenuText::plain(QStringLiteral("Cut && &Saw")), QStringLiteral("Cut & Saw"));
        QCOMPARE(MenuText::plain(QStringLiteral("Fish &")), QStringLiteral("Fish &"));
    }

    void aLetterIsMarkedOnceInAMenu()
    {
        QMenu menu;
        menu.addAction(QStringLiteral("&Copy"));
        menu.addAction(QStringLiteral("&Cut && Go"));
        menu.addMenu(QStringLiteral("C&ut"))->addAction(QStringLiteral("&Copy"));
        MenuText::makeMnemonicsUnique(&menu);
        QCOMPARE(menu.actions().at(0)->text(), QStringLiteral("&Copy"));
        QCOMPARE(menu.actions().at(1)->text(), QStringLiteral("Cut && Go"));
        QCOMPARE(menu.actions().at(2)->menu()->actions().first()->text(), QStringLiteral("&Copy"));
    }

    void toolTipsFollowTheDesktopsColours()
    {
        Appearance::apply(Appearance::Scheme::Desktop);
        QApplication::setPalette(Appearance::darkPalette()); // as a desktop does that turns dark
        Appearance::follow();
        QCOMPARE(QToolTip::palette().color(QPalette::ToolTipBase),
                 Appearance::darkPalette().color(QPalette::ToolTipBase));
    }

    void aNewProjectStartsFromAPresetOrAnySize()
    {
        NewProjectDialog dialog({QStringLiteral("Untitled"), QSizeF(800, 480)});
        auto* preset = dialog.findChild<QComboBox*>();
        const QList<QSpinBox*> sides = dialog.findChildren<QSpinBox*>();
        QCOMPARE(preset->currentData().toSize(), QSize(800, 480));
        Q_EMIT preset->activated(0);
        QCOMPARE(dialog.newProject().displaySize, QSizeF(320, 240));
        sides.first()->setValue(333);
        QVERIFY(!preset->currentData().isValid());
        auto* name = dialog.findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
        name->setText(QStringLiteral("   "));
        QVERIFY(!dialog.findChild<QPushButton*>()->isEnabled());
    }

    void theProblemsListShowsOnlyColumnsThatTellSomething()
    {
        const Problem ofElement{Problem::Severity::Warning, QStringLiteral("screens/main.json"),
                                QStringLiteral("main/dial"), QStringLiteral("font"), QStringLiteral("is not there.")};
        const Problem ofFile{
            Problem::Severity::Warning, QStringLiteral("project.json"), {}, {}, QStringLiteral("Old.")};
        ProblemsPanel panel;
        panel.resize(700, 200);
        panel.show();
        panel.setProblems({ofElement});
        QVERIFY(panel.isColumnHidden(1) && panel.isColumnHidden(3));
        QVERIFY(!panel.isColumnHidden(0) && !panel.isColumnHidden(2));
        const int width = panel.columnWidth(0);
        panel.setProblems({ofElement, ofFile});
        QVERIFY(!panel.isColumnHidden(3));
        QVERIFY(panel.columnWidth(0) < width);
        panel.setProblems({ofElement});
        QCOMPARE(panel.columnWidth(0), width);
    }

    void aProblemLeadsToItsObject()
    {
        ProblemsPanel panel;
        panel.setProblems(
            {{Problem::Severity::Error, QStringLiteral("screens/main.json"), QStringLiteral("main/dial"),
              QStringLiteral("size"), QStringLiteral("is no size.")},
             {Problem::Severity::Warning, QStringLiteral("project.json"), {}, {}, QStringLiteral("Old.")}});
        QCOMPARE(panel.topLevelItemCount(), 2);
        QSignalSpy wanted(&panel, &ProblemsPanel::objectRequested);
        Q_EMIT panel.itemActivated(panel.topLevelItem(1), 0);
        QVERIFY(wanted.isEmpty());
        Q_EMIT panel.itemActivated(panel.topLevelItem(0), 0);
        QCOMPARE(wanted.first().first().toString(), QStringLiteral("main/dial"));
    }
};

QTEST_MAIN(tst_AppParts)
#include "tst_AppParts.moc"
