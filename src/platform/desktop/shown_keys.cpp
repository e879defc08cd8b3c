#include "platform/desktop/shown_keys.h"

#include <QCoreApplication>
#include <QStringList>

#include <array>
#include <utility>

namespace corvane {

namespace {

// Qt writes the keys of menus with these names. They are among our messages because Qt's own
// translations need not be installed, and because desktops say "Super" where Qt says "Meta".
constexpr std::array namesOfModifiers = {
    std::pair(Modifier::Command, QT_TRANSLATE_NOOP("QShortcut", "Meta")),
    std::pair(Modifier::Control, QT_TRANSLATE_NOOP("QShortcut", "Ctrl")),
    std::pair(Modifier::Option, QT_TRANSLATE_NOOP("QShortcut", "Alt")),
    std::pair(Modifier::Shift, QT_TRANSLATE_NOOP("QShortcut", "Shift")),
};
[[maybe_unused]] constexpr std::array keyNames = {
    QT_TRANSLATE_NOOP("QShortcut", "Return"),    QT_TRANSLATE_NOOP("QShortcut", "Enter"),
    QT_TRANSLATE_NOOP("QShortcut", "Tab"),       QT_TRANSLATE_NOOP("QShortcut", "Space"),
    QT_TRANSLATE_NOOP("QShortcut", "Backspace"), QT_TRANSLATE_NOOP("QShortcut", "Del"),
    QT_TRANSLATE_NOOP("QShortcut", "Esc"),       QT_TRANSLATE_NOOP("QShortcut", "Left"),
    QT_TRANSLATE_NOOP("QShortcut", "Right"),     QT_TRANSLATE_NOOP("QShortcut", "Up"),
    QT_TRANSLATE_NOOP("QShortcut", "Down"),      QT_TRANSLATE_NOOP("QShortcut", "Home"),
    QT_TRANSLATE_NOOP("QShortcut", "End"),       QT_TRANSLATE_NOOP("QShortcut", "PgUp"),
    QT_TRANSLATE_NOOP("QShortcut", "PgDown"),
};

/// Keys whose name Qt does not know.
QString withOwnName(const KeyEquivalent &keys)
{
    QStringList names;
    for (const auto &[modifier, name] : namesOfModifiers) {
        if (keys.modifiers.testFlag(modifier))
            names << QCoreApplication::translate("QShortcut", name);
    }
    names << keys.key.toUpper();
    return names.join(QLatin1Char('+'));
}

} // namespace

QString shownKeys(const KeyEquivalent &keys)
{
    if (keys.key.isEmpty())
        return {};
    const QKeySequence sequence = keys.sequence();
    const bool isKnown = !sequence.isEmpty() && sequence[0].key() != Qt::Key_unknown;
    const QString text = isKnown ? sequence.toString(QKeySequence::NativeText) : QString();
    return text.isEmpty() ? withOwnName(keys) : text;
}

} // namespace corvane
