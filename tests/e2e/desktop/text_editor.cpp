#include "e2e/desktop/text_editor.h"

#include "e2e/desktop/eventually.h"

#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QProcess>

#include <algorithm>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

namespace {

constexpr auto python = "/usr/bin/python3";

// Ready-made editors bring half a desktop, or change their toolkit from one release to the next.
constexpr auto gtkEditor = R"(
import os, sys
version, file = sys.argv[1:]
os.environ["GSK_RENDERER"] = "cairo"
import gi
gi.require_version("Gtk", version)
from gi.repository import Gtk, GLib
view = Gtk.TextView(top_margin=16, left_margin=16, wrap_mode=Gtk.WrapMode.WORD, visible=True)
style = Gtk.CssProvider()
style.load_from_data(b"textview { font: 20pt Inter; }")
view.get_style_context().add_provider(style, Gtk.STYLE_PROVIDER_PRIORITY_APPLICATION)
view.get_buffer().set_text(open(file, encoding="utf-8", newline="").read())
# The window can be made smaller than a line of the text.
area = Gtk.ScrolledWindow(child=view, visible=True)
window = Gtk.Window(title="text", child=area, default_width=560, default_height=400)
window.present()
GLib.MainLoop().run()
)";

/// By more than a cursor that blinks.
bool differ(const QImage &left, const QImage &right)
{
    constexpr int cursor = 200;
    int different = 0;
    for (int y = 0; y < std::min(left.height(), right.height()); ++y) {
        for (int x = 0; x < std::min(left.width(), right.width()); ++x)
            different += left.pixel(x, y) != right.pixel(x, y) ? 1 : 0;
    }
    return different > cursor;
}

} // namespace

bool TextEditor::isInstalled(Toolkit toolkit)
{
    if (toolkit != Toolkit::Gtk4)
        return true;
    QProcess check;
    check.start(QString::fromLatin1(python),
                {u"-c"_s, u"import gi; gi.require_version('Gtk', '4.0')"_s});
    return check.waitForFinished() && check.exitCode() == 0;
}

std::unique_ptr<Program> TextEditor::startEditor(Toolkit toolkit, const QString &file)
{
    if (toolkit != Toolkit::Qt) {
        return m_desktop.start(QString::fromLatin1(python),
                               {u"-c"_s, QString::fromLatin1(gtkEditor),
                                toolkit == Toolkit::Gtk3 ? u"3.0"_s : u"4.0"_s, file});
    }
    return m_desktop.start(QCoreApplication::applicationDirPath() + u"/corvane_qt_editor"_s,
                           {file});
}

TextEditor::TextEditor(XDesktop &desktop, const QByteArray &text, const QRect &frame,
                       Toolkit toolkit)
    : m_desktop(desktop)
{
    QFile file(desktop.path(u"home/text"_s));
    if (file.open(QFile::WriteOnly))
        file.write(text);
    file.close();
    m_program = startEditor(toolkit, file.fileName());
    const auto window = desktop.waitForWindowOf(*m_program);
    if (!window) {
        m_problem = u"the editor shows no window: "_s + QString::fromUtf8(m_program->output());
        return;
    }
    const auto placed = desktop.place(window->id, frame);
    if (!placed) {
        m_problem = u"the editor's window cannot be placed"_s;
        return;
    }
    m_frame = placed->frame;
}

void TextEditor::selectAll()
{
    m_desktop.hands().click(middle());
    const QImage before = m_desktop.pictureAtRest(m_frame);
    // The click may not have given it the keyboard yet.
    eventually([&] {
        m_desktop.hands().key('a', {keys::control});
        return differ(before, m_desktop.pictureAtRest(m_frame));
    });
}

QByteArray TextEditor::text(const QByteArray &expected)
{
    // What was copied before would pass for what stands in an editor that is empty.
    m_desktop.clearClipboard();
    QByteArray text;
    eventually([&] {
        m_desktop.hands().click(middle());
        m_desktop.hands().key('a', {keys::control});
        m_desktop.hands().key('c', {keys::control});
        m_desktop.pictureAtRest(m_frame);
        text = m_desktop.clipboard(u"UTF8_STRING"_s).value_or(QByteArray());
        return text == expected;
    });
    return text;
}

} // namespace corvane::e2e
