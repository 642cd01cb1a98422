#include "app/QmlPanel.h"

#include "app/CoreText.h"
#include "app/QmlTextView.h"
#include "app/ScreenChanges.h"
#include "app/ThemedIcon.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/qml/PendingValues.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTextDocumentFragment>
#include <QToolButton>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

namespace {

/// More elements than this are neither shown one after the other nor marked.
constexpr qsizetype MostObjects = 200;

} // namespace

QmlPanel::QmlPanel(EditSession* session, CanvasView* canvas, QWidget* parent)
    : QWidget(parent)
    , m_session(session)
    , m_changes(new ScreenChanges(session, canvas, this))
    , m_text(new QmlTextView)
    , m_pace(this, [this] { refresh(); })
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeTools());
    layout->addWidget(m_text, 1);
    setFocusProxy(m_text);

    connect(m_changes, &ScreenChanges::changed, this, [this] { m_pace.request(); });
    connect(session, &EditSession::selectionChanged, this, [this] {
        if (!m_changes->isActive())
            return;
        if (m_subject == Subject::Selection)
            m_pace.request();
        else if (showsCurrentScreen())
            mark(!m_choosing);
    });
    connect(m_text, &QmlTextView::lineChosen, this, &QmlPanel::choose);
}

QmlPanel::~QmlPanel() = default;

QWidget* QmlPanel::makeTools()
{
    m_switch = new QComboBox;
    m_switch->addItem(coreText("Screen"));
    m_switch->addItem(coreText("Selection"));
    m_switch->setAccessibleName(coreText("What is shown as QML"));
    m_switch->setToolTip(m_switch->accessibleName());
    connect(m_switch, &QComboBox::activated, this,
            [this](int index) { setSubject(index == 0 ? Subject::Screen : Subject::Selection); });

    m_search = new QLineEdit;
    m_search->setPlaceholderText(coreText("Find"));
    m_search->setAccessibleName(coreText("Find in the QML"));
    m_search->setClearButtonEnabled(true);
    connect(m_search, &QLineEdit::textEdited, this, [this] { search(false, true); });
    connect(m_search, &QLineEdit::returnPressed, this,
            [this] { search(QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier), false); });

    auto* copyButton = new QToolButton;
    copyButton->setIcon(ThemedIcon::named(QStringLiteral("copy")));
    copyButton->setIconSize(QSize(16, 16));
    copyButton->setAutoRaise(true);
    copyButton->setFocusPolicy(Qt::TabFocus);
    copyButton->setToolTip(coreText("Copy the QML"));
    copyButton->setAccessibleName(copyButton->toolTip());
    connect(copyButton, &QToolButton::clicked, this, &QmlPanel::copy);

    auto* tools = new QWidget;
    auto* row = new QHBoxLayout(tools);
    row->setContentsMargins(4, 2, 4, 2);
    row->setSpacing(4);
    row->addWidget(m_switch);
    row->addWidget(m_search, 1);
    row->addWidget(copyButton);
    return tools;
}

void QmlPanel::setSubject(Subject subject)
{
    m_switch->setCurrentIndex(subject == Subject::Screen ? 0 : 1);
    if (std::exchange(m_subject, subject) == subject)
        return;
    m_changes->changeAll();
}

void QmlPanel::copy() const
{
    const QTextCursor cursor = m_text->textCursor();
    QGuiApplication::clipboard()->setText(cursor.hasSelection() ? cursor.selection().toPlainText()
                                                                : m_text->toPlainText());
}

void QmlPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_changes->setActive(true);
}

void QmlPanel::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    // A panel that is not seen costs nothing; its text is made anew when it is.
    m_changes->setActive(false);
    m_pace.cancel();
}

bool QmlPanel::event(QEvent* event)
{
    // The window has an action with this key; here it means the text.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Find)) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void QmlPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Find)) {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
        return;
    }
    if (event->matches(QKeySequence::Cancel) && m_search->hasFocus()) {
        m_text->setFocus();
        return;
    }
    QWidget::keyPressEvent(event);
}

void QmlPanel::refresh()
{
    if (!m_changes->isActive())
        return;
    if (m_subject == Subject::Screen)
        updateScreen();
    else
        updateSelection();
}

bool QmlPanel::showsCurrentScreen() const
{
    return m_screenQml && m_screenQml->screen() == m_session->currentScreen();
}

void QmlPanel::updateScreen()
{
    const ScreenChanges::Batch changes = m_changes->take();
    const Screen* screen = m_session->currentScreen();
    if (!screen) {
        m_screenQml.reset();
        showAllLines({});
        return;
    }
    screen->readContent();
    const PendingValues asTheGestureHasThem(changes.gesture);
    if (!showsCurrentScreen()) {
        m_screenQml = std::make_unique<ScreenQml>(screen);
        showAllLines(m_screenQml->lines());
        mark(true);
        return;
    }
    if (changes.wholeScreen) {
        m_text->applyChange(m_screenQml->rebuild());
    } else {
        for (const DesignerObject* element : changes.elements)
            m_text->applyChange(m_screenQml->update(element));
    }
    mark(false);
}

void QmlPanel::updateSelection()
{
    const ScreenChanges::Batch changes = m_changes->take();
    const QList<DesignerObject*>& selection = m_session->selection();
    QStringList lines;
    {
        const PendingValues asTheGestureHasThem(changes.gesture);
        for (const DesignerObject* object : selection.first(std::min(selection.size(), MostObjects))) {
            const QString qml = object->toQml(0);
            if (qml.isEmpty())
                continue;
            if (!lines.isEmpty())
                lines.append(QString());
            lines += qml.split(QLatin1Char('\n'));
        }
    }
    if (selection.size() > MostObjects) {
        lines.append(QString());
        lines.append(QStringLiteral("// ")
                     + coreText("%n more element", "%n more elements", int(selection.size() - MostObjects)));
    }
    if (m_screenQml) {
        m_screenQml.reset();
        showAllLines(lines);
    } else {
        m_text->applyChange(ScreenQml::difference(m_selectionLines, lines, 0));
    }
    m_selectionLines = lines.isEmpty() ? QStringList{QString()} : lines; // a document has one line at least
}

void QmlPanel::showAllLines(const QStringList& lines)
{
    m_text->setLines(lines);
    m_selectionLines = {QString()};
}

void QmlPanel::mark(bool reveals)
{
    QList<LineRange> marks;
    const QList<DesignerObject*>& selection = m_session->selection();
    for (qsizetype i = 0; i < selection.size() && i < MostObjects; ++i) {
        const LineRange range = m_screenQml->linesOf(selection.at(i));
        // The screen is all of the text.
        if (range.count > 0 && selection.at(i) != m_screenQml->screen())
            marks.append(range);
    }
    m_text->setMarks(marks);
    if (reveals && !marks.isEmpty())
        m_text->reveal(m_text->marks().constFirst());
}

void QmlPanel::choose(int line)
{
    DesignerObject* object = showsCurrentScreen() ? m_screenQml->objectAt(line) : nullptr;
    if (!object)
        return;
    const QScopedValueRollback following(m_choosing, true);
    m_session->setSelection({object});
    Q_EMIT objectChosen(object);
}

void QmlPanel::search(bool backward, bool fromCursor)
{
    const bool found = m_search->text().isEmpty() || m_text->findText(m_search->text(), backward, fromCursor);
    QPalette colors = palette();
    if (!found)
        colors.setColor(QPalette::Text, colors.color(QPalette::Disabled, QPalette::Text));
    m_search->setPalette(colors);
}

} // namespace Korvex::Meridane::Designer
