#include "tools/art/pixel_grid.h"

namespace zeltrona::art {

QImage whiteMask(QSize size) {
    QImage mask(size, QImage::Format_Mono);
    mask.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    mask.fill(1);
    return mask;
}

QImage invertedMask(const QImage& mask) {
    QImage inverted = whiteMask(mask.size());
    for (int y = 0; y < mask.height(); ++y) {
        for (int x = 0; x < mask.width(); ++x) {
            inverted.setPixel(x, y, isBlack(mask, x, y) ? 1 : 0);
        }
    }
    return inverted;
}

QImage maskAsRgb(const QImage& mask) {
    return mask.convertToFormat(QImage::Format_RGB888);
}

bool isBlack(const QImage& picture, int x, int y) {
    return picture.valid(x, y) && (picture.pixel(x, y) & 0xFFFFFFU) == 0U;
}

void placePart(QImage& sheet, const QImage& part, int x, int y) {
    for (int row = 0; row < part.height(); ++row) {
        for (int column = 0; column < part.width(); ++column) {
            if (sheet.format() == QImage::Format_Mono) {
                sheet.setPixel(x + column, y + row, isBlack(part, column, row) ? 0 : 1);
            } else {
                sheet.setPixel(x + column, y + row, part.pixel(column, row));
            }
        }
    }
}

} // namespace zeltrona::art
