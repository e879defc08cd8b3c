#pragma once

#include <QByteArray>

namespace corvane {

/// How this copy of the program came to be here, and so what becomes of an update.
struct Installation {
    enum class Kind {
        /// Others keep it up to date: the distribution, or Flatpak.
        Managed,
        /// One file that the user put somewhere, and that an update takes the place of.
        AppImage,
        /// Anything else: an update is handed to the user.
        Loose,
    };

    /// What the process was told about itself; native paths, empty where nothing was said.
    struct Evidence {
        QByteArray executable;
        /// Variables of the environment, which any program may have set.
        QByteArray appImage;
        QByteArray appImageFolder;
        bool isFlatpak = false;

        static Evidence ofThisProcess();
    };

    /// The variables count only if the program runs from inside the AppImage: a program that
    /// another AppImage has started inherits that one's variables, and must not overwrite its file.
    static Installation from(const Evidence &evidence);

    /// Whether the file at `path` is an AppImage that may be replaced: regular, of this user, in a
    /// folder where files can be renamed, with the mark of its format. No links are followed.
    static bool isReplaceable(const QByteArray &path);

    Kind kind = Kind::Loose;
    /// The AppImage's own path, links resolved; empty for other kinds.
    QByteArray appImage = {};
};

} // namespace corvane
