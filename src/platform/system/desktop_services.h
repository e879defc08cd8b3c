#pragma once

class QUrl;

namespace corvane {

/// The programs that the user chose for files, web pages and mail.
class DesktopServices {
public:
    virtual ~DesktopServices() = default;

    /// Hands an address to the program that the desktop opens it with; false when there is none.
    /// Does not wait for that program.
    virtual bool open(const QUrl &url) = 0;
};

} // namespace corvane
