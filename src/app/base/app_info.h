#pragma once

#include <QJsonObject>
#include <QString>

namespace corvane {

/// What the program knows about itself, from the information dictionary that is built into it.
class AppInfo {
public:
    explicit AppInfo(QJsonObject dictionary);
    /// The dictionary that is built into this program; an empty one where there is none.
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

    /// Where new versions are announced, and the key that they are signed with.
    static inline const QString feedAddressKey = QStringLiteral("SUFeedURL");
    static inline const QString updateKeyKey = QStringLiteral("SUPublicEDKey");

    /// What the dictionary holds under a key, `otherwise` when that is no text.
    QString text(const QString &key, const QString &otherwise = {}) const;

private:
    QJsonObject m_dictionary;
};

} // namespace corvane
