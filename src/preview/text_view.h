#pragma once

#include "platform/base/lifetime.h"
#include "platform/preview/preview_content.h"

#include <QPlainTextEdit>

namespace corvane {

class MainQueue;

/// Shows a text to be scrolled and copied from. It is laid out piece by piece, so that a long one
/// can be read at once without blocking the main thread. Up and Down scroll it by a line; while
/// assistive programs follow the cursor, they move that from line to line. The queue must outlive
/// it.
class TextView : public QPlainTextEdit {
public:
    TextView(const PreviewContent::Text &text, MainQueue &queue, QWidget *parent = nullptr);
    ~TextView() override;

    /// The font that such a text is shown in.
    static QFont fontFor(const PreviewContent::Text &text);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void appendNext();

    QString m_text;
    qsizetype m_shown = 0;
    MainQueue &m_queue;
    Lifetime m_lifetime;
};

} // namespace corvane
