#pragma once

#include <QProcess>

#include <gtest/gtest.h>

namespace corvane::test {

/// The server's one screen of 1512 by 982, cut into two that stand side by side, the left one 700
/// pixels wide.
struct TwoMonitors {
    /// The right one may begin further down than the left one.
    explicit TwoMonitors(int topOfRight = 0)
    {
        const QByteArray top = QByteArray::number(topOfRight);
        const QByteArray height = QByteArray::number(982 - topOfRight);
        xrandr("--setmonitor left 700/200x982/260+0+0 screen");
        xrandr("--setmonitor right 812/200x" + height + "/260+700+" + top + " none");
    }
    ~TwoMonitors()
    {
        xrandr("--delmonitor right");
        xrandr("--delmonitor left");
    }
    TwoMonitors(const TwoMonitors &) = delete;
    TwoMonitors &operator=(const TwoMonitors &) = delete;

    static void xrandr(const QByteArray &arguments)
    {
        QProcess tool;
        tool.start(QStringLiteral("xrandr"),
                   QString::fromLatin1(arguments).split(QLatin1Char(' ')));
        EXPECT_TRUE(tool.waitForFinished() && tool.exitCode() == 0) << arguments.constData();
    }
};

} // namespace corvane::test
