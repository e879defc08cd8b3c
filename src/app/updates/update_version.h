#pragma once

#include <QList>
#include <QString>

#include <compare>
#include <optional>

namespace corvane {

/// A version as numbers between dots: 1.9 stands before 1.10, and 1.0 is 1. Nothing else is a
/// version, because nobody could say where "1.0-beta" belongs.
class UpdateVersion {
public:
    /// A longer text is no version.
    static constexpr qsizetype longestText = 64;

    /// None for a text that is no version.
    static std::optional<UpdateVersion> fromText(const QString &text);

    /// As it was written.
    QString text() const { return m_text; }

    friend std::strong_ordering operator<=>(const UpdateVersion &a, const UpdateVersion &b);
    friend bool operator==(const UpdateVersion &a, const UpdateVersion &b)
    {
        return (a <=> b) == std::strong_ordering::equal;
    }

private:
    QString m_text;
    /// Without leading zeros, so that the longer one is larger; nothing stands for 0.
    QList<QString> m_numbers;
};

} // namespace corvane
