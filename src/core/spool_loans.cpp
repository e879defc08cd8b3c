#include "core/spool_loans.h"

#include <utility>

namespace corvane {

SpoolLoans::SpoolLoans(std::function<void(const QByteArray &path)> discard)
    : m_discard(std::move(discard))
{
}

SpoolLoans::Loan SpoolLoans::lend(const QList<QByteArray> &paths)
{
    if (paths.isEmpty())
        return nullptr;
    for (const QByteArray &path : paths)
        ++m_files[path].loans;
    return {nullptr, m_lifetime.guard([this, paths](const void *) { ended(paths); })};
}

void SpoolLoans::giveAway(const QList<QByteArray> &paths)
{
    for (const QByteArray &path : paths)
        m_files[nowOf(path)].isGivenAway = true;
}

void SpoolLoans::move(const QByteArray &from, const QByteArray &to)
{
    const auto found = m_files.constFind(from);
    if (found == m_files.cend() || from == to)
        return;
    const File known = *found;
    m_files.erase(found);
    File &file = m_files[to];
    file.loans += known.loans;
    file.isGivenAway = file.isGivenAway || known.isGivenAway;
    file.isToGo = file.isToGo || known.isToGo;
    if (known.loans > 0)
        m_moved.insert(from, to);
}

void SpoolLoans::clear()
{
    m_files.clear();
    m_moved.clear();
}

bool SpoolLoans::putOff(const QByteArray &path)
{
    const auto file = m_files.find(path);
    if (file == m_files.end())
        return false;
    file->isToGo = true;
    return true;
}

void SpoolLoans::ended(const QList<QByteArray> &paths)
{
    for (const QByteArray &lentAs : paths) {
        const QByteArray path = nowOf(lentAs);
        const auto file = m_files.find(path);
        // All may have gone meanwhile.
        if (file == m_files.end() || --file->loans > 0)
            continue;
        m_moved.removeIf([&path](const auto &moved) { return moved.value() == path; });
        if (file->isGivenAway)
            continue;
        const bool isToGo = file->isToGo;
        m_files.erase(file);
        if (isToGo)
            m_discard(path);
    }
}

} // namespace corvane
