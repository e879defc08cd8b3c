#include "app/reading/translation_file.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

namespace corvane::test {

namespace {

TranslatedMessage readMessage(QXmlStreamReader &xml, QString &source)
{
    TranslatedMessage message;
    message.hasPlurals = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() != QLatin1String("translation")) {
            xml.skipCurrentElement();
        } else {
            message.isFinished = !xml.attributes().hasAttribute(QLatin1String("type"));
            if (!message.hasPlurals) {
                message.texts << xml.readElementText();
                continue;
            }
            while (xml.readNextStartElement())
                message.texts << xml.readElementText();
        }
    }
    return message;
}

} // namespace

TranslationFile readTranslations(const QString &path)
{
    TranslationFile all;
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return all;
    QXmlStreamReader xml(&file);
    QString context;
    if (!xml.readNextStartElement())
        return all;
    while (xml.readNextStartElement()) {
        while (xml.readNextStartElement()) {
            QString source;
            if (xml.name() == QLatin1String("name"))
                context = xml.readElementText();
            else if (const TranslatedMessage message = readMessage(xml, source); !source.isEmpty())
                all.insert({context, source}, message);
        }
    }
    return all;
}

QStringList translationPaths()
{
    const QDir folder(QStringLiteral(CORVANE_TEST_DATA "/../translations"));
    QStringList paths;
    for (const QString &name : folder.entryList({QStringLiteral("*.ts")}))
        paths << folder.filePath(name);
    return paths;
}

} // namespace corvane::test
