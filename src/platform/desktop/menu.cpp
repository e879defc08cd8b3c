#include "platform/desktop/menu.h"

#include <QHash>

#include <array>

namespace corvane {

namespace {

struct ModifierName {
    Modifier modifier;
    const char *name;
};
constexpr std::array<ModifierName, 4> modifierNames = {{
    {Modifier::Command, "Meta"},
    {Modifier::Control, "Ctrl"},
    {Modifier::Option, "Alt"},
    {Modifier::Shift, "Shift"},
}};

/// Names in key sequences of the keys that shortcuts store as signs.
const QHash<QString, QString> &namesOfSigns()
{
    static const QHash<QString, QString> names = {
        {QStringLiteral("↩"), QStringLiteral("Return")},
        {QStringLiteral("⇥"), QStringLiteral("Tab")},
        {QStringLiteral("␣"), QStringLiteral("Space")},
        {QStringLiteral("⌫"), QStringLiteral("Backspace")},
        {QStringLiteral("⌦"), QStringLiteral("Del")},
        {QStringLiteral("⎋"), QStringLiteral("Esc")},
        {QStringLiteral("←"), QStringLiteral("Left")},
        {QStringLiteral("→"), QStringLiteral("Right")},
        {QStringLiteral("↑"), QStringLiteral("Up")},
        {QStringLiteral("↓"), QStringLiteral("Down")},
        {QStringLiteral("↖"), QStringLiteral("Home")},
        {QStringLiteral("↘"), QStringLiteral("End")},
        {QStringLiteral("⇞"), QStringLiteral("PgUp")},
        {QStringLiteral("⇟"), QStringLiteral("PgDown")},
        {QStringLiteral("⌤"), QStringLiteral("Enter")},
    };
    return names;
}

QString nameOf(const QString &key)
{
    const auto name = namesOfSigns().constFind(key);
    if (name != namesOfSigns().constEnd())
        return *name;
    // A text of more than one character is the name of a function key.
    return key.size() > 1 ? key.toUpper() : key;
}

} // namespace

QKeySequence KeyEquivalent::sequence() const
{
    if (key.isEmpty())
        return {};
    QString text;
    for (const ModifierName &modifier : modifierNames) {
        if (modifiers.testFlag(modifier.modifier))
            text += QLatin1String(modifier.name) % QLatin1Char('+');
    }
    return QKeySequence(text % nameOf(key), QKeySequence::PortableText);
}

bool MenuRow::showsTheSameAs(const MenuRow &other) const
{
    return id == other.id && title == other.title && keyEquivalent == other.keyEquivalent;
}

} // namespace corvane
