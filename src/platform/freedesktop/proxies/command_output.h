#pragma once

#include <QByteArray>

#include <chrono>
#include <optional>
#include <vector>

namespace corvane {

/// What a program of the desktop prints, without its complaints; none where it is not there, fails,
/// takes longer, or prints more than a megabyte. It is ended then. Blocks; any thread.
std::optional<QByteArray> commandOutput(const std::vector<QByteArray> &arguments,
                                        std::chrono::milliseconds patience);

} // namespace corvane
