#pragma once

#include "animation/anim_speed.h"
#include "animation/frmMainFullScreen.h"
#include "tests/session/window_harness.h"

#include <QApplication>
#include <QPointer>

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace zeltrona::animation::test {

/// A main window as the full screen sees it: buttons that write down their clicks, and a speed box with its
/// rules.
class OwnerOnRecord : public FullScreenOwner {
public:
    std::vector<std::string> clicks;
    std::string speed = "3";
    QImage board{363, 332, QImage::Format_RGB32};

    OwnerOnRecord() { board.fill(Qt::darkGreen); }

    void cmdAnimFirst_Click() override { clicks.emplace_back("first"); }
    void cmdAnimPrev_Click() override { clicks.emplace_back("prev"); }
    void cmdAnimPlay_Click() override { clicks.emplace_back("play"); }
    void cmdAnimPause_Click() override { clicks.emplace_back("pause"); }
    void cmdAnimStop_Click() override { clicks.emplace_back("stop"); }
    void cmdAnimNext_Click() override { clicks.emplace_back("next"); }
    void cmdAnimLast_Click() override { clicks.emplace_back("last"); }
    void cmdAnimUp_Click() override { speed = speedTextUp(speed); }
    void cmdAnimDown_Click() override { speed = speedTextDown(speed); }
    void animCheckLoop_Click() override { clicks.emplace_back("loop"); }
    void setAnimSpeedText(const QString& text) override { speed = keptSpeedText(text.toStdString()); }
    const QImage& boardImage() const override { return board; }
};

/// An open full screen. The window deletes itself when it closes.
struct FullScreenBench {
    FullScreenBench() { window->openOn(*QApplication::primaryScreen()); }
    explicit FullScreenBench(const QSize& boardSize) {
        owner.board = QImage(boardSize, QImage::Format_RGB32);
        owner.board.fill(Qt::darkGreen);
        window->openOn(*QApplication::primaryScreen());
    }
    ~FullScreenBench() { delete window; }
    FullScreenBench(const FullScreenBench&) = delete;
    FullScreenBench& operator=(const FullScreenBench&) = delete;

    template<class T = QWidget> T& control(const char* name) {
        return testing::control<T>(*window, QLatin1String(name));
    }
    void click(const char* name) { testing::click(*window, QLatin1String(name)); }
    QString speed() { return control<QLineEdit>("txtAnimSpeed").text(); }
    bool isOpen() const { return window != nullptr && window->isVisible(); }

    document::Session session;
    OwnerOnRecord owner;
    QPointer<frmMainFullScreen> window = new frmMainFullScreen(owner, session);
};

} // namespace zeltrona::animation::test
