#pragma once

#include <QJsonObject>
#include <QString>

namespace corvane {

/// What the program knows about itself, from the information dictionary that is built into it.
class AppInfo {
public:
    explicit AppInfo(QJsonObject dictionary);
    /// The dictionary of this build.
    static AppInfo builtIn();

    /// "CFBundleShortVersionString", "0.0.0" when it is no text.
    QString version() const;
    /// "CFBundleVersion", "0" when it is no text.
    QString build() const;
    /// The name on the session's bus, and of the desktop entry.
    QString applicationId() const;
    QString homePage() const;
    /// A mailbox.
    QString supportAddress() const;

private:
    QString text(const QString &key, const QString &otherwise) const;

    QJsonObject m_dictionary;
};

} // namespace corvane
