#pragma once

#include <QImage>
#include <QString>

namespace KestoTest {

// Channels may differ by this much (anti-aliasing and font hinting vary a little between
// library versions); anything more is a different picture.
constexpr int kReferenceTolerance = 24;

// Compares picture with referenceDir/name.png; on a difference writes the picture and an image of
// the differing pixels (red) into differenceDir and fails the test. With KESTO_UPDATE_REFERENCES
// set in the environment it writes the reference instead.
void ExpectMatchesReference(const QImage& picture, const QString& referenceDir, const QString& differenceDir,
                            const QString& name, int tolerance = kReferenceTolerance);

} // namespace KestoTest
