#include "support/ReferenceImage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace KestoTest {

void ExpectMatchesReference(const QImage& picture, const QString& referenceDir, const QString& differenceDir,
                            const QString& name, int tolerance)
{
    const QString referencePath = referenceDir + "/" + name + ".png";
    if (std::getenv("KESTO_UPDATE_REFERENCES")) {
        ASSERT_TRUE(picture.save(referencePath)) << referencePath.toStdString();
        return;
    }
    const QImage reference = QImage(referencePath).convertToFormat(QImage::Format_ARGB32);
    ASSERT_FALSE(reference.isNull()) << "no reference " << referencePath.toStdString();
    const QImage actual = picture.convertToFormat(QImage::Format_ARGB32);
    ASSERT_EQ(actual.size(), reference.size()) << name.toStdString();
    QImage difference(actual.size(), QImage::Format_ARGB32);
    difference.fill(Qt::white);
    int differing = 0;
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            const QRgb a = actual.pixel(x, y);
            const QRgb r = reference.pixel(x, y);
            const int most = std::max({std::abs(qRed(a) - qRed(r)), std::abs(qGreen(a) - qGreen(r)),
                                       std::abs(qBlue(a) - qBlue(r)), std::abs(qAlpha(a) - qAlpha(r))});
            if (most > tolerance) {
                ++differing;
                difference.setPixel(x, y, qRgb(255, 0, 0));
            }
        }
    }
    if (differing > 0) {
        const QString out = differenceDir + "/" + name;
        actual.save(out + "-actual.png");
        difference.save(out + "-difference.png");
        ADD_FAILURE() << differing << " pixels of " << name.toStdString() << " differ; see " << out.toStdString()
                      << "-actual.png and -difference.png";
    }
}

} // namespace KestoTest
