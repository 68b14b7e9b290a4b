#include "FileRead.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace KestoDraw {

namespace {

// Why a file cannot be read ends a message the user reads: it is in the user's language.
struct FileRead {
    Q_DECLARE_TR_FUNCTIONS(KestoDraw::FileRead)
};

} // namespace

std::optional<QByteArray> ReadRegularFile(const QString& path, qint64 maxBytes, QString* error)
{
    const auto fail = [&](const QString& reason) -> std::optional<QByteArray> {
        if (error)
            *error = reason;
        return std::nullopt;
    };
    // Asked before opening: opening a pipe waits for a writer.
    const QFileInfo info(path);
    if (!info.exists())
        return fail(FileRead::tr("there is no such file"));
    if (info.isDir())
        return fail(FileRead::tr("it is a folder, not a file"));
    if (!info.isFile())
        return fail(FileRead::tr("it is not a regular file (a device, a pipe or a socket)"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.errorString());
    if (file.isSequential())
        return fail(FileRead::tr("it is not a regular file (a device, a pipe or a socket)"));
    const auto tooLarge = [&] { return fail(FileRead::tr("it is larger than %1 MB").arg(maxBytes >> 20)); };
    if (file.size() > maxBytes)
        return tooLarge();
    // In pieces, so that a file that grows while it is read costs no more than the limit.
    QByteArray bytes;
    constexpr qint64 kPiece = 1 << 20;
    while (!file.atEnd() && bytes.size() <= maxBytes) {
        const QByteArray piece = file.read(std::min(kPiece, maxBytes + 1 - bytes.size()));
        if (piece.isEmpty())
            break;
        bytes += piece;
    }
    if (bytes.size() > maxBytes)
        return tooLarge();
    if (file.error() != QFileDevice::NoError)
        return fail(file.errorString());
    return bytes;
}

} // namespace KestoDraw
