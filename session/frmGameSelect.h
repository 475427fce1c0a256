#pragma once

#include "document/session.h"
#include "platform/common_dialog.h"

#include <QString>
#include <QWidget>

#include <array>
#include <cstdint>

class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace zeltrona::session {

/// Chooses the language of the run, and the play: a saved file or a new one.
class frmGameSelect : public QWidget {
    Q_OBJECT

public:
    explicit frmGameSelect(document::Session& session);

signals:
    /// session.playFilePath names a file that exists; newFileFlag is off.
    void savedFileChosen();
    /// session.playFilePath names a new play with its header and nothing else.
    void newFileMade();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildControls();
    void load();
    void setSelectCaptions();
    void ComboLang_Click(int listIndex);
    void Option1_Click(int index);
    void Command3_Click();
    void nextWithSavedFile();
    void nextWithNewFile();
    void askSavedFile();
    void askNewFile();

    document::Session& m_session;
    platform::CommonDialog m_commonDialog;
    std::uint8_t isNewFile = 0; ///< 1 while Option1(1) is on
    QString selectedFile;       ///< what the last file dialog returned; empty after a cancel

    QLabel* Image1 = nullptr;
    QGroupBox* Frame1 = nullptr;
    std::array<QRadioButton*, 2> Option1{};
    QComboBox* ComboLang = nullptr;
    QPushButton* Command3 = nullptr;
};

} // namespace zeltrona::session
