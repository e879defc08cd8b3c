#include "platform/menu.h"

#include <QHash>
#include <QKeySequence>

#include <array>

namespace corvane {

namespace {

struct ModifierName {
    Modifier modifier;
    const char *onTheBus;
    const char *inKeySequences;
};
constexpr std::array<ModifierName, 4> modifierNames = {{
    {Modifier::Command, "Super", "Meta"},
    {Modifier::Control, "Control", "Ctrl"},
    {Modifier::Option, "Alt", "Alt"},
    {Modifier::Shift, "Shift", "Shift"},
}};

/// The keys that shortcuts keep by a sign. Where GTK and Qt call a key differently, Qt takes GTK's
/// name too, in any case; it does not for the last four.
const QHash<QString, QString> &namesOfSigns()
{
    static const QHash<QString, QString> names = {
        {QStringLiteral("↩"), QStringLiteral("Return")},
        {QStringLiteral("⇥"), QStringLiteral("Tab")},
        {QStringLiteral("␣"), QStringLiteral("space")},
        {QStringLiteral("⌫"), QStringLiteral("BackSpace")},
        {QStringLiteral("⌦"), QStringLiteral("Delete")},
        {QStringLiteral("⎋"), QStringLiteral("Escape")},
        {QStringLiteral("←"), QStringLiteral("Left")},
        {QStringLiteral("→"), QStringLiteral("Right")},
        {QStringLiteral("↑"), QStringLiteral("Up")},
        {QStringLiteral("↓"), QStringLiteral("Down")},
        {QStringLiteral("↖"), QStringLiteral("Home")},
        {QStringLiteral("↘"), QStringLiteral("End")},
        {QStringLiteral("⇞"), QStringLiteral("PgUp")},
        {QStringLiteral("⇟"), QStringLiteral("PgDown")},
        {QStringLiteral("⌤"), QStringLiteral("Enter")},
        // Between names and key there are plus signs.
        {QStringLiteral("+"), QStringLiteral("plus")},
        {QStringLiteral("-"), QStringLiteral("minus")},
    };
    return names;
}

QString nameOf(const QString &key)
{
    const auto name = namesOfSigns().constFind(key);
    if (name != namesOfSigns().constEnd())
        return *name;
    // What types more than one character is a function key.
    return key.size() > 1 ? key.toUpper() : key;
}

} // namespace

QStringList KeyEquivalent::names() const
{
    QStringList names;
    if (key.isEmpty())
        return names;
    for (const ModifierName &name : modifierNames) {
        if (modifiers.testFlag(name.modifier))
            names << QLatin1String(name.onTheBus);
    }
    return names << nameOf(key);
}

QString KeyEquivalent::text() const
{
    if (key.isEmpty())
        return {};
    QString sequence;
    for (const ModifierName &name : modifierNames) {
        if (modifiers.testFlag(name.modifier))
            sequence += QLatin1String(name.inKeySequences) % QLatin1Char('+');
    }
    // A sequence is spelt with the sign itself where the bus has a word.
    const bool isSign = key == QLatin1String("+") || key == QLatin1String("-");
    sequence += isSign ? key : nameOf(key);
    return QKeySequence(sequence, QKeySequence::PortableText).toString(QKeySequence::NativeText);
}

bool MenuRow::showsTheSameAs(const MenuRow &other) const
{
    return id == other.id && title == other.title && keyEquivalent == other.keyEquivalent;
}

} // namespace corvane
