#include "e2e/desktop/text_editor.h"

#include "e2e/desktop/eventually.h"

#include <QFile>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

TextEditor::TextEditor(XDesktop &desktop, const QByteArray &text, const QRect &frame)
    : desktop_(desktop)
{
    QFile file(desktop.path(u"home/text"_s));
    if (file.open(QFile::WriteOnly))
        file.write(text);
    file.close();
    program_ = desktop.start(u"zenity"_s,
                             {u"--text-info"_s, u"--editable"_s, u"--title=text"_s,
                              u"--font=Inter 20"_s, u"--filename="_s + file.fileName()});
    const auto window = desktop.waitForWindowOf(*program_);
    if (!window) {
        problem_ = u"the editor shows no window: "_s + QString::fromUtf8(program_->output());
        return;
    }
    const auto placed = desktop.place(window->id, frame);
    if (!placed) {
        problem_ = u"the editor's window cannot be placed"_s;
        return;
    }
    frame_ = placed->frame;
}

void TextEditor::selectAll()
{
    desktop_.hands().click(middle());
    desktop_.hands().key('a', {keys::control});
    desktop_.pictureAtRest(frame_);
}

QByteArray TextEditor::text(const QByteArray &expected)
{
    QByteArray text;
    eventually([&] {
        desktop_.hands().click(middle());
        desktop_.hands().key('a', {keys::control});
        desktop_.hands().key('c', {keys::control});
        desktop_.pictureAtRest(frame_);
        text = desktop_.clipboard(u"UTF8_STRING"_s).value_or(QByteArray());
        return text == expected;
    });
    return text;
}

} // namespace corvane::e2e
