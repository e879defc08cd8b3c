#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <utility>

namespace corvane::test {

/// What a file of translations (.ts) says of one message.
struct TranslatedMessage {
    bool hasPlurals = false;
    bool isFinished = false;
    /// One for each plural form.
    QStringList texts;

    friend bool operator==(const TranslatedMessage &, const TranslatedMessage &) = default;
};

/// By context and source.
using TranslationFile = QHash<std::pair<QString, QString>, TranslatedMessage>;

/// Empty where it cannot be read.
TranslationFile readTranslations(const QString &path);
/// All that there are in the sources' tree.
QStringList translationPaths();

} // namespace corvane::test
