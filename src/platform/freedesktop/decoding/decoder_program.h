#pragma once

#include "platform/pictures/decoder_protocol.h"

#include <QByteArray>
#include <QByteArrayList>

namespace corvane {

class Sandbox;

/// The program that decodes strangers' pictures, `corvane-decoder`: where it is, and how it is
/// started. Any thread.
class DecoderProgram {
public:
    /// Beside the program that runs, or in the folder for such programs that belongs to it. The
    /// sandbox must outlive this.
    explicit DecoderProgram(const Sandbox &sandbox);
    /// That file.
    DecoderProgram(const Sandbox &sandbox, QByteArray file);

    /// The decoder that belongs to the program of that path; empty if there is none.
    static QByteArray belongingTo(const QByteArray &executable);

    bool isThere() const { return !m_file.isEmpty(); }
    /// Whether it runs in the sandbox.
    bool isShutIn() const;
    /// What starts one with that much memory, in the sandbox where that can be had, and returns at
    /// once. It is to be handed the socket. Waits for what the sandbox is tried with the first
    /// time.
    QByteArrayList command(decoder_protocol::Room room) const;

private:
    const Sandbox &m_sandbox;
    QByteArray m_file;
};

} // namespace corvane
