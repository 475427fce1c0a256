#pragma once

#include <QWidget>

namespace zeltrona::session {

/// `pStatus`: the message line. It keeps two lines for its text, since the longest hints with their
/// coordinates need them on the narrow window.
class StatusLine : public QWidget {
    Q_OBJECT
    /// All that is printed: the sign that the play is not saved, if it stands, and the hint.
    Q_PROPERTY(QString text READ text NOTIFY textChanged)

public:
    explicit StatusLine(QWidget* parent);

    QString text() const;
    QString hint() const { return m_hint; }
    /// Clears the line and prints the hint.
    void print(const QString& hint);
    /// Stands in front of every hint until it is emptied.
    void setWarning(const QString& warning);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void textChanged(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showText();

    QString m_hint;
    QString m_warning;
};

} // namespace zeltrona::session
