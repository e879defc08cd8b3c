#pragma once

#include <QIODevice>

namespace corvane {

/// Presents a file that ends where it cannot be read: Qt hands a failure on to libtiff as a length
/// below zero, and libtiff then writes before its memory.
class EndingAtErrors : public QIODevice {
public:
    /// `file` is open for reading, not sequential, and outlives this.
    explicit EndingAtErrors(QIODevice &file);

    bool isSequential() const override { return false; }
    qint64 size() const override { return m_file.size(); }

protected:
    qint64 readData(char *data, qint64 maximum) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QIODevice &m_file;
};

} // namespace corvane
