#include "app/welcome/illustration_view.h"

#include "app/welcome/welcome_illustration.h"
#include "app/welcome/welcome_shapes.h"
#include "platform/desktop/motion_preference.h"
#include "platform/qt/desktop/spoken_role.h"

#include <QPainter>
#include <QRegion>
#include <QWindow>

#include <cmath>
#include <utility>

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
    speakAs<IllustrationView>(QAccessible::Graphic);
    // On a small screen the texts and buttons need their room first.
    setMaximumHeight(m_look.length(WelcomeScene::stageSize.height()));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    m_phase.setDuration(playMilliseconds);
    m_phase.setStartValue(0.0);
    m_phase.setEndValue(1.0);
    m_phase.setLoopCount(timesPlayed);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(&m_phase, &QVariantAnimation::valueChanged, this, &IllustrationView::showPresentScene);
    connect(&m_phase, &QVariantAnimation::finished, this, &IllustrationView::showPresentScene);
    m_scene = presentScene();
}

WelcomeScene IllustrationView::presentScene() const
{
    if (!isPlaying())
        return welcome_scene::at(m_step, welcome_scene::telling(m_step));
    constexpr double frames = WelcomeScene::duration * framesPerSecond;
    const double frame = std::floor(m_phase.currentValue().toDouble() * frames);
    return welcome_scene::at(m_step, frame / frames);
}

void IllustrationView::showPresentScene()
{
    const WelcomeScene before = std::exchange(m_scene, presentScene());
    const QRegion region = welcome_shapes::changed(rect(), before, m_scene);
    if (!region.isEmpty())
        update(region);
}

void IllustrationView::setStep(WelcomeStep step)
{
    m_step = step;
    m_backdrop = QImage();
    update();
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
    showPresentScene();
}

void IllustrationView::hold()
{
    if (!isPlaying())
        return;
    m_phase.stop();
    m_isInterrupted = true;
    showPresentScene();
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

void IllustrationView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        m_backdrop = QImage();
    QWidget::changeEvent(event);
}

void IllustrationView::prepareBackdrop(double scale)
{
    const QSize size = (QSizeF(rect().size()) * scale).toSize();
    if (m_backdrop.size() == size && m_backdrop.devicePixelRatio() == scale)
        return;
    m_backdrop = QImage(size, QImage::Format_RGB32);
    m_backdrop.setDevicePixelRatio(scale);
    QPainter painter(&m_backdrop);
    welcome_illustration::drawBackdrop(painter, rect(), m_scene.showsKey, palette());
}

void IllustrationView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    prepareBackdrop(painter.deviceTransform().m11());
    painter.drawImage(QPoint(0, 0), m_backdrop);
    welcome_illustration::drawActors(painter, rect(), m_scene, palette(),
                                     m_look.font(keyFontSize, QFont::DemiBold));
}

} // namespace corvane
