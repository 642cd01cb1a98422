#include "host/core/editors/PropertyEditor.h"
#include "host/core/editors/StandardEditors.h"
#include "host/core/sheet/EditorMatcher.h"

#include "tests/support/EditorTestElement.h"

#include <QtTest>

#include <memory>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

/// A type of which the list knows only the base.
class AngleProperty : public RealProperty
{
public:
    using RealProperty::RealProperty;
    QString className() const override { return QStringLiteral("AngleProperty"); }
    QStringList classNames() const override { return RealProperty::classNames() << className(); }
};

} // namespace

class tst_EditorMatcher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_element.initialize()); }

    void everyTypeHasADefaultEditorOfTheHost()
    {
        const QStringList known = standardEditorClassNames();
        for (const auto& property : m_element.properties())
            QVERIFY2(known.contains(EditorMatcher::defaultEditorClass(*property)), qPrintable(property->id()));
        QCOMPARE(EditorMatcher::defaultEditorClass(*m_element.property("boundingSize")), QStringLiteral("SizeEditor"));
        QCOMPARE(EditorMatcher::defaultEditorClass(*m_element.property("points")),
                 QStringLiteral("PointListTextEditor"));
        QCOMPARE(EditorMatcher::defaultEditorClass(*m_element.property("rotation")), QStringLiteral("RotationEditor"));
        QCOMPARE(EditorMatcher::defaultEditorClass(*m_element.property("text")), QStringLiteral("StringEditor"));
    }

    void aTypeDerivedFromAKnownOneIsEditedLikeIt()
    {
        const AngleProperty property(&m_element, QStringLiteral("angle"), QStringLiteral("Angle"), 0.0);
        QCOMPARE(EditorMatcher::editorClass(property), QStringLiteral("RealEditor"));
    }

    void thePropertyItselfNamesItsEditorFirst()
    {
        QCOMPARE(EditorMatcher::editorClass(*m_element.property("keepRatio")), QStringLiteral("KeepRatioEditor"));
        QCOMPARE(EditorMatcher::editorClass(*m_element.property("source")), QStringLiteral("ImageSourceEditor"));
    }

    void anEditorThatNothingServesGivesTheDefaultOfTheType()
    {
        IntegerProperty property(&m_element, QStringLiteral("x"), QStringLiteral("X"), 0);
        property.setEditor(QStringLiteral("EditorOfAMissingPlugin"));
        QWidget parent;
        const PropertyEditor* editor = EditorMatcher::createEditor(property, &parent);
        QVERIFY(editor);
        QCOMPARE(editor->className(), QStringLiteral("IntegerEditor"));
    }

private:
    EditorTestElement m_element;
};

QTEST_MAIN(tst_EditorMatcher)
#include "tst_EditorMatcher.moc"
