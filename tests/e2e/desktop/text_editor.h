#pragma once

#include "e2e/desktop/x_desktop.h"

namespace corvane::e2e {

/// A window of another program with a text that can be edited, dragged from and dropped into.
class TextEditor {
public:
    enum class Toolkit { Gtk3, Gtk4, Qt };
    static bool isInstalled(Toolkit toolkit);

    TextEditor(XDesktop &desktop, const QByteArray &text, const QRect &frame,
               Toolkit toolkit = Toolkit::Gtk3);

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
    std::unique_ptr<Program> startEditor(Toolkit toolkit, const QString &file);

    XDesktop &m_desktop;
    std::unique_ptr<Program> m_program;
    QString m_problem;
    QRect m_frame;
};

} // namespace corvane::e2e
