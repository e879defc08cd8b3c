#include "e2e/desktop/text_editor.h"

#include "e2e/desktop/eventually.h"

#include <QFile>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

TextEditor::TextEditor(XDesktop &desktop, const QByteArray &text, const QRect &frame)
    : m_desktop(desktop)
{
    QFile file(desktop.path(u"home/text"_s));
    if (file.open(QFile::WriteOnly))
        file.write(text);
    file.close();
    m_program = desktop.start(u"zenity"_s,
                              {u"--text-info"_s, u"--editable"_s, u"--title=text"_s,
                               u"--font=Inter 20"_s, u"--filename="_s + file.fileName()});
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
    m_desktop.hands().key('a', {keys::control});
    m_desktop.pictureAtRest(m_frame);
}

QByteArray TextEditor::text(const QByteArray &expected)
{
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
