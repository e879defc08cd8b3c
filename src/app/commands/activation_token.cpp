#include "app/commands/activation_token.h"

#include <QtGlobal>

namespace corvane {

namespace {

// Where the toolkit looks for it when a window asks to be activated.
constexpr auto variable = "XDG_ACTIVATION_TOKEN";

} // namespace

ActivationToken::ActivationToken(const QString &token)
    : m_isSet(!token.isEmpty() && !token.contains(QChar(0)))
{
    if (m_isSet)
        qputenv(variable, token.toUtf8());
}

ActivationToken::~ActivationToken()
{
    // It counts once, and not for programs that are started later.
    if (m_isSet)
        qunsetenv(variable);
}

} // namespace corvane
