#pragma once

#include <QDialog>
#include <QString>

#include <cstdint>

class QLineEdit;

namespace zeltrona::dialogs {

/// Asks for one line of text in the chosen face. Left by its close box, it gives the empty text.
class frmInputBox : public QDialog {
    Q_OBJECT

public:
    frmInputBox(const QString& fontName, std::int16_t charset, QWidget* parent);

    QString typedText() const { return m_typed; }

private:
    QLineEdit* m_text = nullptr; // Text1
    QString m_typed;
};

} // namespace zeltrona::dialogs
