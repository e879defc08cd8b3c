#pragma once

#include "decoder/ending_at_errors.h"

#include <QImage>

#include <optional>

namespace corvane {

/// Presents a TIFF file so that translucent pixels are read as they are stored.
///
/// A TIFF says whether its colours were multiplied with their alpha. If they were not, libtiff does
/// so while it reads eight bits a channel, and colours behind thin alpha are rounded away; Qt
/// cannot ask it not to. Where the file leaves the meaning of its alpha open, libtiff hands the
/// values over as they are, and Qt takes them for colours that were not multiplied. So the two
/// bytes that say "not multiplied" are replaced by "open" here. All other files, BigTIFF included,
/// are presented unchanged.
class TiffAsStored : public EndingAtErrors {
public:
    /// `file` is open for reading, not sequential, and outlives this.
    explicit TiffAsStored(QIODevice &file);

    /// The picture that Qt has read from this, corrected: Qt ignores the alpha of grey pictures,
    /// but keeps its values in the image.
    QImage corrected(QImage image) const;

protected:
    qint64 readData(char *data, qint64 maximum) override;

private:
    void examine(QIODevice &file);

    /// The place of the two bytes that say "not multiplied"; they are read as zero, which leaves it
    /// open.
    std::optional<qint64> m_statement;
    /// For a grey picture with alpha, the format that its pixels really have.
    std::optional<QImage::Format> m_greyFormat;
};

} // namespace corvane
