#include "app/welcome/welcome_view.h"

#include "app/base/session_texts.h"
#include "app/look/action_button.h"
#include "app/look/text_label.h"
#include "app/welcome/illustration_view.h"
#include "app/welcome/page_indicator.h"
#include "core/display_text.h"
#include "core/settings.h"
#include "input/shortcut_binder.h"
#include "platform/desktop/abilities.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <utility>

namespace corvane {

namespace {

constexpr double titleSize = 21;
constexpr double bodySize = 14;
constexpr double limitSize = 12;
constexpr double textInset = 58;
constexpr double beforeTitle = 26;
constexpr double afterTitle = 10;
constexpr double beforeIndicator = 8;
constexpr double buttonMargin = 22;
constexpr double buttonTextSize = 13;
constexpr QSize buttonSize{116, 30};
constexpr int lastStep = static_cast<int>(allWelcomeSteps.size()) - 1;

} // namespace

WelcomeView::WelcomeView(const Context &context, std::function<void()> onClose, QWidget *parent)
    : QWidget(parent)
    , m_context(context)
    , m_onClose(std::move(onClose))
    , m_illustration(new IllustrationView(m_look, context.motion))
    , m_title(new TextLabel({}, m_look.font(titleSize, QFont::DemiBold), TextLabel::Tone::Primary))
    , m_body(new TextLabel({}, m_look.font(bodySize), TextLabel::Tone::Secondary))
    , m_keys(new TextLabel({}, m_look.font(limitSize), TextLabel::Tone::Secondary))
    , m_limit(new TextLabel({}, m_look.font(limitSize), TextLabel::Tone::Secondary))
    , m_indicator(
          new PageIndicator(static_cast<int>(allWelcomeSteps.size()), m_look, context.motion))
{
    m_title->setAlignment(Qt::AlignCenter);
    m_title->setWordWrap(true);
    for (TextLabel *text : {m_body, m_keys, m_limit}) {
        text->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        text->setWordWrap(true);
    }
    for (TextLabel *text : {m_title, m_body, m_limit, m_keys})
        text->setContentsMargins(m_look.length(textInset), 0, m_look.length(textInset), 0);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_illustration, 1);
    layout->addSpacing(m_look.length(beforeTitle));
    layout->addWidget(m_title);
    layout->addSpacing(m_look.length(afterTitle));
    layout->addWidget(m_body);
    layout->addSpacing(m_look.length(afterTitle));
    layout->addWidget(m_limit);
    layout->addWidget(m_keys);
    layout->addStretch();
    layout->addSpacing(m_look.length(beforeIndicator));
    layout->addWidget(m_indicator, 0, Qt::AlignHCenter);
    layout->addWidget(makeButtons());
    showStep(0);
    const auto showAgain = [this] { showStep(m_step); };
    m_abilityChanges = context.abilities.observe(showAgain);
    m_shortcutChanges = context.shortcuts.observeOutcomes(showAgain);
}

QWidget *WelcomeView::makeButtons()
{
    auto *buttons = new QWidget;
    auto *layout = new QHBoxLayout(buttons);
    const int margin = m_look.length(buttonMargin);
    layout->setContentsMargins(margin, margin, margin, margin);
    m_back = new ActionButton(tr("Back"), buttonTextSize, buttonSize, m_look);
    m_forward = new ActionButton({}, buttonTextSize, buttonSize, m_look);
    for (QPushButton *button : {m_back, m_forward})
        button->installEventFilter(this);
    m_back->setAccessibleDescription(tr("Goes to the step before"));
    m_forward->setDefault(true);
    connect(m_back, &QPushButton::clicked, this, &WelcomeView::goBack);
    connect(m_forward, &QPushButton::clicked, this, &WelcomeView::goForward);
    layout->addWidget(m_back);
    layout->addStretch();
    layout->addWidget(m_forward);
    m_forward->setFocus();
    return buttons;
}

bool WelcomeView::isLast() const
{
    return m_step == lastStep;
}

void WelcomeView::showStep(int step)
{
    m_step = step;
    const WelcomeStep shown = allWelcomeSteps[static_cast<std::size_t>(step)];
    m_illustration->setStep(shown);
    m_illustration->setAccessibleName(tr("Illustration: %1").arg(welcome_step::title(shown)));
    m_title->setText(welcome_step::title(shown));
    m_body->setText(welcome_step::body(shown));
    m_keys->setText(welcome_step::keys(shown, shortcutKeys()));
    m_keys->setVisible(!m_keys->text().isEmpty());
    m_limit->setText(limitOf(shown));
    m_limit->setVisible(!m_limit->text().isEmpty());
    m_indicator->setCurrent(step);
    if (step == 0 && m_back->hasFocus())
        m_forward->setFocus(Qt::OtherFocusReason);
    m_back->setVisible(step > 0);
    m_forward->setText(isLast() ? tr("Start using it") : tr("Next"));
    m_forward->setAccessibleDescription(isLast() ? tr("Closes this guide")
                                                 : tr("Goes to the next step"));
}

/// The keyboard stays on the button, so screen readers say nothing by themselves.
void WelcomeView::turnTo(int step)
{
    showStep(step);
    m_context.announce(spoken());
}

/// All that is read on the step that is shown. Only titles end without a full stop.
QString WelcomeView::spoken() const
{
    QStringList texts;
    for (const TextLabel *text : {m_body, m_limit, m_keys}) {
        if (!text->text().isEmpty())
            texts << text->text();
    }
    return m_indicator->accessibleName() + u": " + m_title->text() + u". " + texts.join(u' ');
}

QString WelcomeView::limitOf(WelcomeStep step) const
{
    switch (step) {
    case WelcomeStep::DragIn:
        return session_texts::limit(m_context.abilities.now().drags);
    case WelcomeStep::DragOut:
        return session_texts::limit(m_context.abilities.now().topEdge);
    case WelcomeStep::Keep:
        return session_texts::limit(m_context.abilities.now().keepingKey);
    }
    return {};
}

/// The keys that open the shelf, as the desktop names them; empty where it does not listen to them.
QString WelcomeView::shortcutKeys() const
{
    const ShortcutOutcome outcome = m_context.shortcuts.outcome(HotKeyCenter::Binding::Shelf);
    const auto shortcut = m_context.settings.shortcut();
    if (outcome.kind != ShortcutOutcome::Kind::Bound || !shortcut)
        return {};
    // The desktop's words are a stranger's.
    return outcome.text.isEmpty() ? shortcut->shown() : displayText(outcome.text);
}

void WelcomeView::goBack()
{
    if (m_step > 0)
        turnTo(m_step - 1);
}

void WelcomeView::goForward()
{
    if (!isLast())
        turnTo(m_step + 1);
    else if (m_onClose)
        m_onClose();
}

bool WelcomeView::eventFilter(QObject *watched, QEvent *event)
{
    // Arrow keys turn the pages, where buttons would move the focus among themselves.
    auto *press = event->type() == QEvent::KeyPress ? dynamic_cast<QKeyEvent *>(event) : nullptr;
    if (press && (press->key() == Qt::Key_Left || press->key() == Qt::Key_Right)) {
        keyPressEvent(press);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void WelcomeView::keyPressEvent(QKeyEvent *event)
{
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const int toEarlier = isMirrored ? Qt::Key_Right : Qt::Key_Left;
    const int toLater = isMirrored ? Qt::Key_Left : Qt::Key_Right;
    const bool isBackward = event->key() == toEarlier || event->key() == Qt::Key_PageUp;
    const bool isForward = event->key() == toLater || event->key() == Qt::Key_PageDown;
    // The keys for the next page do not close the guide on the last one.
    if (isBackward)
        goBack();
    else if (isForward && !isLast())
        goForward();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        m_forward->click();
    else
        QWidget::keyPressEvent(event);
}

} // namespace corvane
