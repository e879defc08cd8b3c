#pragma once

#include "platform/system/shelf_requests.h"

#include <QByteArray>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

namespace corvane {

/// The process that holds the program's name on the session bus, as a later process sees it. Every
/// call blocks until it is answered, within a time limit. Needs an application object.
class RunningProgram {
public:
    enum class Answer {
        Done,
        /// There is none, or it is no program of ours.
        Gone,
        /// Nothing came within the time limit, or it ended meanwhile.
        None,
        /// It answers, but not to this; `refusal` says why.
        Refused,
    };

    enum class Refusal {
        /// It has just been started, or is about to end.
        NotReady,
        /// Too many calls wait for their answers.
        TooMuch,
        /// It does not know of this: an older version, or another program.
        NotKnown,
        NothingTaken,
        /// Of this process or of the other.
        NoMemory,
        /// Its answer is none.
        AnswerUnreadable,
        /// Of a kind that it does not answer by itself; `refusedBy` names the bus's error.
        Other,
    };

    static constexpr int busMilliseconds = 2'000;
    /// Longer than a program needs that was started a moment ago, on a slow disk.
    static constexpr int answerMilliseconds = 4'000;
    /// For what may wait for files that are still being made, or moves much.
    static constexpr int contentsMilliseconds = 60'000;

    explicit RunningProgram(QString applicationId);

    static QString objectPath(QString applicationId);

    /// Whether any process has the name.
    bool exists() const;
    std::optional<qint64> process() const;
    /// Whether its main thread answers. Changes nothing there: a wish that waits in a process that
    /// is stuck would be done long after the user gave up.
    Answer isAlive() const;

    Answer activate() const;
    Answer act(const QString &action) const;
    /// `items` is what came of it.
    Answer put(const ShelfDelivery &delivery, int &items) const;
    /// `entries` as in `ShelfRequests`.
    Answer list(QByteArray &entries) const;
    Answer take(QByteArray &entries) const;
    Answer confirmTaken() const;
    /// Has it end, and waits until it has.
    Answer end() const;

    /// Why the last call was refused that was.
    Refusal refusal() const { return m_refusal; }
    /// The name of the error by which it was, empty if that came up in this process.
    QString refusedBy() const { return m_refusedBy; }

    /// Passed on with `activate` and `act`: the desktop's permission to come to the front.
    void setPlatformData(const QVariantMap &data) { m_platformData = data; }
    /// What the desktop gave to this process.
    static QVariantMap platformDataOfEnvironment();

private:
    Answer ask(const QString &interface, const QString &method, const QVariantList &arguments,
               int milliseconds, QVariantList *results = nullptr) const;
    Answer askForEntries(const QString &method, QByteArray &entries) const;
    Answer refused(Refusal refusal, const QString &name = {}) const;

    QString m_applicationId;
    QVariantMap m_platformData;
    mutable Refusal m_refusal = Refusal::Other;
    mutable QString m_refusedBy;
};

} // namespace corvane
