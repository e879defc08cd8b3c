#pragma once

#include <QByteArray>

namespace corvane {

/// The steps on disk that an installation is made of. The process may end between any two of them,
/// so each either happens or does not. Paths are native; every function gives 0 or the error's
/// number. Any thread.
class InstallationSteps {
public:
    virtual ~InstallationSteps() = default;

    /// The permissions of the file at `path` for the open one; never more than those for reading,
    /// writing and executing.
    virtual int takePermissions(int descriptor, const QByteArray &path) = 0;
    /// What was written outlives a crash.
    virtual int sync(int descriptor) = 0;
    /// So do the names in a folder.
    virtual int syncFolder(const QByteArray &folder) = 0;
    /// A second name for the file, or a copy of it where there are no second names; fails where
    /// the name is taken.
    virtual int keep(const QByteArray &path, const QByteArray &otherPath) = 0;
    /// A name for the open file itself, whatever stands under its other names by now, or for a copy
    /// of it where it cannot have the name; fails where the name is taken.
    virtual int giveName(int descriptor, const QByteArray &path) = 0;
    /// Takes the place of what stands at `to`, in one step.
    virtual int replace(const QByteArray &from, const QByteArray &to) = 0;
    virtual int remove(const QByteArray &path) = 0;
};

/// The real ones.
class PosixInstallationSteps : public InstallationSteps {
public:
    int takePermissions(int descriptor, const QByteArray &path) override;
    int sync(int descriptor) override;
    int syncFolder(const QByteArray &folder) override;
    int keep(const QByteArray &path, const QByteArray &otherPath) override;
    int giveName(int descriptor, const QByteArray &path) override;
    int replace(const QByteArray &from, const QByteArray &to) override;
    int remove(const QByteArray &path) override;
};

} // namespace corvane
