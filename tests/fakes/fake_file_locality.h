#pragma once

#include "platform/system/file_locality.h"

#include <QByteArray>

namespace corvane::test {

/// Makes one folder remote, with everything below it; none unless it is set.
class FakeFileLocality : public FileLocality {
public:
    bool isRemote(const QByteArray &path) const override
    {
        return !remoteFolder.isEmpty() && path.startsWith(remoteFolder);
    }

    std::vector<Inspection> inspect(const QList<QByteArray> &paths) const override
    {
        std::vector<Inspection> inspections;
        for (const QByteArray &path : paths) {
            inspections.push_back(isRemote(path) ? Inspection{true, std::nullopt}
                                                 : Inspection{false, FileVersion::at(path)});
        }
        return inspections;
    }

    QByteArray remoteFolder;
};

} // namespace corvane::test
