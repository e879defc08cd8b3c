#include "golden/golden.h"

#include <QDir>
#include <QFile>

#include <cmath>

namespace corvane::test {

namespace {

/// Mean difference of a channel, 0 to 255, and the share of pixels that may differ visibly.
constexpr double allowedMean = 0.6;
constexpr double allowedShare = 0.004;
constexpr int visibleDifference = 48;

bool rebaselines()
{
    return qEnvironmentVariableIsSet("CORVANE_REBASELINE");
}

QString goldenPath(const QString &name)
{
    return QStringLiteral(CORVANE_TEST_DATA "/golden/baselines/") + name;
}

QString actualPath(const QString &name)
{
    QDir().mkpath(QStringLiteral("golden-differences"));
    return QStringLiteral("golden-differences/") + name;
}

} // namespace

testing::AssertionResult matchesGoldenText(const QString &name, const QString &text)
{
    QFile golden(goldenPath(name));
    if (rebaselines()) {
        if (!golden.open(QIODevice::WriteOnly) || golden.write(text.toUtf8()) < 0)
            return testing::AssertionFailure() << "cannot write " << name.toStdString();
        return testing::AssertionSuccess();
    }
    if (golden.open(QIODevice::ReadOnly) && QString::fromUtf8(golden.readAll()) == text)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << name.toStdString() << " differs; it is now:\n"
                                       << text.toStdString();
}

testing::AssertionResult matchesGoldenImage(const QString &name, const QImage &image)
{
    QImage actual = image.convertToFormat(QImage::Format_RGB32);
    actual.setDevicePixelRatio(1);
    if (rebaselines()) {
        return actual.save(goldenPath(name))
            ? testing::AssertionSuccess()
            : testing::AssertionFailure() << "cannot write " << name.toStdString();
    }
    const QImage golden = QImage(goldenPath(name)).convertToFormat(QImage::Format_RGB32);
    double sum = 0;
    double visible = 0;
    bool same = golden.size() == actual.size();
    for (int y = 0; same && y < golden.height(); ++y) {
        const auto *left = reinterpret_cast<const QRgb *>(golden.constScanLine(y));
        const auto *right = reinterpret_cast<const QRgb *>(actual.constScanLine(y));
        for (int x = 0; x < golden.width(); ++x) {
            const int red = std::abs(qRed(left[x]) - qRed(right[x]));
            const int green = std::abs(qGreen(left[x]) - qGreen(right[x]));
            const int blue = std::abs(qBlue(left[x]) - qBlue(right[x]));
            sum += red + green + blue;
            visible += std::max({red, green, blue}) > visibleDifference ? 1 : 0;
        }
    }
    const double pixels = std::max(1, golden.width() * golden.height());
    if (same && sum / (3 * pixels) <= allowedMean && visible / pixels <= allowedShare)
        return testing::AssertionSuccess();
    actual.save(actualPath(name));
    return testing::AssertionFailure()
        << name.toStdString() << " differs (mean " << sum / (3 * pixels) << ", visibly "
        << visible / pixels << "); see " << actualPath(name).toStdString();
}

} // namespace corvane::test
