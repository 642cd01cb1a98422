#include "tests/accessibility/WindowTour.h"
#include "tests/translations/ShownTexts.h"

#include "app/MainWindow.h"
#include "app/ProjectDocument.h"

#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/widgets/MessageBox.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QMap>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>
#include <QTranslator>

using namespace Korvex::Meridane;
using Translations::ShownText;

namespace {

constexpr QChar Begin(0x27e6);
constexpr QChar End(0x27e7);

/// A language in which every text stands in brackets.
class BracketTranslator : public QTranslator
{
public:
    QString translate(const char*, const char* text, const char*, int count) const override
    {
        QString translated = Begin + QString::fromUtf8(text) + End;
        return count < 0 ? translated : translated.replace(QLatin1String("%n"), QString::number(count));
    }

    bool isEmpty() const override { return false; }
};

/// What is left of \a text without translated parts, keys, numbers and signs.
QString untranslatedPart(QString text)
{
    static const QRegularExpression tags(QStringLiteral("<[^>]*>|&nbsp;|&[a-z]+;"));
    static const QRegularExpression keys(
        QStringLiteral("\\((?:Ctrl|Shift|Alt|Meta|F\\d+|Del|Esc|\\+|\\w|[0-9])+[^)]*\\)"));
    text.remove(tags);
    qsizetype end = -1;
    // From the inside out: a translated text may be a value of another one.
    while ((end = text.indexOf(End)) >= 0) {
        const qsizetype begin = text.lastIndexOf(Begin, end);
        text.remove(qMax<qsizetype>(0, begin), end - qMax<qsizetype>(0, begin) + 1);
    }
    text.remove(keys);
    return text.trimmed();
}

/// Words that are the same in every language: ids, files, fonts, formats and keys.
bool isNoLanguage(const QString& text, const QStringList& names)
{
    static const QRegularExpression word(QStringLiteral("\\p{L}{2,}"));
    for (auto words = word.globalMatch(text); words.hasNext();) {
        const QString found = words.next().captured();
        const bool known = std::any_of(names.cbegin(), names.cend(), [&found](const QString& name) {
            return name.contains(found, Qt::CaseInsensitive);
        });
        if (!known)
            return false;
    }
    return true;
}

} // namespace

/// No text of the application is shown before a translator has had it.
class tst_TranslatedWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        Designer::MessageBox::setPresenter([](QWidget*, const QString&, const QString&) {});
        QVERIFY(QCoreApplication::installTranslator(&m_translator));
        QVERIFY(Designer::DesignerFactory::instance()->loadInstalledPlugins().isEmpty());
    }

    void everyTextHasBeenTranslated()
    {
        QMap<QString, QString> faults;
        int texts = 0;
        Designer::Test::WindowTour tour;
        const QStringList names = namesIn(tour);
        (void)tour.visitAll([&](QWidget* window, const QString& where) {
            for (const ShownText& shown : Translations::shownTexts(window)) {
                ++texts;
                const QString left = untranslatedPart(shown.text);
                if (!isNoLanguage(left, names))
                    faults.insert(QStringLiteral("\"%1\" in %2").arg(shown.text.left(80), shown.place), where);
            }
        });
        QVERIFY2(texts > 2000, qPrintable(QString::number(texts)));
        for (auto fault = faults.cbegin(); fault != faults.cend(); ++fault)
            qInfo().noquote() << fault.key() << QStringLiteral("(%1)").arg(fault.value());
        QCOMPARE(faults.size(), 0);
    }

    void untranslatedTextsAreFound_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("left");
        QTest::newRow("translated") << QStringLiteral("⟦Copy⟧") << QString();
        QTest::newRow("within another") << QStringLiteral("⟦Undo ⟦Move dial⟧⟧") << QString();
        QTest::newRow("with its key") << QStringLiteral("⟦Copy⟧ (Ctrl+C)") << QString();
        QTest::newRow("beside another") << QStringLiteral("⟦Copy⟧ of it") << QStringLiteral("of it");
        QTest::newRow("not at all") << QStringLiteral("Copy") << QStringLiteral("Copy");
    }

    void untranslatedTextsAreFound()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, left);
        QCOMPARE(untranslatedPart(text), left);
    }

private:
    /// What is called the same in every language.
    static QStringList namesIn(const Designer::Test::WindowTour& tour)
    {
        QStringList names = QFontDatabase::families();
        names << QStringLiteral("Meridane Designer") << QStringLiteral("QML") << QStringLiteral("RGB");
        // Which program could not be started, in the words of the system.
        names << QCoreApplication::applicationDirPath() << QStringLiteral("meridane-viewer: execvp");
        const Designer::Project* project = tour.window()->document()->project();
        names << project->folder() << project->name() << project->fontResources() << project->imageResources();
        for (const Designer::Screen* screen : project->screens())
            addIds(screen, &names);
        for (const QString& className : Designer::DesignerFactory::instance()->elementClassNames())
            names << className + QLatin1Char('1'); // the id of a new one
        return names;
    }

    static void addIds(const Designer::DesignerObject* object, QStringList* names)
    {
        *names << object->getIdName();
        for (const auto& property : object->properties())
            *names << property->valueString();
        if (!object->childList())
            return;
        for (const Designer::DesignerObject* child : object->childList()->items())
            addIds(child, names);
    }

    BracketTranslator m_translator;
};

QTEST_MAIN(tst_TranslatedWindow)
#include "tst_TranslatedWindow.moc"
