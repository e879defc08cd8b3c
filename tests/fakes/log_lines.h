#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace corvane::test {

/// While it lives it takes what is logged, in the place of the terminal. One at a time.
class LogLines {
public:
    LogLines()
        : m_before(qInstallMessageHandler(take))
    {
        taken.clear();
    }
    LogLines(const LogLines &) = delete;
    LogLines &operator=(const LogLines &) = delete;
    ~LogLines() { qInstallMessageHandler(m_before); }

    const QStringList &lines() const { return taken; }

private:
    static void take(QtMsgType /*type*/, const QMessageLogContext & /*context*/,
                     const QString &line)
    {
        taken << line;
    }

    inline static QStringList taken;
    QtMessageHandler m_before;
};

} // namespace corvane::test
