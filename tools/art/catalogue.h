#pragma once

#include <QByteArray>
#include <QImage>

#include <string>
#include <vector>

namespace zeltrona::art {

/// One file of the art: a picture, or text when `text` is not empty.
struct ArtFile {
    std::string name;
    QImage picture;
    QByteArray text;
};

/// Every file of assets/art, drawn anew; the same on every machine.
std::vector<ArtFile> drawAll();

} // namespace zeltrona::art
