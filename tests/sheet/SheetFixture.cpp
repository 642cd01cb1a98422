#include "tests/sheet/SheetFixture.h"

#include "host/core/sheet/SectionHeader.h"

#include "shapes/Rectangle.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QtTest>

#include <algorithm>

namespace Korvex::Meridane::Designer::Test {

namespace {

template <typename Object>
TestFactory::Maker maker()
{
    return [](QObject* parent) { return new Object(parent); };
}

} // namespace

SheetFixture::SheetFixture()
    : factory({{QStringLiteral("EditorTestElement"), maker<EditorTestElement>()},
               {QStringLiteral("Rectangle"), maker<Rectangle>()}})
{
    auto project = std::make_unique<Project>();
    project->initialize();
    project->setFolder(folder.path());
    session = std::make_unique<EditSession>(std::move(project));
    session->addScreen(QStringLiteral("main"), {}, &screen);
    stack()->clear();
    sheet = std::make_unique<PropertySheet>(session.get());
    sheet->resize(280, 900);
    sheet->show();
    sheet->activateWindow();
    if (!QTest::qWaitForWindowActive(sheet.get()))
        qFatal("the window does not become active");
}

SheetFixture::~SheetFixture() = default;

EditorTestElement* SheetFixture::addElement()
{
    DesignerObject* object = nullptr;
    session->addElement(QStringLiteral("EditorTestElement"), screen, {}, {}, &object);
    stack()->clear();
    return qobject_cast<EditorTestElement*>(object);
}

DesignerObject* SheetFixture::addRectangle()
{
    DesignerObject* object = nullptr;
    session->addElement(QStringLiteral("Rectangle"), screen, {}, {}, &object);
    stack()->clear();
    return object;
}

void SheetFixture::select(const QList<DesignerObject*>& objects)
{
    session->setSelection(objects);
    QCoreApplication::processEvents(); // the rows get their places
}

QLineEdit* SheetFixture::idField() const
{
    return sheet->findChild<QLineEdit*>(QStringLiteral("sheetId"));
}

SectionHeader* SheetFixture::section(const QString& key) const
{
    const auto headers = sheet->findChildren<SectionHeader*>();
    const auto found = std::find_if(headers.begin(), headers.end(), [&key](const SectionHeader* header) {
        return header->key() == key && header->isVisible();
    });
    return found == headers.end() ? nullptr : *found;
}

void SheetFixture::enter(QWidget* field, const char* text)
{
    type(field, text);
    QTest::keyClick(field, Qt::Key_Return);
}

void SheetFixture::type(QWidget* field, const char* text)
{
    field->setFocus();
    if (auto* line = qobject_cast<QLineEdit*>(field))
        line->selectAll();
    else if (auto* number = qobject_cast<QAbstractSpinBox*>(field))
        number->selectAll();
    QTest::keyClicks(field, QString::fromLatin1(text));
}

} // namespace Korvex::Meridane::Designer::Test
