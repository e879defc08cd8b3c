#include "app/base/translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace corvane {

namespace {

const QString builtInFolder = QStringLiteral(":/corvane/translations");
const QString builtInPrefix = QStringLiteral("corvane_");
const QString usualLanguage = QStringLiteral("en");

bool isSameLanguage(const QLocale &one, const QLocale &other)
{
    return one.language() == other.language() && one.script() == other.script();
}

/// Before there is a toolkit nothing is laid out, and its application object must not be spoken to.
void setLayoutDirection(Qt::LayoutDirection direction)
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        QGuiApplication::setLayoutDirection(direction);
}

} // namespace

Translations::Translations(const QStringList &wanted)
    : m_language(chosen(wanted, languages()))
{
    // The one that was installed last is asked first.
    install(QStringLiteral("qtbase_") + m_language,
            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(builtInPrefix + usualLanguage, builtInFolder);
    if (m_language != usualLanguage)
        install(builtInPrefix + m_language, builtInFolder);
    setLayoutDirection(QLocale(m_language).textDirection());
}

Translations::~Translations()
{
    for (const auto &translator : m_translators)
        QCoreApplication::removeTranslator(translator.get());
    setLayoutDirection(Qt::LayoutDirectionAuto);
}

void Translations::install(const QString &name, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(name, folder))
        return;
    QCoreApplication::installTranslator(translator.get());
    m_translators.push_back(std::move(translator));
}

QStringList Translations::wanted(const QString &named, const QStringList &ofSession)
{
    if (!named.isEmpty())
        return {named};
    return ofSession;
}

QStringList Translations::languages()
{
    QStringList names = QDir(builtInFolder).entryList({builtInPrefix + u"*.qm"}, QDir::Files);
    for (QString &name : names)
        name = name.sliced(builtInPrefix.size()).chopped(3);
    return names;
}

QString Translations::chosen(const QStringList &wanted, const QStringList &available)
{
    for (const QString &name : wanted) {
        const QLocale locale(name);
        for (const QString &language : available) {
            if (isSameLanguage(locale, QLocale(language)))
                return language;
        }
    }
    return usualLanguage;
}

} // namespace corvane
