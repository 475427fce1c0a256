#pragma once

#include <QDialog>
#include <QString>

class QLineEdit;
class QListWidget;
class QTextBrowser;
class QToolButton;

namespace zeltrona::dialogs {

/// The help: contents at the left, the topic at the right, a search over all topics, and the way back.
/// Its texts come from the file `ZP.hlp` beside the program.
class frmHelp : public QDialog {
    Q_OBJECT

public:
    /// `fileName`: full path of the help file. One that is missing or damaged is told in the window.
    frmHelp(const QString& fileName, QWidget* parent);
    ~frmHelp() override;

private:
    void buildControls();
    bool fillContents();
    void showTopic(const QString& page);
    void search(const QString& words);
    bool holds(const QString& page, const QString& words) const;

    QString m_fileName;
    QLineEdit* m_search = nullptr;
    QListWidget* m_contents = nullptr;
    QTextBrowser* m_topic = nullptr;
    QToolButton* m_back = nullptr;
};

} // namespace zeltrona::dialogs
