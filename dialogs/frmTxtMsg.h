#pragma once

#include "document/session.h"

#include <QDialog>

namespace zeltrona::dialogs {

/// The notice about character sets ahead of the Text tool's font dialog. Its check box keeps it away for the
/// rest of the session; nothing stores that.
class frmTxtMsg : public QDialog {
    Q_OBJECT

public:
    frmTxtMsg(document::Session& session, QWidget* parent);
};

} // namespace zeltrona::dialogs
