#include "tests/session/window_harness.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>

namespace zeltrona::testing {

namespace {

constexpr int kPollMilliseconds = 5;
constexpr int kFileRetryMilliseconds = 100;
constexpr int kFileTries = 50;

template<class T> T* dialogOf(QWidget& window, const char* what) {
    T* dialog = qobject_cast<T*>(&window);
    if (dialog == nullptr) {
        ADD_FAILURE() << "expected " << what << ", but \"" << qPrintable(window.objectName()) << "\" ("
                      << window.metaObject()->className() << ") opened";
        window.close();
    }
    return dialog;
}

void sendMouse(QWidget& target, QEvent::Type type, QPointF place, Qt::MouseButton button,
               Qt::MouseButtons held, Qt::KeyboardModifiers modifiers) {
    QMouseEvent event(type, place, target.mapToGlobal(place), button, held, modifiers);
    QApplication::sendEvent(&target, &event);
}

QPushButton* buttonOf(QMessageBox& box, const QString& name) {
    if (name == QLatin1String("Yes")) {
        return qobject_cast<QPushButton*>(box.button(QMessageBox::Yes));
    }
    if (name == QLatin1String("No")) {
        return qobject_cast<QPushButton*>(box.button(QMessageBox::No));
    }
    return qobject_cast<QPushButton*>(box.button(QMessageBox::Ok));
}

void answerMessage(QWidget& window, const QString& text, const QString& button, const QString& title) {
    auto* box = dialogOf<QMessageBox>(window, "a message box");
    if (box == nullptr) {
        return;
    }
    EXPECT_EQ(box->text().toStdString(), text.toStdString());
    EXPECT_EQ(box->windowTitle().toStdString(), title.toStdString());
    QPushButton* pressed = buttonOf(*box, button);
    if (pressed == nullptr) {
        ADD_FAILURE() << "the message has no button " << qPrintable(button);
        box->close();
        return;
    }
    QTest::mouseClick(pressed, Qt::LeftButton);
}

// A file dialog reads its folder beside the event loop and may pass over the first acceptance while it does.
void acceptFile(QFileDialog& dialog, const QString& path, int tries) {
    control<QLineEdit>(dialog, QStringLiteral("fileNameEdit")).setText(path);
    static_cast<QDialog&>(dialog).accept();
    if (!dialog.isVisible()) {
        return;
    }
    if (tries == 0) {
        ADD_FAILURE() << "the file dialog does not take " << qPrintable(path) << "; it stands in "
                      << qPrintable(dialog.directory().path()) << " on "
                      << qPrintable(dialog.selectedFiles().join(QLatin1Char('|')));
        dialog.reject();
        return;
    }
    QTimer::singleShot(kFileRetryMilliseconds, &dialog,
                       [&dialog, path, tries] { acceptFile(dialog, path, tries - 1); });
}

} // namespace

void failMissing(const QString& name) {
    std::fprintf(stderr, "The window has no \"%s\".\n", qPrintable(name));
    std::abort();
}

QAction& menuEntry(QObject& window, const QString& name) {
    auto* found = window.findChild<QAction*>(name);
    if (found == nullptr) {
        failMissing(name);
    }
    return *found;
}

void choose(QObject& window, const QString& name) {
    QAction& entry = menuEntry(window, name);
    EXPECT_TRUE(entry.isEnabled()) << qPrintable(name) << " is disabled";
    entry.trigger();
}

void click(QObject& window, const QString& name) {
    auto& target = control<QWidget>(window, name);
    EXPECT_TRUE(target.isEnabled()) << qPrintable(name) << " is disabled";
    QPoint place = target.rect().center();
    // The sensitive part of a check box or an option is its sign and text, which may be narrower than the
    // control.
    if (auto* button = qobject_cast<QAbstractButton*>(&target); button != nullptr && button->isCheckable()) {
        place = QPoint(qMin(8, place.x()), place.y());
    }
    QTest::mouseClick(&target, Qt::LeftButton, {}, place);
}

void typeInto(QObject& window, const QString& name, const QString& text) {
    auto& edit = control<QLineEdit>(window, name);
    edit.setFocus();
    edit.selectAll();
    QTest::keyClicks(&edit, text);
}

void pressAt(QWidget& target, QPointF place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    sendMouse(target, QEvent::MouseButtonPress, place, button, button, modifiers);
}

void moveTo(QWidget& target, QPointF place, Qt::MouseButtons held, Qt::KeyboardModifiers modifiers) {
    sendMouse(target, QEvent::MouseMove, place, Qt::NoButton, held, modifiers);
}

void releaseAt(QWidget& target, QPointF place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    sendMouse(target, QEvent::MouseButtonRelease, place, button, Qt::NoButton, modifiers);
}

void drag(QWidget& target, const QList<QPointF>& places, Qt::KeyboardModifiers modifiers) {
    pressAt(target, places.first(), Qt::LeftButton, modifiers);
    for (const QPointF& place : places.mid(1)) {
        moveTo(target, place, Qt::LeftButton, modifiers);
    }
    releaseAt(target, places.last(), Qt::LeftButton, modifiers);
}

void waitUntil(const std::function<bool()>& done, int milliseconds) {
    EXPECT_TRUE(QTest::qWaitFor(done, milliseconds)) << "waited for " << milliseconds << " ms in vain";
}

void settle() {
    for (int round = 0; round < 3; ++round) {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

DialogAnswerer::DialogAnswerer() {
    pollLater();
}

DialogAnswerer::~DialogAnswerer() {
    EXPECT_TRUE(m_answers.empty()) << m_answers.size() << " expected windows did not open";
}

void DialogAnswerer::expect(Answer answer) {
    m_answers.push_back(std::move(answer));
}

void DialogAnswerer::expectMessage(const QString& text, const QString& button, const QString& title) {
    expect([=](QWidget& window) { answerMessage(window, text, button, title); });
}

void DialogAnswerer::expectFile(const QString& title, const QString& path) {
    expect([=](QWidget& window) {
        if (auto* dialog = dialogOf<QFileDialog>(window, "a file dialog")) {
            EXPECT_EQ(dialog->windowTitle().toStdString(), title.toStdString());
            acceptFile(*dialog, path, kFileTries);
        }
    });
}

void DialogAnswerer::expectFileCancelled(const QString& title) {
    expect([=](QWidget& window) {
        if (auto* dialog = dialogOf<QFileDialog>(window, "a file dialog")) {
            EXPECT_EQ(dialog->windowTitle().toStdString(), title.toStdString());
            dialog->reject();
        }
    });
}

void DialogAnswerer::expectColor(const QColor& color) {
    expect([=](QWidget& window) {
        if (auto* dialog = dialogOf<QColorDialog>(window, "a colour dialog")) {
            dialog->setCurrentColor(color);
            static_cast<QDialog*>(dialog)->accept();
        }
    });
}

void DialogAnswerer::expectColorCancelled() {
    expect([](QWidget& window) {
        if (auto* dialog = dialogOf<QColorDialog>(window, "a colour dialog")) {
            dialog->reject();
        }
    });
}

void DialogAnswerer::expectFont(const std::function<void(QWidget& dialog)>& change) {
    expect([=](QWidget& window) {
        if (auto* dialog = dialogOf<QFontDialog>(window, "a font dialog")) {
            if (change) {
                change(*dialog);
            }
            static_cast<QDialog*>(dialog)->accept();
        }
    });
}

void DialogAnswerer::expectFontCancelled() {
    expect([](QWidget& window) {
        if (auto* dialog = dialogOf<QFontDialog>(window, "a font dialog")) {
            dialog->reject();
        }
    });
}

void DialogAnswerer::pollLater() {
    // Armed anew each time: a repeating timer would stand still while one of its own calls waits in a dialog.
    QTimer::singleShot(kPollMilliseconds, this, &DialogAnswerer::poll);
}

void DialogAnswerer::poll() {
    pollLater();
    QWidget* window = QApplication::activeModalWidget();
    // A window that has only just come up may not be in its event loop yet: an answer would come too early to
    // end it.
    const bool settled = window != nullptr && window == m_seen;
    m_seen = window;
    if (!settled || !window->isVisible() || window == m_last) {
        return;
    }
    m_last = window;
    if (m_answers.empty() && m_anything) {
        ++m_answered;
        m_anything(*window);
        return;
    }
    if (m_answers.empty()) {
        auto* box = qobject_cast<QMessageBox*>(window);
        ADD_FAILURE() << "an unexpected window opened: " << qPrintable(window->objectName()) << " \""
                      << qPrintable(window->windowTitle()) << "\" "
                      << (box != nullptr ? qPrintable(box->text()) : "");
        window->close();
        return;
    }
    ++m_answered;
    const Answer answer = std::move(m_answers.front());
    m_answers.pop_front();
    answer(*window);
}

} // namespace zeltrona::testing
