#pragma once

#include "e2e/desktop/x_desktop.h"

namespace corvane::e2e {

/// A window of a GTK 3 program with a text that can be edited, dragged from and dropped into.
class TextEditor {
public:
    TextEditor(XDesktop &desktop, const QByteArray &text, const QRect &frame);

    QString problem() const { return m_problem; }
    /// In the first line's first word.
    QPoint firstWord() const { return m_frame.topLeft() + QPoint(40, 40); }
    QPoint middle() const { return m_frame.center(); }
    /// A bare part of the window, beside text and buttons.
    QPoint titleBar() const { return m_frame.topLeft() + QPoint(m_frame.width() / 2, -8); }
    void selectAll();
    /// What stands in it, by way of the clipboard.
    QByteArray text(const QByteArray &expected);

private:
    XDesktop &m_desktop;
    std::unique_ptr<Program> m_program;
    QString m_problem;
    QRect m_frame;
};

} // namespace corvane::e2e
