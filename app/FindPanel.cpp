#include "app/FindPanel.h"

#include "app/CoreText.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectSearch.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int TypingDelay = 250; // ms
constexpr int Slice = 8; // ms
constexpr int LongestValue = 200; // letters of a value that are shown
constexpr int ObjectRole = Qt::UserRole;
constexpr int PropertyRole = Qt::UserRole + 1;

} // namespace

FindPanel::FindPanel(EditSession* session, QWidget* parent)
    : QWidget(parent)
    , m_session(session)
    , m_kind(new QComboBox)
    , m_line(new QLineEdit)
    , m_status(new QLabel)
    , m_results(new QTreeWidget)
{
    setObjectName(QStringLiteral("FindPanel"));
    m_kind->addItems({coreText("Text"), coreText("References to")});
    m_kind->setAccessibleName(coreText("What is looked for"));
    m_line->setClearButtonEnabled(true);
    m_line->setAccessibleName(coreText("Find in the project"));
    m_status->setForegroundRole(QPalette::PlaceholderText);
    m_results->setObjectName(QStringLiteral("FindResults"));
    m_results->setAccessibleName(coreText("Places that were found"));
    m_results->setFrameShape(QFrame::NoFrame);
    m_results->setRootIsDecorated(false);
    m_results->setUniformRowHeights(true);
    m_results->setHeaderLabels({coreText("Object"), coreText("Type"), coreText("Property"), coreText("Value")});
    m_results->header()->resizeSection(0, 220);
    m_results->header()->resizeSection(1, 140);
    m_results->header()->resizeSection(2, 140);

    auto* row = new QHBoxLayout;
    row->setContentsMargins(6, 4, 6, 4);
    row->setSpacing(6);
    row->addWidget(m_kind);
    row->addWidget(m_line, 1);
    row->addWidget(m_status);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(row);
    layout->addWidget(m_results, 1);

    m_typing.setSingleShot(true);
    m_typing.setInterval(TypingDelay);
    m_slices.setSingleShot(true);
    connect(&m_typing, &QTimer::timeout, this, &FindPanel::search);
    connect(&m_slices, &QTimer::timeout, this, &FindPanel::proceed);
    connect(m_line, &QLineEdit::textEdited, &m_typing, qOverload<>(&QTimer::start));
    connect(m_line, &QLineEdit::returnPressed, this, [this] {
        if (m_typing.isActive() || m_results->topLevelItemCount() == 0)
            search();
        else
            m_results->setFocus();
    });
    connect(m_kind, &QComboBox::currentIndexChanged, this, [this](int kind) {
        m_line->setPlaceholderText(kind == References ? coreText("id, image, font or colour (#rrggbb)")
                                                      : coreText("id, class, text or value"));
        search();
    });
    m_line->setPlaceholderText(coreText("id, class, text or value"));
    const auto lead = [this](const QTreeWidgetItem* item) {
        Q_EMIT placeRequested(item->data(0, ObjectRole).toString(), item->data(0, PropertyRole).toString());
    };
    connect(m_results, &QTreeWidget::itemClicked, this, lead);
    connect(m_results, &QTreeWidget::itemActivated, this, lead);
}

FindPanel::~FindPanel() = default;

void FindPanel::editText()
{
    if (m_kind->currentIndex() != Text) {
        m_line->clear();
        m_kind->setCurrentIndex(Text);
    }
    m_line->setFocus(Qt::ShortcutFocusReason);
    m_line->selectAll();
}

void FindPanel::showReferences(const QString& name)
{
    m_line->setText(name);
    if (m_kind->currentIndex() == References)
        search();
    else
        m_kind->setCurrentIndex(References);
}

QString FindPanel::status() const
{
    return m_status->text();
}

void FindPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_search) {
        stop();
        m_status->setText(coreText("The search was ended."));
    } else {
        QWidget::keyPressEvent(event);
    }
}

QSize FindPanel::sizeHint() const
{
    return {600, 180};
}

void FindPanel::search()
{
    stop();
    m_typing.stop();
    m_results->clear();
    m_cut = false;
    const QString text = m_kind->currentIndex() == References ? m_line->text().trimmed() : m_line->text();
    if (text.isEmpty()) {
        m_status->clear();
        return;
    }
    Project* project = m_session->project();
    m_search = std::make_unique<ProjectSearch>(m_kind->currentIndex() == References
                                                   ? ProjectSearch::forReferences(project, text)
                                                   : ProjectSearch::forText(project, text));
    m_status->setText(coreText("Searching… (Esc ends it)"));
    proceed();
}

void FindPanel::proceed()
{
    if (!m_search)
        return;
    const bool done = m_search->proceed(Slice);
    addMatches();
    if (!done) {
        m_slices.start(0);
        return;
    }
    m_cut = m_search->isCut();
    stop();
    showStatus();
}

void FindPanel::stop()
{
    m_search.reset();
    m_slices.stop();
}

void FindPanel::showStatus()
{
    const int count = m_results->topLevelItemCount();
    if (count == 0)
        m_status->setText(coreText("Nothing was found."));
    else if (m_cut)
        m_status->setText(coreText("The first %n place", "The first %n places", count));
    else
        m_status->setText(coreText("%n place", "%n places", count));
}

void FindPanel::addMatches()
{
    const QList<SearchMatch>& matches = m_search->matches();
    QList<QTreeWidgetItem*> rows;
    for (qsizetype i = m_results->topLevelItemCount(); i < matches.size(); ++i) {
        const SearchMatch& match = matches.at(i);
        const QString value = match.value.simplified().left(LongestValue);
        const QString object = match.object.isEmpty() ? m_session->project()->name() : match.object;
        auto* row = new QTreeWidgetItem({object, match.className, match.propertyName, value});
        row->setData(0, ObjectRole, match.object);
        row->setData(0, PropertyRole, match.property);
        rows.append(row);
    }
    m_results->addTopLevelItems(rows);
}

} // namespace Korvex::Meridane::Designer
