#include "platform/pasteboard/named_forms.h"

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

constexpr QLatin1String utf8Text("UTF8_STRING");
constexpr QLatin1String latin1Text("STRING");

bool isAscii(const QByteArray &text)
{
    return std::ranges::all_of(text,
                               [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

bool isLatin1(const PasteboardForm &text)
{
    const QString characters = QString::fromUtf8(text.bytes);
    return std::ranges::all_of(characters, [](QChar one) { return one.unicode() <= 0xff; });
}

} // namespace

NamedForms::NamedForms(PasteboardForms forms)
    : m_forms(std::move(forms))
{
    for (std::size_t i = 0; i < m_forms.size(); ++i) {
        const QString &type = m_forms[i].type;
        addName(type, i, Spelling::AsItIs);
        if (type == QLatin1String("text/plain")) {
            addName(QStringLiteral("text/plain;charset=utf-8"), i, Spelling::AsItIs);
            addName(utf8Text, i, Spelling::AsItIs);
            const Offered offered = isAscii(m_forms[i].bytes) ? Offered::Yes : Offered::No;
            addName(latin1Text, i, Spelling::Latin1, offered);
            addName(QStringLiteral("TEXT"), i, Spelling::OwnersChoice, offered);
        } else if (type == QLatin1String("text/uri-list")) {
            addName(QStringLiteral("text/x-moz-url"), i, Spelling::MozUrl);
        }
    }
}

void NamedForms::addName(const QString &name, std::size_t form, Spelling spelling, Offered offered)
{
    if (m_meanings.contains(name))
        return;
    m_meanings.insert(name, {form, spelling});
    if (offered == Offered::Yes)
        m_names << name;
}

std::optional<NamedForms::Answer> NamedForms::answerTo(const QString &name) const
{
    const auto meaning = m_meanings.constFind(name);
    if (meaning == m_meanings.cend())
        return std::nullopt;
    const PasteboardForm &form = m_forms[meaning->form];
    switch (meaning->spelling) {
    case Spelling::Latin1:
        return inLatin1(form);
    case Spelling::OwnersChoice:
        return isLatin1(form) ? inLatin1(form) : Answer{utf8Text, form.bytes, form.holds};
    case Spelling::MozUrl:
        return asMozUrl(form);
    case Spelling::AsItIs:
        break;
    }
    return Answer{name, form.bytes, form.holds};
}

NamedForms::Answer NamedForms::inLatin1(const PasteboardForm &text)
{
    return {latin1Text, QString::fromUtf8(text.bytes).toLatin1(),
            isLatin1(text) ? text.holds : QList<qsizetype>()};
}

NamedForms::Answer NamedForms::asMozUrl(const PasteboardForm &uriList)
{
    const qsizetype end = uriList.bytes.indexOf("\r\n");
    const QString address = QString::fromLatin1(uriList.bytes.left(end));
    const QString pair = address + QLatin1Char('\n') + address;
    return {QStringLiteral("text/x-moz-url"),
            QByteArray(reinterpret_cast<const char *>(pair.utf16()),
                       pair.size() * qsizetype{sizeof(char16_t)}),
            uriList.holds.mid(0, 1)};
}

} // namespace corvane
