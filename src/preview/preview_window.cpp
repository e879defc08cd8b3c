#include "preview/preview_window.h"

#include "preview/details_view.h"
#include "preview/elided_label.h"
#include "preview/pages_view.h"
#include "preview/picture_view.h"
#include "preview/preview_geometry.h"
#include "preview/preview_look.h"
#include "preview/text_view.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

namespace corvane {

namespace {

template<class... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};
template<class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

QString pageCount(int count)
{
    return count == 1 ? QCoreApplication::translate("PreviewWindow", "1 page")
                      : QCoreApplication::translate("PreviewWindow", "%n pages", nullptr, count);
}

/// In the locale's digits, not in groups.
QString pixels(QSize size)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(size.width()) + QStringLiteral(" × ") + locale.toString(size.height());
}

QString onlyTheBeginning()
{
    return QCoreApplication::translate("PreviewWindow", "only the beginning is shown");
}

/// What the line below the content consists of.
QStringList lineFor(const PreviewContent &content)
{
    QStringList parts;
    const auto add = [&parts](const QString &part) {
        if (!part.isEmpty())
            parts << part;
    };
    std::visit(Overloaded{
                   [](const PreviewContent::Plain &) {},
                   [](const PreviewContent::Missing &) {},
                   [&](const PreviewContent::Picture &picture) {
                       add(content.details.kind);
                       if (!picture.isVector)
                           add(pixels(picture.pixelSize));
                       add(content.details.size);
                   },
                   [&](const PreviewContent::Pages &pages) {
                       add(content.details.kind);
                       add(pageCount(pages.count));
                       add(content.details.size);
                       if (pages.sizes.size() < pages.count)
                           add(onlyTheBeginning());
                   },
                   [&](const PreviewContent::Text &text) {
                       add(content.details.kind);
                       add(content.details.size);
                       if (text.isCut)
                           add(onlyTheBeginning());
                   },
               },
               content.body);
    return parts;
}

} // namespace

PreviewWindow::PreviewWindow(PreviewLoading &loading, MainQueue &queue)
    : QWidget(nullptr,
              Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint
                  | Qt::WindowMaximizeButtonHint)
    , m_loading(loading)
    , m_queue(queue)
    , m_layout(new QVBoxLayout(this))
    , m_bar(new QWidget(this))
    , m_line(new ElidedLabel(m_bar))
    , m_open(new QPushButton(QCoreApplication::translate("PreviewWindow", "Open"), m_bar))
{
    // The line begins where the text above it does.
    constexpr int sideMargin = 18;
    constexpr int gap = 12;
    setMinimumSize(preview_geometry::smallestWindow);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_bar->setFixedHeight(preview_geometry::barHeight);
    auto *const row = new QHBoxLayout(m_bar);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    row->setContentsMargins(isMirrored ? gap : sideMargin, 0, isMirrored ? sideMargin : gap, 0);
    row->setSpacing(gap);
    row->addWidget(m_line, 1);
    row->addWidget(m_open);
    m_line->setSubdued(true);
    // Clicking the button must not take the focus from the content; Tab still reaches it.
    m_open->setFocusPolicy(Qt::TabFocus);
    connect(m_open, &QPushButton::clicked, this, [this] {
        if (onOpen)
            onOpen();
    });
    m_layout->addWidget(m_bar);
}

PreviewWindow::~PreviewWindow() = default;

void PreviewWindow::setContent(const PreviewContent &content, const Image &icon)
{
    // Qt replaces "[*]" in titles by the mark of an unsaved document; doubled it is shown.
    QString title = content.details.name;
    setWindowTitle(title.replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
    const QStringList line = lineFor(content);
    m_line->setText(line.join(QStringLiteral("  ·  ")));
    m_open->setVisible(content.canBeOpened);
    m_bar->setVisible(content.canBeOpened || !line.isEmpty());
    m_open->setAccessibleName(
        QCoreApplication::translate("PreviewWindow", "Open %1").arg(content.details.name));
    delete m_view;
    m_picture = nullptr;
    m_view = makeView(content, icon);
    // The window has the name, and says it. Details describe themselves.
    if (!line.isEmpty())
        m_view->setAccessibleDescription(line.join(QStringLiteral(", ")));
    m_layout->insertWidget(0, m_view, 1);
    m_view->setFocus();
}

QWidget *PreviewWindow::makeView(const PreviewContent &content, const Image &icon)
{
    const auto details = [&]() -> QWidget * { return new DetailsView(content, icon, this); };
    return std::visit(Overloaded{
                          [&](const PreviewContent::Plain &) { return details(); },
                          [&](const PreviewContent::Missing &) { return details(); },
                          [&](const PreviewContent::Picture &picture) -> QWidget * {
                              m_picture = new PictureView(picture, m_loading, m_queue, this);
                              return m_picture;
                          },
                          [&](const PreviewContent::Pages &pages) -> QWidget * {
                              return new PagesView(pages, m_loading, this);
                          },
                          [&](const PreviewContent::Text &text) -> QWidget * {
                              return new TextView(text, m_queue, this);
                          },
                      },
                      content.body);
}

bool PreviewWindow::handleKey(const QKeyEvent &key)
{
    const bool isControl = key.modifiers().testFlag(Qt::ControlModifier);
    const bool isPlain = (key.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == 0;
    const bool closes = (isControl && key.key() == Qt::Key_W)
        || (isPlain && (key.key() == Qt::Key_Space || key.key() == Qt::Key_Escape));
    if (closes)
        return onCloseKey && onCloseKey(key);
    const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (isPlain && isEnter && m_open->hasFocus()) {
        m_open->click();
        return true;
    }
    return (isPlain || isControl) && m_picture && m_picture->handleKey(key.key());
}

// Keys are handled before the widgets get them: Space would scroll a text or press a button.
bool PreviewWindow::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && object == windowHandle()
        && handleKey(dynamic_cast<const QKeyEvent &>(*event)))
        return true;
    return QWidget::eventFilter(object, event);
}

void PreviewWindow::showEvent(QShowEvent *event)
{
    windowHandle()->installEventFilter(this);
    QWidget::showEvent(event);
}

void PreviewWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    if (onClose)
        onClose();
}

void PreviewWindow::paintEvent(QPaintEvent *)
{
    if (!m_bar->isVisible())
        return;
    // A line of one device pixel between the content and the line below it.
    QPainter painter(this);
    QColor color = palette().color(QPalette::WindowText);
    constexpr float faint = 0.15F;
    color.setAlphaF(faint);
    const double height = preview_look::hasMoreContrast() ? 1 : 1 / devicePixelRatioF();
    painter.fillRect(QRectF(0, m_bar->y(), width(), height), preview_look::line(palette(), color));
}

} // namespace corvane
