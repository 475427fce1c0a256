#include "platform/board_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include <gtest/gtest.h>

namespace zeltrona::platform {
namespace {

TEST(BoardClipboard, HoldsThePictureAsItStoodAtTheCopy) {
    QImage picture(3, 2, QImage::Format_RGB32);
    picture.fill(Qt::red);
    picture.setPixel(2, 1, qRgb(1, 2, 3));
    const QImage before = picture.copy();
    copyPicture(picture);
    picture.fill(Qt::black);
    EXPECT_EQ(QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32), before);
}

TEST(BoardClipboard, WhatStoodThereGoes) {
    QGuiApplication::clipboard()->setText(QStringLiteral("old"));
    QImage picture(2, 2, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    copyPicture(picture);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().isEmpty());
}

} // namespace
} // namespace zeltrona::platform
