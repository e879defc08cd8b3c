#pragma once

#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

namespace corvane {

/// What people read, in their language, for as long as this lives. The texts in the sources are
/// translated into English for this desktop as into any other language, so that is always loaded,
/// and stands in for whatever another language lacks. Needs an application object; where that is
/// the toolkit's, windows are laid out in the direction of the language.
class Translations {
public:
    /// In the first of the wanted languages that there is, the most wanted first, named as by
    /// `QLocale::uiLanguages`.
    explicit Translations(const QStringList &wanted);
    Translations(const Translations &) = delete;
    Translations &operator=(const Translations &) = delete;
    ~Translations();

    /// What people want whose session names these languages: `named`, where it is not empty, else
    /// those of the session.
    static QStringList wanted(const QString &named, const QStringList &ofSession);
    /// The languages that are built in: "de", "en", "pt_BR".
    static QStringList languages();
    /// The one of `available` that people get who want these; "en" where there is none. Scripts
    /// count, so that Chinese of Hong Kong is the traditional one; countries do not.
    static QString chosen(const QStringList &wanted, const QStringList &available);

    QString language() const { return m_language; }

private:
    void install(const QString &name, const QString &folder);

    QString m_language;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace corvane
