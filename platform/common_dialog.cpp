#include "platform/common_dialog.h"

#include "platform/color_value.h"
#include "platform/program_folder.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>

namespace zeltrona::platform {

namespace {

bool askFile(QWidget* parent, CommonDialog& dialog, const FileQuestion& question,
             QFileDialog::AcceptMode mode) {
    QFileDialog window(parent, question.title, question.folder, question.filter);
    window.setObjectName(QStringLiteral("CommonDialog1"));
    window.setAccessibleName(question.title);
    window.setAcceptMode(mode);
    if (mode == QFileDialog::AcceptSave) {
        window.setDirectory(folderToSaveIn(window.directory().absolutePath()));
    }
    window.setFileMode(QFileDialog::AnyFile);
    window.setOption(QFileDialog::DontConfirmOverwrite);
    if (window.exec() != QDialog::Accepted || window.selectedFiles().isEmpty()) {
        dialog.fileTitle.clear();
        return false;
    }
    dialog.fileName = window.selectedFiles().constFirst();
    dialog.fileTitle = QFileInfo(dialog.fileName).fileName();
    return true;
}

} // namespace

bool showOpen(QWidget* parent, CommonDialog& dialog, const FileQuestion& question) {
    return askFile(parent, dialog, question, QFileDialog::AcceptOpen);
}

bool showSave(QWidget* parent, CommonDialog& dialog, const FileQuestion& question) {
    return askFile(parent, dialog, question, QFileDialog::AcceptSave);
}

bool showColor(QWidget* parent, CommonDialog& dialog) {
    QColorDialog window(colorOfValue(dialog.color), parent);
    window.setObjectName(QStringLiteral("CommonDialog1"));
    window.setAccessibleName(QStringLiteral("Color"));
    if (window.exec() != QDialog::Accepted) {
        return false;
    }
    dialog.color = valueOfColor(window.selectedColor());
    return true;
}

} // namespace zeltrona::platform
