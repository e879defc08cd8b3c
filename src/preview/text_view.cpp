#include "preview/text_view.h"

#include "platform/base/main_queue.h"

#include <QAccessible>
#include <QApplication>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace corvane {

namespace {

/// In UTF-16 code units: more than a window shows, and laid out in a few milliseconds.
constexpr qsizetype piece = 8'192;

} // namespace

TextView::TextView(const PreviewContent::Text &text, MainQueue &queue, QWidget *parent)
    : QPlainTextEdit(parent)
    , m_text(text.text)
    , m_queue(queue)
{
    constexpr double margin = 18;
    constexpr int tabWidth = 4;
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setFrameShape(QFrame::NoFrame);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setAccessibleName(QCoreApplication::translate("PreviewWindow", "Text"));
    setFont(fontFor(text));
    setTabStopDistance(tabWidth * fontMetrics().horizontalAdvance(QLatin1Char(' ')));
    document()->setDocumentMargin(margin);
    // No cursor is shown: pieces are appended below the visible part, which must not scroll.
    setCursorWidth(0);
    appendNext();
    // It was pushed along to the end of the first piece, where Down may lead nowhere.
    moveCursor(QTextCursor::Start);
}

TextView::~TextView() = default;

QFont TextView::fontFor(const PreviewContent::Text &text)
{
    return text.isMonospaced ? QFontDatabase::systemFont(QFontDatabase::FixedFont)
                             : QApplication::font("QPlainTextEdit");
}

void TextView::keyPressEvent(QKeyEvent *event)
{
    const bool isArrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == 0;
    // Nobody sees the cursor, which could be far away from what is shown.
    if (isArrow && isPlain && !QAccessible::isActive())
        QAbstractScrollArea::keyPressEvent(event);
    else
        QPlainTextEdit::keyPressEvent(event);
}

void TextView::appendNext()
{
    qsizetype end = std::min(m_shown + piece, m_text.size());
    if (end < m_text.size() && m_text[end].isLowSurrogate())
        ++end;
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(m_text.mid(m_shown, end - m_shown));
    m_shown = end;
    if (m_shown >= m_text.size()) {
        m_text.clear();
        return;
    }
    m_queue.async(m_lifetime.guard([this] { appendNext(); }));
}

} // namespace corvane
