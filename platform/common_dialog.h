#pragma once

#include <QString>

#include <cstdint>
#include <optional>

class QWidget;

namespace zeltrona::platform {

/// The one dialog of a window that asks for files and colours; it remembers what it held between uses.
struct CommonDialog {
    QString fileName;        ///< full path last chosen; stays on cancel
    QString fileTitle;       ///< the bare name; empty after a cancel
    std::int32_t color = 0;  ///< last accepted colour, 0x00BBGGRR; 0 at first
    bool cancelError = false; ///< a cancel counts as an error; once set it stays set until a caller clears it
};

struct FileQuestion {
    QString title;
    QString filter;      ///< as "Zeltrona File (*.zpf)"
    QString folder;      ///< empty: where the dialog stood last
};

/// Each returns false on cancel. QFileDialog; save mode never asks about overwriting.
bool showOpen(QWidget* parent, CommonDialog& dialog, const FileQuestion& question);
bool showSave(QWidget* parent, CommonDialog& dialog, const FileQuestion& question);
/// QColorDialog that opens on dialog.color; the colour stays on cancel.
bool showColor(QWidget* parent, CommonDialog& dialog);

} // namespace zeltrona::platform
