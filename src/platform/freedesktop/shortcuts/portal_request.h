#pragma once

#include <QObject>
#include <QVariantList>
#include <QVariantMap>

#include <functional>
#include <optional>

class QDBusMessage;

namespace corvane {

/// A question to the desktop's portals, which answer with a signal, perhaps after they have asked
/// the user. It destroys itself once it has told; destroying it before forgets it. Main thread
/// only.
class PortalRequest : public QObject {
    Q_OBJECT

public:
    static constexpr int acceptMilliseconds = 5'000;

    /// Gets the answer's contents; none where it is a refusal, or none to expect.
    using Answered = std::function<void(const std::optional<QVariantMap> &)>;

    PortalRequest(QObject *parent, Answered answered);

    /// The options to ask with: the portal answers by what is in them.
    QVariantMap options() const;
    /// Asks the portal of shortcuts. The last argument are the options, whole.
    void ask(const QString &method, const QVariantList &arguments);

private:
    Q_SLOT void answer(const QDBusMessage &message);
    void tell(const std::optional<QVariantMap> &contents);

    Answered m_answered;
    QString m_token;
};

} // namespace corvane
