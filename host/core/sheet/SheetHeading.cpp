#include "host/core/sheet/SheetHeading.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/project/Project.h"
#include "host/core/sheet/MessageLabel.h"
#include "host/core/sheet/SheetMetrics.h"

#include "host/common/LocalizationHelper.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

SheetHeading::SheetHeading(QWidget* parent)
    : QWidget(parent)
    , m_grid(new QGridLayout(this))
    , m_title(new QLabel(this))
    , m_idLabel(new QLabel(LocalizationHelper::coreString(QStringLiteral("Id")), this))
    , m_id(new QLineEdit(this))
    , m_message(new MessageLabel(this))
{
    m_title->setObjectName(QStringLiteral("sheetTitle"));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setWordWrap(true);
    QFont font = m_title->font();
    font.setWeight(QFont::DemiBold);
    font.setPointSizeF(font.pointSizeF() * 1.15);
    m_title->setFont(font);
    m_id->setObjectName(QStringLiteral("sheetId"));
    m_id->setToolTip(LocalizationHelper::coreString(
        QStringLiteral("The name by which links and the exported screen know the object")));
    m_idLabel->setBuddy(m_id);
    m_idLabel->setMinimumHeight(SheetMetrics::fieldHeight(this));

    m_grid->setContentsMargins(SheetMetrics::Margin, 0, SheetMetrics::Margin, 0);
    m_grid->setHorizontalSpacing(SheetMetrics::LabelGap);
    m_grid->setVerticalSpacing(2);
    m_grid->addWidget(m_title, 0, 0, 1, 2);
    m_grid->setRowMinimumHeight(1, SheetMetrics::RowGap - 2);
    m_grid->addWidget(m_idLabel, 2, 0, Qt::AlignTop);
    m_grid->addWidget(m_id, 2, 1);
    m_grid->addWidget(m_message, 3, 1);
    m_grid->setColumnStretch(1, 1);
    connect(m_id, &QLineEdit::editingFinished, this, &SheetHeading::rename);
}

SheetHeading::~SheetHeading() = default;

void SheetHeading::setSession(EditSession* session)
{
    m_session = session;
}

void SheetHeading::setObjects(const QList<DesignerObject*>& objects)
{
    m_object = objects.size() == 1 ? objects.first() : nullptr;
    m_title->setText(titleOf(objects));
    const bool named = m_object && qobject_cast<Project*>(m_object.data()) == nullptr;
    m_idLabel->setVisible(named);
    m_id->setVisible(named);
    showId();
}

void SheetHeading::refresh()
{
    if (!(m_id->hasFocus() && m_id->isModified()))
        showId();
}

void SheetHeading::arrange(int labelWidth)
{
    m_grid->setColumnMinimumWidth(0, labelWidth);
    m_idLabel->setFixedWidth(labelWidth);
}

QString SheetHeading::title() const
{
    return m_title->text();
}

QString SheetHeading::message() const
{
    return m_message->text();
}

void SheetHeading::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && (m_id->isModified() || !m_message->text().isEmpty())) {
        showId();
        m_id->selectAll();
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

void SheetHeading::rename()
{
    if (!m_session || !m_object || !m_id->isModified())
        return;
    m_id->setModified(false);
    if (m_id->text() == m_object->getIdName()) {
        m_message->setMessage({});
        return;
    }
    const EditResult result = m_session->rename(m_object, m_id->text());
    m_message->setMessage(result.accepted ? QString() : result.message);
}

void SheetHeading::showId()
{
    m_id->setText(m_object ? m_object->getIdName() : QString());
    if (!m_id->hasFocus())
        m_id->setCursorPosition(0);
    m_message->setMessage({});
}

QString SheetHeading::titleOf(const QList<DesignerObject*>& objects)
{
    if (objects.isEmpty())
        return {};
    const DesignerObject* first = objects.first();
    if (objects.size() == 1)
        return first->displayName();
    const bool same = std::all_of(objects.begin(), objects.end(), [first](const DesignerObject* object) {
        return object->className() == first->className();
    });
    const QString number = QLocale().toString(objects.size());
    // The name of a type has one form only; a number before it with a sign reads well in every language.
    return same ? LocalizationHelper::coreString(QStringLiteral("%1 \u00d7 %2")).arg(number, first->displayName())
                : LocalizationHelper::coreString(QStringLiteral("%n object"), QStringLiteral("%n objects"),
                                                 int(objects.size()));
}

} // namespace Korvex::Meridane::Designer
