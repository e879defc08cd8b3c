#pragma once

#include "platform/file_locality.h"

#include <QByteArray>

namespace corvane::test {

/// One folder is remote, with what is below it; at first none is.
class FakeFileLocality : public FileLocality {
public:
    bool isRemote(const QByteArray &path) const override
    {
        return !remoteFolder.isEmpty() && path.startsWith(remoteFolder);
    }

    QByteArray remoteFolder;
};

} // namespace corvane::test
