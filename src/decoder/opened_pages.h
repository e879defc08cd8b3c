#pragma once

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QList>
#include <QSize>

#include <memory>
#include <optional>

namespace corvane {

/// A PDF document that is open, by Qt's plug-in for it if that is installed.
class OpenedPages {
public:
    /// By its first bytes.
    static bool isDocument(QFile &file);
    /// Null if it is no document that can be read.
    static std::unique_ptr<OpenedPages> of(std::unique_ptr<QFile> file);

    int count() const { return m_reader.imageCount(); }
    /// In points of 1/72 inch, of as many pages as are shown.
    QList<QSize> sizes();
    /// A page on white, scaled to exactly those pixels.
    std::optional<QImage> read(int page, QSize pixels);

private:
    std::unique_ptr<QFile> m_file;
    QImageReader m_reader;
};

} // namespace corvane
