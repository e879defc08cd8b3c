#include "app/preferences/shortcut_recorder_view.h"

#include "app/look/focus_ring.h"
#include "app/preferences/shortcut_recorder_accessible.h"
#include "core/display_text.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace corvane {

namespace {

constexpr QSizeF usualSize{148, 26};
constexpr double cornerRadius = 5;
constexpr double fontSize = 12;
constexpr double sidePadding = 6;
constexpr double edgeInset = 0.5;
constexpr double usualLine = 1;
constexpr double recordingLine = 1.5;
constexpr float recordingFillOpacity = 0.12F;
constexpr double separatorOpacity = 0.2;

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Button).lightnessF()
        < palette.color(QPalette::ButtonText).lightnessF();
}

/// The red of warnings, of the two usual shades the one that can be read.
QColor warningRed(const QPalette &palette)
{
    return isDark(palette) ? QColor(255, 105, 97) : QColor(215, 0, 21);
}

} // namespace

ShortcutRecorderView::ShortcutRecorderView(KeyMonitors &monitors, HotKeyService &hotKeys,
                                           std::function<void(const QString &text)> announce,
                                           QWidget *parent)
    : QWidget(parent)
    , m_announce(std::move(announce))
    , m_recorder(monitors, hotKeys)
    , m_told(text())
{
    ShortcutRecorderAccessible::install();
    setFocusPolicy(Qt::StrongFocus);
    // An input method would take its keys first.
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_recorder.onNeedsDisplay = [this] { changed(); };
    m_recorder.onTakeFocus = [this] { takeKeyboard(); };
    m_recorder.onChange = [this](const Shortcut &shortcut) {
        // A copy: it may destroy the view.
        if (const auto change = onChange)
            change(shortcut);
    };
}

ShortcutRecorderView::~ShortcutRecorderView()
{
    m_recorder.onNeedsDisplay = nullptr;
    m_recorder.stopRecording();
    giveKeyboardBack();
}

void ShortcutRecorderView::takeKeyboard()
{
    setFocus(Qt::MouseFocusReason);
    // A combination that another program holds would otherwise go to that program, and the field
    // could not tell the user that it is taken.
    if (isVisible())
        grabKeyboard();
}

void ShortcutRecorderView::giveKeyboardBack()
{
    if (keyboardGrabber() == this)
        releaseKeyboard();
}

QString ShortcutRecorderView::text() const
{
    if (isRecording())
        return tr("Type a shortcut…");
    return shortcut() ? displayText(shortcut()->shown()) : tr("Record Shortcut");
}

QSize ShortcutRecorderView::sizeHint() const
{
    return {m_look.length(usualSize.width()), m_look.length(usualSize.height())};
}

QFont ShortcutRecorderView::textFont() const
{
    const bool showsShortcut = !isRecording() && shortcut();
    return m_look.font(fontSize, showsShortcut ? QFont::Medium : QFont::Normal);
}

QColor ShortcutRecorderView::textColor() const
{
    if (isRecording())
        return WindowLook::accent(palette());
    if (!shortcut())
        return WindowLook::secondary(palette());
    return hasConflict() ? warningRed(palette()) : palette().color(QPalette::ButtonText);
}

/// A stored name may be of any length, and the names of keys are long in some languages.
QString ShortcutRecorderView::elidedText() const
{
    return QFontMetricsF(textFont())
        .elidedText(text(), Qt::ElideRight, width() - 2 * m_look.length(sidePadding));
}

void ShortcutRecorderView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor accent = WindowLook::accent(palette());
    const double radius = m_look.length(cornerRadius);
    QColor fill = accent;
    fill.setAlphaF(recordingFillOpacity);
    painter.setBrush(isRecording() ? fill : palette().color(QPalette::Button));
    painter.setPen(isRecording() ? QPen(accent, recordingLine)
                                 : QPen(WindowLook::edge(palette(), separatorOpacity), usualLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(edgeInset, edgeInset, -edgeInset, -edgeInset),
                            radius, radius);
    if (hasFocus() && m_showsFocus && !isRecording())
        focus_ring::draw(painter, palette(), rect(), radius);

    const QFont font = textFont();
    const QFontMetricsF metrics(font);
    const QString shown = elidedText();
    painter.setFont(font);
    painter.setPen(textColor());
    const double x = (width() - metrics.horizontalAdvance(shown)) * 0.5;
    const double y = (height() - metrics.height()) * 0.5;
    painter.drawText(QPointF(x, y + metrics.ascent()), shown);
}

void ShortcutRecorderView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_recorder.clicked();
    else
        QWidget::mousePressEvent(event);
}

void ShortcutRecorderView::keyPressEvent(QKeyEvent *event)
{
    const bool isStart = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return
        || event->key() == Qt::Key_Enter;
    if (isStart && !event->isAutoRepeat())
        m_recorder.startRecording();
    else
        QWidget::keyPressEvent(event);
}

void ShortcutRecorderView::focusInEvent(QFocusEvent *event)
{
    // A window that comes back gives the keyboard to whatever had it.
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        m_showsFocus = event->reason() != Qt::MouseFocusReason;
    QWidget::focusInEvent(event);
}

void ShortcutRecorderView::focusOutEvent(QFocusEvent *event)
{
    m_recorder.stopRecording();
    QWidget::focusOutEvent(event);
}

void ShortcutRecorderView::hideEvent(QHideEvent *event)
{
    m_recorder.stopRecording();
    QWidget::hideEvent(event);
}

void ShortcutRecorderView::changed()
{
    if (!isRecording())
        giveKeyboardBack();
    setToolTip(elidedText() == text() ? QString() : text());
    update();
    tell();
}

/// The recorder asks to be drawn more often than its text changes.
void ShortcutRecorderView::tell()
{
    const QString now = text();
    if (std::exchange(m_told, now) == now)
        return;
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
    if (isRecording() || hasFocus())
        m_announce(now);
}

} // namespace corvane
