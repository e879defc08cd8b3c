#include "app/welcome/illustration_view.h"

#include "app/welcome/welcome_illustration.h"
#include "platform/motion_preference.h"

#include <QPainter>
#include <QWindow>

namespace corvane {

namespace {

constexpr double keyFontSize = 18;
constexpr int playMilliseconds = static_cast<int>(WelcomeScene::duration * 1000);

} // namespace

IllustrationView::IllustrationView(const WindowLook &look, const MotionPreference &motion,
                                   QWidget *parent)
    : QWidget(parent)
    , m_look(look)
    , m_motion(motion)
{
    // On a small screen the texts and buttons need their room first.
    setMaximumHeight(m_look.length(WelcomeScene::stageSize.height()));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    m_phase.setDuration(playMilliseconds);
    m_phase.setStartValue(0.0);
    m_phase.setEndValue(1.0);
    m_phase.setLoopCount(timesPlayed);
    connect(&m_phase, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(&m_phase, &QVariantAnimation::finished, this, [this] { update(); });
}

void IllustrationView::setStep(WelcomeStep step)
{
    m_step = step;
    play();
}

bool IllustrationView::canBeSeen() const
{
    const QWindow *handle = window()->windowHandle();
    return isVisible() && handle && handle->isExposed() && !window()->isMinimized();
}

void IllustrationView::play()
{
    m_isInterrupted = false;
    m_phase.stop();
    if (canBeSeen() && !m_motion.reducesMotion())
        m_phase.start();
    else
        m_isInterrupted = !m_motion.reducesMotion();
    update();
}

void IllustrationView::hold()
{
    if (!isPlaying())
        return;
    m_phase.stop();
    m_isInterrupted = true;
}

void IllustrationView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (QWindow *handle = window()->windowHandle())
        handle->installEventFilter(this);
    play();
}

void IllustrationView::hideEvent(QHideEvent *event)
{
    hold();
    QWidget::hideEvent(event);
}

bool IllustrationView::eventFilter(QObject *watched, QEvent *event)
{
    // Another desktop hides the window without telling its widgets.
    if (event->type() == QEvent::Expose) {
        if (!canBeSeen())
            hold();
        else if (m_isInterrupted)
            play();
    }
    return QWidget::eventFilter(watched, event);
}

void IllustrationView::enterEvent(QEnterEvent *event)
{
    QWidget::enterEvent(event);
    if (!isPlaying())
        play();
}

void IllustrationView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const double phase
        = isPlaying() ? m_phase.currentValue().toDouble() : welcome_scene::telling(m_step);
    welcome_illustration::draw(painter, rect(), welcome_scene::at(m_step, phase), palette(),
                               m_look.font(keyFontSize, QFont::DemiBold));
}

} // namespace corvane
