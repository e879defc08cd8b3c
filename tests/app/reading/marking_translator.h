#pragma once

#include <QRegularExpression>
#include <QSet>
#include <QString>
#include <QTranslator>

#include <utility>

namespace corvane::test {

/// Translates everything into itself between marks, so that a text which is not asked for is seen
/// where it is read; and notes what was asked for.
class MarkingTranslator : public QTranslator {
public:
    /// Context and source.
    using Message = std::pair<QString, QString>;

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        const QString source = QString::fromUtf8(sourceText);
        m_asked.insert({QString::fromUtf8(context), source});
        return u'⟦' + source + u'⟧';
    }
    const QSet<Message> &asked() const { return m_asked; }

    /// What of a text stands outside of all marks.
    static QString unmarked(QString text)
    {
        static const QRegularExpression innermost(QStringLiteral("⟦[^⟦⟧]*⟧"));
        while (text.contains(innermost))
            text.remove(innermost);
        return text;
    }

private:
    mutable QSet<Message> m_asked;
};

} // namespace corvane::test
