#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QColor>
#include <QList>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <deque>
#include <functional>

namespace zeltrona::testing {

/// The control of a window by its interface name. A name that the window lacks ends the test program at once,
/// with the name on the error output: nothing that follows could mean anything.
template<class T = QWidget> T& control(QObject& window, const QString& name);

/// The menu entry of a window by its interface name.
QAction& menuEntry(QObject& window, const QString& name);
/// Chooses a menu entry as the user does; a disabled one fails the test.
void choose(QObject& window, const QString& name);

/// A left click in the middle of a control.
void click(QObject& window, const QString& name);
/// Replaces the text of a line edit, key by key.
void typeInto(QObject& window, const QString& name, const QString& text);

/// Pointer events at a place of a control, as the window system sends them: the button that changes, or for a
/// move the buttons that are held.
void pressAt(QWidget& target, QPointF place, Qt::MouseButton button = Qt::LeftButton,
             Qt::KeyboardModifiers modifiers = {});
void moveTo(QWidget& target, QPointF place, Qt::MouseButtons held = Qt::NoButton,
            Qt::KeyboardModifiers modifiers = {});
void releaseAt(QWidget& target, QPointF place, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = {});
/// Press, moves over all places but the first, release at the last.
void drag(QWidget& target, const QList<QPointF>& places, Qt::KeyboardModifiers modifiers = {});

/// Lets the event loop run until `done` says so; fails the test after `milliseconds`.
void waitUntil(const std::function<bool()>& done, int milliseconds = 5000);
/// Runs what is queued, deferred deletions included.
void settle();

/// Answers the modal windows that a test's action opens, in the order of the expectations. A window that
/// nothing expects is closed and fails the test; an expectation that is left over at the end fails it too.
class DialogAnswerer : public QObject {
public:
    using Answer = std::function<void(QWidget& dialog)>;

    DialogAnswerer();
    ~DialogAnswerer() override;

    /// The next modal window is handed to `answer`, which has to end it (or lead to another one).
    void expect(Answer answer);

    /// From now on every modal window that nothing else expects.
    void expectAnything(Answer answer) { m_anything = std::move(answer); }

    /// A message box with exactly this text; presses "Ok", "Yes" or "No".
    void expectMessage(const QString& text, const QString& button = QStringLiteral("Ok"),
                       const QString& title = QStringLiteral("Zeltrona"));
    /// A file dialog with this title: types the path as the name and accepts, or gives up.
    void expectFile(const QString& title, const QString& path);
    void expectFileCancelled(const QString& title);
    /// A colour dialog: chooses a colour, or gives up.
    void expectColor(const QColor& color);
    void expectColorCancelled();

    /// The font dialog: any part of the choice may be changed before it is accepted.
    void expectFont(const std::function<void(QWidget& dialog)>& change = {});
    void expectFontCancelled();

    /// How many modal windows were answered so far.
    int answered() const { return m_answered; }

private:
    void poll();
    void pollLater();

    std::deque<Answer> m_answers;
    Answer m_anything;
    QPointer<QWidget> m_seen; // at the poll before
    QPointer<QWidget> m_last; // answered
    int m_answered = 0;
};

[[noreturn]] void failMissing(const QString& name);

template<class T> T& control(QObject& window, const QString& name) {
    T* found = window.findChild<T*>(name);
    if (found == nullptr) {
        failMissing(name);
    }
    return *found;
}

} // namespace zeltrona::testing
