#pragma once

#include <QIODevice>
#include <QImage>

#include <optional>

namespace corvane {

/// A TIFF file whose translucent pixels are read as they are stored.
///
/// A TIFF says whether its colours were multiplied with their alpha. If they were not, libtiff does
/// so while it reads eight bits a channel, and colours behind thin alpha are rounded away; Qt
/// cannot ask it not to. Where the file leaves the meaning of its alpha open, libtiff hands the
/// values over as they are, and Qt takes them for colours that were not multiplied. So that is what
/// the reader is told here. BigTIFF files, and all that is not such a TIFF, pass unchanged.
class TiffAsStored : public QIODevice {
public:
    /// `file` is open for reading, not sequential, and outlives this.
    explicit TiffAsStored(QIODevice &file);

    /// What was read from this. Qt drops the alpha beside grey levels, but leaves it where it was.
    QImage corrected(QImage image) const;

    bool isSequential() const override { return false; }
    qint64 size() const override { return m_file.size(); }

protected:
    qint64 readData(char *data, qint64 maximum) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    void examine();

    QIODevice &m_file;
    /// Where the file says that its colours were not multiplied: two bytes, read as none.
    std::optional<qint64> m_statement;
    /// How grey levels stand beside their alpha, where they have one.
    std::optional<QImage::Format> m_greyFormat;
};

} // namespace corvane
