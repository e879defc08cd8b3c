#include "app/updates/update_window.h"

#include "app/look/action_button.h"
#include "app/look/text_label.h"
#include "app/updates/update_texts.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

using Stage = UpdateReport::Stage;

constexpr double titleSize = 15;
constexpr double textSize = 12;
constexpr double margin = 22;
constexpr double spacing = 10;
constexpr double betweenButtons = 8;
constexpr double notesMargin = 8;
constexpr QSize buttonSize{96, 28};
constexpr int progressSteps = 1000;

bool showsNotes(const UpdateReport &report)
{
    const bool isAboutThem = report.stage == Stage::Available || report.stage == Stage::Downloading
        || report.stage == Stage::Installing;
    return isAboutThem && !report.notes.isEmpty();
}

int progressOf(const UpdateReport &report)
{
    return report.total > 0 ? static_cast<int>(report.received * progressSteps / report.total) : 0;
}

/// Titles end without a full stop. How far a download is, its bar tells.
QString spoken(Stage stage, const UpdateTexts &texts)
{
    return texts.detail.isEmpty() || stage == Stage::Downloading
        ? texts.title
        : QString(texts.title + QLatin1String(". ") + texts.detail);
}

} // namespace

UpdateWindow::UpdateWindow(const ScreenLocator &screenLocator,
                           std::function<void(const QString &text)> announce,
                           std::function<void()> onClose)
    : ShellWindow(screenLocator, WindowLook().length(smallSize), std::move(onClose))
    , m_announce(std::move(announce))
    , m_title(new TextLabel({}, m_look.font(titleSize, QFont::DemiBold), TextLabel::Tone::Primary))
    , m_detail(new TextLabel({}, m_look.font(textSize), TextLabel::Tone::Secondary))
    , m_notes(new QPlainTextEdit)
    , m_progress(new QProgressBar)
    , m_action(new ActionButton({}, textSize, buttonSize, m_look))
    , m_dismissal(new ActionButton({}, textSize, buttonSize, m_look))
{
    auto *layout = new QVBoxLayout(this);
    const int edge = m_look.length(margin);
    layout->setContentsMargins(edge, edge, edge, edge);
    layout->setSpacing(m_look.length(spacing));
    m_title->setWordWrap(true);
    m_detail->setWordWrap(true);
    layout->addWidget(m_title);
    layout->addWidget(m_detail);
    m_notes->setReadOnly(true);
    m_notes->setFrameShape(QFrame::NoFrame);
    // `paintEvent` draws a card behind the notes, so the style's background is left out.
    m_notes->viewport()->setAutoFillBackground(false);
    m_notes->document()->setDocumentMargin(m_look.length(notesMargin));
    m_notes->verticalScrollBar()->setStyleSheet(m_look.scrollBarStyle());
    m_notes->setFont(m_look.font(textSize));
    m_notes->setAccessibleName(tr("What is new"));
    m_notes->setTabChangesFocus(true);
    layout->addWidget(m_notes, 1);
    m_progress->setRange(0, progressSteps);
    m_progress->setTextVisible(false);
    m_progress->setStyleSheet(m_look.progressBarStyle());
    m_progress->setAccessibleName(tr("Download"));
    layout->addWidget(m_progress);
    layout->addStretch();
    layout->addLayout(makeButtons());
}

QHBoxLayout *UpdateWindow::makeButtons()
{
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(m_look.length(betweenButtons));
    buttons->addStretch();
    buttons->addWidget(m_dismissal);
    buttons->addWidget(m_action);
    connect(m_dismissal, &ActionButton::clicked, this, [this] { close(); });
    connect(m_action, &ActionButton::clicked, this, [this] {
        // A copy: whoever is called may delete this.
        const auto action = onAction;
        if (action)
            action();
    });
    return buttons;
}

void UpdateWindow::setReport(const UpdateReport &report, const UpdateTexts &texts)
{
    setWindowTitle(texts.title);
    m_title->setText(texts.title);
    m_detail->setText(texts.detail);
    m_detail->setVisible(!texts.detail.isEmpty());
    const bool hasNotes = showsNotes(report);
    m_notes->setVisible(hasNotes);
    if (m_notes->toPlainText() != report.notes)
        m_notes->setPlainText(report.notes);
    m_progress->setVisible(report.stage == Stage::Downloading);
    m_progress->setValue(progressOf(report));
    const bool hadAction = !m_action->isHidden() && !m_action->text().isEmpty();
    const bool hasAction = !texts.action.isEmpty();
    m_action->setText(texts.action);
    m_action->setVisible(hasAction);
    m_dismissal->setText(texts.dismissal);
    ActionButton *const usual = hasAction ? m_action : m_dismissal;
    m_action->setDefault(hasAction);
    m_dismissal->setDefault(!hasAction);
    // The report before this one may have put the description on the other button.
    for (ActionButton *button : {m_action, m_dismissal})
        button->setAccessibleDescription({});
    usual->setAccessibleDescription(
        QString(texts.title + QLatin1Char(' ') + texts.detail).trimmed());
    QSize size = m_look.length(hasNotes ? sizeWithNotes : smallSize);
    size.setHeight(std::max(size.height(), layout()->minimumHeightForWidth(size.width())));
    setContentSize(size);
    // The button that had the keyboard may be hidden now, or do something else.
    const bool movesFocus = hadAction != hasAction || !focusWidget();
    if (movesFocus)
        usual->setFocus();
    m_spoken = spoken(report.stage, texts);
    const bool isNews = m_stage && m_stage != report.stage;
    m_stage = report.stage;
    // A button is said with its description as the keyboard comes to it, and not otherwise.
    if (isNews && !(movesFocus && isActiveWindow()))
        announce();
}

void UpdateWindow::paintEvent(QPaintEvent *event)
{
    ShellWindow::paintEvent(event);
    QPainter painter(this);
    if (m_notes->isVisible())
        m_look.drawCard(painter, palette(), m_notes->geometry());
}

void UpdateWindow::changeEvent(QEvent *event)
{
    ShellWindow::changeEvent(event);
    // Contrast may be wanted, or no longer. Setting a style sheet, even the same, sends events.
    const QString style = m_look.progressBarStyle();
    if (event->type() == QEvent::PaletteChange && m_progress->styleSheet() != style)
        m_progress->setStyleSheet(style);
}

void UpdateWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return ShellWindow::keyPressEvent(event);
    // Return presses the button that has the keyboard, which may be "Later".
    auto *const focused = qobject_cast<ActionButton *>(focusWidget());
    ActionButton *const usual = m_action->isDefault() ? m_action : m_dismissal;
    (focused ? focused : usual)->click();
}

} // namespace corvane
