#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace corvane::test {

/// Sections with a heading, in the order in which they are added.
class TextTable {
public:
    void add(const QString &heading, const QStringList &lines)
    {
        m_text += QLatin1String("== ") + heading + u'\n';
        for (const QString &line : lines)
            m_text += line + u'\n';
        m_text += u'\n';
        m_lines += lines;
        m_sections << lines;
    }
    std::string text() const { return m_text.toStdString(); }
    /// Without the headings.
    const QStringList &lines() const { return m_lines; }
    const QList<QStringList> &sections() const { return m_sections; }

private:
    QString m_text;
    QStringList m_lines;
    QList<QStringList> m_sections;
};

} // namespace corvane::test
