#include "host/core/objects/DesignerObject.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QSignalSpy>
#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;

/// No value of any property of any element becomes code: whatever stands in a project, the display reads it back as the
/// value that it is, or not at all.
class tst_ElementTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QString message;
        QVERIFY2(DesignerFactory::instance()->loadPlugin(QStringLiteral(MERIDANE_PLUGIN_FILE), &message),
                 qPrintable(message));
        m_engine.addImportPath(QStringLiteral(MERIDANE_QML_DIR));
        // The engine says so when code runs that ends a program, and when anything cannot be read.
        connect(&m_engine, &QQmlEngine::quit, this, [this] { m_ranCode = true; });
        connect(&m_engine, &QQmlEngine::exit, this, [this] { m_ranCode = true; });
    }

    void aTextBoxReadsBackItsText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("quotes") << QStringLiteral("\"; Qt.quit(); \"");
        QTest::newRow("backslashes") << QStringLiteral("C:\\new\\table\\");
        QTest::newRow("breaks and tabs") << QStringLiteral("one\ntwo\r\nthree\tfour\rfive");
        QTest::newRow("control characters") << QString(QChar(0)) + QChar(1) + QChar(0x1b) + QChar(0x7f);
        QTest::newRow("separators") << QString(QChar(0x2028)) + QChar(0x2029) + QChar(0x85);
        QTest::newRow("right to left") << QStringLiteral("\u05e9\u05dc\u05d5\u05dd \u0645\u0631\u062d\u0628\u0627");
        QTest::newRow("combining marks") << QStringLiteral("e\u0301 a\u0308\u0323");
        QTest::newRow("emoji") << QStringLiteral("\U0001F525\U0001F469\u200d\U0001F680");
        QTest::newRow("substitutions") << QStringLiteral("${1 + 1} %1 %2 %%1 `x`");
        QTest::newRow("markup") << QStringLiteral("<b>bold</b> &amp; <img src='file:///etc/passwd'>");
        QTest::newRow("one MB") << QStringLiteral("\"\\ wörter\n").repeated(1 << 17);
    }

    void aTextBoxReadsBackItsText()
    {
        QFETCH(QString, text);
        const auto box = make(QStringLiteral("TextBox"));
        QVERIFY(box->changePropertyValue(box->getProperty(QStringLiteral("text")), text));
        const auto shown = run(*box);
        QVERIFY2(shown, qPrintable(m_error));
        QCOMPARE(shown->property("text").toString(), text);
    }

    void anyTextInAnyPropertyStaysAValue()
    {
        const QStringList classes = DesignerFactory::instance()->elementClassNames();
        QVERIFY(classes.size() > 5);
        QVERIFY(rc::check("no text of a project runs on the display", [&] {
            const QString className = *rc::gen::elementOf(std::vector<QString>(classes.cbegin(), classes.cend()));
            const auto element = make(className);
            const QString text = someText();
            for (const auto& property : element->properties()) {
                if (property->hasFlag(Stored) && *rc::gen::inRange(0, 3) == 0)
                    property->fill(someText());
            }
            const auto textProperty = element->getProperty(QStringLiteral("text"));
            if (textProperty)
                textProperty->fill(text);
            const auto shown = run(*element);
            if (!shown)
                RC_FAIL(className.toStdString() + ": " + m_error.toStdString() + element->toQml(0).toStdString());
            RC_ASSERT(!m_ranCode);
            RC_ASSERT(shown->findChildren<QObject*>(QStringLiteral("intruder")).isEmpty());
            if (textProperty)
                RC_ASSERT(shown->property("text").toString() == text);
        }));
    }

private:
    static std::unique_ptr<DesignerObject> make(const QString& className)
    {
        std::unique_ptr<DesignerObject> object(DesignerFactory::instance()->createDataObject(className, nullptr));
        return object;
    }

    /// Texts made of what could end a literal, a property or an object, and of anything else.
    static QString someText()
    {
        static const std::vector<QString> pieces = {QStringLiteral("\""),
                                                    QStringLiteral("\\"),
                                                    QStringLiteral("\n"),
                                                    QStringLiteral("; "),
                                                    QStringLiteral(": "),
                                                    QStringLiteral("}"),
                                                    QStringLiteral("{"),
                                                    QStringLiteral("Component.onCompleted: Qt.quit()"),
                                                    QStringLiteral("Group { objectName: \"intruder\" }"),
                                                    QStringLiteral("Qt.exit(1)"),
                                                    QStringLiteral("textStyle: Outline; "),
                                                    QStringLiteral("styleColor: "),
                                                    QStringLiteral("family: "),
                                                    QStringLiteral("width: 2; color: "),
                                                    QStringLiteral("#ff0000"),
                                                    QStringLiteral("0.1 "),
                                                    QStringLiteral("12"),
                                                    QStringLiteral(","),
                                                    QStringLiteral("${x}"),
                                                    QStringLiteral("/*"),
                                                    QStringLiteral("%1"),
                                                    QString(QChar(0x2028)),
                                                    QString(QChar(0)),
                                                    QStringLiteral("\u00df")};
        QString text;
        const int count = *rc::gen::inRange(0, 9);
        for (int i = 0; i < count; ++i)
            text += *rc::gen::elementOf(pieces);
        return text;
    }

    /// The element as the display runs it, or null with the error.
    std::unique_ptr<QObject> run(const DesignerObject& element)
    {
        m_ranCode = false;
        QQmlComponent component(&m_engine);
        component.setData("import Meridane.Display\n" + element.toQml(0).toUtf8(), QUrl());
        std::unique_ptr<QObject> object(component.create());
        QCoreApplication::processEvents();
        m_error = component.errorString();
        return object;
    }

    QQmlEngine m_engine;
    QString m_error;
    bool m_ranCode = false;
};

QTEST_MAIN(tst_ElementTexts)
#include "tst_ElementTexts.moc"
