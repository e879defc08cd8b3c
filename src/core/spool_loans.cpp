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
        m_files[path].isGivenAway = true;
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
    for (const QByteArray &path : paths) {
        const auto file = m_files.find(path);
        // All may have gone meanwhile.
        if (file == m_files.end() || --file->loans > 0 || file->isGivenAway)
            continue;
        const bool isToGo = file->isToGo;
        m_files.erase(file);
        if (isToGo)
            m_discard(path);
    }
}

} // namespace corvane
