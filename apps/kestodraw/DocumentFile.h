#pragma once

#include "Document.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <optional>

namespace KestoDraw {

// Drawings as files: a versioned JSON document (format "kestodraw", version 1) holding the page
// and each shape with its fill and transparency. The same drawing always gives the same bytes.
class DocumentFile {
    Q_DECLARE_TR_FUNCTIONS(KestoDraw::DocumentFile)

public:
    DocumentFile() = delete;

    static constexpr int Version = 1;
    // Far beyond what a person draws, and bounded so that a hostile file's painting stays
    // bounded; a drawing brought in from elsewhere is held to the same.
    static constexpr int MaxShapes = 10000;
    static constexpr int MaxOutlineSegments = 100000;

    static QByteArray Write(const Document& document);
    // The drawing in bytes; throws FormatError saying what is wrong with anything else.
    static Document Read(const QByteArray& bytes);

    // Saves atomically: the file at path is either the old one or the whole new one.
    static bool Save(const Document& document, const QString& path, QString* error);
    // The drawing in the file; nothing, with the reason in error, for a file that cannot be
    // read or is no drawing of a version this program knows.
    static std::optional<Document> Open(const QString& path, QString* error);
};

} // namespace KestoDraw
