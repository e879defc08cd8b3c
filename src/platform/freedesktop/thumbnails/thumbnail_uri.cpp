#include "platform/freedesktop/thumbnails/thumbnail_uri.h"

#include <QByteArrayList>

namespace corvane {

namespace {

QByteArray canonical(const QByteArray &path)
{
    QByteArrayList kept;
    for (const QByteArray &component : path.split('/')) {
        if (component.isEmpty() || component == ".")
            continue;
        if (component != "..")
            kept << component;
        else if (!kept.isEmpty())
            kept.removeLast();
    }
    return '/' + kept.join('/');
}

} // namespace

QByteArray thumbnailUri(const QByteArray &path)
{
    // Letters, digits and -._~ stand for themselves anyway.
    return "file://" + canonical(path).toPercentEncoding("!*'()/&=:@+$,");
}

} // namespace corvane
