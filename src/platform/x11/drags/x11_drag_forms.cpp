#include "platform/x11/drags/x11_drag_forms.h"

#include <QString>

#include <utility>

namespace corvane {

X11DragForms::X11DragForms(X11Connection &connection, PasteboardForms forms)
    : m_connection(&connection)
    , m_forms(std::move(forms))
{
    for (std::size_t i = 0; i < m_forms.size(); ++i) {
        const QString &type = m_forms[i].type;
        addName(type.toUtf8().constData(), i, Spelling::AsItIs);
        if (type == QLatin1String("text/plain")) {
            addName("text/plain;charset=utf-8", i, Spelling::AsItIs);
            addName("UTF8_STRING", i, Spelling::AsItIs);
            addName("STRING", i, Spelling::Latin1);
            addName("TEXT", i, Spelling::OwnersChoice);
        } else if (type == QLatin1String("text/uri-list")) {
            addName("text/x-moz-url", i, Spelling::MozUrl);
        }
    }
}

void X11DragForms::addName(const char *name, std::size_t form, Spelling spelling)
{
    const xcb_atom_t atom = m_connection->atom(name);
    if (!m_names.contains(atom))
        m_names.insert(atom, {form, spelling});
}

std::vector<xcb_atom_t> X11DragForms::targets() const
{
    return {m_names.keyBegin(), m_names.keyEnd()};
}

std::optional<X11DragForms::Answer> X11DragForms::answerTo(xcb_atom_t target) const
{
    const auto name = m_names.constFind(target);
    if (name == m_names.cend())
        return std::nullopt;
    const PasteboardForm &form = m_forms[name->form];
    switch (name->spelling) {
    case Spelling::Latin1:
        return inLatin1(form);
    case Spelling::OwnersChoice: {
        Answer latin1 = inLatin1(form);
        if (latin1.holds == form.holds)
            return latin1;
        return Answer{m_connection->atom("UTF8_STRING"), form.bytes, form.holds};
    }
    case Spelling::MozUrl:
        return asMozUrl(form, target);
    case Spelling::AsItIs:
        break;
    }
    return Answer{target, form.bytes, form.holds};
}

X11DragForms::Answer X11DragForms::inLatin1(const PasteboardForm &text) const
{
    const QString characters = QString::fromUtf8(text.bytes);
    const QByteArray latin1 = characters.toLatin1();
    const bool isWhole = QString::fromLatin1(latin1) == characters;
    return {XCB_ATOM_STRING, latin1, isWhole ? text.holds : QList<qsizetype>()};
}

X11DragForms::Answer X11DragForms::asMozUrl(const PasteboardForm &uriList, xcb_atom_t target) const
{
    const qsizetype end = uriList.bytes.indexOf("\r\n");
    const QString address = QString::fromLatin1(uriList.bytes.left(end));
    const QString pair = address + QLatin1Char('\n') + address;
    return {target,
            QByteArray(reinterpret_cast<const char *>(pair.utf16()),
                       pair.size() * qsizetype{sizeof(char16_t)}),
            uriList.holds.mid(0, 1)};
}

} // namespace corvane
