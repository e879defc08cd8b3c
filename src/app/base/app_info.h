#pragma once

#include <QJsonObject>
#include <QString>

namespace corvane {

/// Facts about the program, from the information dictionary that is built into it.
class AppInfo {
public:
    explicit AppInfo(QJsonObject dictionary);
    /// The dictionary that is built into this program; an empty one where there is none.
    static AppInfo builtIn();

    /// "CFBundleShortVersionString", "0.0.0" when it is no text.
    QString version() const;
    /// "CFBundleVersion", "0" when it is no text.
    QString build() const;
    /// The program's id: its name on the session bus and its desktop entry's name.
    QString applicationId() const;
    QString homePage() const;
    /// An e-mail address.
    QString supportAddress() const;

    /// Keys of the address of the update feed, and of the public key that updates are signed with.
    static inline const QString feedAddressKey = QStringLiteral("SUFeedURL");
    static inline const QString updateKeyKey = QStringLiteral("SUPublicEDKey");

    /// The text under a key; `otherwise` if there is none or it is no text.
    QString text(const QString &key, const QString &otherwise = {}) const;

private:
    QJsonObject m_dictionary;
};

} // namespace corvane
