#pragma once

#include "platform/system/remote_files.h"

#include <utility>
#include <vector>

namespace corvane::test {

/// Collects questions; a test answers them, or never does.
class FakeRemoteFiles : public RemoteFiles {
public:
    void inspect(const QByteArray &path,
                 std::function<void(std::optional<FileVersion>)> completion) override
    {
        inspections.push_back({path, std::move(completion)});
    }
    void read(const QByteArray &path, qint64 limit,
              std::function<void(std::optional<QByteArray>)> completion) override
    {
        readings.push_back({path, limit, std::move(completion)});
    }

    struct Inspection {
        QByteArray path;
        std::function<void(std::optional<FileVersion>)> answer;
    };
    struct Reading {
        QByteArray path;
        qint64 limit = 0;
        std::function<void(std::optional<QByteArray>)> answer;
    };
    std::vector<Inspection> inspections;
    std::vector<Reading> readings;
};

} // namespace corvane::test
