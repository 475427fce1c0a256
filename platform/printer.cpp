#include "platform/printer.h"

#include <QPrintDialog>
#include <QSpinBox>

namespace zeltrona::platform {
namespace {

/// The dialog's own result has the range the right way round; what was typed stands in its two boxes.
PrintChoice choiceOf(QPrintDialog& dialog, int pages) {
    PrintChoice choice;
    choice.accepted = true;
    choice.toPage = pages;
    if (dialog.printRange() == QAbstractPrintDialog::PageRange) {
        const auto* from = dialog.findChild<QSpinBox*>(QStringLiteral("from"));
        const auto* to = dialog.findChild<QSpinBox*>(QStringLiteral("to"));
        choice.fromPage = from != nullptr ? from->value() : dialog.fromPage();
        choice.toPage = to != nullptr ? to->value() : dialog.toPage();
    }
    choice.copies = dialog.printer()->copyCount();
    return choice;
}

} // namespace

PrintChoice showPrinter(QWidget* parent, QPrinter& printer, const PrintQuestion& question) {
    QPrintDialog dialog(&printer, parent);
    dialog.setObjectName(QStringLiteral("xx"));
    dialog.setWindowTitle(question.title);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, true);
    dialog.setMinMax(1, question.pages);
    dialog.setFromTo(1, question.pages);
    dialog.setPrintRange(QAbstractPrintDialog::PageRange);
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    const PrintChoice choice = choiceOf(dialog, question.pages);
    printer.setCopyCount(1);
    printer.setPrintRange(QPrinter::AllPages);
    return choice;
}

} // namespace zeltrona::platform
