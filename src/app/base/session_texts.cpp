#include "app/base/session_texts.h"

#include <QCoreApplication>

namespace corvane::session_texts {

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("SessionTexts", source);
}

QString because(Reason why)
{
    switch (why) {
    case Reason::ServerLacksExtensions:
        return text(
            QT_TRANSLATE_NOOP("SessionTexts", "your display server lacks XInput 2 or XFixes"));
    case Reason::KeptByDesktop:
        return text(QT_TRANSLATE_NOOP("SessionTexts", "your desktop keeps that to itself"));
    case Reason::None:
        break;
    }
    return {};
}

QString sentence(const QString &missing, Reason why, const QString &instead)
{
    return text(QT_TRANSLATE_NOOP("SessionTexts", "%1, because %2. %3"))
        .arg(missing, because(why), instead);
}

template<typename Extent>
TableRow row(const char *title, const Ability<Extent> &ability, TableStyle style,
             const char *inDetail)
{
    const char *const inFull = style == TableStyle::Detailed ? inDetail : "yes";
    return {QString::fromUtf8(title),
            ability.isFull() ? QString::fromUtf8(inFull) : limit(ability)};
}

} // namespace

QString limit(const Ability<Drags> &drags)
{
    switch (drags.extent) {
    case Drags::Everywhere:
        return {};
    case Drags::AtTheEdge:
        return sentence(
            text(QT_TRANSLATE_NOOP("SessionTexts",
                                   "Drags are noticed only at the top of the screen")),
            drags.why,
            text(QT_TRANSLATE_NOOP("SessionTexts",
                                   "Drag to the middle of the top edge, and the shelf opens.")));
    case Drags::Unnoticed:
        return sentence(
            text(QT_TRANSLATE_NOOP("SessionTexts", "The shelf does not open when a drag begins")),
            drags.why,
            text(QT_TRANSLATE_NOOP("SessionTexts",
                                   "Open it with its shortcut or from the menu before you drag.")));
    }
    return {};
}

QString limit(const Ability<TopEdge> &topEdge)
{
    if (topEdge.isFull())
        return {};
    return sentence(
        text(QT_TRANSLATE_NOOP("SessionTexts",
                               "A hidden shelf does not come to the pointer at the top edge")),
        topEdge.why,
        text(QT_TRANSLATE_NOOP("SessionTexts", "Open it with its shortcut or from the menu.")));
}

QString limit(const Ability<ClicksElsewhere> &clicks)
{
    if (clicks.isFull())
        return {};
    return sentence(
        text(QT_TRANSLATE_NOOP("SessionTexts",
                               "A click in another program does not close the bar with all items")),
        clicks.why, text(QT_TRANSLATE_NOOP("SessionTexts", "Press Escape to close it.")));
}

QString limit(const Ability<ShortcutChoice> &choice)
{
    if (choice.isFull())
        return {};
    return sentence(
        text(QT_TRANSLATE_NOOP("SessionTexts", "Shortcuts cannot be recorded here")), choice.why,
        text(QT_TRANSLATE_NOOP("SessionTexts", "Choose them in your desktop's settings.")));
}

QString limit(const Ability<KeepingKey> &key)
{
    if (key.isFull())
        return {};
    return sentence(
        text(QT_TRANSLATE_NOOP("SessionTexts", "Shift is not noticed once a drag has begun")),
        key.why,
        text(QT_TRANSLATE_NOOP("SessionTexts",
                               "Hold it before you begin to drag, and the item stays.")));
}

QStringList limits(const Abilities &abilities)
{
    QStringList all{limit(abilities.drags), limit(abilities.topEdge),
                    limit(abilities.clicksElsewhere), limit(abilities.shortcutChoice),
                    limit(abilities.keepingKey)};
    all.removeAll(QString());
    return all;
}

QList<TableRow> tableRows(const Abilities &abilities, TableStyle style)
{
    return {
        row("opens by itself when a drag starts", abilities.drags, style,
            "yes, under every window manager tried (openbox, xfwm4)"),
        row("Shift keeps what is dragged out", abilities.keepingKey, style,
            "yes, held when you let go"),
        row("the bar with all items", abilities.clicksElsewhere, style,
            "yes; a click in any other program closes it"),
        row("the shelf at the top edge", abilities.topEdge, style,
            "yes, with mice and touchpads; tablets, and the pointers of some virtual machines, "
            "push against nothing"),
        row("hot keys: Super+Shift+D for the shelf, one of your own for the bar",
            abilities.shortcutChoice, style,
            "yes, also during a drag, in every layout and with every lock on"),
    };
}

} // namespace corvane::session_texts
