#include "golden/golden.h"

#include "golden/drawing_libraries.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>

#include <iostream>

namespace corvane::test {

namespace {

const QString librariesName = QStringLiteral("libraries.txt");

bool rebaselines()
{
    return qEnvironmentVariableIsSet("CORVANE_REBASELINE");
}

QDir baselines()
{
    return QDir(QStringLiteral(CORVANE_TEST_DATA "/golden/baselines"));
}

QDir baselinesOfThisQt()
{
    const QVersionNumber version = QLibraryInfo::version();
    return QDir(baselines().filePath(
        QStringLiteral("qt-%1.%2").arg(version.majorVersion()).arg(version.minorVersion())));
}

QString contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool madeWithTheseLibraries(const QDir &folder)
{
    static const QString here = drawingLibraries();
    return contentsOf(folder.filePath(librariesName)) == here;
}

Comparison comparisonWith(const QDir &folder)
{
    const QByteArray wanted = qgetenv("CORVANE_COMPARE");
    if (!wanted.isEmpty())
        return wanted == "exact" ? Comparison::Exact : Comparison::Tiles;
    return madeWithTheseLibraries(folder) ? Comparison::Exact : Comparison::Tiles;
}

/// Said once for each folder: a run by tiles sees less, and whoever reads its result is to know.
void sayHow(Comparison comparison, const QDir &folder)
{
    static QStringList said;
    if (said.contains(folder.path()))
        return;
    said << folder.path();
    std::cout << "Pictures in " << folder.dirName().toStdString() << " are compared "
              << (comparison == Comparison::Exact ? "exactly.\n" : "by tiles.\n");
}

testing::AssertionResult write(const QDir &folder, const QString &name, const QImage &image)
{
    QFile libraries(folder.filePath(librariesName));
    if (folder.mkpath(QStringLiteral(".")) && libraries.open(QIODevice::WriteOnly)
        && libraries.write(drawingLibraries().toUtf8()) > 0 && image.save(folder.filePath(name)))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "cannot write " << name.toStdString();
}

} // namespace

QString leaveForALook(const QString &name, const QImage &image)
{
    const QDir folder(QCoreApplication::applicationDirPath() + u"/../golden-differences");
    folder.mkpath(QStringLiteral("."));
    const QString path = QDir::cleanPath(folder.absoluteFilePath(name));
    return image.save(path) ? path : QStringLiteral("nothing, for it cannot be written");
}

testing::AssertionResult matchesGoldenText(const QString &name, const QString &text)
{
    const QString path = baselines().filePath(name);
    if (rebaselines()) {
        QFile golden(path);
        if (!golden.open(QIODevice::WriteOnly) || golden.write(text.toUtf8()) < 0)
            return testing::AssertionFailure() << "cannot write " << name.toStdString();
        return testing::AssertionSuccess();
    }
    if (contentsOf(path) == text)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << name.toStdString() << " differs; it is now:\n"
                                       << text.toStdString();
}

testing::AssertionResult matchesGoldenImage(const QString &name, const Picture &picture)
{
    Picture drawn = picture;
    drawn.image = picture.image.convertToFormat(QImage::Format_RGB32);
    drawn.image.setDevicePixelRatio(1);
    const QDir ofThisQt = baselinesOfThisQt();
    const QDir folder = ofThisQt.exists(name) ? ofThisQt : baselines();
    const QImage kept(folder.filePath(name));
    // The first pictures stay those of one machine: the others are kept beside them.
    const bool ownsTheFirst = contentsOf(baselines().filePath(librariesName)).isEmpty()
        || madeWithTheseLibraries(baselines());
    if (rebaselines() && ownsTheFirst)
        return write(baselines(), name, drawn.image);
    const Comparison comparison = comparisonWith(folder);
    sayHow(comparison, folder);
    const auto differs = difference(kept, drawn, comparison);
    if (!differs)
        return testing::AssertionSuccess();
    if (rebaselines())
        return write(ofThisQt, name, drawn.image);
    return testing::AssertionFailure()
        << name.toStdString() << ": " << differs->toStdString() << "; it is now "
        << leaveForALook(name, drawn.image).toStdString();
}

} // namespace corvane::test
