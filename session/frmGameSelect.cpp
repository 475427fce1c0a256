#include "session/frmGameSelect.h"

#include "document/play_file.h"
#include "document/user_texts.h"
#include "platform/message_box.h"
#include "platform/program_folder.h"
#include "session/file_names.h"
#include "session/language.h"

#include <QComboBox>
#include <QFileInfo>
#include <QGroupBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include <functional>

namespace zeltrona::session {

namespace {

const QString kPlayFilter = QStringLiteral("Zeltrona File (*.zpf)");

} // namespace

frmGameSelect::frmGameSelect(document::Session& session) : m_session(session) {
    setObjectName(QStringLiteral("frmGameSelect"));
    setWindowTitle(QStringLiteral("Zeltrona - Basketball"));
    setAccessibleName(windowTitle());
    setAttribute(Qt::WA_DeleteOnClose);
    buildControls();
    connect(ComboLang, &QComboBox::currentIndexChanged, this, &frmGameSelect::ComboLang_Click);
    for (int index = 0; index < 2; ++index) {
        connect(Option1[static_cast<std::size_t>(index)], &QRadioButton::clicked, this,
                [this, index] { Option1_Click(index); });
    }
    connect(Command3, &QPushButton::clicked, this, &frmGameSelect::Command3_Click);
    load();
}

void frmGameSelect::load() {
    isNewFile = 0;
    {
        // The list selects its first entry by itself; only the choice below is one.
        const QSignalBlocker quiet(ComboLang);
        ComboLang->clear();
        ComboLang->addItems(languageNames());
        ComboLang->setCurrentIndex(-1);
    }
    ComboLang->setCurrentIndex(m_session.langIndex);
    chooseLanguage(m_session, m_session.langIndex);
    setSelectCaptions();
}

void frmGameSelect::setSelectCaptions() {
    const std::array<std::function<void(const QString&)>, 4> captions{
        [this](const QString& text) { Frame1->setTitle(text); },
        [this](const QString& text) { Option1[0]->setText(text); },
        [this](const QString& text) { Option1[1]->setText(text); },
        [this](const QString& text) { Command3->setText(text); },
    };
    const std::array<QWidget*, 4> owners{Frame1, Option1[0], Option1[1], Command3};
    for (std::size_t offset = 0; offset < captions.size(); ++offset) {
        const auto text = localText(m_session, static_cast<std::int16_t>(offset));
        if (!text) {
            return; // A language without strings leaves the captions of the one before.
        }
        captions[offset](*text);
        owners[offset]->setAccessibleName(*text);
    }
}

// A plain window knows no default button by itself.
void frmGameSelect::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Command3->click();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void frmGameSelect::ComboLang_Click(int listIndex) {
    if (listIndex >= 0) {
        chooseLanguage(m_session, listIndex);
        setSelectCaptions();
    }
}

void frmGameSelect::Option1_Click(int index) {
    isNewFile = static_cast<std::uint8_t>(index);
}

void frmGameSelect::Command3_Click() {
    if (isNewFile == 0) {
        nextWithSavedFile();
    } else {
        nextWithNewFile();
    }
}

void frmGameSelect::nextWithSavedFile() {
    askSavedFile();
    if (selectedFile.isEmpty() || !QFileInfo(selectedFile).isFile()) {
        return;
    }
    m_session.playFilePath = toPath(selectedFile);
    m_session.newFileFlag = false;
    emit savedFileChosen();
}

void frmGameSelect::nextWithNewFile() {
    do {
        askNewFile();
        if (selectedFile.isEmpty()) {
            return;
        }
        m_session.playFilePath = toPath(selectedFile);
    } while (QFileInfo(selectedFile).isFile()
             && platform::showMessage(this, QStringLiteral("File exist.Overwrite ?"),
                                      platform::Icon::Question, platform::Buttons::YesNo)
                    == platform::Answer::No);
    document::PlayFile play(m_session.playFilePath);
    if (document::writePlayHeader(play).ok()) {
        emit newFileMade();
    }
}

void frmGameSelect::askSavedFile() {
    const bool chosen = platform::showOpen(
        this, m_commonDialog, {QStringLiteral("Select existing game"), kPlayFilter, platform::playsFolder()});
    selectedFile = chosen ? m_commonDialog.fileName : QString();
}

void frmGameSelect::askNewFile() {
    const bool chosen =
        platform::showSave(this, m_commonDialog, {QStringLiteral("Select new game"), kPlayFilter, {}});
    selectedFile = chosen ? m_commonDialog.fileName : QString();
}

} // namespace zeltrona::session
