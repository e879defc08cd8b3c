#pragma once

#include "platform/base/lifetime.h"
#include "platform/preview/preview_content.h"

#include <QPlainTextEdit>

namespace corvane {

class MainQueue;

/// A text to read, scroll and copy from. It is laid out a piece at a time, so that a long one can
/// be read at once and keeps nothing waiting. The queue must outlive it.
class TextView : public QPlainTextEdit {
public:
    TextView(const PreviewContent::Text &text, MainQueue &queue, QWidget *parent = nullptr);
    ~TextView() override;

    /// Which font such a text is shown in.
    static QFont fontFor(const PreviewContent::Text &text);

private:
    void appendNext();

    QString m_text;
    qsizetype m_shown = 0;
    MainQueue &m_queue;
    Lifetime m_lifetime;
};

} // namespace corvane
