#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryFile>

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <functional>

namespace corvane::test {

/// What the program itself writes to the standard error meanwhile.
inline QString standardErrorOf(const std::function<void()> &act)
{
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    std::fflush(stderr);
    const int before = ::dup(STDERR_FILENO);
    ::dup2(file.handle(), STDERR_FILENO);
    act();
    std::fflush(stderr);
    ::dup2(before, STDERR_FILENO);
    ::close(before);
    file.seek(0);
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    return lines.filter(QStringLiteral("corvane: ")).join(QLatin1Char('\n'));
}

} // namespace corvane::test
