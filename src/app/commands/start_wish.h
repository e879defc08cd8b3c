#pragma once

#include "app/commands/command_line.h"
#include "platform/freedesktop/running_program.h"
#include "platform/system/shelf_requests.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <deque>
#include <functional>
#include <optional>

namespace corvane {

/// What a start of the program asks of the process that runs, or does itself where it becomes that
/// process.
class StartWish {
public:
    /// What a start may know of the process that it happens in.
    struct Surroundings {
        /// The folder that relative paths start from, as a native path; empty if it is gone.
        QByteArray folder;
        /// Everything on standard input; none if it cannot be read or is more than `limit` bytes.
        std::function<std::optional<QByteArray>(qint64 limit)> readInput;

        static Surroundings ofThisProcess();
    };

    StartWish(const CommandLine &line, const Surroundings &surroundings);

    /// Lines for people: what of the command line cannot be put on the shelf.
    const QList<QByteArray> &problems() const { return m_problems; }
    /// Nothing is left to be done.
    bool isVain() const { return m_isPut && m_deliveries.empty(); }
    /// Whether more is wanted than a start.
    bool isPlain() const { return !m_isPut && m_action.isEmpty(); }

    /// Asks the other process for what has not been asked for yet.
    RunningProgram::Answer handOver(const RunningProgram &other);
    /// Has it done by this process. `requests` must outlive what it does.
    void fulfil(ShelfRequests &requests);

private:
    void add(const QByteArray &place, const Surroundings &surroundings);
    void addAddress(const QByteArray &address);
    void addPath(const QByteArray &place, const QByteArray &folder);
    void addInput(const Surroundings &surroundings);

    struct Delivery {
        ShelfDelivery contents;
        /// How many items are expected to come of it.
        int count = 0;
    };

    bool m_isPut = false;
    QString m_action;
    std::deque<Delivery> m_deliveries;
    QList<QByteArray> m_problems;
};

} // namespace corvane
