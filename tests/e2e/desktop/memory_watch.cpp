#include "e2e/desktop/memory_watch.h"

#include "e2e/desktop/eventually.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <utility>

namespace corvane::e2e {

using namespace Qt::StringLiterals;

namespace {

QByteArray read(qint64 process, const char *name)
{
    QFile file(u"/proc/%1/%2"_s.arg(process).arg(QLatin1String(name)));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// The number behind that name, "Pss: 12 kB", in bytes.
qint64 numberIn(const QByteArray &text, const QByteArray &name)
{
    constexpr qint64 kilobyte = 1024;
    const QByteArray beginning = '\n' + name + ':';
    const qsizetype at = text.indexOf(beginning);
    if (at < 0)
        return 0;
    const qsizetype from = at + name.size() + 2;
    return text.mid(from, text.indexOf("kB", from) - from).trimmed().toLongLong() * kilobyte;
}

qint64 memoryOf(qint64 process)
{
    if (const QByteArray shared = read(process, "smaps_rollup"); !shared.isEmpty())
        return numberIn(shared, "Pss");
    const QByteArray status = read(process, "status");
    return numberIn(status, "RssAnon") + numberIn(status, "RssShmem");
}

struct Process {
    qint64 parent = 0;
    QByteArray name;
};

/// The parent and the name stand before and behind the last bracket of a line of many fields.
Process described(const QByteArray &stat)
{
    const qsizetype open = stat.indexOf('(');
    const qsizetype close = stat.lastIndexOf(')');
    if (open < 0 || close < open)
        return {};
    const QList<QByteArray> rest = stat.mid(close + 2).split(' ');
    return {rest.value(1).toLongLong(), stat.mid(open + 1, close - open - 1)};
}

} // namespace

MemoryWatch::MemoryWatch(qint64 program, QByteArray mark)
    : m_program(program)
    , m_mark(std::move(mark))
{
    m_thread = std::thread([this] {
        while (!m_isOver) {
            look();
            QThread::msleep(lookAgain.count());
        }
    });
}

MemoryWatch::~MemoryWatch()
{
    m_isOver = true;
    m_thread.join();
}

void MemoryWatch::look()
{
    QHash<qint64, Process> all;
    const auto names = QDir(u"/proc"_s).entryList(QDir::Dirs);
    for (const QString &name : names) {
        if (const qint64 number = name.toLongLong(); number > 0)
            all.insert(number, described(read(number, "stat")));
    }
    QSet<qint64> ours = {m_program};
    for (auto it = all.cbegin(); it != all.cend(); ++it) {
        const bool isShutIn = it->name == "bwrap" || it->name == "corvane-decoder";
        if (isShutIn && read(it.key(), "environ").split('\0').contains(m_mark))
            ours.insert(it.key());
    }
    for (bool isMore = true; isMore;) {
        isMore = false;
        for (auto it = all.cbegin(); it != all.cend(); ++it) {
            if (!ours.contains(it.key()) && ours.contains(it->parent)) {
                ours.insert(it.key());
                isMore = true;
            }
        }
    }
    qint64 sum = 0;
    for (const qint64 process : std::as_const(ours))
        sum += memoryOf(process);
    m_peak = std::max<qint64>(m_peak, sum);
    m_processes = std::max<qsizetype>(m_processes, ours.size());
}

} // namespace corvane::e2e
