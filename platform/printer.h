#pragma once

#include <QPrinter>
#include <QString>

class QWidget;

namespace zeltrona::platform {

/// What the print dialog is opened with and what it gives back.
struct PrintQuestion {
    QString title;
    int pages = 1; ///< the range offered is 1 to this
};
struct PrintChoice {
    bool accepted = false;
    int fromPage = 1; ///< as typed, also when it lies above toPage
    int toPage = 1;
    int copies = 1;
};

/// QPrintDialog on the printer. The copies are handed over and taken off the printer, so that the driver does
/// not multiply them again.
PrintChoice showPrinter(QWidget* parent, QPrinter& printer, const PrintQuestion& question);

} // namespace zeltrona::platform
