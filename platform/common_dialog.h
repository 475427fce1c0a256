#pragma once

#include <QString>

#include <cstdint>

class QWidget;

namespace zeltrona::platform {

/// The one dialog of a window that asks for files and colours; it remembers what it held between uses.
struct CommonDialog {
    QString fileName;         ///< full path last chosen; stays on cancel
    QString fileTitle;        ///< the bare name; empty after a cancel
    std::int32_t color = 0;   ///< last accepted colour, 0x00BBGGRR; 0 at first
    bool cancelError = false; ///< a cancel counts as an error; once set it stays set until a caller clears it
};

struct FileQuestion {
    QString title;
    QString filter; ///< as "Zeltrona File (*.zpf)"
    QString folder; ///< empty: where the last file dialog of the run stood, as far as one may save there
};

/// Each returns false on cancel. The object is a QFileDialog named "CommonDialog1". What the user typed comes
/// back as it stands: no extension is added, saving asks nothing about overwriting, and opening lets a name
/// through that does not exist, since the callers have their own answers to both.
bool showOpen(QWidget* parent, CommonDialog& dialog, const FileQuestion& question);
bool showSave(QWidget* parent, CommonDialog& dialog, const FileQuestion& question);

/// QColorDialog named "CommonDialog1" that opens on dialog.color; the colour stays on cancel.
bool showColor(QWidget* parent, CommonDialog& dialog);

} // namespace zeltrona::platform
