#pragma once

#include "e2e/desktop/x_desktop.h"

namespace corvane::e2e {

/// Another program's window with an editable text, to drag from and to drop into.
class TextEditor {
public:
    enum class Toolkit { Gtk3, Gtk4, Qt };
    static bool isInstalled(Toolkit toolkit);

    TextEditor(XDesktop &desktop, const QByteArray &text, const QRect &frame,
               Toolkit toolkit = Toolkit::Gtk3);

    QString problem() const { return m_problem; }
    /// A point in the first word of the text.
    QPoint firstWord() const { return m_frame.topLeft() + QPoint(40, 40); }
    QPoint middle() const { return m_frame.center(); }
    /// A point of the title bar without text and buttons.
    QPoint titleBar() const { return m_frame.topLeft() + QPoint(m_frame.width() / 2, -8); }
    void selectAll();
    /// The text, read through the clipboard; waits until it is `expected`.
    QByteArray text(const QByteArray &expected);

private:
    std::unique_ptr<Program> startEditor(Toolkit toolkit, const QString &file);

    XDesktop &m_desktop;
    std::unique_ptr<Program> m_program;
    QString m_problem;
    QRect m_frame;
};

} // namespace corvane::e2e
