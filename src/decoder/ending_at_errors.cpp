#include "decoder/ending_at_errors.h"

#include <algorithm>

namespace corvane {

EndingAtErrors::EndingAtErrors(QIODevice &file)
    : m_file(file)
{
    open(ReadOnly | Unbuffered);
}

qint64 EndingAtErrors::readData(char *data, qint64 maximum)
{
    const qint64 from = pos();
    if (from >= m_file.size() || !m_file.seek(from))
        return 0;
    return std::max(m_file.read(data, maximum), qint64{0});
}

} // namespace corvane
