#pragma once

#include <QFile>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

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
    }
    std::string text() const { return m_text.toStdString(); }

private:
    QString m_text;
};

/// What the group is to say; rewritten where the present texts are to be taken as the right ones.
inline std::string groupOfFile(const QString &group, const std::string &present)
{
    const QString path
        = QStringLiteral(CORVANE_TEST_DATA "/app/texts/") + group + QStringLiteral(".txt");
    QFile file(path);
    if (qEnvironmentVariableIsSet("CORVANE_REBASELINE")) {
        if (file.open(QFile::WriteOnly))
            file.write(QByteArray::fromStdString(present));
        return present;
    }
    return file.open(QFile::ReadOnly) ? file.readAll().toStdString() : std::string();
}

inline void expectTable(const char *group, const TextTable &table)
{
    EXPECT_EQ(table.text(), groupOfFile(QString::fromLatin1(group), table.text()));
}

} // namespace corvane::test
