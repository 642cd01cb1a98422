#include "lines/FocusRealEditor.h"
#include "tests/canvas/CanvasFixture.h"
#include "tests/lines/AnyNumber.h"
#include "tests/support/EditorTestElement.h"

#include "host/core/editors/PropertyEditor.h"
#include "host/core/sheet/PropertySheet.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/NumberSlider.h"
#include "host/core/widgets/NumberWidget.h"
#include "host/core/widgets/SpinBox.h"

#include <QVBoxLayout>
#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

/// Replaces the text of a field and presses Enter.
void enter(QWidget* field, const QString& text)
{
    field->setFocus();
    qobject_cast<QAbstractSpinBox*>(field)->selectAll();
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Return);
}

/// An editor in a window beside another field, for an element without a canvas.
struct EditorWindow
{
    explicit EditorWindow(const QMap<QString, QVariant>& parameters = {})
    {
        element.initialize();
        element.property("real")->setEditorParameters(parameters);
        auto* layout = new QVBoxLayout(&window);
        editor = new FocusRealEditor(&window);
        editor->setProperty(element.property("real"));
        if (!editor->initialize())
            qFatal("The editor cannot be built.");
        elsewhere = new QLineEdit(&window);
        layout->addWidget(editor);
        layout->addWidget(elsewhere);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("The window does not become active.");
        elsewhere->setFocus();
    }

    [[nodiscard]] SpinBox* field() const { return editor->numberWidget()->spinBox(); }

    EditorTestElement element;
    QWidget window;
    FocusRealEditor* editor = nullptr;
    QLineEdit* elsewhere = nullptr;
};

} // namespace

/// The editor of a line's length and angle: alone, and in the property sheet beside the real canvas.
class tst_FocusRealEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_canvas = std::make_unique<CanvasFixture>();
        m_sheet = std::make_unique<PropertySheet>(m_canvas->session.get());
        m_sheet->resize(300, 700);
        m_sheet->show();
        m_sheet->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_sheet.get()));
        m_line = addLine({300, 200});
        m_canvas->select({m_line});
        QApplication::processEvents(); // the rows get their places
    }

    void cleanup()
    {
        m_sheet.reset();
        m_canvas.reset();
    }

    void withoutParametersItIsAFieldFrom0To100()
    {
        const EditorWindow window;
        QCOMPARE(window.editor->className(), QStringLiteral("FocusRealEditor"));
        QVERIFY(window.editor->classNames().contains(QLatin1String("PropertyEditor")));
        QVERIFY(window.editor->classNames().contains(QLatin1String("FocusRealEditor")));
        QCOMPARE(window.field()->minimum(), 0.0);
        QCOMPARE(window.field()->maximum(), 100.0);
        QCOMPARE(window.field()->decimals(), 2);
        QCOMPARE(window.field()->singleStep(), 1.0);
        QCOMPARE(window.field()->suffix(), QString());
        QVERIFY(!window.editor->numberWidget()->slider()->isVisible());
        QCOMPARE(window.editor->editorWidget(), window.editor->numberWidget());
    }

    void theParametersOfThePropertyAreApplied()
    {
        const EditorWindow window({{QStringLiteral("minimum"), -3},
                                   {QStringLiteral("maximum"), 359.99},
                                   {QStringLiteral("decimals"), 1},
                                   {QStringLiteral("singleStep"), 0.5},
                                   {QStringLiteral("showSlider"), true},
                                   {QStringLiteral("suffix"), QStringLiteral(" mm")},
                                   {QStringLiteral("tooltip"), QStringLiteral("How far")}});
        QCOMPARE(window.field()->minimum(), -3.0);
        QCOMPARE(window.field()->maximum(), 359.99);
        QCOMPARE(window.field()->decimals(), 1);
        QCOMPARE(window.field()->singleStep(), 0.5);
        QCOMPARE(window.field()->suffix(), QStringLiteral(" mm"));
        QVERIFY(window.editor->numberWidget()->slider()->isVisible());
        QCOMPARE(window.editor->toolTip(), QStringLiteral("How far"));
    }

    void whatIsShownIsWhatTheValueStringSays()
    {
        EditorWindow window;
        for (const char* text : {"12.5", "0.123456789", "-7", "1e+300", "100.001"}) {
            window.element.property("real")->fill(QString::fromLatin1(text));
            window.editor->load();
            QCOMPARE(window.editor->editorValue(), QString::fromLatin1(text));
            QCOMPARE(window.element.value("real"), QString::fromLatin1(text));
        }
    }

    void withSeveralElementsThePendingValueIsEdited()
    {
        EditorWindow window;
        window.editor->setPropertyChange(true);
        window.editor->setChangedPropertyValue(QStringLiteral("33"));
        window.editor->load();
        QCOMPARE(window.field()->value(), 33.0);
        QSignalSpy changes(window.editor, &PropertyEditor::changeSaved);
        enter(window.field(), QStringLiteral("44"));
        QCOMPARE(changes.size(), 1);
        QCOMPARE(window.editor->changedPropertyValue(), QStringLiteral("44"));
        QCOMPARE(window.element.value("real"), QStringLiteral("1.5"));
    }

    void theFocusChangesNothingOnWhatIsNoLine()
    {
        // Without an item, with one that is none of a line, and when the element is gone.
        EditorWindow window;
        window.field()->setFocus();
        window.elsewhere->setFocus();
        QCOMPARE(window.element.value("real"), QStringLiteral("1.5"));

        DesignerObject* rectangle = m_canvas->addRectangle(QRectF(10, 10, 50, 50));
        auto editor = std::make_unique<FocusRealEditor>(&window.window);
        const auto property =
            QSharedPointer<RealProperty>::create(rectangle, QStringLiteral("free"), QStringLiteral("Free"), 7.0);
        editor->setProperty(property);
        QVERIFY(editor->initialize());
        window.window.layout()->addWidget(editor.get());
        editor->show();
        const auto before = m_canvas->values();
        const QRectF bounds = CanvasFixture::graphic(rectangle)->boundingRect();
        editor->setFocus();
        QCOMPARE(CanvasFixture::graphic(rectangle)->boundingRect(), bounds);
        QCOMPARE(m_canvas->values(), before);
        m_canvas->session->removeElements({rectangle});
        m_canvas->stack()->clear();
        window.elsewhere->setFocus();
        editor->setProperty({});
    }

    void theFieldsOfALineAreAsItsTableSays()
    {
        QCOMPARE(field("length")->minimum(), 1.0);
        QCOMPARE(field("length")->maximum(), 9999.0);
        QCOMPARE(field("length")->decimals(), 2);
        QCOMPARE(field("length")->suffix(), QStringLiteral(" px"));
        QVERIFY(!slider("length")->isVisible());
        QCOMPARE(field("angle")->minimum(), 0.0);
        QCOMPARE(field("angle")->maximum(), 359.99);
        QCOMPARE(field("angle")->suffix(), QStringLiteral("°"));
        QVERIFY(slider("angle")->isVisible());
        QCOMPARE(field("width")->minimum(), 1.0);
        QCOMPARE(field("width")->maximum(), 100.0);
        QCOMPARE(field("width")->decimals(), 0);
    }

    void theFocusShowsWhereTheLineStarts_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::newRow("length") << QByteArray("length");
        QTest::newRow("angle") << QByteArray("angle");
    }

    void theFocusShowsWhereTheLineStarts()
    {
        QFETCH(QByteArray, property);
        const auto before = m_canvas->values();
        const QImage without = picture();
        field(property)->setFocus();
        QVERIFY(hasDot(m_line));
        const QImage with = picture();
        // About the start point, and nowhere else.
        const QRect changed = changedRect(without, with);
        const QPoint start = m_canvas->view->viewportTransform().map(QPointF(300, 200)).toPoint();
        QVERIFY(changed.contains(start));
        QVERIFY(changed.width() <= 16 && changed.height() <= 16);
        QCOMPARE(with.pixelColor(start), QColor(0, 0, 255));
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(m_canvas->steps(), 0);

        field("width")->setFocus();
        QVERIFY(!hasDot(m_line));
        QCOMPARE(picture(), without);
        QCOMPARE(m_canvas->values(), before);
    }

    void fromFieldToFieldTheDotStays()
    {
        field("length")->setFocus();
        QVERIFY(hasDot(m_line));
        QSignalSpy repaints(m_canvas->scene(), &QGraphicsScene::changed);
        QApplication::processEvents();
        repaints.clear();
        // Within one editor there is nothing to do.
        field("angle")->setFocus();
        QVERIFY(hasDot(m_line));
        QApplication::processEvents();
        repaints.clear();
        slider("angle")->setFocus();
        QVERIFY(hasDot(m_line));
        field("angle")->setFocus();
        QVERIFY(hasDot(m_line));
        QApplication::processEvents();
        QVERIFY(repaints.isEmpty());
        m_canvas->view->setFocus();
        m_canvas->view->activateWindow();
        QTRY_VERIFY(!hasDot(m_line));
    }

    void theDotGoesWithTheSelection()
    {
        DesignerObject* other = addLine({100, 100});
        m_canvas->select({m_line});
        QApplication::processEvents();
        field("angle")->setFocus();
        QVERIFY(hasDot(m_line));
        m_canvas->select({other});
        QApplication::processEvents();
        QVERIFY(!hasDot(m_line));
        QCOMPARE(hasDot(other), field("angle")->hasFocus());
        field("angle")->setFocus();
        QVERIFY(hasDot(other));
        QVERIFY(!hasDot(m_line));
        m_canvas->select({});
        QApplication::processEvents();
        QVERIFY(!hasDot(other));
    }

    void severalLinesAllShowWhereTheyStart()
    {
        DesignerObject* other = addLine({100, 100});
        DesignerObject* third = addLine({100, 300});
        m_canvas->select({m_line, other});
        QApplication::processEvents();
        field("length")->setFocus();
        QVERIFY(hasDot(m_line) && hasDot(other) && !hasDot(third));
        m_canvas->select({m_line, third});
        QApplication::processEvents();
        field("length")->setFocus();
        QVERIFY(hasDot(m_line) && !hasDot(other) && hasDot(third));
        field("width")->setFocus();
        QVERIFY(!hasDot(m_line) && !hasDot(other) && !hasDot(third));
    }

    void aLineThatIsRemovedComesBackWithoutTheDot()
    {
        const auto before = m_canvas->values();
        field("length")->setFocus();
        QVERIFY(hasDot(m_line));
        m_canvas->session->removeElements({m_line});
        QApplication::processEvents();
        m_canvas->session->undo();
        QApplication::processEvents();
        QCOMPARE(m_canvas->values(), before);
        m_line = m_canvas->scene()->selectableElements().first();
        m_canvas->select({});
        QApplication::processEvents();
        QVERIFY(!hasDot(m_line));
    }

    void closingTheSheetTakesTheDotAway()
    {
        field("length")->setFocus();
        QVERIFY(hasDot(m_line));
        m_sheet.reset();
        QVERIFY(!hasDot(m_line));
    }

    void whatIsTypedIsOneStep_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("step");
        const auto row = [](const char* property, const char* typed, const char* value, const char* step) {
            QTest::addRow("%s %s", property, typed) << QByteArray(property) << QString::fromLatin1(typed)
                                                    << QString::fromLatin1(value) << QString::fromUtf8(step);
        };
        row("length", "250.5", "250.5", "Change Length");
        row("length", "33.336", "33.34", "Change Length");
        row("length", "0", "1", "Change Length");
        row("length", "20000", "9999", "Change Length");
        row("length", "+=10", "130", "Change Length");
        row("length", "100/3", "33.33", "Change Length");
        row("angle", "45", "45", "Change Angle (Clockwise)");
        row("angle", "360", "359.99", "Change Angle (Clockwise)");
        row("angle", "+=30.125", "30.13", "Change Angle (Clockwise)");
        row("width", "7", "7", "Change Thickness");
        row("width", "0", "1", "Change Thickness");
        row("width", "101", "100", "Change Thickness");
    }

    void whatIsTypedIsOneStep()
    {
        QFETCH(QByteArray, property);
        QFETCH(QString, typed);
        QFETCH(QString, value);
        QFETCH(QString, step);
        const auto before = m_canvas->values();
        enter(field(property), typed);
        QCOMPARE(CanvasFixture::value(m_line, property.constData()), value);
        QCOMPARE(CanvasFixture::value(m_line, "position"), QStringLiteral("300,200"));
        QCOMPARE(m_canvas->steps(), 1);
        QCOMPARE(m_canvas->stack()->undoText(), step);
        QCOMPARE(hasDot(m_line), property != "width");
        const QSizeF outer = ValueConversion::toSize(CanvasFixture::value(m_line, "boundingSize"));
        const QSizeF drawn = CanvasFixture::outerRect(m_line).size();
        QVERIFY(std::abs(outer.width() - drawn.width()) <= 1e-6 && std::abs(outer.height() - drawn.height()) <= 1e-6);
        const auto after = m_canvas->values();
        for (int i = 0; i < 2; ++i) {
            m_canvas->session->undo();
            QCOMPARE(m_canvas->values(), before);
            QCOMPARE(field(property)->value(),
                     ValueConversion::toReal(CanvasFixture::value(m_line, property.constData())));
            m_canvas->session->redo();
            QCOMPARE(m_canvas->values(), after);
        }
        // The same again is no step.
        enter(field(property), value);
        QCOMPARE(m_canvas->steps(), 1);
        // Below its minimum it becomes that.
        enter(field(property), QStringLiteral("-5"));
        QCOMPARE(CanvasFixture::value(m_line, property.constData()),
                 property == "angle" ? QStringLiteral("0") : QStringLiteral("1"));
    }

    void aTypedSizeIsOneStepWithAllThatFollows()
    {
        SpinBox* height = sizeField(1);
        const auto before = m_canvas->values();
        enter(height, QStringLiteral("60"));
        QCOMPARE(m_canvas->steps(), 1);
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Change Size"));
        const QRectF outer = CanvasFixture::outerRect(m_line);
        QVERIFY(std::abs(outer.width() - 120) <= 0.5 && std::abs(outer.height() - 60) <= 0.5);
        QVERIFY((outer.topLeft() - QPointF(300, 197)).manhattanLength() < 1e-6);
        QVERIFY(ValueConversion::toReal(CanvasFixture::value(m_line, "angle")) > 20);
        QVERIFY(std::abs(height->value() - 60) < 0.01);
        const auto after = m_canvas->values();
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), before);
        m_canvas->session->redo();
        QCOMPARE(m_canvas->values(), after);
        // What no line fits into is no step, and the field says so.
        m_canvas->session->undo();
        m_canvas->stack()->clear();
        enter(height, QStringLiteral("4"));
        QCOMPARE(m_canvas->steps(), 0);
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(height->value(), 6.0);
    }

    void aTypedSizeWithAKeptRatioScalesTheThicknessToo()
    {
        m_canvas->set(m_line, "keepRatio", QStringLiteral("20"));
        const auto before = m_canvas->values();
        enter(sizeField(1), QStringLiteral("9"));
        QCOMPARE(m_canvas->steps(), 1);
        QCOMPARE(CanvasFixture::value(m_line, "length"), QStringLiteral("180"));
        QCOMPARE(CanvasFixture::value(m_line, "width"), QStringLiteral("9"));
        QCOMPARE(CanvasFixture::value(m_line, "boundingSize"), QStringLiteral("180,9"));
        QCOMPARE(CanvasFixture::value(m_line, "position"), QStringLiteral("300,201.5"));
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), before);
        enter(sizeField(0), QStringLiteral("60"));
        QCOMPARE(CanvasFixture::value(m_line, "boundingSize"), QStringLiteral("60,3"));
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), before);
    }

    void aDragOfTheAnglesSliderIsOneStep()
    {
        const auto before = m_canvas->values();
        NumberSlider* slider = this->slider("angle");
        const int y = slider->height() / 2;
        const auto at = [&](double part) { return QPoint(int(part * (slider->width() - 1)), y); };
        QTest::mousePress(slider, Qt::LeftButton, {}, at(0.05));
        QSet<QString> angles;
        for (double part = 0.1; part < 0.76; part += 0.05) {
            QTest::mouseMove(slider, at(part));
            angles.insert(CanvasFixture::value(m_line, "angle"));
        }
        QTest::mouseRelease(slider, Qt::LeftButton, {}, at(0.75));
        QVERIFY(angles.size() > 5); // the line turns while the handle is dragged
        const double angle = ValueConversion::toReal(CanvasFixture::value(m_line, "angle"));
        QVERIFY(angle > 200 && angle < 320);
        QCOMPARE(m_canvas->steps(), 1);
        QCOMPARE(CanvasFixture::value(m_line, "length"), QStringLiteral("120"));
        QCOMPARE(CanvasFixture::value(m_line, "position"), QStringLiteral("300,200"));
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), before);
        // To the very end.
        QTest::mousePress(slider, Qt::LeftButton, {}, at(0.5));
        QTest::mouseMove(slider, QPoint(slider->width() + 50, y));
        QTest::mouseRelease(slider, Qt::LeftButton, {}, QPoint(slider->width() + 50, y));
        QCOMPARE(CanvasFixture::value(m_line, "angle"), QStringLiteral("359.99"));
    }

    void whatIsTypedForSeveralLinesIsOneStep()
    {
        DesignerObject* other = addLine({100, 100});
        m_canvas->set(other, "length", QStringLiteral("55"));
        m_canvas->select({m_line, other});
        QApplication::processEvents();
        const auto before = m_canvas->values();
        enter(field("length"), QStringLiteral("+=10"));
        QCOMPARE(CanvasFixture::value(m_line, "length"), QStringLiteral("130"));
        QCOMPARE(CanvasFixture::value(other, "length"), QStringLiteral("65"));
        enter(field("angle"), QStringLiteral("90"));
        QCOMPARE(CanvasFixture::value(m_line, "boundingSize"), QStringLiteral("6,130"));
        QCOMPARE(CanvasFixture::value(other, "boundingSize"), QStringLiteral("6,65"));
        QCOMPARE(m_canvas->steps(), 2);
        m_canvas->session->undo();
        m_canvas->session->undo();
        QCOMPARE(m_canvas->values(), before);
    }

    void undoingAndRedoingAllGivesEveryValueBack()
    {
        m_canvas->set(m_line, "keepRatio", QStringLiteral("3"));
        const bool held = rc::check("what is typed", [this] {
            m_canvas->stack()->clear();
            QList<QMap<QString, QString>> states = {m_canvas->values()};
            const int count = anyNumber(1, 15);
            for (int i = 0; i < count; ++i) {
                SpinBox* const fields[] = {field("length"), field("angle"), field("width"), sizeField(0), sizeField(1)};
                SpinBox* edited = fields[anyNumber(0, 5)];
                const int before = m_canvas->stack()->index();
                if (anyNumber(0, 3) == 0) {
                    edited->setFocus();
                    QTest::keyClick(edited, *rc::gen::element(Qt::Key_Up, Qt::Key_Down));
                    m_sheet->setFocus();
                    m_canvas->view->setFocus(); // the next steps do not join
                } else {
                    enter(edited, QString::number(anyNumber(0, 50000) / 100.0));
                }
                const int steps = m_canvas->stack()->index() - before;
                RC_ASSERT(steps == 0 || steps == 1);
                if (steps == 1)
                    states.append(m_canvas->values());
                else
                    states.last() = m_canvas->values(); // a step of the same run
                RC_ASSERT(CanvasFixture::value(m_line, "keepRatio") != QStringLiteral("0"));
            }
            const int last = m_canvas->stack()->index();
            RC_ASSERT(states.size() == last + 1);
            for (int i = last; i > 0; --i) {
                m_canvas->session->undo();
                RC_ASSERT(m_canvas->values() == states.at(i - 1));
            }
            for (int i = 0; i < last; ++i) {
                m_canvas->session->redo();
                RC_ASSERT(m_canvas->values() == states.at(i + 1));
            }
        });
        QVERIFY(held);
    }

private:
    /// A line 120 long and 6 thick.
    DesignerObject* addLine(const QPointF& start) const
    {
        return m_canvas->add("Line", {{QStringLiteral("position"), ValueConversion::toString(start)},
                                      {QStringLiteral("length"), QStringLiteral("120")},
                                      {QStringLiteral("width"), QStringLiteral("6")}});
    }

    [[nodiscard]] NumberWidget* numberWidget(const QByteArray& property) const
    {
        const PropertyEditor* editor = m_sheet->editor(QString::fromLatin1(property));
        auto* widget = editor ? editor->findChild<NumberWidget*>() : nullptr;
        if (!widget)
            qFatal("no field for %s", property.constData());
        return widget;
    }
    [[nodiscard]] SpinBox* field(const QByteArray& property) const { return numberWidget(property)->spinBox(); }
    [[nodiscard]] NumberSlider* slider(const QByteArray& property) const { return numberWidget(property)->slider(); }
    /// The width (0) or height (1) of "Size".
    [[nodiscard]] SpinBox* sizeField(int index) const
    {
        return m_sheet->editor(QStringLiteral("boundingSize"))->findChildren<SpinBox*>().at(index);
    }

    /// Whether a line that is thinner than a dot is drawn larger than it is.
    static bool hasDot(const DesignerObject* line)
    {
        return CanvasFixture::graphic(line)->boundingRect() != line->graphicsItem()->outerRect();
    }

    [[nodiscard]] QImage picture() const
    {
        QApplication::processEvents();
        return m_canvas->view->viewport()->grab().toImage();
    }

    static QRect changedRect(const QImage& a, const QImage& b)
    {
        QRect changed;
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width(); ++x) {
                if (a.pixel(x, y) != b.pixel(x, y))
                    changed |= QRect(x, y, 1, 1);
            }
        }
        return changed;
    }

    std::unique_ptr<CanvasFixture> m_canvas;
    std::unique_ptr<PropertySheet> m_sheet;
    DesignerObject* m_line = nullptr;
};

QTEST_MAIN(tst_FocusRealEditor)
#include "tst_FocusRealEditor.moc"
