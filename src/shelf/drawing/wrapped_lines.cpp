#include "shelf/drawing/wrapped_lines.h"

#include "platform/pictures/text_measurer.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <iterator>
#include <vector>

namespace corvane {

namespace {

/// All places but the text's beginning.
std::vector<qsizetype> boundariesIn(const QString &text, QTextBoundaryFinder::BoundaryType type)
{
    std::vector<qsizetype> boundaries;
    QTextBoundaryFinder finder(type, text);
    while (finder.toNextBoundary() > 0)
        boundaries.push_back(finder.position());
    return boundaries;
}

/// How much of the text stands on its first line; at least one letter.
template<typename Fits>
qsizetype lengthOfLine(const QString &text, Fits fits)
{
    for (const auto type : {QTextBoundaryFinder::Line, QTextBoundaryFinder::Grapheme}) {
        const auto ends = boundariesIn(text, type);
        const auto tooFar = std::partition_point(ends.begin(), ends.end(), [&](qsizetype end) {
            return fits(text.left(end).trimmed());
        });
        if (tooFar != ends.begin())
            return *std::prev(tooFar);
        if (type == QTextBoundaryFinder::Grapheme && !ends.empty())
            return ends.front();
    }
    return text.size();
}

} // namespace

QStringList wrappedLines(const QString &text, const QFont &font, double width, int maximum,
                         const TextMeasurer &measurer)
{
    const auto fits = [&](const QString &line) { return measurer.width(line, font) <= width; };
    QStringList lines;
    QString rest = text.trimmed();
    while (!rest.isEmpty()) {
        const bool isLast = lines.size() + 1 >= maximum || fits(rest);
        const qsizetype length = isLast ? rest.size() : lengthOfLine(rest, fits);
        lines << rest.left(length).trimmed();
        rest = rest.mid(length).trimmed();
    }
    return lines;
}

} // namespace corvane
