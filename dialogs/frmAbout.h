#pragma once

#include <QDialog>
#include <QString>

#include <optional>

namespace zeltrona::dialogs {

/// Name and version of the program, and the way to the system's own information program.
class frmAbout : public QDialog {
    Q_OBJECT

public:
    explicit frmAbout(QWidget* parent);

private:
    void StartSysInfo();
};

} // namespace zeltrona::dialogs
