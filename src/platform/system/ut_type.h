#pragma once

#include <QString>

namespace corvane {

/// A uniform type: a name for a kind of data, as the shared MIME database knows it.
///
/// The identifier is the MIME name, because that is what Linux programs name their data by.
class UTType {
public:
    /// No type at all; `isValid` is false and every text is empty.
    UTType() = default;
    /// From a MIME name. A name that the database does not know is kept as it is.
    explicit UTType(QString identifier);

    /// The type that the database gives to a file-name extension (no dot, any case); invalid when
    /// it knows none. The contents of a file are never looked at.
    static UTType forFilenameExtension(const QString &extension);
    static UTType png();
    static UTType tiff();

    bool isValid() const { return !m_identifier.isEmpty(); }
    QString identifier() const { return m_identifier; }
    /// The MIME type to name the data by, "" where there is none.
    QString preferredMimeType() const { return m_identifier; }
    /// Without a dot; "" where the type has none.
    QString preferredFilenameExtension() const;
    /// TIFF is image/tiff itself (or an alias of it). Camera raw formats inherit from it in the
    /// database and are something else.
    bool isTiff() const;

    friend bool operator==(const UTType &, const UTType &) = default;

private:
    QString m_identifier;
};

} // namespace corvane
