#include "host/core/sheet/PropertySheet.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/commands/UndoCommand.h"
#include "host/core/editors/PropertyEditor.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/DirectChangeRecorder.h"
#include "host/core/sheet/ProjectColors.h"
#include "host/core/sheet/PropertyField.h"
#include "host/core/sheet/PropertyPanel.h"
#include "host/core/sheet/PropertyRow.h"
#include "host/core/sheet/SheetColors.h"
#include "host/core/sheet/SheetHeading.h"
#include "host/core/sheet/SheetMetrics.h"
#include "host/core/sheet/SheetSearch.h"

#include "host/common/LocalizationHelper.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// Sets of rows that are kept for the next selection that needs them.
constexpr int KeptPanels = 12;
/// Colours of the project that colour fields offer.
constexpr int OfferedColors = 16;

/// What the sheet scrolls: as wide as the sheet, however narrow, because scrolling sideways hides the ends of all fields.
class SheetContent : public QWidget
{
public:
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, QWidget::minimumSizeHint().height()}; }
};

QLabel* createHint(QWidget* parent)
{
    auto* hint = new QLabel(parent);
    hint->setTextFormat(Qt::PlainText);
    hint->setWordWrap(true);
    hint->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    hint->setContentsMargins(SheetMetrics::Margin, 2 * SheetMetrics::Margin, SheetMetrics::Margin, 0);
    hint->hide();
    return hint;
}

} // namespace

PropertySheet::PropertySheet(EditSession* session, QWidget* parent)
    : QScrollArea(parent)
    , m_search(new SheetSearch(this))
    , m_content(new SheetContent)
    , m_column(new QVBoxLayout(m_content))
    , m_heading(new SheetHeading(m_content))
    , m_hint(createHint(m_content))
    , m_nothingFound(createHint(m_content))
    , m_recorder(new DirectChangeRecorder(this))
    , m_refreshTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("propertySheet"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    m_hint->setText(LocalizationHelper::coreString(
        QStringLiteral("There is no screen yet. Add one, and its properties appear here.")));
    m_nothingFound->setObjectName(QStringLiteral("nothingFound"));
    // Rows have their margins at the sides themselves, because their marks stand there.
    m_column->setContentsMargins(0, SheetMetrics::RowGap, 0, SheetMetrics::Margin);
    m_column->setSpacing(SheetMetrics::RowGap);
    m_column->addWidget(m_hint);
    m_column->addWidget(m_heading);
    m_column->addWidget(m_nothingFound);
    m_column->addStretch(1);
    // Here and in all that the sheet nests: a new size leaves what is painted already as it is.
    m_content->setAttribute(Qt::WA_StaticContents);
    setWidget(m_content);
    m_search->hide();
    colorHints();

    m_refreshTimer->setSingleShot(true);
    m_refreshTimer->setInterval(0);
    connect(m_refreshTimer, &QTimer::timeout, this, &PropertySheet::refreshStaleFields);
    connect(m_recorder, &DirectChangeRecorder::changedDirectly, this, &PropertySheet::keepDirectChanges);
    connect(m_search, &QLineEdit::textChanged, this, &PropertySheet::applyFilter);
    connect(m_search, &SheetSearch::cancelled, this, &PropertySheet::leaveSearch);
    connect(m_search, &SheetSearch::resultRequested, this, &PropertySheet::focusFirstResult);
    connect(qApp, &QApplication::focusChanged, this, &PropertySheet::onFocusChanged);
    setSession(session);
}

PropertySheet::~PropertySheet()
{
    // A sheet that is a window of its own closes while it is destroyed, and the focus with it.
    disconnect(qApp, nullptr, this, nullptr);
    m_recorder->setActive(false);
}

EditSession* PropertySheet::session() const
{
    return qobject_cast<EditSession*>(m_session.data());
}

void PropertySheet::setSession(EditSession* session)
{
    if (EditSession* before = this->session()) {
        showObjects({});
        before->disconnect(this);
        before->project()->disconnect(this);
    }
    // Editors keep the session that they were built for.
    showObjects({});
    qDeleteAll(m_panels);
    m_panels.clear();
    m_search->clear();
    m_session = session;
    m_heading->setSession(session);
    if (!session)
        return;

    const Project* project = session->project();
    connect(session, &EditSession::selectionChanged, this, &PropertySheet::showSelection);
    connect(session, &EditSession::currentScreenChanged, this, &PropertySheet::showSelection);
    connect(session, &QObject::destroyed, this, [this] { showObjects({}); });
    connect(project, &Project::objectPropertyChanged, this, &PropertySheet::onPropertyChanged);
    connect(project, &Project::objectRenamed, this, [this] { m_heading->refresh(); });
    connect(project, &Project::objectAdded, this, [this](const DesignerObject* object) {
        if (qobject_cast<const Screen*>(object))
            showSelection();
    });
    connect(project, &Project::objectRemoved, this, [this](const DesignerObject* object) {
        if (m_objectSet.contains(object))
            showSelection();
    });
    connect(project, &Project::userModificationRefused, this, &PropertySheet::onModificationRefused);
    showSelection();
}

PropertyEditor* PropertySheet::editor(const QString& propertyId) const
{
    const PropertyField* field = m_panel ? m_panel->field(propertyId) : nullptr;
    return field ? field->editor() : nullptr;
}

QString PropertySheet::message(const QString& propertyId) const
{
    const PropertyRow* row = m_panel ? m_panel->rowOf(editor(propertyId)) : nullptr;
    return row ? row->message() : QString();
}

QString PropertySheet::title() const
{
    return m_objects.isEmpty() ? QString() : m_heading->title();
}

void PropertySheet::focusSearch()
{
    if (m_objects.isEmpty())
        return;
    QWidget* focused = QApplication::focusWidget();
    if (focused != m_search)
        m_focusBeforeSearch = focused;
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

void PropertySheet::focusFirstField()
{
    if (m_heading->idField()->isVisible())
        m_heading->idField()->setFocus(Qt::TabFocusReason);
    else
        focusFirstResult();
}

bool PropertySheet::canResetCurrent() const
{
    const auto* row = qobject_cast<const PropertyRow*>(m_currentRow.data());
    return row && row->canReset();
}

void PropertySheet::resetCurrent()
{
    if (auto* row = qobject_cast<PropertyRow*>(m_currentRow.data()))
        row->reset();
}

QList<QColor> PropertySheet::colorsInUse() const
{
    const EditSession* current = session();
    return current ? projectColors(*current->project(), OfferedColors) : QList<QColor>();
}

QSize PropertySheet::sizeHint() const
{
    return {280, 480};
}

bool PropertySheet::focusNextPrevChild(bool next)
{
    const QList<QWidget*> stops = tabStops();
    const qsizetype at = stops.indexOf(QApplication::focusWidget());
    const qsizetype wanted = next ? at + 1 : at - 1;
    if (at < 0 || wanted < 0 || wanted >= stops.size())
        return QScrollArea::focusNextPrevChild(next);
    stops.at(wanted)->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

/// What the Tab key goes through in the sheet, in the order of the rows: within each of the three parts that is the order
/// in which its widgets were made.
QList<QWidget*> PropertySheet::tabStops() const
{
    QList<QWidget*> stops;
    const auto add = [&stops](QWidget* part) {
        QWidget* widget = part;
        do {
            const bool takesTab = (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
            if (takesTab && widget->isVisible() && widget->isEnabled()
                && (widget == part || part->isAncestorOf(widget)))
                stops.append(widget);
            widget = widget->nextInFocusChain();
        } while (widget != part);
    };
    add(m_search);
    add(m_heading);
    if (m_panel)
        add(m_panel);
    return stops;
}

void PropertySheet::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && !m_search->text().isEmpty()) {
        m_search->clear();
        event->accept();
        return;
    }
    QScrollArea::keyPressEvent(event);
}

void PropertySheet::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    placeSearch();
    arrange();
}

void PropertySheet::changeEvent(QEvent* event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange) {
        colorHints();
    } else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        placeSearch();
        arrange();
    }
}

void PropertySheet::colorHints()
{
    QPalette quiet = m_hint->palette();
    quiet.setColor(QPalette::WindowText, quietColor(palette()));
    m_hint->setPalette(quiet);
    m_nothingFound->setPalette(quiet);
}

void PropertySheet::applyFilter()
{
    const QString text = m_search->text().trimmed();
    const bool found = !m_panel || m_panel->setFilter(text);
    m_heading->setVisible(!m_objects.isEmpty() && text.isEmpty());
    if (!found)
        m_nothingFound->setText(
            LocalizationHelper::coreString(QStringLiteral("No property matches \"%1\".")).arg(text));
    m_nothingFound->setVisible(!found);
    verticalScrollBar()->setValue(0);
}

/// Ends the search and gives the focus back to where it came from.
void PropertySheet::leaveSearch()
{
    m_search->clear();
    QWidget* before = std::exchange(m_focusBeforeSearch, nullptr);
    if (before && before->isVisible() && before->isEnabled())
        before->setFocus(Qt::OtherFocusReason);
    else
        focusFirstField();
}

void PropertySheet::focusFirstResult()
{
    const PropertyRow* row = m_panel ? m_panel->firstShownRow() : nullptr;
    if (row && !row->fields().isEmpty())
        row->fields().constFirst()->editor()->setFocus(Qt::TabFocusReason);
}

/// Above the rows, in line with them.
void PropertySheet::placeSearch()
{
    const bool shown = !m_objects.isEmpty();
    const int height = m_search->sizeHint().height();
    setViewportMargins(0, shown ? height + SheetMetrics::RowGap : 0, 0, 0);
    m_search->setVisible(shown);
    m_search->setGeometry(SheetMetrics::Margin, SheetMetrics::RowGap, viewport()->width() - 2 * SheetMetrics::Margin,
                          height);
    m_search->raise();
}

void PropertySheet::showSelection()
{
    const EditSession* current = session();
    const Project* project = current ? current->project() : nullptr;
    QList<DesignerObject*> objects;
    if (current) {
        // An object that is just being taken out may still be selected.
        for (DesignerObject* object : current->selection()) {
            if (Project::parentProject(object) == project)
                objects.append(object);
        }
        DesignerObject* screen = current->currentScreen();
        if (objects.isEmpty() && screen && Project::parentProject(screen) == project)
            objects.append(screen);
    }
    showObjects(objects);
}

void PropertySheet::showObjects(const QList<DesignerObject*>& objects)
{
    if (objects == m_objects && !objects.isEmpty()) {
        rebuildIfNeeded();
        return;
    }
    finishTyping();
    m_staleIds.clear();
    m_objects = objects;
    m_objectSet = QSet<const DesignerObject*>(objects.begin(), objects.end());
    m_recorder->setActive(objects.size() > 1);
    m_heading->setObjects(objects);
    m_hint->setVisible(objects.isEmpty());
    placeSearch();
    showPanel(objects.isEmpty() ? nullptr : panelFor(objects));
    verticalScrollBar()->setValue(0);
}

/// Takes a text that is being typed over before its object goes out of sight.
void PropertySheet::finishTyping()
{
    QWidget* focused = QApplication::focusWidget();
    if (!focused || !m_content->isAncestorOf(focused))
        return;
    const EditSession* current = session();
    const bool alive = current && std::all_of(m_objects.begin(), m_objects.end(), [current](DesignerObject* object) {
                           return Project::parentProject(object) == current->project();
                       });
    if (alive)
        focused->clearFocus();
    else if (m_panel)
        m_panel->bind({});
}

PropertyPanel* PropertySheet::panelFor(const QList<DesignerObject*>& objects)
{
    // A screen reads its properties when its content is first asked for.
    for (const DesignerObject* object : objects)
        (void)object->childList();
    const QList<RowDescription> rows = commonRows(objects);
    const bool several = objects.size() > 1;
    const auto known = std::find_if(m_panels.begin(), m_panels.end(),
                                    [&](const PropertyPanel* panel) { return panel->fits(rows, several); });
    if (known != m_panels.end()) {
        PropertyPanel* panel = *known;
        m_panels.erase(known);
        m_panels.prepend(panel);
        panel->bind(objects);
        return panel;
    }
    auto* panel = new PropertyPanel(rows, several, objects, session(), m_recorder, m_content);
    connect(panel, &PropertyPanel::canResetChanged, this, &PropertySheet::canResetCurrentChanged);
    ++m_builtPanels;
    m_panels.prepend(panel);
    m_column->insertWidget(m_column->count() - 1, panel);
    while (m_panels.size() > KeptPanels) {
        PropertyPanel* oldest = m_panels.takeLast();
        oldest->bind({});
        oldest->hide();
        oldest->deleteLater();
    }
    return panel;
}

void PropertySheet::showPanel(PropertyPanel* panel)
{
    if (m_panel && m_panel != panel) {
        m_panel->bind({});
        m_panel->hide();
    }
    m_panel = panel;
    m_currentRow = nullptr;
    applyFilter();
    Q_EMIT canResetCurrentChanged();
    arrange();
    if (panel)
        panel->show();
}

void PropertySheet::onPropertyChanged(DesignerObject* object, const QSharedPointer<DesignerProperty>& property)
{
    if (!m_panel || !m_objectSet.contains(object))
        return;
    PropertyField* field = m_panel->field(property->id());
    // The editor that saves brings itself up to date.
    if (field && !field->editor()->isSaving()) {
        m_staleIds.insert(property->id());
        if (m_objects.size() == 1)
            refreshStaleFields();
    }
    if (!m_refreshTimer->isActive())
        m_refreshTimer->start();
}

void PropertySheet::refreshStaleFields()
{
    const QSet<QString> ids = std::exchange(m_staleIds, {});
    for (const QString& id : ids) {
        if (PropertyField* field = m_panel ? m_panel->field(id) : nullptr)
            field->refresh();
    }
    if (sender() != m_refreshTimer)
        return;
    if (m_panel)
        m_panel->compareSizesWithDefaults();
    rebuildIfNeeded();
}

void PropertySheet::onFocusChanged(QWidget* old, QWidget* now)
{
    if (m_panel && old && m_panel->isAncestorOf(old))
        m_panel->focusMoved();
    if (!now || !m_content->isAncestorOf(now))
        return;
    ensureWidgetVisible(now, 0, SheetMetrics::Margin);
    m_currentRow = m_panel ? m_panel->rowOf(now) : nullptr;
    Q_EMIT canResetCurrentChanged();
}

void PropertySheet::onModificationRefused(const QString& message)
{
    // An editor that hands its own commands to the project: the message belongs below the field in use.
    if (PropertyRow* row = m_panel ? m_panel->rowOf(QApplication::focusWidget()) : nullptr)
        row->setMessage(message);
}

void PropertySheet::keepDirectChanges(const QVector<PropertyChange>& changes)
{
    EditSession* current = session();
    if (!current || changes.isEmpty())
        return;
    auto step = std::make_unique<UndoCommand>();
    step->setText(LocalizationHelper::coreString(QStringLiteral("Change %1")).arg(changes.first().property->name()));
    step->adopt(changes);
    current->project()->execute(std::move(step));
}

/// An element may show, hide or lock properties in reaction to a change.
void PropertySheet::rebuildIfNeeded()
{
    if (!m_panel || m_objects.isEmpty())
        return;
    const QList<RowDescription> rows = commonRows(m_objects);
    if (rows != m_panel->descriptions()) {
        finishTyping();
        showPanel(panelFor(m_objects));
    }
}

void PropertySheet::arrange()
{
    const int width = viewport()->width() - 2 * SheetMetrics::Margin; // between the margins of the rows
    const int label = SheetMetrics::labelWidth(viewport()->width());
    m_heading->arrange(label);
    if (m_panel)
        m_panel->arrange(label, width);
}

} // namespace Korvex::Meridane::Designer
