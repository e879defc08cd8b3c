#include "platform/x11/drags/x11_drag_forms.h"

#include <utility>

namespace corvane {

X11DragForms::X11DragForms(X11Connection &connection, PasteboardForms forms)
    : m_connection(&connection)
    , m_forms(std::move(forms))
{
    for (const QString &name : m_forms.names())
        m_targets.push_back(connection.atom(name.toUtf8().constData()));
    for (const QString &name : m_forms.answeredNames())
        m_names.insert(connection.atom(name.toUtf8().constData()), name);
}

std::optional<X11DragForms::Answer> X11DragForms::answerTo(xcb_atom_t target) const
{
    const auto name = m_names.constFind(target);
    auto answer = name == m_names.cend() ? std::nullopt : m_forms.answerTo(*name);
    if (!answer)
        return std::nullopt;
    return Answer{m_connection->atom(answer->type.toUtf8().constData()), std::move(answer->bytes),
                  std::move(answer->holds)};
}

} // namespace corvane
