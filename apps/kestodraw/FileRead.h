#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace KestoDraw {

// The bytes of a regular file of at most maxBytes; nothing, with the reason in error, for a
// file that is missing, a folder, a device, a pipe or a socket (which could block or never end),
// unreadable, or larger. Never reads more than maxBytes + 1 bytes.
std::optional<QByteArray> ReadRegularFile(const QString& path, qint64 maxBytes, QString* error);

} // namespace KestoDraw
