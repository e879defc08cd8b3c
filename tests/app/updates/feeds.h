#pragma once

#include <QByteArray>
#include <QStringBuilder>

namespace corvane::test {

/// A feed around its items.
inline QByteArray feed(const QByteArray &items)
{
    return "<rss version='2.0' "
           "xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle' "
           "xmlns:corvane='urn:corvane:releases'>\n"
           "<channel><title>Corvane</title>"
        + items + "</channel></rss>\n";
}

/// A few hundred bytes that stand for some gigabytes.
inline QByteArray entityBomb()
{
    QByteArray bomb = "<?xml version='1.0'?><!DOCTYPE rss [<!ENTITY a0 'lollollollol'>";
    for (int i = 1; i < 10; ++i) {
        const QByteArray previous = "&a" + QByteArray::number(i - 1) + ';';
        bomb += "<!ENTITY a" + QByteArray::number(i) + " '" + previous.repeated(10) + "'>";
    }
    return bomb + "]>" + feed("<item><description>&a9;</description></item>");
}

} // namespace corvane::test
