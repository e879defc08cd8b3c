#pragma once

#include <QByteArray>
#include <QImage>

#include <optional>

namespace corvane {

/// The picture as a PNG file of eight bits a channel. Qt's own writer would load the plug-ins of
/// all formats, to ask each whether it writes this one. None for a picture without pixels.
std::optional<QByteArray> plainPng(const QImage &image);

} // namespace corvane
