#pragma once

#include "e2e/desktop/x_desktop.h"

namespace corvane::e2e {

/// A window of a GTK 3 program with a text that can be edited, dragged from and dropped into.
class TextEditor {
public:
    TextEditor(XDesktop &desktop, const QByteArray &text, const QRect &frame);

    QString problem() const { return problem_; }
    /// In the first line's first word.
    QPoint firstWord() const { return frame_.topLeft() + QPoint(40, 40); }
    QPoint middle() const { return frame_.center(); }
    /// A bare part of the window, beside text and buttons.
    QPoint titleBar() const { return frame_.topLeft() + QPoint(frame_.width() / 2, -8); }
    void selectAll();
    /// What stands in it, by way of the clipboard.
    QByteArray text(const QByteArray &expected);

private:
    XDesktop &desktop_;
    std::unique_ptr<Program> program_;
    QString problem_;
    QRect frame_;
};

} // namespace corvane::e2e
